#include "pictures/court_parts.h"

namespace tombrello::art {
namespace {

using namespace court;

constexpr Rgba kWhiteHair{232, 232, 236, 255};
constexpr Rgba kAuburn{176, 84, 36, 255};
constexpr Rgba kBrown{104, 62, 36, 255};
constexpr Rgba kRaven{46, 42, 58, 255};

const Path& tail() {
  static const Path path = outline("M0 -1.4 C1 0 0.9 1.2 0 1.3 C-0.9 1.2 -1 0 0 -1.4 Z");
  return path;
}

void add_robe(Figure& f, Rgba robe) {
  f.inked("M20 82 L20 67 C24 60 32 56 41 54 L58 54 C66 56 72 59 76 65 L76 71 Z", robe);
}

void add_beard(Figure& f, std::string_view path, std::string_view strands, Rgba hair) {
  f.inked(path, hair);
  f.line(strands, 0.5F, kInk);
  f.line("M-4.2 9.2 Q-2 10.4 1 9", 1.1F, {178, 52, 56, 255});
  add_moustache(f, hair);
}

void add_sceptre(Figure& f) {
  f.inked("M67.4 24 L69.6 24 L70 72 L67 72 Z", kGold);
  f.inked(suit_outline(Suit::hearts, {68.5F, 19.5F}, 12), kCrimson);
  f.inked(ellipse({68.5F, 27}, 2.8F, 1.6F), kGold);
  f.plain("M65.4 17.4 Q65.6 15.8 67 15.6 Q66 16.8 65.4 17.4 Z", kCream);
}

void add_open_crown(Figure& f) {
  f.inked(
      "M-9.9 -11.2 L-12.4 -20.4 L-7.2 -16 L-5.6 -22.4 L-2.2 -16.8 L0 -24 L2.2 -16.8 "
      "L5.6 -22.4 L7.2 -16 L12.4 -20.4 L9.9 -11.2 Q0 -8.6 -9.9 -11.2 Z",
      kGold);
  f.inked("M-9.4 -7.4 Q0 -4.6 9.4 -7.4 L9.9 -11.4 Q0 -8.6 -9.9 -11.4 Z", kOldGold);
  f.sprinkle(circle({0, 0}, 1.2F), {{-6, -8.4F}, {0, -7.6F}, {6, -8.4F}}, kCrimson);
  f.inked(circle({-12.4F, -21}, 1.1F), kCream);
  f.inked(circle({12.4F, -21}, 1.1F), kCream);
  f.inked(circle({0, -24}, 1.2F), kCrimson);
}

void add_ermine_collar(Figure& f) {
  f.inked(
      "M32 58 C36 52 42 51 45 53 Q50 57 55 53 C58 51 64 52 68 57 C66 65 58 69 50 69 "
      "C42 69 35 66 32 58 Z",
      kCream);
  f.sprinkle(tail(),
             {{37, 58}, {42, 62}, {40, 57}, {47, 65.5F}, {54, 65.5F}, {60, 62}, {62, 57}, {58, 58}},
             kInk);
}

// Hearts: the old king, gentle, in ermine, with the sceptre.
void add_king_of_hearts(Figure& f) {
  add_sceptre(f);
  add_robe(f, kCrimson);
  f.inked("M43 54 L57 54 L59 75 L41 79 Z", kNavy);
  f.sprinkle(polygon({{0, -1.6F}, {1.2F, 0}, {0, 1.6F}, {-1.2F, 0}}),
             {{25, 69}, {31, 66}, {25, 76}, {31, 73}, {37, 70}, {37, 76}, {63, 69}, {72, 66}},
             kGold);
  f.at = head_place(49, 38, 0, 1);
  f.inked(
      "M-9 -8 C-13 -4 -13 2 -11 5 C-14 8 -13 13 -9 14 L9 14 C13 13 14 8 11 5 C13 2 13 -4 9 -8 Z",
      kWhiteHair);
  add_neck(f);
  f.at = {};
  add_ermine_collar(f);
  f.at = head_place(49, 38, 0, 1);
  add_face(f, {{150, 150, 158, 255}, {44, 84, 140, 255}});
  f.line("M5.6 -0.6 L7 -1.6 M5.8 0.4 L7.4 0.4 M-6 2 Q-5 2.6 -3.8 2.2 M0.4 2.4 Q2 3 3.8 2.4", 0.45F,
         {190, 130, 104, 255});
  add_beard(f,
            "M-8.2 1 C-7.6 5 -6.4 6.4 -4 6.2 L2.6 6.2 C6 6 7.6 4 8.6 0 C10.4 4 11 9 8.6 12 "
            "C9 16 6 18.4 3.6 18.2 C2 21.4 -3 21.4 -4.4 18.4 C-7.4 18.2 -9.6 15 -8.6 11.6 "
            "C-10.4 8 -9.6 4 -8.2 1 Z",
            "M-6 12 Q-6 15 -4 15.6 M-1.6 13 Q-2 17 0 18.4 M3 12.6 Q3.4 15.6 5.6 15 "
            "M6.6 8 Q7.4 10 6.4 11.4 M-7.4 7 Q-8 9 -7 10.4",
            kWhiteHair);
  f.line(
      "M-11 -2 Q-9.4 0 -10.6 3 M-11.4 8 Q-9.6 10 -10.6 12.4 M11 -2 Q9.6 0 10.6 3 "
      "M11.4 8 Q10 10 10.8 12.4",
      0.5F, kInk);
  add_open_crown(f);
  f.at = {};
  add_arm(f, {68.5F, 62}, 1, kCrimson, kCream);
}

void add_axe(Figure& f) {
  f.inked("M66.4 13 L69 13 L69.2 72 L66.2 72 Z", {140, 92, 52, 255});
  f.inked("M66.4 17 C63 17 61.4 15 60.6 13 C58.4 19 58.4 27 60.8 33 C61.6 30 63.4 28 66.4 28 Z",
          kSteel);
  f.inked("M69 18 L74.6 15.4 C73.6 20 73.6 24 74.6 29 L69 26.4 Z", kSteel);
  f.line("M60.9 17 C60 21 60 26 61 30", 0.6F, kCream);
}

void add_closed_crown(Figure& f) {
  f.inked("M-9 -10 C-13 -20 -6 -22.4 0 -19.6 C6 -22.4 13 -20 9 -10 Z", kCrimson);
  f.inked(
      "M-1.2 -8 L-1.2 -20 L1.2 -20 L1.2 -8 Z M-9.4 -10 C-13 -17 -8 -22 -1 -20.4 L-1 -18.6 "
      "C-6.4 -20 -9.6 -17 -7.4 -9.6 Z M9.4 -10 C13 -17 8 -22 1 -20.4 L1 -18.6 "
      "C6.4 -20 9.6 -17 7.4 -9.6 Z",
      kGold);
  f.inked("M-9.4 -6.8 Q0 -4 9.4 -6.8 L9.8 -11 Q0 -8.4 -9.8 -11 Z", kGold);
  f.sprinkle(polygon({{0, -1.4F}, {1.7F, 0}, {0, 1.4F}, {-1.7F, 0}}),
             {{-6, -8}, {0, -7.2F}, {6, -8}}, kTeal);
  f.inked(
      "M-0.8 -20 L-0.8 -22.6 L-2.4 -22.6 L-2.4 -24 L-0.8 -24 L-0.8 -25.4 L0.8 -25.4 L0.8 -24 "
      "L2.4 -24 L2.4 -22.6 L0.8 -22.6 L0.8 -20 Z",
      kGold);
}

// Diamonds: the merchant king, auburn and shrewd, with the axe.
void add_king_of_diamonds(Figure& f) {
  add_axe(f);
  add_robe(f, kVermilion);
  f.sprinkle(outline("M0 -2.4 Q0.5 -0.5 2.4 0 Q0.5 0.5 0 2.4 Q-0.5 0.5 -2.4 0 Q-0.5 -0.5 0 -2.4 Z"),
             {{25, 72}, {31, 68}, {31, 76}, {37, 72}, {63, 70}, {72, 67}}, kGold);
  f.inked("M44 54 L56 54 L58 75.4 L42 78.4 Z", kCream);
  f.line("M44 60 L56.4 58 M43.6 66 L57 63.6 M43 72 L57.6 69.4", 1.2F, kTeal);
  f.inked("M41 53 C36 54 31 57 29 60 L40 80 L45 78 L42 64 Z", kTeal);
  f.inked("M58 53 C64 54 69 57 71 60 L60 76 L55.6 76 L57.6 64 Z", kTeal);
  f.line("M33 59 L42 76 M67 59 L59 73", 0.9F, kGold);
  f.at = head_place(49, 38, 0, -1);
  f.inked("M-8 -8 C-11 0 -12 8 -10 13 C-7 15 7 15 10 13 C13 8 12 -2 9 -8 Z", kAuburn);
  f.line("M9.4 -2 Q11 4 9.6 11 M-8.8 2 Q-10.4 7 -9 12", 0.5F, kInk);
  add_neck(f);
  add_face(f, {{140, 60, 24, 255}, {58, 96, 52, 255}, false, 0.7F});
  add_beard(f,
            "M-8 2 C-7 6 -6 6.6 -4 6.4 L2.6 6.4 C6 6 7.4 4 8.4 1 C9 7 7 12 4 15 "
            "C2 17.4 -0.6 20 -2.2 24 C-3.6 20 -5.4 17 -6.6 14 C-8.2 10 -8.6 6 -8 2 Z",
            "M-5 12 Q-4 16 -2.4 19 M-1.6 12.6 L-2 18 M2.6 12 Q1.6 15 0 17", kAuburn);
  f.line("M-8.2 9.8 C-10 10.6 -11 9 -10 7.6 M5.8 9.8 C8 10.8 9.4 9 8.4 7.4", 1.3F, kAuburn);
  add_closed_crown(f);
  f.at = {};
  add_arm(f, {67.7F, 61}, 1, kVermilion, kGold);
}

void add_trefoil_crown(Figure& f) {
  f.inked(
      "M-10 -11 L-11.4 -16 Q-14 -17 -12.6 -19.4 Q-12.8 -22 -10.6 -21.8 Q-8.4 -22 -8.6 -19.4 "
      "Q-7.2 -17 -9 -16 L-5 -14 L-1.4 -17 Q-4 -17.6 -3 -20.4 Q-3 -23.8 0 -24 "
      "Q3 -23.8 3 -20.4 Q4 -17.6 1.4 -17 L5 -14 L9 -16 Q7.2 -17 8.6 -19.4 Q8.4 -22 10.6 -21.8 "
      "Q12.8 -22 12.6 -19.4 Q14 -17 11.4 -16 L10 -11 Q0 -8.4 -10 -11 Z",
      kGold);
  f.inked("M-9.4 -7 Q0 -4.2 9.4 -7 L10 -11 Q0 -8.4 -10 -11 Z", kCrimson);
  f.sprinkle(circle({0, 0}, 1),
             {{-7, -8.4F}, {-3.5F, -7.7F}, {0, -7.4F}, {3.5F, -7.7F}, {7, -8.4F}}, kCream);
}

void add_orb(Figure& f) {
  f.inked(circle({67.5F, 52}, 6.8F), kNavy);
  f.inked("M60.8 50.4 Q67.5 53.4 74.2 50.4 L74.2 53 Q67.5 56 60.8 53 Z", kGold);
  f.inked("M66.2 45.4 L66.2 51.6 L68.8 51.6 L68.8 45.4 Z", kGold);
  f.inked(
      "M66.5 45.6 L66.5 41.6 L64 41.6 L64 39.4 L66.5 39.4 L66.5 36.6 L68.5 36.6 L68.5 39.4 "
      "L71 39.4 L71 41.6 L68.5 41.6 L68.5 45.6 Z",
      kGold);
}

// Clubs: the builder king, brown and broad, with the orb.
void add_king_of_clubs(Figure& f) {
  add_robe(f, kTeal);
  f.inked("M42 54 L58 54 L61 74.6 L39 79 Z", kGold);
  f.line(
      "M43 60 L59 74 M41.4 67 L50 76.4 M49 54.6 L60 65 M57.6 56 L41 72 M59.6 63 L45 77 "
      "M50 55 L42 63",
      0.5F, kOldGold);
  f.inked("M42 53 C36 54 30 57 27 61 C30 68 33 74 34 80 L41 78.4 C42 70 42.6 62 42 53 Z", kCream);
  f.inked("M58 53 C64 54 70 57 73 61 C70 66 68 70 67 73.4 L59.4 75 C58 68 57.4 60 58 53 Z", kCream);
  f.sprinkle(tail(),
             {{32, 61},
              {37, 58},
              {36.4F, 65},
              {38.6F, 71.6F},
              {36.6F, 76},
              {63, 58},
              {68, 61},
              {63.4F, 64},
              {62, 70}},
             kInk);
  f.at = head_place(50, 38, 0, 1);
  f.inked("M-9 -8 C-12 0 -12 6 -11 11 C-9 14 9 14 11 11 C12 6 12 0 9 -8 Z", kBrown);
  f.line("M-10.4 0 Q-9 6 -10 11 M10.4 0 Q9 6 10 11", 0.5F, kInk);
  add_neck(f);
  add_face(f, {{70, 40, 24, 255}, {90, 56, 30, 255}, false, 0.4F});
  add_beard(f,
            "M-8.2 1 C-7.4 5 -6.4 6.4 -4 6.2 L2.6 6.2 C6 6 7.6 4 8.6 0 C10 6 10 14 8.6 20 "
            "C6 22.6 3 20.6 0 22.6 C-3 20.6 -6 22.6 -8.4 20 C-9.8 14 -9.6 6 -8.2 1 Z",
            "M-6 12 L-6 19 M-3 13 L-3.2 19 M0 13.4 L0 20 M3.2 13 L3.4 19 M6.2 11 L6.4 19", kBrown);
  add_trefoil_crown(f);
  f.at = {};
  add_orb(f);
  add_arm(f, {67.5F, 61.4F}, 1, kTeal, kGold);
}

void add_armour(Figure& f) {
  f.inked("M37 55 C44 53 56 53 63 55 C65 62 64 69 61.4 74.6 L38 79 C35.6 71 35.6 62 37 55 Z",
          kSteel);
  f.line("M50 55 L50 76.6 M38 68 Q50 72 62.6 66.4 M37 62 Q50 66 64 60.6", 0.5F, kInk);
  f.inked("M36 54 C30 54 24 58 22.6 64 C28 67 34 66 38.6 63 Z", kSteel);
  f.inked("M63 54 C69 54 74 57 75.6 62.6 C70 66 66 65 61.6 63 Z", kSteel);
  f.line("M25 64 C27 60 31 57.6 36 57 M73.4 63 C72 60 68 57.6 63.6 57", 0.5F, kInk);
  f.sprinkle(circle({0, 0}, 0.8F),
             {{27, 63.6F},
              {31, 63.8F},
              {35, 63},
              {65, 63},
              {69, 63.4F},
              {46, 58},
              {54, 58},
              {46, 73.4F},
              {54, 72}},
             kGold);
}

void add_crowned_helmet(Figure& f) {
  f.inked("M-9 -9 C-10 -17 -4 -22 0 -24.6 C4 -22 10 -17 9 -9 Z", kSteel);
  f.line("M0 -24 L0 -12 M-5 -12 Q-5.4 -17 -2 -21", 0.6F, kCream);
  f.inked(
      "M-9.8 -10.6 L-12 -17.6 L-7.6 -14.6 L-5.6 -19 L-2.6 -14.2 L0 -19.4 L2.6 -14.2 "
      "L5.6 -19 L7.6 -14.6 L12 -17.6 L9.8 -10.6 Q0 -8 -9.8 -10.6 Z",
      kGold);
  f.inked("M-9.4 -6.6 Q0 -3.8 9.4 -6.6 L9.9 -10.8 Q0 -8 -9.9 -10.8 Z", kOldGold);
  f.sprinkle(circle({0, 0}, 1.1F), {{-6, -7.8F}, {0, -7}, {6, -7.8F}}, kNavy);
}

// Spades: the warrior king, raven-black, in steel, with the sword.
void add_king_of_spades(Figure& f) {
  f.inked("M66.6 52 L66.6 18 L68.5 12.4 L70.4 18 L70.4 52 Z", kSteel);
  f.line("M68.5 18 L68.5 50", 0.7F, kCream);
  add_robe(f, kNavy);
  add_armour(f);
  f.at = head_place(49.5F, 38, 0, -1);
  f.inked("M-8 -8 C-13 0 -13 8 -12 16 C-8 19 8 19 12 16 C13 8 13 0 9 -8 Z", kRaven);
  add_neck(f);
  add_face(f, {kRaven, {70, 74, 90, 255}, false, 1.5F});
  f.line("M3.4 -7 L5 -2.4 M5.4 1.4 L6 4", 0.6F, {196, 92, 84, 255});
  add_beard(f,
            "M-8.2 2 C-7.4 5 -6.4 6.4 -4 6.2 L2.6 6.2 C6 6 7.6 4 8.4 1 C9.4 8 8.4 14 7.4 18 "
            "C6.6 21 5.4 23 3.4 25 C3 21 1.6 18 0 16.4 C-1.8 18 -3.4 21 -4 25 "
            "C-6 23 -7.2 20 -7.8 17 C-8.8 12 -9 7 -8.2 2 Z",
            "M-5.6 12 Q-6 17 -4.6 21 M-2.8 13 Q-3.4 16 -4 18 M2.8 13 Q3.4 16 3.6 18 "
            "M5.8 12 Q6 17 4.6 21",
            {62, 58, 78, 255});
  add_crowned_helmet(f);
  f.at = {};
  f.inked("M61.4 51 L75.2 51 L75.2 53.6 L61.4 53.6 Z", kGold);
  f.inked("M67.2 53.6 L69.8 53.6 L69.8 68 L67.2 68 Z", {120, 74, 42, 255});
  f.inked(circle({68.5F, 68.6F}, 2.2F), kGold);
  add_arm(f, {68.5F, 60.6F}, 1, kCrimson, kSteel);
}

}  // namespace

void add_king(Figure& figure, Suit suit) {
  switch (suit) {
    case Suit::hearts:
      return add_king_of_hearts(figure);
    case Suit::diamonds:
      return add_king_of_diamonds(figure);
    case Suit::clubs:
      return add_king_of_clubs(figure);
    case Suit::spades:
      return add_king_of_spades(figure);
  }
}

}  // namespace tombrello::art
