#include "pictures/cloth.h"
#include "pictures/hands.h"
#include "pictures/headgear.h"
#include "pictures/held.h"

namespace tombrello::art {
namespace {

using namespace court;

constexpr Rgba kStraw{242, 196, 100, 255};
constexpr Rgba kStrawInk{164, 106, 34, 255};
constexpr Rgba kHazel{126, 78, 42, 255};
constexpr Rgba kRust{196, 88, 34, 255};
constexpr Rgba kRaven{52, 48, 66, 255};
constexpr Rgba kSheen{132, 128, 150, 255};

constexpr Look kFair{{255, 226, 202, 255},
                     {244, 198, 170, 255},
                     {170, 116, 44, 255},
                     {52, 108, 168, 255},
                     -0.3F,
                     0.8F};
constexpr Look kTanned{
    {244, 206, 170, 255}, {224, 174, 134, 255}, {86, 50, 26, 255}, {92, 60, 32, 255}, 0.1F, 0.7F};
constexpr Look kRuddy{
    {254, 220, 194, 255}, {240, 188, 156, 255}, {156, 64, 22, 255}, {58, 116, 66, 255}, 0.1F, 0.5F};
constexpr Look kSullen{
    {238, 208, 184, 255}, {212, 174, 148, 255}, {40, 36, 50, 255}, {72, 78, 104, 255}, 1.2F, -0.4F};

// Fair locks to the collar.
void add_page_head(Figure& f) {
  f.at = head_place(43.6F, 41.5F, -2, -1);
  f.inked(
      "M-8 -9 C-11.4 -7 -11.4 -3 -9.8 -1 C-12 1.4 -11.6 4.6 -9.6 6 C-10.8 9 -9 12 -6 11.4 L8 12 "
      "C11.4 13.6 14.6 11 13.2 8 C15.6 5.8 15 2 12.4 1 C14.4 -2.4 13 -7 8.6 -9 Z",
      kStraw);
  add_neck(f, kFair);
  add_man_turned(f, kFair);
  f.inked(
      "M-7.7 -3.4 C-8.6 -6 -8 -9 -5 -9.6 L7.8 -9.6 C11 -8 12 -4 10.6 -1.4 C12 1 11 4.6 8 5.2 "
      "C7 2.6 7.6 0 6.8 -2 C6.2 -2.6 5.6 -4 5.6 -5.6 C3.4 -4 0.8 -4.4 -0.4 -6.4 "
      "C-1.8 -4.2 -4.2 -4.2 -5.4 -6 C-5.6 -4.6 -6.4 -3.8 -7.7 -3.4 Z",
      kStraw);
  f.line(
      "M-9.6 -4.4 C-8.6 -3.6 -9 -2.2 -9.8 -1 M-10.2 2.6 C-9 3 -8.6 4.8 -9.6 6 M-8 8 Q-6.6 9 -7 "
      "10.4 "
      "M12.4 1 C11.4 3 12.6 4.4 11.4 6.4 M13.2 8 C11.6 8.4 11.8 10 10.4 10.6 "
      "M10 -6 C8.4 -5.4 9.4 -3.6 8.4 -2.6 M3 -8.4 C3.4 -7 4.8 -6.4 5.6 -5.6 M-3 -8.4 Q-2 -6.6 "
      "-0.4 -6.4",
      0.5F, kStrawInk);
  add_page_cap(f);
  f.at = {};
}

// Hearts: the fair messenger, with a letter.
void add_jack_of_hearts(Figure& f) {
  add_shoulders(f, moved(suit_outline(Suit::hearts, {0, 0}, 4), scaling(0.9F, 1)), kNavy, kGold);
  f.plain("M63.8 63 L68 63 L68 68.4 L63.8 68.4 Z", kNavy);  // half a heart would peep past the cuff
  f.inked("M38 59.4 L57 59.4 C58.6 65 58.6 70 57.4 75 L38 79 C36.6 72 36.6 66 38 59.4 Z", kCrimson);
  f.line("M42 61 L41.4 78 M54 61 L54.4 75.4", 1.1F, kGold);
  f.line("M47.4 60 L47.4 76.6", 0.5F, kInk);
  f.studs(1.1F, {{47.4F, 66}, {47.4F, 70.2F}}, kGold);
  add_page_head(f);
  f.inked("M35 60 C37.6 57 41 57 46.4 61.4 C51.4 57 55 56.8 58 59.6 L55 67 L46.4 62.6 L38.4 67 Z",
          kCream);
  f.inked("M53.6 76 C53 71.6 54.6 67.4 57 64.6 L67 66.4 C68.6 68.8 68.6 71.4 67.6 73.4 Z",
          kCrimson);
  f.line("M57 75 C57 71.6 58.4 68.8 60 66.6 M62.6 74 C63 71.6 63.4 69.8 63.6 67.6", 0.9F, kGold);
  add_hand(f, Hand::pinch, hand_place(66, 55, 0, -1), kFair, kCream, add_letter);
}

void add_ruff(Figure& f, float x, float y) {
  Path frill;
  for (int i = -3; i <= 3; ++i) {
    const float t = static_cast<float>(i);
    join(frill, ellipse({x + t * 4, y - t * t * 0.22F}, 2.7F, 3.4F));
  }
  f.inked(frill, kCream);
  f.plain(moved(frill, shift(x, y) * scaling(0.985F, 0.86F) * shift(-x, -y)), kCream);
  Path folds;
  for (int i = -3; i <= 3; ++i) {
    const float t = static_cast<float>(i);
    folds.move({x + t * 4, y - t * t * 0.22F - 1.6F});
    folds.line({x + t * 4, y - t * t * 0.22F + 1.8F});
  }
  f.line(folds, 0.45F, {150, 146, 150, 255});
}

// Diamonds: the dashing herald, with his pennon.
void add_jack_of_diamonds(Figure& f) {
  add_shoulders(f, motif::lozenge(), kVermilion, kAmber);
  f.inked("M33 60 L45 59 L45 77.4 L31.4 79.8 C30 73 30.4 66 33 60 Z", kTeal);
  f.inked("M45 59 L57 60 C58.6 65 58.6 70 57.6 74.8 L45 77.4 Z", kCream);
  f.fine(moved(motif::lozenge(), shift(38.6F, 70) * scaling(2, 2)), kGold);
  f.fine(moved(motif::lozenge(), shift(51.4F, 69) * scaling(2, 2)), kVermilion);
  const Affine head = head_place(44.5F, 41.5F, 2, 1);
  f.at = head;
  f.inked(
      "M-7 -8 C-10.4 -2 -9.4 5 -9.8 10 C-8 13.4 -5 13 -3 11.6 L5 12 C7 14.6 11.6 14.6 13.6 11 "
      "C12 9 13.4 2 12.4 -2 C12 -5 10.6 -7 8.6 -8 Z",
      kHazel);
  add_neck(f, kTanned);
  add_man_turned(f, kTanned);
  f.inked(
      "M-2 6.2 C-3.8 5.6 -5.4 7.6 -8.6 5 C-7.8 8.6 -4 9.4 -2 7.6 C0.2 9.4 4.2 8.8 5.6 4.8 "
      "C2 7.6 0 5.8 -2 6.2 Z",
      kHazel);
  f.plain("M-3.2 10.6 Q-2 10 -0.8 10.6 Q-0.8 12.4 -2 13.6 Q-3.4 12.4 -3.2 10.6 Z", kHazel);
  f.inked(
      "M5.8 -8 C6.4 -5 7.4 -3.4 8 0 C8.6 4 7.6 8 8.6 12.4 C11.6 13 14 11 14.4 8.6 C12.8 7 14 1 "
      "12.6 "
      "-3 C12 -6 11 -7.4 9 -8 Z",
      kHazel);
  f.line("M9.6 -4 C11 1 9.6 6 11 11", 0.5F, kInk);
  add_brimmed_hat(f);
  f.at = {};
  add_ruff(f, 45, 61);
  f.inked("M52.4 76.4 C52.4 72 54 69 56 66.8 L65 69.6 C66.2 71.4 66 72.8 65.4 73.8 Z", kTeal);
  add_hand(f, Hand::fist, hand_place(64, 57, 0, -1), kTanned, kCream, add_pennon);
}

void add_quiver(Figure& f) {
  f.at = shift(30.4F, 57) * turning(-6);
  f.line("M-3 -4 L-3.4 -19 M0.4 -4 L0.4 -22", 1, kWood);
  f.inked("M-5.2 -22 L-3.4 -20 L-1.8 -22.4 L-2 -15.4 L-3.4 -13.6 L-4.8 -15.4 Z", kCrimson);
  f.inked("M-1.4 -26 L0.4 -24 L2.2 -26 L2.2 -19 L0.4 -17 L-1.4 -19 Z", kCream);
  f.inked("M-5.4 -6 L6 -6 L5 18 L-4 18 Z", kWood);
  f.inked("M-5.7 -7 L6.3 -7 L6 -3 L-5.4 -3 Z", kGold);
  f.at = {};
}

// A fringe and freckles under the cap.
void add_archer_head(Figure& f) {
  f.at = head_place(44, 41.5F, 0, 1);
  f.inked("M-9 -8 C-11.6 -2 -11.4 4 -10.6 9 C-6 13.4 6 13.4 10.6 9 C11.4 4 11.6 -2 9 -8 Z", kRust);
  add_neck(f, kRuddy);
  add_man_facing(f, kRuddy);
  f.sprinkle(circle({0, 0}, 0.42F),
             {{-6, 3.2F},
              {-4.6F, 4},
              {-5.6F, 5.6F},
              {-3.4F, 5.2F},
              {6, 3.2F},
              {4.6F, 4},
              {5.6F, 5.6F},
              {3.4F, 5.2F}},
             {190, 106, 62, 255});
  f.plain(
      "M-7.9 5.2 C-9.6 0 -9.6 -6 -8 -11 L8 -11 C9.6 -6 9.6 0 7.9 5.2 C7.8 2 7.4 -2 6.4 -4.6 "
      "C4.6 -3.6 2.6 -4 1.6 -5.6 C0.2 -3.6 -2.6 -3.2 -4 -5 C-4.6 -3.8 -5.6 -3.4 -6.6 -3.6 "
      "C-7.4 -1.6 -7.8 2 -7.9 5.2 Z",
      kRust);
  f.line(
      "M7.8 5.4 C7.8 2 7.4 -2 6.4 -4.6 C4.6 -3.6 2.6 -4 1.6 -5.6 C0.2 -3.6 -2.6 -3.2 -4 -5 "
      "C-4.6 -3.8 -5.6 -3.4 -6.6 -3.6 C-7.4 -1.6 -7.8 2 -7.8 5.4",
      0.75F, kInk);
  add_hunter_cap(f);
  f.at = {};
}

// Clubs: the archer of the woods, freckled, looking straight ahead, with his bow.
void add_jack_of_clubs(Figure& f) {
  add_quiver(f);
  add_shoulders(f, motif::sprig(), kTeal, {92, 176, 140, 255});
  f.inked("M34 59 L39 59 L58.6 73 L57.6 75 L54 75.6 Z", kWood);
  f.studs(0.8F, {{41, 64}, {45, 66.8F}, {49, 69.6F}}, kGold);
  add_archer_head(f);
  f.inked(
      "M26 66 C28 61 33 58 38 56.4 C41 60.4 47 60.4 50 56.4 C55 58 60 61 62 65 L57.6 63.8 "
      "L54.6 68.6 L50.4 64.8 L46.4 70.4 L42 65.2 L37.6 70.6 L34 65.6 L30 69.8 Z",
      kCrimson);
  f.line("M38.6 59 C41.4 62.6 46.6 62.6 49.4 59", 0.5F, kInk);
  f.inked("M54.6 75.8 C54.4 66 55 58 58 50.6 L65 53.6 C65.2 62 66.8 68 66.6 73.6 Z", kCream);
  f.line("M58.2 74 C58 67 58.4 61 59.6 55.4 M62.4 73.6 C62 67.6 62 62 62.6 57.4", 0.5F, kInk);
  add_hand(f, Hand::fist, hand_place(69.7F, 40.4F, 4, -1), kRuddy, kGold, add_bow);
}

// Spades: the sullen guardsman in profile, with a halberd.
void add_jack_of_spades(Figure& f) {
  add_shoulders(f, motif::star(), kNavy, {118, 136, 184, 255});
  f.inked("M40 61 L58.4 61 C60.4 65.6 60.6 70 59.6 74.6 L39.6 78.4 C38 72 38.4 66 40 59.4 Z",
          kCrimson);
  f.line("M41.4 63 L50 68 L59.4 62 M40 69.4 L50 74.4 L60 68.6", 1.5F, kGold);
  f.line("M50 61 L50 76", 0.5F, kInk);
  f.inked("M62 59.4 C69 60 74.4 63.6 75.6 68.4 C72 72 66 72.4 61.4 70 C60 66 60.4 62.4 62 59.4 Z",
          kNavy);
  f.plain("M64.4 60.6 Q70 63.6 72.4 70 L69.4 70.8 Q68 65 63.4 61.6 Z", kCrimson);
  const Affine head = head_place(54.6F, 39.6F, 2, -1);
  f.at = head;
  add_man_aside(f, kSullen);
  f.inked(
      "M-6.8 11 C-5.2 10.6 -3.9 11.4 -3.8 12.6 C-4.2 14.4 -6 16 -8.4 16.8 C-7.7 14.9 -7.9 12.6 "
      "-6.8 11 Z",
      kRaven);
  f.inked(
      "M-4.8 -8.4 C-3.4 -5 -1 -4.4 0.8 -3.4 C2.6 -2 2 1 2.4 3.6 C2.8 6.4 3.6 9 6 10.6 "
      "C9 12.6 13.4 12.4 15 9.4 C13.2 9.2 13.4 6 13.4 2 C13.4 -3 12 -7.4 9 -9.4 Z",
      kRaven);
  f.line("M5 -5 C6.4 -1 5.4 3 7.4 8 M9 -5 C10.4 -1 9.4 4 11 9.4", 0.5F, kSheen);
  add_guard_cap(f);
  f.at = {};
  constexpr std::string_view kGorget =
      "M38.6 63 C39 60 40.6 58.8 42.6 58.8 Q50 61.6 57.4 60 C59.2 60.4 60.2 61.8 60.6 63.2 "
      "C58 66.6 53.6 68 49.6 68 C45.4 68 41.2 66.2 38.6 63 Z";
  add_mail(f, kGorget, {kGorget});
  f.inked("M31.4 79.8 C31.2 76.8 32 74 33.6 71.4 L43 73 C44 74.6 44.2 76.2 43.4 77.6 Z", kCrimson);
  add_hand(f, Hand::fist, hand_place(27, 61.5F, 0, 1), kSullen, kGold, add_halberd);
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
