#include "pictures/cloth.h"
#include "pictures/hands.h"

namespace tombrello::art {
namespace {

using namespace court;

constexpr Rgba kBlonde{244, 202, 112, 255};
constexpr Rgba kBlondeInk{176, 118, 40, 255};
constexpr Rgba kChestnut{104, 56, 40, 255};
constexpr Rgba kCopper{212, 102, 42, 255};
constexpr Rgba kCopperInk{132, 54, 18, 255};
constexpr Rgba kPlum{66, 48, 96, 255};
constexpr Rgba kPetalInk{98, 8, 30, 255};

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

void add_gown(Figure& f, const Path& motif, Rgba cloth) {
  add_brocade(f, "M20 82 L20 71 C23 64 30 61 38 59.4 L62 59.4 C69 61 74 63.4 76 67.4 L76 71 Z",
              motif, cloth, kGold);
}

constexpr std::string_view kBodice =
    "M39.6 60 C42 67 43.6 71 42.4 78.4 L58.4 74.8 C57.2 70 58.4 66 61.4 60 Z";

// The skin from the neck to the neckline, as it lies under the gown.
void add_bust(Figure& f, const Look& look) {
  f.inked(
      "M46 50 C46 56.4 45.4 58 39 59.4 C41 67 45 70 50.4 70 C56 70 60 67 62 59.4 "
      "C56.4 58 56.2 56.4 56.4 50 Z",
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

void add_pearls(Figure& f, Rgba colour) {
  f.studs(1.05F,
          {{44.6F, 60.4F},
           {46, 62.5F},
           {48.1F, 63.9F},
           {50.5F, 64.3F},
           {52.9F, 63.9F},
           {55, 62.5F},
           {56.4F, 60.4F}},
          colour);
}

// Hair parted in the middle, seen in front of the brow.
void add_parting(Figure& f, Rgba hair, Rgba ink) {
  f.inked(
      "M-7.7 2 C-7.8 -4 -5 -7 -1 -8.6 C3.6 -7 7.2 -4 8 3 C10.8 -4 9.6 -13 0 -13.4 "
      "C-9.6 -13 -10.4 -4 -7.7 2 Z",
      hair);
  f.line("M-1.2 -9 C-5 -9 -8 -6 -8.4 -2 M-0.8 -9 C4 -9 8 -5.6 8.6 -1", 0.5F, ink);
}

void add_rose(Figure& f) {
  f.line("M28.4 45 C28 52 28.8 60 28 80", 1.7F, kInk);
  f.line("M28.4 45 C28 52 28.8 60 28 80", 0.9F, kLeaf);
  f.fine("M28.2 56 C24.6 56.4 22.4 54 21.8 50.4 C25.8 50.4 28.2 52.4 28.2 56 Z", kLeaf);
  f.inked(
      "M28.4 46.6 C24 47.4 20.8 44.4 21.8 40.8 C20.8 37 23.4 34 26.4 34.4 C28 32.4 31.4 32.6 32.6 "
      "34.8 C35.4 35.6 36.4 39 35 41.4 C35.4 45 32 47.4 28.4 46.6 Z",
      kCrimson);
  f.plain("M22.8 40 C24 45 30 47 34.2 42.4 C33.4 45.4 31 46.2 28.6 46.2 C25 46.2 23 43.4 22.8 40 Z",
          {140, 10, 36, 255});
  f.line(
      "M26.2 38.4 C26.6 35.4 31 35.4 31.4 38.6 C31.4 41 27.8 41.4 27.8 39.2 "
      "M23.6 38 C23.6 43.4 31 45 33.6 40.4 M29 34.4 C31.6 34.4 33.6 36 33.8 38.4",
      0.6F, kPetalInk);
}

void add_pearl_crown(Figure& f) {
  f.inked(
      "M-8.8 -9.6 C-11 -12.6 -11.4 -17 -8.4 -18.6 C-6.2 -19.2 -4.6 -17.8 -4.4 -16 "
      "C-4 -19.6 -1.8 -22.4 0 -24 C1.8 -22.4 4 -19.6 4.4 -16 C4.6 -17.8 6.2 -19.2 8.4 -18.6 "
      "C11.4 -17 11 -12.6 8.8 -9.6 Q0 -12.6 -8.8 -9.6 Z",
      kGold);
  f.plain(suit_outline(Suit::hearts, {0, -16.4F}, 5.4F), kCrimson);
  f.studs(1, {{-7.4F, -14.4F}, {7.4F, -14.4F}}, kNavy);
  f.studs(
      0.95F,
      {{-8.4F, -9.4F}, {-5.2F, -10.5F}, {-1.8F, -11}, {1.8F, -11}, {5.2F, -10.5F}, {8.4F, -9.4F}},
      kWhite);
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
  add_gown(f, motif::pomegranate(), kCrimson);
  f.inked(kBodice, kCream);
  add_bust(f, kFair);
  add_neckline(f, kGold);
  add_pearls(f, kWhite);
  f.inked(suit_outline(Suit::hearts, {50.5F, 66.8F}, 4.4F), kCrimson);
  f.at = head;
  add_lady_turned(f, kFair);
  add_parting(f, kBlonde, kBlondeInk);
  add_pearl_crown(f);
  f.at = {};
  f.inked("M31.4 79.8 C31 76.6 32 73.6 33.4 70.6 L43.6 71.6 C45 74 45.2 75.8 44.6 77.4 Z", kNavy);
  f.line("M35 79 C35 76.4 35.4 74.6 36.6 72.4 M40 78 C40.4 76 40.2 74.4 39.8 72.6", 0.8F, kGold);
  f.at = hand_place(28, 60.5F, 0, 1);
  add_spread_fingers(f, kFair);
  add_pinch(f, kFair);
  add_cuff(f, kCream);
  f.at = {};
  add_rose(f);
  f.at = hand_place(28, 60.5F, 0, 1);
  add_pinch_fingers(f, kFair);
  f.at = {};
}

void add_mirror(Figure& f) {
  f.inked("M66.5 52 L68.9 52 L69.2 72 L66.2 72 Z", kGold);
  f.inked(ellipse({67.7F, 43.6F}, 6.7F, 9), kGold);
  f.fine(ellipse({67.7F, 43.6F}, 4.9F, 7), {204, 230, 240, 255});
  f.line("M65.2 46.6 L69.6 38.6 M66.6 49 L71 41", 1, kWhite);
  f.inked(moved(motif::lozenge(), shift(67.7F, 33.4F) * scaling(1.1F, 1)), kVermilion);
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

void add_diamond_crown(Figure& f) {
  f.inked(
      "M-7.6 -11 L-9 -17 L-5.6 -15.4 L-4.4 -20 L-2 -16.4 L0.4 -24.4 L2.8 -16.4 L5.2 -20 "
      "L6.4 -15.4 L9.8 -17 L8.4 -11 Q0.4 -13.6 -7.6 -11 Z",
      kGold);
  f.fine(moved(motif::lozenge(), shift(0.4F, -15.6F) * scaling(1.1F, 1.1F)), kVermilion);
  f.studs(0.8F, {{-4.6F, -13.2F}, {5.4F, -13.2F}}, kTeal);
}

// Diamonds: dark and elegant, in profile, before her mirror.
void add_queen_of_diamonds(Figure& f) {
  const Affine head = head_place(48, 41, 2, -1);
  add_gown(f, motif::lozenge(), kTeal);
  f.inked("M38.6 60 C42 67 43.4 71 42 78.4 L58 74.8 C57 70 57.6 66 58.4 60 Z", kGold);
  f.line("M43 70 L57 75 M42.6 75 L48 77 M57.4 68.6 L43.4 77.4 M57.4 72.8 L51 76.4", 0.6F, kOldGold);
  f.inked(
      "M38.6 46 C38.6 54 37.6 58 33.6 60 C36.6 67.4 41 70.4 47 70.4 C53 70.4 57.4 66.8 59 59.6 "
      "C51.4 59.4 48.4 57.6 47.8 52 L47 46 Z",
      kOlive.skin);
  f.plain("M39 48 C39 54 38.4 57 37.4 59 C42 59 46.6 57 47.6 54.6 L47 46 Z", kOlive.shade);
  f.at = head;
  add_lady_aside(f, kOlive);
  f.at = {};
  f.inked(
      "M33 60 C36 68.4 41 72 47.4 71.8 C54 71.4 58.6 67.4 60.4 59.2 L57.6 58.4 C56 65.4 52.6 "
      "68.6 47.4 69 C42.6 69 38.4 66 35.4 58.8 Z",
      kCream);
  f.line("M37.4 60.4 C41 66 48 66.4 53.6 60.4", 0.9F, kOldGold);
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
  f.at = hand_place(67.7F, 59, 0, -1);
  add_fist(f, kOlive);
  add_cuff(f, kCream);
  f.at = {};
  add_mirror(f);
  f.at = hand_place(67.7F, 59, 0, -1);
  add_fist_fingers(f, kOlive);
  f.at = {};
}

void add_braid(Figure& f, float x, float y, float lean) {
  for (int i = 0; i < 5; ++i) {
    const float down = static_cast<float>(i);
    const float turn = i % 2 == 0 ? 32.0F : -32.0F;
    f.inked(moved(ellipse({0, 0}, 3.2F - down * 0.2F, 2.6F),
                  shift(x + lean * down, y + down * 3.9F) * turning(turn)),
            kCopper);
  }
  f.fine(ellipse({x + lean * 4.6F, y + 18.4F}, 2, 1.4F), kCrimson);
  f.inked(moved(outline("M-1.4 0 Q-2.4 3 0 5.6 Q2.4 3 1.4 0 Z"), shift(x + lean * 4.8F, y + 19.4F)),
          kCopper);
}

void add_fan(Figure& f, Point pivot, float reach) {
  const auto leaf = [&](float share) {
    Path path;
    path.move(pivot);
    for (int i = 0; i <= 10; ++i) {
      const Affine spoke = shift(pivot.x, pivot.y) * turning(-34.0F + static_cast<float>(i) * 6.8F);
      path.line(spoke({0, (i % 2 == 0 ? -reach : 1 - reach) * share}));
    }
    path.close();
    return path;
  };
  f.inked(leaf(1), kCream);
  f.fine(leaf(0.84F), kCrimson);
  f.fine(leaf(0.62F), kCream);
  f.fine(leaf(0.34F), kGold);
  Path ribs;
  for (int i = 0; i <= 10; i += 2) {
    const Affine spoke = shift(pivot.x, pivot.y) * turning(-34.0F + static_cast<float>(i) * 6.8F);
    ribs.move(pivot);
    ribs.line(spoke({0, -reach}));
  }
  f.line(ribs, 0.5F, kInk);
}

void add_club_crown(Figure& f) {
  Path clubs;
  for (const Point& at : {Point{-9.4F, -17.6F}, Point{0, -20}, Point{9.4F, -17.6F}}) {
    join(clubs, suit_outline(Suit::clubs, at, 7.4F));
  }
  f.inked(
      "M-8.6 -9.4 L-10 -15.4 L-8.6 -15.4 L-5 -12.8 L-0.8 -17 L0.8 -17 L5 -12.8 L8.6 -15.4 "
      "L10 -15.4 L8.6 -9.4 Q0 -12 -8.6 -9.4 Z",
      kGold);
  f.fine(clubs, kTeal);
  f.studs(0.95F, {{-6, -11}, {0, -12.2F}, {6, -11}}, kCrimson);
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
  add_gown(f, motif::sprig(), kTeal);
  f.inked(kBodice, kCrimson);
  add_bust(f, kRosy);
  add_neckline(f, kCream);
  f.line("M44.6 71.6 L56.4 75 M44 75.4 L49 76.8 M56.6 71 L44.2 75.6 M57.2 74.2 L50 76.6", 0.7F,
         kGold);
  add_pearls(f, kGold);
  f.at = head;
  add_lady_turned(f, kRosy);
  add_freckles(f);
  add_parting(f, kCopper, kCopperInk);
  add_club_crown(f);
  f.at = {};
  add_braid(f, 61.4F, 48.4F, 0.5F);
  f.inked("M32.6 79.6 C32.4 76.8 33.6 74.4 35 72 L44.6 72.6 C45.8 74.6 46 76 45.4 77.2 Z",
          kCrimson);
  f.at = hand_place(32.4F, 63, 0, 1);
  add_pinch(f, kRosy);
  add_cuff(f, kCream);
  f.at = {};
  add_fan(f, {32.4F, 65.6F}, 20);
  f.at = hand_place(32.4F, 63, 0, 1);
  add_pinch_fingers(f, kRosy);
  f.at = {};
}

void add_tulip(Figure& f) {
  f.line("M67.3 34 C68.1 46 66.7 58 67.5 74", 1.8F, kInk);
  f.line("M67.3 34 C68.1 46 66.7 58 67.5 74", 1, kLeaf);
  f.fine("M67.5 52 C63.1 50 60.9 44 61.7 38 C65.7 41.4 67.9 46 67.5 52 Z", kLeaf);
  f.fine("M67.7 50 C70.9 48 73.3 44 73.3 39 C69.9 41.4 67.9 45 67.7 50 Z", kLeaf);
  f.inked(
      "M61.3 19.4 L64.3 22.6 L67.3 16.6 L70.3 22.6 L73.3 19.4 C74.3 28 71.9 35 67.3 35 "
      "C62.7 35 60.3 28 61.3 19.4 Z",
      kCrimson);
  f.plain("M70.3 22.6 L72.9 20 C73.7 28 71.5 34.2 67.7 34.6 C70.1 31 71.3 27 70.3 22.6 Z",
          {140, 10, 36, 255});
  f.line("M64.3 22.6 C63.7 27 64.7 31 67.3 34.4 C69.9 31 70.9 27 70.3 22.6", 0.55F, kPetalInk);
}

void add_spiked_crown(Figure& f) {
  f.inked(
      "M-8.6 -11.4 L-10.4 -18.6 L-6.2 -15.8 L-4.4 -21 L-2 -16.6 L0 -24.4 L2 -16.6 L4.4 -21 "
      "L6.2 -15.8 L10.4 -18.6 L8.6 -11.4 Q0 -14 -8.6 -11.4 Z",
      kGold);
  f.plain(suit_outline(Suit::spades, {0, -15.6F}, 4.8F), kInk);
  f.studs(0.9F, {{-5.4F, -13.8F}, {5.4F, -13.8F}}, kCrimson);
}

// Spades: the widow, severe in wimple and veil, with a tulip.
void add_queen_of_spades(Figure& f) {
  const Affine head = head_place(46.5F, 41, 0, 1);
  f.at = head;
  f.inked(
      "M0 -15 C-10.6 -15 -13 -7 -13 2 C-13 12 -16 20 -21 30 L19 30 C16 20 13 12 13 2 "
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
  f.inked("M54 76 C54 72.6 55.6 70 57.4 67.6 L66.6 70 C67.6 71.4 67.4 72.8 66.6 73.8 Z", kPlum);
  f.at = hand_place(67.6F, 58.5F, 0, -1);
  add_spread_fingers(f, kPale);
  add_pinch(f, kPale);
  add_cuff(f, kCream);
  f.at = {};
  add_tulip(f);
  f.at = hand_place(67.6F, 58.5F, 0, -1);
  add_pinch_fingers(f, kPale);
  f.at = {};
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
