#include "pictures/court_parts.h"

namespace tombrello::art {
namespace {

using namespace court;

constexpr Rgba kBlonde{240, 196, 108, 255};
constexpr Rgba kChestnut{92, 48, 36, 255};
constexpr Rgba kCopper{206, 98, 40, 255};
constexpr Rgba kRaven{46, 42, 58, 255};
constexpr Rgba kLeaf{54, 128, 74, 255};
constexpr Rgba kGlass{206, 230, 240, 255};

void add_gown(Figure& f, Rgba gown, Rgba front, Rgba trim) {
  f.inked("M20 82 L20 72 C22 64 30 59 38 57 L45 54 L56 54 L63 57 C70 59 75 63 76 68 L76 71 Z",
          gown);
  f.inked("M40.4 57 C42 66 44 70 42 79 L58.6 75.4 C57 69 58.6 65 60 57 Z", front);
  f.inked(
      "M38 57 C41 67 45.6 69 50 69 C54.6 69 59.6 67 62.4 57 L60 55.6 C58 64 54 66 50 66 "
      "C46 66 42 64 40.4 55.6 Z",
      trim);
  f.plain("M40.6 56 C42.4 64 46 65.7 50 65.7 C54 65.7 58 64 59.8 56 L55 53.4 L45 53.4 Z", kSkin);
}

void add_puffs(Figure& f, Rgba cloth, Rgba slashes) {
  f.inked("M37 57 C28 57 21.6 62 21 70 C25 75 34 74.6 38 70.4 C40 66 39.6 60 37 57 Z", cloth);
  f.inked("M63 57 C70 57.6 75 61 75.6 67 C72 71.4 65 71.6 61.6 68.6 C60 65 60.4 60 63 57 Z", cloth);
  f.plain("M65 59 Q70 62 72.4 68.6 L70 69.8 Q68.6 64 64.4 60.4 Z", slashes);
}

void add_pearls(Figure& f, Rgba colour) {
  f.sprinkle(circle({0, 0}, 1),
             {{44.4F, 57.2F},
              {46, 59},
              {48, 60.1F},
              {50.2F, 60.5F},
              {52.4F, 60.1F},
              {54.3F, 59},
              {55.8F, 57.2F}},
             colour);
}

// Hair parted in the middle, seen in front of the brow.
void add_parting(Figure& f, Rgba hair) {
  f.inked(
      "M-8 0 C-7.6 -5 -5 -7.4 -0.8 -9.4 C3.6 -7.4 7 -5 8 1 C10.6 -5 9.6 -13 0 -13.2 "
      "C-9.6 -13 -10.6 -5 -8 0 Z",
      hair);
}

void add_rose(Figure& f) {
  f.line("M29.4 46 C28.6 54 30.4 62 29.6 73", 1.5F, kLeaf);
  f.inked("M29 55 C25 55 22.6 52.6 22 49.6 C26 49.4 28.6 51.4 29 55 Z", kLeaf);
  f.inked(loop({{29, 36.6F},
                {33.4F, 37.6F},
                {35.4F, 41.6F},
                {34, 46},
                {29.4F, 48.4F},
                {24.6F, 46.4F},
                {22.8F, 42},
                {24.6F, 37.8F}}),
          kCrimson);
  f.line(
      "M26 40 C28 37.6 32 39 31.4 42 C31 44 27.6 44 28 41.6 M24 42.4 C25 46.4 30 47.6 32.6 45 "
      "M33.8 42 C34 44.4 33 45.6 32.6 45",
      0.6F, {90, 6, 26, 255});
}

void add_pearl_crown(Figure& f) {
  f.inked(
      "M-8.4 -10.4 C-10.6 -13 -10.8 -17 -8 -18.4 C-6 -19 -4.6 -18 -4 -16.6 "
      "C-3.6 -19.6 -1.6 -22.4 0 -23.6 C1.6 -22.4 3.6 -19.6 4 -16.6 C4.6 -18 6 -19 8 -18.4 "
      "C10.8 -17 10.6 -13 8.4 -10.4 Q0 -13.4 -8.4 -10.4 Z",
      kGold);
  f.plain(suit_outline(Suit::hearts, {0, -15.6F}, 5), kCrimson);
  f.sprinkle(circle({0, 0}, 1), {{-6.6F, -13.4F}, {6.6F, -13.4F}}, kNavy);
  f.sprinkle(circle({0, 0}, 0.8F),
             {{-8.4F, -10}, {-5, -11.4F}, {-1.7F, -12}, {1.7F, -12}, {5, -11.4F}, {8.4F, -10}},
             {255, 255, 255, 255});
}

// Hearts: golden and kind, with a rose.
void add_queen_of_hearts(Figure& f) {
  f.at = head_place(50, 38, -3, 1);
  f.inked(
      "M-9 -8 C-14 -2 -11 5 -14 11 C-16.6 17 -13 21 -14 27 L12 29 C16 24 12 18 15 12 "
      "C17 6 12 0 9 -8 Z",
      kBlonde);
  f.line(
      "M-11 2 C-9 8 -13 12 -12 20 M-9 6 C-8 12 -10.6 16 -9.4 22 M11 2 C9.6 8 13 12 11.6 20 "
      "M9 6 C8.6 12 11 16 9.6 22",
      0.55F, {170, 116, 44, 255});
  f.at = {};
  add_gown(f, kCrimson, kCream, kGold);
  f.at = head_place(50, 38, -3, 1);
  add_neck(f);
  f.at = {};
  f.sprinkle(suit_outline(Suit::hearts, {0, 0}, 3.6F), {{48, 72}, {52.6F, 71}, {50.4F, 75}},
             kCrimson);
  add_puffs(f, kNavy, kCream);
  add_pearls(f, {255, 255, 255, 255});
  f.inked(suit_outline(Suit::hearts, {50.2F, 62.6F}, 4), kCrimson);
  f.at = head_place(50, 38, -3, 1);
  add_face(f, {{176, 122, 52, 255}, {52, 104, 160, 255}, true});
  add_parting(f, kBlonde);
  f.line("M-1 -9.4 C-5 -10 -8 -6 -8.4 -3 M-0.6 -9.4 C4 -10 7.6 -6 8.6 -2", 0.5F,
         {170, 116, 44, 255});
  add_pearl_crown(f);
  f.at = {};
  add_rose(f);
  add_arm(f, {29.6F, 62.6F}, -1, kNavy, kCream);
}

void add_netted_rolls(Figure& f) {
  f.inked("M-6 -8 C-12 -9 -14.6 -4 -13.6 1 C-12.8 5.6 -9 6.4 -7 4 Z", kChestnut);
  f.inked("M6 -8 C12 -9 14.6 -4 13.6 1 C12.8 5.6 9 6.4 7 4 Z", kChestnut);
  f.line(
      "M-8 -7 L-13.4 0 M-11.6 -7.4 L-8 4.6 M-13.6 -3 L-11 5 M-9 -1 L-11.4 5.4 "
      "M8 -7 L13.4 0 M11.6 -7.4 L8 4.6 M13.6 -3 L11 5 M9 -1 L11.4 5.4",
      0.55F, kGold);
}

void add_mirror(Figure& f) {
  f.inked("M66.8 48 L69.4 48 L69.8 70 L66.4 70 Z", kGold);
  f.inked(ellipse({68, 40.6F}, 7, 8.6F), kGold);
  f.inked(ellipse({68, 40.6F}, 5.1F, 6.6F), kGlass);
  f.line("M65.4 42.4 L69.6 36.4 M66.6 45 L71.4 38.2", 1, {255, 255, 255, 255});
  f.inked(circle({68, 31}, 1.3F), kVermilion);
}

// Diamonds: dark and elegant, with her mirror.
void add_queen_of_diamonds(Figure& f) {
  f.at = head_place(47.5F, 38, 4, -1);
  f.inked(
      "M-8 -12 C-14 -6 -13 8 -19 20 C-19 26 -16 30 -10 32 L12 30 C16 28 17 24 17 20 "
      "C13 8 14 -6 8 -12 Z",
      kVermilion);
  f.line("M-11 -2 C-11 8 -15 16 -16 24 M11.4 -2 C11 8 14 14 14.6 22", 0.5F, kInk);
  f.at = {};
  add_gown(f, kTeal, kGold, kCream);
  f.line("M45 70 L55.6 74 M44 74 L50 76.6 M56 69 L44 75.4 M57 72.4 L47 77", 0.6F, kOldGold);
  f.at = head_place(47.5F, 38, 4, -1);
  add_neck(f);
  f.at = {};
  f.line("M43.6 56 Q49 63 55.6 56", 0.8F, kOldGold);
  f.inked(suit_outline(Suit::diamonds, {49.4F, 61.6F}, 6), kVermilion);
  f.inked("M37 57 C28 59 22 66 20 74 L20 82 L36 79 C40 70 40 63 37 57 Z", kTeal);
  f.sprinkle(suit_outline(Suit::diamonds, {0, 0}, 4.4F),
             {{26, 70}, {32, 66}, {32, 74}, {26, 77.4F}, {37, 70.6F}}, kGold);
  f.at = head_place(47.5F, 38, 4, -1);
  add_netted_rolls(f);
  add_face(f, {{70, 36, 26, 255}, {76, 48, 30, 255}, true});
  add_parting(f, kChestnut);
  f.inked(
      "M-8.6 -10 L-10 -16 L-6.4 -14.6 L-5.4 -19 L-2.6 -16 L0 -24.4 L2.6 -16 L5.4 -19 "
      "L6.4 -14.6 L10 -16 L8.6 -10 Q0 -12.6 -8.6 -10 Z",
      kGold);
  f.inked(suit_outline(Suit::diamonds, {0, -15.4F}, 6.4F), kVermilion);
  f.sprinkle(circle({0, 0}, 0.9F), {{-6.4F, -12.4F}, {6.4F, -12.4F}, {-3.2F, -13}, {3.2F, -13}},
             kTeal);
  f.inked(circle({8.8F, 6.6F}, 1.1F), kGold);
  f.at = {};
  add_mirror(f);
  add_arm(f, {68.2F, 60}, 1, kTeal, kCream);
}

void add_braid(Figure& f, float x, float y, float lean) {
  for (int i = 0; i < 5; ++i) {
    const float down = static_cast<float>(i);
    const float turn = i % 2 == 0 ? 32.0F : -32.0F;
    f.inked(moved(ellipse({0, 0}, 3.1F - down * 0.2F, 2.5F),
                  shift(x + lean * down, y + down * 3.9F) * turning(turn)),
            kCopper);
  }
  f.inked(ellipse({x + lean * 4.6F, y + 18.6F}, 1.9F, 1.3F), kCrimson);
  f.inked(moved(outline("M-1.4 0 Q-2.4 3 0 5.6 Q2.4 3 1.4 0 Z"), shift(x + lean * 4.8F, y + 19.4F)),
          kCopper);
}

void add_fan(Figure& f, Point pivot, float reach) {
  Path leaf;
  Path ribs;
  leaf.move(pivot);
  for (int i = 0; i <= 8; ++i) {
    const Affine spoke = shift(pivot.x, pivot.y) * turning(-44.0F + static_cast<float>(i) * 11);
    leaf.line(spoke({0, i % 2 == 0 ? -reach : 0.8F - reach}));
    if (i % 2 != 0) continue;
    ribs.move(pivot);
    ribs.line(spoke({0, -reach}));
  }
  leaf.close();
  f.inked(leaf, kCream);
  const Affine shrink = shift(pivot.x, pivot.y) * scaling(0.76F, 0.76F) * shift(-pivot.x, -pivot.y);
  f.inked(moved(leaf, shrink), kCrimson);
  const Affine more = shift(pivot.x, pivot.y) * scaling(0.46F, 0.46F) * shift(-pivot.x, -pivot.y);
  f.inked(moved(leaf, more), kGold);
  Drawing lines;
  line(lines, ribs, 0.5F, kInk);
  f.add(lines);
}

// Clubs: copper braids and freckles, merry, with a fan and a wreath.
void add_queen_of_clubs(Figure& f) {
  f.at = head_place(50.5F, 38, 3, -1);
  f.inked("M-8 -10 C-12 -4 -11 6 -10 10 L10 10 C11 6 12 -4 8 -10 Z", kCopper);
  f.at = {};
  add_gown(f, kTeal, kCream, kCrimson);
  f.line("M44.6 70 L56 73.6 M43.6 74 L50 76 M56 69.4 L44.4 73.6 M57.4 72.6 L46 77", 0.9F, kCrimson);
  f.at = head_place(50.5F, 38, 3, -1);
  add_neck(f);
  f.at = {};
  add_pearls(f, kGold);
  add_puffs(f, kTeal, kGold);
  f.at = head_place(50.5F, 38, 3, -1);
  add_face(f, {{158, 70, 26, 255}, {60, 112, 64, 255}, true});
  f.sprinkle(circle({0, 0}, 0.4F),
             {{-6, 3.2F}, {-4.8F, 4}, {-5.8F, 5.4F}, {2.4F, 3.4F}, {4, 3}, {3.4F, 4.8F}},
             {196, 116, 70, 255});
  add_parting(f, kCopper);
  f.line("M-1 -9.4 C-5 -10 -8 -6 -8.4 -3 M-0.6 -9.4 C4 -10 7.6 -6 8.6 -2", 0.5F,
         {130, 54, 18, 255});
  f.inked(
      "M-8.8 -9.6 L-9.6 -15.4 L-5.6 -13 L-3.4 -17.4 L0 -13.6 L3.4 -17.4 L5.6 -13 "
      "L9.6 -15.4 L8.8 -9.6 Q0 -12.2 -8.8 -9.6 Z",
      kGold);
  for (const Point& at :
       {Point{-9.2F, -17}, Point{-3.4F, -19.4F}, Point{3.4F, -19.4F}, Point{9.2F, -17}}) {
    f.plain(suit_outline(Suit::clubs, at, 6.4F), kTeal);
  }
  f.sprinkle(circle({0, 0}, 0.9F), {{-5.6F, -11.6F}, {0, -12.2F}, {5.6F, -11.6F}}, kCrimson);
  f.at = {};
  add_braid(f, 40, 48, -0.6F);
  add_braid(f, 61, 48, 0.6F);
  add_fan(f, {32.6F, 66}, 17.6F);
  add_arm(f, {32.4F, 65}, -1, kTeal, kGold);
}

void add_tulip(Figure& f) {
  f.line("M68.6 36 C69.4 46 67.8 60 68.8 70", 1.6F, kLeaf);
  f.inked("M68.6 54 C64 52 61.6 46 62.4 39.6 C66.4 43 68.8 48 68.6 54 Z", kLeaf);
  f.inked("M68.8 52 C72 50 74.4 46 74.4 41 C71 43.4 69 47 68.8 52 Z", kLeaf);
  f.inked(
      "M62.8 22 L65.6 25 L68.6 19.6 L71.6 25 L74.4 22 C75.4 30 73 36.6 68.6 36.6 "
      "C64.2 36.6 61.8 30 62.8 22 Z",
      kCrimson);
  f.line("M65.6 25 C65 29 66 33 68.6 36 C71.2 33 72.2 29 71.6 25", 0.55F, {90, 6, 26, 255});
}

// Cloth around the face, and the veil over it.
void add_wimple(Figure& f) {
  f.inked(
      "M-7.8 -8 C-9 0 -8.4 6 -5.4 10 C-3.6 12.6 -2 13.4 -0.6 13.4 C3 13.4 6.4 10 7.8 5 "
      "C8.8 0 8.6 -4 7.8 -8 L10.4 -8 C11.8 2 11 10 12 18 C8 25 -8 25 -12 18 C-10.6 10 -11 2 "
      "-10.4 -8 Z",
      kCream);
  f.line("M-9 12 C-4 18.6 5 18.6 9.6 11 M-10.6 17 C-5 22.4 6 22.4 10.8 16", 0.5F,
         {150, 146, 150, 255});
  f.inked("M-8.4 -4 C-7 -7.4 -3 -9 0 -9 C3 -9 7 -7.4 8.4 -4 L9.6 -8 C7 -12.6 -7 -12.6 -9.6 -8 Z",
          kCream);
  f.inked(
      "M-9.8 -3 C-8 -9 -4 -11 0 -11 C4 -11 8 -9 9.8 -3 C12 -8 9 -15 0 -15 C-9 -15 -12 -8 "
      "-9.8 -3 Z",
      kNavy);
}

// Spades: the widow, severe in wimple and veil, with a tulip.
void add_queen_of_spades(Figure& f) {
  add_tulip(f);
  f.at = head_place(48, 38, 0, -1);
  f.inked(
      "M0 -14 C-10 -14 -13 -6 -13 4 C-13 14 -18 20 -22 30 L22 30 C17 20 13 14 13 4 "
      "C13 -6 10 -14 0 -14 Z",
      kNavy);
  f.at = {};
  f.inked("M22 80 C24 68 32 60 40 57 L57 57 C66 59 71 64 73.6 71.6 Z", {56, 46, 84, 255});
  f.inked("M41 62 L55 62 L58 75.4 L40 79 Z", kCrimson);
  f.line("M40 60 C37 66 37 72 38 79.6 M58 60 C61 65 61.4 70 60.6 75", 1.1F, kGold);
  f.sprinkle(outline("M0 -2 L0.6 -0.6 L2 0 L0.6 0.6 L0 2 L-0.6 0.6 L-2 0 L-0.6 -0.6 Z"),
             {{29, 73}, {34, 67}, {33, 76}, {66, 67}}, kGold);
  f.at = head_place(48, 38, 0, -1);
  f.inked("M-8.6 -8 C-11 2 -10 12 -12 20 C-8 26 8 26 12 20 C10 12 11 2 8.6 -8 Z", kCream);
  add_face(f, {kRaven, {52, 56, 74, 255}, true, 1.3F});
  add_wimple(f);
  f.inked(
      "M-8.4 -12 L-10 -19.4 L-6 -16.6 L-4 -21.6 L-1.8 -17.4 L0 -24.4 L1.8 -17.4 L4 -21.6 "
      "L6 -16.6 L10 -19.4 L8.4 -12 Q0 -14.6 -8.4 -12 Z",
      kGold);
  f.plain(suit_outline(Suit::spades, {0, -16}, 4.4F), kInk);
  f.sprinkle(circle({0, 0}, 0.9F), {{-5.6F, -14.2F}, {5.6F, -14.2F}}, kCrimson);
  f.at = {};
  f.line("M37 62 Q49 76 59.6 61", 0.8F, kOldGold);
  f.inked(
      "M47.4 66 L50.8 66 L50.8 68 L52.8 68 L52.8 70.6 L50.8 70.6 L50.8 75 L47.4 75 L47.4 70.6 "
      "L45.4 70.6 L45.4 68 L47.4 68 Z",
      kGold);
  add_arm(f, {68.6F, 61.6F}, 1, {56, 46, 84, 255}, kCream);
}

}  // namespace

void add_queen(Figure& figure, Suit suit) {
  switch (suit) {
    case Suit::hearts:
      return add_queen_of_hearts(figure);
    case Suit::diamonds:
      return add_queen_of_diamonds(figure);
    case Suit::clubs:
      return add_queen_of_clubs(figure);
    case Suit::spades:
      return add_queen_of_spades(figure);
  }
}

}  // namespace tombrello::art
