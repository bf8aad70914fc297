#include "pictures/cloth.h"
#include "pictures/hands.h"
#include "pictures/headgear.h"
#include "pictures/held.h"

namespace tombrello::art {
namespace {

using namespace court;

constexpr Rgba kBlonde{244, 202, 112, 255};
constexpr Rgba kBlondeInk{176, 118, 40, 255};
constexpr Rgba kChestnut{104, 56, 40, 255};
constexpr Rgba kCopper{212, 102, 42, 255};
constexpr Rgba kCopperInk{132, 54, 18, 255};
constexpr Rgba kPlum{66, 48, 96, 255};

constexpr Look kFair{{255, 228, 206, 255},
                     {244, 202, 176, 255},
                     {178, 122, 50, 255},
                     {52, 110, 170, 255},
                     -0.2F,
                     0.7F};
constexpr Look kOlive{
    {248, 212, 178, 255}, {230, 182, 144, 255}, {72, 36, 24, 255}, {92, 62, 32, 255}, 0, 0};
constexpr Look kRosy{{255, 222, 198, 255},
                     {242, 190, 160, 255},
                     {162, 70, 26, 255},
                     {58, 122, 70, 255},
                     -0.4F,
                     0.9F};
constexpr Look kPale{
    {250, 226, 212, 255}, {228, 196, 184, 255}, {36, 32, 46, 255}, {66, 84, 110, 255}, 1, 0.1F};

constexpr std::string_view kBodice =
    "M39.6 60 C42 67 43.6 71 42.4 78.4 L58.4 74.8 C57.2 70 58.4 66 61.4 60 Z";

// The skin from the neck to the neckline, as it lies under the gown.
void add_bust(Figure& f, const Look& look) {
  f.inked(
      "M46 50 C46 56.4 45.4 58 39 59.4 C41 67 45 70 50.4 70 C56 70 60 67 62 59.4 "
      "C56.4 58 56.2 56.4 55.2 49 Z",
      look.skin);
  f.plain("M46.4 53 C48 60.4 53.4 59 56.2 52.4 L56 50 L46.4 50 Z", look.shade);
  f.line("M45 60.4 C46.6 61 47.6 61.6 48.4 62.6 M57 60.2 C55.2 60.8 54 61.4 53 62.6", 0.45F,
         look.shade);
}

// The trim of a neckline.
void add_neckline(Figure& f, Rgba trim) {
  f.inked(
      "M38 59.4 C40 68 45 71.4 50.4 71.4 C56 71.4 60.8 68 63 59.4 L60.6 58 C58.8 65.6 55 68.6 "
      "50.4 68.6 C46 68.6 42.2 65.6 40.4 58 Z",
      trim);
}

// All but the middle one, at (50.5, 64.3).
void add_pearls(Figure& f, Rgba colour) {
  f.studs(
      1.05F,
      {{44.6F, 60.4F}, {46, 62.5F}, {48.1F, 63.9F}, {52.9F, 63.9F}, {55, 62.5F}, {56.4F, 60.4F}},
      colour);
}

// Hair parted in the middle, seen in front of the brow.
void add_parting(Figure& f, Rgba hair, Rgba ink) {
  f.inked(
      "M-7.7 2 C-7.8 -4 -5 -7 -1 -8.6 C3.6 -7 6.8 -4 7.3 3.9 C10 -2 10.2 -13 0 -13.4 "
      "C-9.6 -13 -10.4 -4 -7.7 2 Z",
      hair);
  f.line("M-1.2 -9 C-5 -9 -8 -6 -8.4 -2 M-0.8 -9 C4 -9 8 -5.6 8.6 -1", 0.5F, ink);
}

// Hearts: golden and kind, with a rose.
void add_queen_of_hearts(Figure& f) {
  const Affine head = head_place(50, 41, -3, 1);
  f.at = head;
  f.inked(
      "M-8 -10 C-14 -4 -10.6 4 -13 10 C-15.4 15 -13 20 -13.4 26 L12 28 C15.6 24 12.4 18 15 12 "
      "C17 6 13 -2 8.6 -10 Z",
      kBlonde);
  f.line(
      "M-10.6 0 C-8.8 7 -12.6 12 -11.6 19 M-8.6 5 C-7.8 11 -10.4 15 -9.4 20 "
      "M11 0 C9.8 7 13 12 11.6 19 M8.8 5 C8.6 11 11 15 9.4 20 M12.8 4 C12.6 9 14 11 13 16",
      0.55F, kBlondeInk);
  f.at = {};
  add_shoulders(f, motif::pomegranate(), kCrimson, kGold);
  f.inked(kBodice, kCream);
  add_bust(f, kFair);
  add_neckline(f, kGold);
  add_pearls(f, kWhite);
  f.inked(suit_outline(Suit::hearts, {50.5F, 66.2F}, 4.4F), suit_colour(Suit::hearts));
  f.at = head;
  add_lady_turned(f, kFair, false);
  add_parting(f, kBlonde, kBlondeInk);
  add_pearl_crown(f);
  f.at = {};
  f.inked("M31.4 79.8 C31 76.6 32 73.6 33.4 70.6 L43.6 71.6 C45 74 45.2 75.8 44.6 77.4 Z", kNavy);
  f.line("M35 79 C35 76.4 35.4 74.6 36.6 72.4 M40 78 C40.4 76 40.2 74.4 39.8 72.6", 0.8F, kGold);
  add_hand(f, Hand::spread, hand_place(28.7F, 60.5F, 0, 1), kFair, kCream, add_rose);
}

// A roll of hair in a golden net behind the ear.
void add_caul(Figure& f) {
  f.inked(
      "M-4.4 -9 C-3 -5.6 0 -5.4 2 -4 C3.4 -2.6 3.4 0 4 2.4 C4.6 5.6 6.4 7.6 9 8 "
      "C13.6 8 16.4 3 15.8 -2.4 C15 -9 9 -13.6 3 -13.4 C-1 -13.2 -4 -11.6 -4.4 -9 Z",
      kChestnut);
  f.line(
      "M0 -12.6 L13.6 4.6 M4.4 -13 L15.6 0.6 M-2.4 -8.4 L3 -5 M9 -11.6 L15.4 -3.6 "
      "M3.6 0.4 L10.6 8 M14.6 -6.6 L3.6 0.4 M15.8 -2.2 L4.6 4.6 M11.4 -10.4 L0.6 -5 "
      "M7 -13 L-3.4 -7.4 M15 2.8 L7 7.6",
      0.55F, kGold);
  f.studs(0.75F, {{7, -4}, {11, -1.2F}, {8.6F, 3}, {4.6F, -8}, {10.4F, -6}}, kCream);
  f.inked(
      "M-4.6 -9.4 C-3 -5.4 1 -5.4 3 -3.4 C4.6 -1.6 4 1.6 5 4.6 C5.6 6.4 7 7.6 8.6 8 "
      "L7.6 9.2 C5.4 8.8 3.8 6.8 3.2 4.4 C2.6 2 2.8 -0.6 1.4 -2 C-0.8 -4 -4 -4 -5.8 -7.4 Z",
      kGold);
}

// Diamonds: dark and elegant, in profile, before her mirror.
void add_queen_of_diamonds(Figure& f) {
  const Affine head = head_place(48, 41, 2, -1);
  add_brocade(
      f,
      "M20 82 L20 70 C23 63.4 30 60.2 38 58.6 L46 64 L58 62.4 C65 62.8 71.4 64.4 76 68.4 L76 71 Z",
      motif::lozenge(), kTeal, kGold);
  f.inked("M38.6 60 C42 67 43.4 71 42 78.4 L58 74.8 C57 70 57.6 66 58.4 63 Z", kGold);
  f.line("M43 70 L57 75 M42.6 75 L48 77 M57.4 68.6 L43.4 77.4 M57.4 72.8 L51 76.4", 0.6F, kOldGold);
  f.inked(
      "M38.6 46 C38.6 54 37.6 58 33.6 60 C36.6 67.4 41 70.4 47 70.4 C53 70.4 57 67.4 58.8 62 "
      "C53.4 61.8 49.4 61.4 49.2 57.6 L49 50 L47 46 Z",
      kOlive.skin);
  f.plain("M39 48 C39 54 38.4 57 37.4 59.4 C42 60.4 46.8 59.6 48.9 57 L48.6 50 L47 46 Z",
          kOlive.shade);
  f.at = head;
  add_lady_aside(f, kOlive);
  f.at = {};
  f.inked(
      "M33 60 C36 68.4 41 72 47.4 71.8 C54 71.4 58.4 68.4 60.4 62.4 L57.8 61.4 C55.8 66.4 52.6 "
      "68.8 47.4 69 C42.6 69 38.4 66 35.4 58.8 Z",
      kCream);
  f.line("M37.4 60.8 C41 66 48.4 66.8 53.8 62.8", 0.9F, kOldGold);
  f.inked(moved(motif::lozenge(), shift(46.4F, 66) * scaling(1.3F, 1.2F)), kVermilion);
  f.inked(
      "M37 38 C30 42 29 52 26 60 C24 66 21.6 71 20 75 L20 82 L33 79.4 C35.4 71 36 63 38.6 56 "
      "C40.4 50 40.4 44 37 38 Z",
      kVermilion);
  f.line("M35.6 44 C31.4 54 30 66 26 80.4 M37.8 48 C35.6 57 33.6 66 31 79.4", 0.5F, kInk);
  f.at = head;
  add_caul(f);
  f.inked(circle({6.2F, 9.8F}, 1.15F), kCream);
  f.at = head * shift(2.6F, 1.6F) * turning(6);
  add_diamond_crown(f);
  f.at = {};
  f.inked("M54.6 75.8 C54.6 72 56 69.6 58 67.4 L67 70 C68 71.4 67.8 72.6 67 73.6 Z", kTeal);
  add_hand(f, Hand::fist, hand_place(67.1F, 59, 0, -1), kOlive, kCream, add_mirror);
}

void add_braid(Figure& f, float x, float y, float lean) {
  const Path strand = outline(
      "M-3.4 -1.4 C-3.6 -3.4 -1.4 -3.8 0.2 -2.4 C2 -0.8 2.4 1.2 1 3.2 C-1.2 2.8 -3.4 1.2 -3.4 -1.4 "
      "Z");
  for (int i = 0; i < 8; ++i) {
    const float down = static_cast<float>(i);
    const float side = i % 2 == 0 ? 1.0F : -1.0F;
    f.inked(moved(strand, shift(x + lean * down * 0.55F, y + down * 2.25F) *
                              scaling(side * (1 - down * 0.03F), 1)),
            kCopper);
  }
  f.fine(ellipse({x + lean * 4.6F, y + 18.4F}, 2, 1.4F), kCrimson);
  f.inked(moved(outline("M-1.4 0 Q-2.4 3 0 5.6 Q2.4 3 1.4 0 Z"), shift(x + lean * 4.8F, y + 19.4F)),
          kCopper);
}

// Clubs: copper braids and freckles, merry, with a fan.
void add_queen_of_clubs(Figure& f) {
  const Affine head = head_place(50.5F, 41, 3, -1);
  f.at = head;
  f.inked(
      "M-8 -10 C-12.6 -4 -11.6 6 -12 14 C-11.6 17.4 -8.6 18 -6 17 L6 17 C9 18 11.6 17.4 12 14 "
      "C11.6 6 12.6 -4 8 -10 Z",
      kCopper);
  f.at = {};
  add_shoulders(f, motif::sprig(), kTeal, kGold);
  f.inked(kBodice, kCrimson);
  add_bust(f, kRosy);
  add_neckline(f, kCream);
  f.line("M44.6 71.6 L56.4 75 M44 75.4 L49 76.8 M56.6 71 L44.2 75.6 M57.2 74.2 L50 76.6", 0.7F,
         kGold);
  add_pearls(f, kGold);
  f.studs(1.05F, {{50.5F, 64.3F}}, kGold);
  f.at = head;
  add_lady_turned(f, kRosy, true);
  add_freckles(f);
  add_parting(f, kCopper, kCopperInk);
  add_club_crown(f);
  f.at = {};
  add_braid(f, 61.4F, 48.4F, 0.5F);
  f.inked("M33.8 79.4 C33.6 76.8 34.8 74.4 36.2 72 L45.8 72.6 C47 74.6 47.2 76 46.6 77 Z",
          kCrimson);
  add_hand(f, Hand::pinch, hand_place(33.6F, 63, 0, 1), kRosy, kCream, add_fan);
}

// Spades: the widow, severe in wimple and veil, with a tulip.
void add_queen_of_spades(Figure& f) {
  const Affine head = head_place(46.5F, 41, 0, 1);
  f.at = head;
  f.inked(
      "M0 -15 C-10.6 -15 -13 -7 -13 2 C-13 12 -16 20 -21 30 L26 30 C23 20 13.4 14 13 2 "
      "C13 -7 10.6 -15 0 -15 Z",
      kNavy);
  f.at = {};
  add_brocade(f, "M20 82 L21 74 C24 67 30 63 37 61 L57 61 C66 62.6 72 66 74 71.4 Z", motif::star(),
              kPlum, {214, 206, 232, 255});
  f.inked("M38.6 66 L55.6 66 L57.4 75 L37 79 Z", kCrimson);
  f.line("M38.6 64 C36.4 70 36.4 74 37.4 79 M55.4 64 C57.8 68 58 71.6 57.6 75", 1.2F, kGold);
  f.line("M46.6 66 L46.6 77", 1, kGold);
  f.at = head;
  f.inked(
      "M-9.6 -9 C-11 -2 -10.4 6 -10.6 11 C-11 15 -12.4 18 -13.4 21 C-8 26.4 8 26.4 13.4 21 "
      "C12.4 18 11 15 10.6 11 C10.4 6 11 -2 9.6 -9 Z",
      kCream);
  f.line(
      "M-8.6 11 C-4 17.6 4 17.6 8.6 11 M-10 14.6 C-5 21 5 21 10 14.6 M-11.4 18.4 C-6 24 6 24 "
      "11.4 18.4",
      0.5F, {164, 156, 160, 255});
  add_lady_facing(f, kPale);
  f.inked(
      "M-9 -4.6 C-7 -7.4 -3 -8.4 0 -8.4 C3 -8.4 7 -7.4 9 -4.6 L10.2 -9 C7 -13 -7 -13 -10.2 -9 Z",
      kCream);
  f.inked(
      "M-10.8 2 C-10.4 -6 -6 -11 0 -11 C6 -11 10.4 -6 10.8 2 C13.6 -6 10.6 -15 0 -15 "
      "C-10.6 -15 -13.6 -6 -10.8 2 Z",
      kNavy);
  add_spiked_crown(f);
  f.at = {};
  f.plain("M62 65.6 L68 65.6 L68 74 L62 74 Z", kPlum);  // no thread between wrist and stem
  f.inked("M54 76 C54 72.6 55.6 70 57.4 67.6 L66.6 70 C67.6 71.4 67.4 72.8 66.6 73.8 Z", kPlum);
  add_hand(f, Hand::spread, hand_place(67.6F, 58.5F, 0, -1), kPale, kCream, add_tulip);
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
