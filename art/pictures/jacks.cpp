#include "pictures/court_parts.h"

namespace tombrello::art {
namespace {

using namespace court;

constexpr Rgba kStraw{236, 186, 92, 255};
constexpr Rgba kHazel{122, 76, 42, 255};
constexpr Rgba kRust{190, 84, 34, 255};
constexpr Rgba kRaven{46, 42, 58, 255};
constexpr Rgba kWood{140, 92, 52, 255};

void add_doublet(Figure& f, Rgba cloth, Rgba left, Rgba right) {
  f.inked("M20 82 L20 70 C23 62 31 58 41 55 L58 55 C67 57 73 61 76 66 L76 71 Z", cloth);
  f.inked("M39 56 L50 57 L50 76.4 L37.6 79 C36 71 36.6 63 39 56 Z", left);
  f.inked("M61 56 L50 57 L50 76.4 L61.6 74 C64 68 63.4 62 61 56 Z", right);
}

void add_buttons(Figure& f, Rgba colour) {
  f.sprinkle(circle({0, 0}, 1.2F), {{50, 62}, {50, 66.6F}, {50, 71.2F}}, colour);
}

// A feather of a cap: its quill starts at the origin and sweeps to the upper right.
void add_feather(Figure& f, const Affine& place, Rgba colour) {
  const Affine before = f.at;
  f.at = before * place;
  f.inked("M0 0 C0 -6 4 -11 12 -12 C16 -12 18 -9 17 -7 C14 -3 6 -2 0 0 Z", colour);
  f.line(
      "M-1 1 C3 -5 8 -8.6 15 -9 M4 -4 L3.6 -7 M7 -6.4 L7.4 -9.6 M6 -5.6 L10 -4.6 M10 -7.8 L13 -6.4",
      0.5F, kInk);
  f.at = before;
}

void add_letter(Figure& f) {
  f.at = shift(66.4F, 47) * turning(10);
  f.inked("M-8 -5.6 L8 -5.6 L8 5.6 L-8 5.6 Z", {255, 255, 250, 255});
  f.line("M-8 -5.6 L0 1 L8 -5.6 M-8 5.6 L-2 -0.6 M8 5.6 L2 -0.6", 0.55F, kInk);
  f.plain(suit_outline(Suit::hearts, {0, 0.8F}, 6), kCrimson);
  f.at = {};
}

// Hearts: the fair messenger, with a letter.
void add_jack_of_hearts(Figure& f) {
  add_doublet(f, kNavy, kCrimson, kCrimson);
  f.line("M43 58 L41.6 78 M46.6 58 L46 77 M57 58 L58 74.6 M53.6 58 L54 75.4", 1, kGold);
  add_buttons(f, kGold);
  f.sprinkle(suit_outline(Suit::hearts, {0, 0}, 3.6F), {{25, 71}, {31, 66}, {31, 74}, {70, 65}},
             kGold);
  f.at = head_place(48.5F, 38, -3, -1);
  const std::vector<Point> curls{{-9, -4},   {-10.4F, 0.6F}, {-9.6F, 5.4F}, {-7.8F, 10},
                                 {9.4F, -4}, {11, 0.6F},     {11, 5.6F},    {9, 10.4F}};
  for (const Point& curl : curls) f.inked(circle(curl, 3.4F), kStraw);
  add_neck(f);
  add_face(f, {{166, 116, 46, 255}, {52, 104, 160, 255}});
  for (const Point& curl :
       {Point{-6, -7.4F}, Point{-1.4F, -8.6F}, Point{3.4F, -8.4F}, Point{7.6F, -6.6F}}) {
    f.inked(circle(curl, 2.8F), kStraw);
  }
  f.line(
      "M-10.8 1 Q-9.6 -0.6 -8.8 1.4 M-9.8 6 Q-8.6 4.4 -7.6 6.2 M11.6 1 Q10.4 -0.6 9.4 1.4 "
      "M11.6 6 Q10.4 4.4 9.4 6.2 M-6.6 -6.8 Q-5.4 -8 -4.8 -6.4 M2.8 -8 Q4 -9.4 4.8 -7.6",
      0.5F, {150, 98, 34, 255});
  f.inked(
      "M-10.4 -9 C-14 -14 -12 -20 -3 -21.6 C6 -23 14 -19.6 12.6 -13.6 C12 -11 10.6 -9.4 9.6 "
      "-8.6 Q0 -12 -10.4 -9 Z",
      kCrimson);
  f.inked("M-10.6 -8 Q0 -11.4 10 -8 L9.8 -11 Q0 -14.4 -10.6 -11 Z", kNavy);
  add_feather(f, shift(-8, -12) * scaling(0.86F, 0.86F) * turning(-22), kCream);
  f.inked(circle({-8, -11.4F}, 1.7F), kGold);
  f.at = {};
  f.inked("M38 56 C42 53 45 53.6 49.6 58 C54 53.6 57 53 61 56 L58.6 63 L49.6 59 L41 63 Z", kCream);
  add_letter(f);
  add_arm(f, {67.6F, 56.6F}, 1, kNavy, kGold);
}

void add_pennon(Figure& f) {
  f.inked("M64.6 20 L66.8 20 L67.4 72 L64.6 72 Z", kWood);
  f.inked("M65.7 11.6 C67.6 14.6 67.6 17 65.7 20.4 C63.8 17 63.8 14.6 65.7 11.6 Z", kSteel);
  f.inked("M66.8 21.4 C69.6 20 72 23 75.4 21.6 L73 26.6 L75.4 32.6 C72 34 69.6 31 66.8 32.4 Z",
          kTeal);
  f.plain(suit_outline(Suit::diamonds, {70, 26.8F}, 6), kGold);
}

void add_brimmed_hat(Figure& f) {
  f.inked("M-8.6 -9 C-10 -18 -5 -22 1 -21.6 C8 -21 10 -16 9 -9 Z", kVermilion);
  f.inked(
      "M-15 -9.6 C-13 -14.4 -6 -13.4 0 -12.4 C6 -13.4 11.6 -14.6 13.6 -11 C11 -6.6 5 -7 0 -7.4 "
      "C-6 -6.8 -12 -5.8 -15 -9.6 Z",
      kTeal);
  add_feather(f, shift(5, -12.4F) * scaling(-0.84F, 0.84F) * turning(6), kGold);
  f.inked(suit_outline(Suit::diamonds, {5.4F, -11.8F}, 5), kCream);
}

void add_ruff(Figure& f) {
  f.inked(
      "M37 57 C38 53.6 42 52.6 44 54.6 C46 53 48.4 54 49.6 56.4 C51 54 53.4 53 55.4 54.6 "
      "C58 52.6 61.6 54 62.4 57 C60 61 57.4 60.6 56 59.4 C54 62 51 61.6 49.6 60 "
      "C48 62 45 62 43.4 59.6 C41.4 61.4 38.6 60.4 37 57 Z",
      kCream);
}

// Diamonds: the dashing herald, with his pennon.
void add_jack_of_diamonds(Figure& f) {
  add_pennon(f);
  add_doublet(f, kVermilion, kTeal, kTeal);
  f.sprinkle(suit_outline(Suit::diamonds, {0, 0}, 6),
             {{43.4F, 66}, {43, 74}, {56.6F, 65}, {57, 71.6F}}, kGold);
  f.line("M24 66 L23 80 M28.6 62 L28 80 M33.4 59.4 L33 79 M67 60 L67.6 72 M72 62.4 L72.4 71", 1,
         kGold);
  add_buttons(f, kCream);
  f.at = head_place(49, 38.5F, 3, 1);
  f.inked(
      "M-8.6 -8 C-12 -2 -12 6 -11 12 C-8 14.6 -4 14 -3 12 L5 12 C7 14.4 11 14 12.4 11 "
      "C13 4 12 -4 9 -8 Z",
      kHazel);
  f.line("M-10 0 Q-10.4 6 -9.4 11.6 M10.4 -2 Q11.4 5 10.6 11.4 M8.8 2 Q9.6 7 8.8 12", 0.5F, kInk);
  add_neck(f);
  add_face(f, {{84, 48, 26, 255}, {84, 58, 34, 255}});
  f.plain(
      "M-1.9 6 C-3.6 5.6 -5.4 7.4 -8.2 5.4 C-7 8.2 -3.6 8.6 -1.9 7.2 C0 8.6 3.6 8.2 5 5.2 "
      "C2 7.4 0 5.6 -1.9 6 Z",
      {84, 48, 26, 255});
  f.inked(
      "M-8 -1 C-8.6 -6 -8 -9 0 -10 C8 -9 9 -6 8.6 0 C7.4 -3 7 -5 6.6 -6.6 Q0 -4.8 -6.4 -6.4 "
      "Q-7.4 -4 -8 -1 Z",
      kHazel);
  add_brimmed_hat(f);
  f.at = {};
  add_ruff(f);
  add_arm(f, {66, 61.4F}, 1, kVermilion, kTeal);
}

void add_quiver(Figure& f) {
  f.at = shift(31, 58) * turning(-16);
  f.line("M-3 -4 L-3.4 -17 M0.4 -4 L0.4 -20 M3.6 -4 L4.4 -16", 1, kWood);
  f.inked("M-5.2 -20 L-3.4 -18 L-1.8 -20.4 L-2 -13.4 L-3.4 -11.6 L-4.8 -13.4 Z", kCrimson);
  f.inked("M-1.4 -23 L0.4 -21 L2.2 -23 L2.2 -16 L0.4 -14 L-1.4 -16 Z", kCream);
  f.inked("M2.8 -19 L4.4 -17.4 L6.2 -19 L5.8 -12.4 L4.2 -10.6 L2.8 -12.4 Z", kCrimson);
  f.inked("M-5.4 -6 L6 -6 L5 12 L-4 12 Z", kWood);
  f.inked("M-5.6 -6.4 L6.2 -6.4 L6 -3 L-5.4 -3 Z", kGold);
  f.at = {};
}

void add_bow(Figure& f) {
  f.line("M64.8 17 L66.6 73", 0.6F, kInk);
  f.inked(
      "M64 15.6 C72.6 24 76 40 73.6 58 C73 64 71.4 69 69.4 72.4 L67.8 72 C69.4 68 70.6 64 71 58 "
      "C73 42 70.6 27 63.6 17.4 Z",
      kWood);
}

void add_hood(Figure& f) {
  f.inked(
      "M-8.4 2 C-10 8 -8 14 -3 17.6 L6 17.6 C10.4 13 11 7 10 2 C9.4 -3 9 -5 8.2 -7 "
      "C9 0 8.6 8 5.6 11.6 C3 14.4 -1 14.6 -3.6 12.6 C-6 10.4 -7.8 6 -8.4 2 Z",
      kCrimson);
  f.inked(
      "M-12.6 -5.6 C-7 -9 -3 -9.6 1 -9.4 C6 -9.4 9.6 -8 12.4 -5.4 C14.6 -9 12 -16 6 -20 "
      "C1 -23 -4 -20.6 -7 -16.6 C-9.6 -13 -12 -9.6 -12.6 -5.6 Z",
      kTeal);
  f.inked(
      "M-14.6 -4.8 C-8 -12 2 -13 13.4 -5 C12.4 -3.4 11.4 -3.2 10 -4 C2 -9.4 -6 -8.4 -12 -3.4 "
      "C-13.6 -2.8 -14.6 -3.4 -14.6 -4.8 Z",
      {0, 82, 88, 255});
  add_feather(f, shift(3.4F, -9.6F) * scaling(0.86F, 0.9F) * turning(-30), kCrimson);
}

// Clubs: the archer of the woods, hooded and freckled.
void add_jack_of_clubs(Figure& f) {
  add_quiver(f);
  add_bow(f);
  add_doublet(f, kTeal, kTeal, kTeal);
  f.inked("M39 57 L43.6 57 L62.4 70.4 L62 74 L58.4 74.8 Z", kWood);
  f.sprinkle(circle({0, 0}, 0.8F), {{44, 60.4F}, {49, 64.6F}, {54, 68.8F}, {58.6F, 72.4F}}, kGold);
  f.inked(
      "M31 62 C33 56 40 53 44 52 L56 52 C60 53 66 56 68.6 61 L64 60.6 L62 65 L58 61.6 L55 66.4 "
      "L50.6 62 L46.6 67 L43 62.4 L39.4 66.4 L36.6 62 Z",
      kCrimson);
  f.at = head_place(50, 38, 3, -1);
  add_face(f, {{150, 62, 22, 255}, {56, 108, 62, 255}});
  f.sprinkle(circle({0, 0}, 0.4F),
             {{-6, 3.2F}, {-4.8F, 4.2F}, {-6, 5.4F}, {2.4F, 3.4F}, {4, 3}, {3.4F, 4.8F}},
             {196, 116, 70, 255});
  f.inked(
      "M-7.8 1 C-8 -4 -7 -8 -4 -9.4 L6 -9.4 C8.4 -6 8.6 -2 8.4 3 C7.2 0 6.8 -3 6 -5.4 "
      "C4 -4 2 -4.6 0.6 -6 C-1 -4 -3.4 -4 -5 -5.4 C-6.4 -3.6 -7.2 -1.4 -7.8 1 Z",
      kRust);
  add_hood(f);
  f.at = {};
  add_arm(f, {72, 57.4F}, 1, kTeal, kGold);
}

void add_halberd(Figure& f) {
  f.inked("M67.6 26 L69.8 26 L70.2 72 L67.2 72 Z", kWood);
  f.inked("M68.7 11.6 L70.6 19 L69.8 27 L67.6 27 L66.8 19 Z", kSteel);
  f.inked("M67.6 25 C65.4 25 63.6 24 62.4 22.4 C61.6 26 61.6 31 63.2 35 C64.4 33 66 32 67.6 32 Z",
          kSteel);
  f.inked("M69.8 25.6 L75 28.4 L69.8 31 Z", kSteel);
  f.inked("M66.8 33 L70.6 33 L70.8 35.6 L66.6 35.6 Z", kGold);
}

// Spades: the sullen guardsman, with a halberd.
void add_jack_of_spades(Figure& f) {
  add_halberd(f);
  add_doublet(f, kNavy, kCrimson, kGold);
  f.line("M40.6 60 L47.4 64 M39.4 66 L47.4 70.6 M38.4 72 L46 76.4", 0.9F, kGold);
  f.line("M59.6 60 L52.6 64 M61.4 65.4 L52.6 70.4 M61.8 71.4 L53.6 75.4", 0.9F, kCrimson);
  add_buttons(f, kCream);
  f.inked("M36 57 C29 58 22.6 63 21.4 70 C26 74.4 33 74 37 70 C38.6 65 38.4 60 36 57 Z", kNavy);
  f.plain(
      "M34 59.4 Q27.6 63 25.4 71 L28 72.4 Q29.6 65 35.4 60.6 Z M36 62 Q32.6 66 32.4 72.4 "
      "L35 71.2 Q35.2 66.6 36.8 63.4 Z",
      kCrimson);
  f.at = head_place(49, 38, 0, 1);
  f.inked("M-9 -8 C-12 -2 -12 5 -11.4 9 L-5 11 L6 11 L12 9 C12.4 4 12 -4 9 -8 Z", kRaven);
  add_neck(f);
  add_face(f, {kRaven, {60, 60, 80, 255}, false, 1.1F});
  f.plain("M-4 10.6 Q-2 9.8 0.4 10.6 Q0.8 13.6 -1.8 15.4 Q-4.4 13.6 -4 10.6 Z", kRaven);
  f.inked(
      "M-8.2 2 C-9 -4 -8.6 -8 0 -9.6 C8.6 -8.6 9.6 -4 9 4 L7 4 C7 0 6.8 -2 6.2 -4.6 L-6.8 -4.2 "
      "C-7.4 -2 -7.6 0 -7.6 2 Z",
      kRaven);
  f.inked(
      "M-11.6 -8 C-15 -13 -12 -18.4 -3 -19 C6 -19.6 16.6 -19 15 -12 C14 -9 12 -7.6 10 -7 "
      "Q0 -10.6 -11.6 -8 Z",
      kNavy);
  f.inked("M-11 -7 Q0 -10 10.4 -6.6 L10.4 -9.6 Q0 -13 -11 -10 Z", kGold);
  add_feather(f, shift(8, -10.6F) * scaling(-0.96F, 0.9F) * turning(0), kCrimson);
  f.inked(circle({8, -10}, 1.8F), kCream);
  f.at = {};
  f.inked(
      "M38 58 C38.6 54 43 52.6 49.6 56.6 C56 52.6 60.6 54 61.4 58 L57.6 61.4 L49.6 58.4 "
      "L42 61.4 Z",
      kCream);
  add_arm(f, {68.7F, 61}, 1, kNavy, kCrimson);
}

}  // namespace

void add_jack(Figure& figure, Suit suit) {
  switch (suit) {
    case Suit::hearts:
      return add_jack_of_hearts(figure);
    case Suit::diamonds:
      return add_jack_of_diamonds(figure);
    case Suit::clubs:
      return add_jack_of_clubs(figure);
    case Suit::spades:
      return add_jack_of_spades(figure);
  }
}

}  // namespace tombrello::art
