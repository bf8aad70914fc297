#include "pictures/cloth.h"
#include "pictures/hands.h"
#include "pictures/headgear.h"
#include "pictures/held.h"

namespace tombrello::art {
namespace {

using namespace court;

constexpr Rgba kWhiteHair{236, 236, 240, 255};
constexpr Rgba kGreyInk{150, 150, 164, 255};
constexpr Rgba kAuburn{180, 84, 34, 255};
constexpr Rgba kBrown{110, 66, 38, 255};
constexpr Rgba kRaven{52, 48, 66, 255};

constexpr Look kOld{{253, 224, 200, 255},
                    {238, 194, 166, 255},
                    {206, 206, 214, 255},
                    {44, 96, 158, 255},
                    -0.3F,
                    0.4F};
constexpr Look kShrewd{
    {246, 208, 172, 255}, {226, 176, 136, 255}, {140, 58, 22, 255}, {64, 104, 56, 255}, 0.7F, 0};
constexpr Look kBroad{
    {250, 214, 182, 255}, {232, 184, 148, 255}, {80, 46, 26, 255}, {98, 62, 32, 255}, 0.3F, 0.3F};
constexpr Look kWarrior{
    {240, 204, 174, 255}, {214, 170, 138, 255}, {36, 32, 46, 255}, {70, 88, 112, 255}, 1.5F, 0};

// White and curled all around.
void add_old_head(Figure& f) {
  f.at = head_place(50, 41, 0, 1);
  f.inked(
      "M-8 -9 C-12.4 -6 -12.6 -1 -11 2 C-13.4 4 -13.4 8 -11.4 9.6 C-12 12.4 -9 14 -7 13 L8 13 "
      "C10.4 14.4 13.4 12.6 12.4 9.6 C14.4 7.6 14 4 12 2 C13.6 -2 12.6 -6 8.6 -9 Z",
      kWhiteHair);
  f.inked("M7.4 -1.4 C9.2 -3.2 11 -1.6 10.4 1 C10 3.2 8.8 4.8 7.4 4.2 Z", kOld.skin);
  add_man_turned(f, kOld);
  f.line("M5.8 -0.4 L7 -1.2 M5.9 0.6 L7.2 0.7 M-6.6 2.4 Q-5.4 3.1 -4.2 2.6 M0.2 2.7 Q2 3.4 3.8 2.6",
         0.4F, {190, 130, 104, 255});
  f.inked(
      "M-7.9 2.6 C-7 5.6 -6.2 6.6 -4.4 6.2 L2.6 6.2 C5.6 6 7.6 4 8.6 0 C11.4 3 12 8 10 11 "
      "C11 15 8 18 5.4 17.6 C4.4 21 0.4 22.4 -1.8 20 C-4.4 21.6 -7 19.6 -6.8 16.6 "
      "C-9.4 15.6 -9.8 12 -8.4 10.2 C-9.6 7.6 -9.2 4.6 -7.9 2.6 Z",
      kWhiteHair);
  f.line(
      "M-5.6 12 C-6.4 14.4 -5.4 16 -4 15.8 M-1.8 13 C-2.8 15.8 -1.8 18 0.2 17.6 "
      "M2.6 12.6 C2.4 15 3.6 16.4 5.4 15 M6.8 8.4 C7.8 10.2 7.4 12 6 12.4 "
      "M-10.6 -3 Q-9.4 -0.6 -10.6 2 M-11 6 Q-9.8 8 -10.8 10 M11 -3 Q10 -0.6 11.2 2 "
      "M11.6 6 Q10.4 8 11.4 10",
      0.5F, kGreyInk);
  f.plain("M-4.4 9.4 Q-2 11.8 1 9.2 Q-1.6 9 -4.4 9.4 Z", {178, 52, 56, 255});
  f.inked(
      "M-2.2 6 C-4 5.2 -7.2 6.6 -9 10.6 C-6.4 10.4 -3.8 9.8 -2.1 8.2 C0.2 9.8 3.6 10.6 6.8 10.2 "
      "C4.6 6.6 0.8 5 -2.2 6 Z",
      kWhiteHair);
  add_lily_crown(f);
  f.at = {};
}

// Hearts: the old king, gentle, in ermine, with the sceptre.
void add_king_of_hearts(Figure& f) {
  add_shoulders(f, motif::pomegranate(), kCrimson, kGold);
  add_ermine(f,
             "M34.4 62.6 C37 58 42 56 46 56 L54 56 C59 56 65 57.6 69 61 C68 66.6 60 71 50 71 "
             "C42 71 35.6 68 34.4 62.6 Z");
  add_old_head(f);
  f.inked("M32 80 C32.6 76.4 33.6 74 35 71.4 L43 73.6 C43.4 75.4 43.2 76.6 42.6 77.8 Z", kNavy);
  add_hand(f, Hand::fist, hand_place(27, 61.5F, 0, 1), kOld, kCream, add_sceptre);
}

// Seen from the side, with a pointed beard.
void add_merchant_head(Figure& f) {
  f.at = head_place(44.6F, 41, 0, 1);
  add_man_aside(f, kShrewd);
  f.plain("M-6.4 8.4 C-7 8.8 -7.1 9.2 -6.8 9.7 L-3 10 L-3 8 Z", {178, 52, 56, 255});
  f.inked("M-4 15.4 C0 18.6 6 18 10.6 14.6 L12.6 19.6 C7 23.6 0 24 -5.4 20.6 Z", kTeal);
  f.line("M-4.6 19.2 C0 22 6.6 21.6 11.8 18", 0.9F, kGold);
  f.inked(
      "M6.4 2.6 C5.8 5 5 6.4 2.8 6.8 C0.8 7 -1.4 7.6 -3.6 9 C-4.8 9.8 -6 10 -7 9.6 "
      "C-7.6 11 -8.6 12.6 -9.4 15 C-10 18 -9.6 21 -8.4 23.6 C-6.8 20.6 -3.6 18.6 0 17 "
      "C4.6 15 8.4 12 9.4 7 Z",
      kAuburn);
  f.line(
      "M-7.6 13 C-8 16 -7.6 18.4 -7 20 M-5 11.6 C-5.4 14.6 -5.4 16.6 -5.2 18.4 "
      "M-2 10.4 C-2.4 13 -2.4 14.6 -2.2 16.4 M1.4 9.4 C1.4 11.6 1.4 13.4 1.8 14.8 "
      "M4.8 8 C5 9.6 5 11 5.2 12.4",
      0.5F, kInk);
  f.inked(
      "M-7.2 5.8 C-5.6 4.8 -3.6 6.2 -2 7.4 C-0.6 8.4 0.8 8.4 2 7.6 C1.4 10 -1 10.8 -3.4 9.8 "
      "C-5 9 -6.6 8.2 -8.4 8.4 C-8.8 7.4 -8 6.4 -7.2 5.8 Z",
      kAuburn);
  f.inked(
      "M-4.6 -9 C-3 -5.6 -0.4 -5 1.6 -4.6 C2.6 -3 2.4 -1.4 3 -0.4 C4 -2.8 7 -2.6 6.8 0.6 "
      "C6.6 3 6.6 5 7.6 7 C6.6 11 7.6 15 9.6 18 C13.4 17 14.6 12 13.6 7 C13 3 13 -4 9.4 -9 Z",
      kAuburn);
  f.line(
      "M9.6 -5 C11 0 9.4 6 11.4 12 M6.6 -5.4 C8.8 -3 8.6 1 8.6 5 C8.4 9 9.4 13 10.4 15.6 "
      "M11.6 0 C12.6 4 11.8 8 12.6 12",
      0.5F, kInk);
  f.at = f.at * shift(1.6F, 0);
  add_imperial_crown(f);
  f.at = {};
}

// Diamonds: the merchant king in profile, auburn and shrewd, with the axe.
void add_king_of_diamonds(Figure& f) {
  add_shoulders(f, motif::lozenge(), kVermilion, kAmber);
  f.inked("M42 57 L56 57 L58.6 74.6 L39.6 78.4 Z", kCream);
  f.line("M41 62.6 L57 60.8 M40.6 67.6 L57.6 65.2 M40 72.8 L58.2 70", 1.3F, kTeal);
  f.inked(
      "M43 56.4 C36 58 31 60 28.6 63 C31 69 34.6 75 37.4 79.2 L43.6 77.8 C40.4 71 40.4 63 "
      "43 56.4 Z",
      kTeal);
  f.inked(
      "M54 56 C62 57.4 66 59.4 68 62 C66.4 66.6 64 71 61.4 74.4 L55.8 75.6 C57.4 69 57 62 "
      "54 56 Z",
      kTeal);
  f.line("M33.4 62.6 C35.4 68 38 73.6 40.2 78.2 M64.4 61.2 C63.4 66 61 71 58.6 74.6", 0.9F, kGold);
  f.line("M39 60.4 C39.6 68 44 73.4 48.6 74 C53.6 73 57.6 67 58.4 59.6", 1.6F, kOldGold);
  f.line("M39 60.4 C39.6 68 44 73.4 48.6 74 C53.6 73 57.6 67 58.4 59.6", 0.7F, kGold);
  add_merchant_head(f);
  f.inked("M54 76 C54.6 72.6 56 69.6 57.6 66.6 L66 70.4 C66.4 72 66 73.2 65.2 74.2 Z", kVermilion);
  add_hand(f, Hand::fist, hand_place(64.7F, 56.5F, 0, -1), kShrewd, kGold, add_axe);
}

// Clubs: the builder king, brown and broad, looking straight ahead, with the orb.
void add_king_of_clubs(Figure& f) {
  add_shoulders(f, motif::sprig(), kTeal, kGold);
  add_ermine(f,
             "M29.6 64 C34 58.4 41 57 47 57 L53 57 C59 57 67 58 72.6 63 C71.4 68 62 71.4 51 71.6 "
             "C40 71.6 31.4 69 29.6 64 Z");
  f.at = head_place(51, 41, 0, 1);
  f.inked(
      "M-8 -9 C-12 -6 -12.6 0 -12 4 C-12.4 8 -13.6 10 -12.6 13 C-10.6 14.6 -8.6 13.6 -7 12 L7 12 "
      "C8.6 13.6 10.6 14.6 12.6 13 C13.6 10 12.4 8 12 4 C12.6 0 12 -6 8 -9 Z",
      kBrown);
  f.line("M-10.6 -2 C-9.6 3 -11.6 7 -10.8 12 M10.6 -2 C9.6 3 11.6 7 10.8 12", 0.5F, kInk);
  f.inked(
      "M-8 -1 C-9.8 -2.6 -10.6 -1 -10 1 C-9.6 3 -8.8 4.6 -7.6 4.2 Z "
      "M8 -1 C9.8 -2.6 10.6 -1 10 1 C9.6 3 8.8 4.6 7.6 4.2 Z",
      kBroad.skin);
  add_man_facing(f, kBroad);
  f.inked(
      "M-8.2 1.6 C-7.6 5 -6.2 7 -4 6.6 L4 6.6 C6.2 7 7.6 5 8.2 1.6 C9.4 6 9 11 6.4 14 "
      "C4.4 16.4 2 17.4 0 17.4 C-2 17.4 -4.4 16.4 -6.4 14 C-9 11 -9.4 6 -8.2 1.6 Z",
      kBrown);
  f.line(
      "M-5.4 11 C-5.4 12.8 -4.4 14 -3.4 14.6 M-1.6 13 L-1.4 16 M1.8 13 L1.5 16 "
      "M5.4 11 C5.4 12.8 4.4 14 3.4 14.6 M-7.2 7 C-7.4 8.6 -7 9.8 -6.4 10.8 "
      "M7.2 7 C7.4 8.6 7 9.8 6.4 10.8",
      0.5F, kInk);
  f.plain("M-2.8 9.6 Q0 11.8 2.8 9.6 Q0 9 -2.8 9.6 Z", {178, 52, 56, 255});
  f.inked(
      "M0 6.6 C-2.4 5 -6 6.6 -8.6 6 C-7.6 9.6 -3.4 10.8 0 8.6 C3.4 10.8 7.6 9.6 8.6 6 "
      "C6 6.6 2.4 5 0 6.6 Z",
      kBrown);
  add_trefoil_crown(f);
  f.at = {};
  f.line("M37.4 58.8 C39.4 64 45 66.8 51 66.8 C57 66.8 62.4 64.4 64.8 60.2", 1.9F, kInk);
  f.line("M37.4 58.8 C39.4 64 45 66.8 51 66.8 C57 66.8 62.4 64.4 64.8 60.2", 1.1F, kGold);
  f.inked(circle({51, 66.8F}, 2.1F), kGold);
  f.inked("M25 81.2 C25 77 25.4 73.6 26.2 71.4 L36.6 71.4 C37.6 74 37.8 77 37.4 78.8 Z", kTeal);
  add_hand(f, Hand::cradle, hand_place(31, 61, 0, 1), kBroad, kGold, add_orb);
}

void add_pauldrons(Figure& f) {
  f.inked("M36 60 C29 59 23 63 21 69.6 C26.6 72.4 34 72 38.6 68.4 Z", kSteel);
  f.inked("M61 60 C68 58.6 73 61 75.6 66 C72 69.4 65 70.4 60 67.4 Z", kSteel);
  f.line(
      "M22.4 70 C24.6 65.4 30 62.6 36.4 62.6 M24.8 71 C27.4 67.6 32 65.6 37.2 65.4 "
      "M74.6 66.4 C72 63.6 67 62 61 62.6 M72.8 68 C70 65.6 66 64.6 60.6 65",
      0.5F, kInk);
  f.plain("M35.6 60.8 C30.4 60.6 25.6 63 23.2 66.4 C27 63.6 31 62.2 35.6 61.8 Z", kWhite);
}

// Spades: the warrior king, raven-black, in mail and steel, with the sword.
void add_king_of_spades(Figure& f) {
  add_shoulders(f, motif::star(), kNavy, kGold);
  f.inked("M39 58 L59 58 L60.6 74 L37 78.6 Z", kCrimson);
  f.inked("M45.6 58 L51.6 58 L52 75.6 L45 77.2 Z", kCream);
  add_pauldrons(f);
  f.at = head_place(48, 41, 0, -1);
  add_mail(f,
           "M-8 -10 C-11.4 -5 -11.4 3 -11 8 C-11.4 13 -14 16 -14.4 20 C-9 25.4 9 25.4 14.4 20 "
           "C14 16 11.4 13 11 8 C11.4 3 11.4 -5 8 -10 Z",
           {"M-8.2 -8 C-11.2 -4 -11 3 -10.8 8 C-11.2 13 -13.6 16 -14.2 20 C-11 22.8 -7 23.8 -3 24 "
            "L-4 19 C-6 15 -5.4 4 -5 -8 Z",
            "M8.2 -8 C11.2 -4 11 3 10.8 8 C11.2 13 13.6 16 14.2 20 C11 22.8 7 23.8 1 24 "
            "L2.6 20 C6 16 5.4 4 5 -8 Z"});
  add_man_turned(f, kWarrior);
  f.inked(
      "M-7.9 3 C-7 5.6 -6 6.6 -4.2 6.2 L2.6 6.2 C5.6 6 7.4 4 8.3 1 C9.4 7 8.4 12 7 15 "
      "C6 18 4 20 1.6 22.6 C1 20.6 0 19 -1.4 18 C-2.6 19.4 -3.4 20.8 -3.8 22.4 "
      "C-6 20 -7.2 17 -7.6 14 C-8.6 10 -8.8 6 -7.9 3 Z",
      kRaven);
  f.line(
      "M-5.6 11.6 Q-6 15 -4.8 18 M-2.9 12.6 Q-3.4 15.4 -3.4 17.4 M1.4 12.6 Q2 15 1.6 18 "
      "M4.6 11.6 Q5 15 4 17.4 M7 7.4 Q7.4 10 6.6 12.4",
      0.5F, {132, 128, 150, 255});
  f.plain("M-4.4 9.5 Q-2 11.4 0.8 9.3 Q-1.6 9 -4.4 9.5 Z", {170, 50, 54, 255});
  f.inked(
      "M-2.2 6 C-4 5.2 -7 6.6 -8.8 10.8 C-6.2 10.4 -3.6 9.8 -2.1 8.2 C0 9.8 3.4 10.6 6.2 10.6 "
      "C4.4 6.6 0.8 5 -2.2 6 Z",
      kRaven);
  add_helmet(f);
  f.at = {};
  add_mail(f, "M55 75.4 C55.4 71.6 56.8 69 59.4 66.6 L68.4 70 C69 71.6 68.6 72.6 68 73.4 Z",
           {"M55 75.4 C55.4 71.6 56.8 69 59.4 66.6 L68.4 70 C69 71.6 68.6 72.6 68 73.4 Z"});
  add_hand(f, Hand::fist, hand_place(68.1F, 58.6F, 0, -1), kWarrior, kSteel, add_sword);
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
