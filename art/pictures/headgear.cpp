#include "pictures/headgear.h"

#include "pictures/cloth.h"

namespace tombrello::art {

using namespace court;

namespace {

// A feather of a cap: its quill starts at the origin and sweeps to the upper right.
void add_feather(Figure& f, const Affine& place, Rgba colour) {
  const Affine before = f.at;
  f.at = before * place;
  f.inked(
      "M-1 1 C-0.6 -6 4 -11.6 11 -12.6 C15.4 -13 18.4 -10.4 17.4 -7.6 C14.6 -8.4 15.4 -6 "
      "13.4 -5.6 C11.4 -5.2 10.6 -3.4 8 -3 C5 -2.4 2 -1.4 -1 1 Z",
      colour);
  f.line(
      "M-1 1 C3 -5 8 -8.8 14.4 -9.6 M3.4 -3.8 L3 -7 M6.8 -6.6 L6.8 -10 M5.4 -5.4 L8.6 -4.2 "
      "M9.6 -8 L12 -6.4",
      0.5F, kInk);
  f.at = before;
}

}  // namespace

void add_lily_crown(Figure& f) {
  f.shaded(
      "M-9.8 -11 L-12 -19.4 L-7 -15.4 L-5 -20.4 C-3.6 -19 -3.2 -17.6 -2.4 -16 "
      "C-3.4 -19.6 -1.6 -21.6 0 -24 C1.6 -21.6 3.4 -19.6 2.4 -16 C3.2 -17.6 3.6 -19 5 -20.4 "
      "L7 -15.4 L12 -19.4 L9.8 -11 Q0 -8.4 -9.8 -11 Z",
      kGold,
      "M0 -24 C1.6 -21.6 3.4 -19.6 2.4 -16 C3.2 -17.6 3.6 -19 5 -20.4 L7 -15.4 L12 -19.4 L9.8 -11 "
      "Q5 -9.7 0 -9.6 Z");
  f.inked("M-9.4 -7.2 Q0 -4.4 9.4 -7.2 L9.9 -11.2 Q0 -8.4 -9.9 -11.2 Z", kCrimson);
  f.studs(1.05F, {{-6.4F, -8.4F}, {0, -7.2F}, {6.4F, -8.4F}}, kCream);
  f.studs(1.2F, {{-12, -20}, {12, -20}}, kCream);
}

void add_imperial_crown(Figure& f) {
  f.shaded("M-8.6 -10 C-12.4 -19.6 -6 -22 0 -19.4 C6 -22 12.4 -19.6 8.6 -10 Z", kTeal,
           "M2 -10 C4.6 -14 4.4 -18 2 -20.2 C8 -21.6 12 -18.6 8.6 -10 Z");
  f.inked(
      "M-9 -10 C-12.6 -17 -8 -22 -1 -20.4 L-1 -18.4 C-6 -20 -9 -17 -6.8 -9.6 Z "
      "M9 -10 C12.6 -17 8 -22 1 -20.4 L1 -18.4 C6 -20 9 -17 6.8 -9.6 Z "
      "M-1.3 -9 L-1.3 -20.4 L1.3 -20.4 L1.3 -9 Z",
      kGold);
  f.inked("M-9.2 -7 Q0 -4.4 9.2 -7 L9.6 -11 Q0 -8.4 -9.6 -11 Z", kGold);
  f.studs(1.1F, {{-6, -8.2F}, {6, -8.2F}}, kTeal);
  f.fine(moved(motif::lozenge(), shift(0, -7.4F) * scaling(0.9F, 0.75F)), kVermilion);
  f.inked(moved(motif::lozenge(), shift(0, -22.2F) * scaling(1.1F, 0.95F)), kVermilion);
}

void add_trefoil_crown(Figure& f) {
  f.shaded(
      "M-9.8 -11 L-11 -16.4 L-9.4 -16.4 L-5 -13.6 L-0.8 -18 L0.8 -18 L5 -13.6 L9.4 -16.4 "
      "L11 -16.4 L9.8 -11 Q0 -8.4 -9.8 -11 Z",
      kGold, "M0 -18 L0.8 -18 L5 -13.6 L9.4 -16.4 L11 -16.4 L9.8 -11 Q5 -9.7 0 -9.6 Z");
  for (const Point& at : {Point{-10.6F, -18.6F}, Point{0, -20.6F}, Point{10.6F, -18.6F}}) {
    f.fine(suit_outline(Suit::clubs, at, 7.2F), kGold);
  }
  f.inked("M-9.4 -7 Q0 -4.2 9.4 -7 L10 -11 Q0 -8.4 -10 -11 Z", kTeal);
  f.studs(1, {{-7, -8.6F}, {-3.6F, -7.8F}, {0, -7.5F}, {3.6F, -7.8F}, {7, -8.6F}}, kCream);
  f.studs(0.9F, {{-10.6F, -18.6F}, {0, -20.6F}, {10.6F, -18.6F}}, kCrimson);
}

void add_helmet(Figure& f) {
  f.inked("M-9 -9 C-10 -17 -4 -22 0 -24.4 C4 -22 10 -17 9 -9 Z", kSteel);
  f.plain("M0.6 -23.6 C4 -21 9.4 -17 8.8 -10 L3.6 -10 C5 -15 3.4 -20 0.6 -23.6 Z", kIron);
  f.shaded(
      "M-9.8 -10.6 L-12 -17.6 L-7.6 -14.6 L-5.6 -19 L-2.6 -14.2 L0 -19.4 L2.6 -14.2 "
      "L5.6 -19 L7.6 -14.6 L12 -17.6 L9.8 -10.6 Q0 -8 -9.8 -10.6 Z",
      kGold, "M0 -19.4 L2.6 -14.2 L5.6 -19 L7.6 -14.6 L12 -17.6 L9.8 -10.6 Q5 -9.4 0 -9.3 Z");
  f.inked("M-9.4 -6.8 Q0 -4 9.4 -6.8 L9.9 -10.8 Q0 -8 -9.9 -10.8 Z", kOldGold);
  f.studs(1.1F, {{-6, -8}, {0, -7.1F}, {6, -8}}, kCrimson);
}

void add_pearl_crown(Figure& f) {
  f.shaded(
      "M-8.8 -9.6 C-11 -12.6 -11.4 -17 -8.4 -18.6 C-6.2 -19.2 -4.6 -17.8 -4.4 -16 "
      "C-4 -19.6 -1.8 -22.4 0 -24 C1.8 -22.4 4 -19.6 4.4 -16 C4.6 -17.8 6.2 -19.2 8.4 -18.6 "
      "C11.4 -17 11 -12.6 8.8 -9.6 Q0 -12.6 -8.8 -9.6 Z",
      kGold,
      "M0 -24 C1.8 -22.4 4 -19.6 4.4 -16 C4.6 -17.8 6.2 -19.2 8.4 -18.6 C11.4 -17 11 -12.6 8.8 "
      "-9.6 Q4 -11.1 0 -11.1 Z");
  f.plain(suit_outline(Suit::hearts, {0, -16.4F}, 5.4F), suit_colour(Suit::hearts));
  f.studs(1, {{-7.4F, -14.4F}, {7.4F, -14.4F}}, kNavy);
  f.studs(
      0.95F,
      {{-8.4F, -9.4F}, {-5.2F, -10.5F}, {-1.8F, -11}, {1.8F, -11}, {5.2F, -10.5F}, {8.4F, -9.4F}},
      kWhite);
}

void add_diamond_crown(Figure& f) {
  f.shaded(
      "M-7.6 -11 L-9 -17 L-5.6 -15.4 L-4.4 -20 L-2 -16.4 L0.4 -24.4 L2.8 -16.4 L5.2 -20 "
      "L6.4 -15.4 L9.8 -17 L8.4 -11 Q0.4 -13.6 -7.6 -11 Z",
      kGold, "M0.4 -24.4 L2.8 -16.4 L5.2 -20 L6.4 -15.4 L9.8 -17 L8.4 -11 Q4 -12.3 0.4 -12.3 Z");
  f.fine(moved(motif::lozenge(), shift(0.4F, -15.6F) * scaling(1.1F, 1.1F)), kVermilion);
  f.studs(0.8F, {{-4.6F, -13.2F}, {5.4F, -13.2F}}, kTeal);
}

void add_club_crown(Figure& f) {
  f.shaded(
      "M-8.6 -9.4 L-10 -15.4 L-8.6 -15.4 L-5 -12.8 L-0.8 -17 L0.8 -17 L5 -12.8 L8.6 -15.4 "
      "L10 -15.4 L8.6 -9.4 Q0 -12 -8.6 -9.4 Z",
      kGold, "M0 -17 L0.8 -17 L5 -12.8 L8.6 -15.4 L10 -15.4 L8.6 -9.4 Q4 -10.7 0 -10.7 Z");
  const std::vector<Point> clubs{{-9.4F, -17.8F}, {0, -20.2F}, {9.4F, -17.8F}};
  for (const Point& at : clubs) {
    f.fine(suit_outline(Suit::clubs, at, 7.4F), suit_colour(Suit::clubs));
    f.fine(ellipse({at.x, at.y + 3.5F}, 1.7F, 0.9F), kGold);
  }
  f.studs(0.95F, {{-6, -11}, {0, -12.2F}, {6, -11}}, kCrimson);
}

void add_spiked_crown(Figure& f) {
  f.shaded(
      "M-8.6 -11.4 L-10.4 -18.6 L-6.2 -15.8 L-4.4 -21 L-2 -16.6 L0 -24.4 L2 -16.6 L4.4 -21 "
      "L6.2 -15.8 L10.4 -18.6 L8.6 -11.4 Q0 -14 -8.6 -11.4 Z",
      kGold, "M0 -24.4 L2 -16.6 L4.4 -21 L6.2 -15.8 L10.4 -18.6 L8.6 -11.4 Q4 -12.7 0 -12.7 Z");
  f.plain(suit_outline(Suit::spades, {0, -15.6F}, 4.8F), kInk);
  f.studs(0.9F, {{-5.4F, -13.8F}, {5.4F, -13.8F}}, kCrimson);
}

void add_page_cap(Figure& f) {
  f.shaded(
      "M-10.4 -8.6 C-15 -13 -13 -19.4 -3.4 -20.8 C6 -22 14.4 -19 13 -13 C12.4 -10.4 11 -9 10 -8 "
      "Q0 -11.6 -10.4 -8.6 Z",
      kCrimson,
      "M5 -20.6 C10 -19.6 13.6 -16.6 13 -13 C12.4 -10.4 11 -9 10 -8 Q7.6 -9 5 -9.6 C8.4 -12 8.6 "
      "-17 5 -20.6 Z");
  f.inked(
      "M-10 -7.8 Q0 -11 9.6 -7.2 C11.2 -7.4 11.2 -9.8 9.6 -10.5 Q0 -14 -10 -10.8 C-11.6 -10.2 "
      "-11.6 -8 -10 -7.8 Z",
      kNavy);
  add_feather(f, shift(-6.4F, -12) * scaling(0.9F, 0.86F) * turning(-14), kCream);
  f.inked(circle({-6.8F, -11.4F}, 1.7F), kGold);
}

void add_brimmed_hat(Figure& f) {
  f.shaded("M-8 -9 C-9.4 -18 -4.6 -21.6 1 -21.4 C7.4 -21 9.6 -16 8.8 -9 Z", kVermilion,
           "M4 -21 C8 -19.4 9.6 -15 8.8 -9 L5 -9 C6.6 -13 6.6 -17.6 4 -21 Z");
  f.inked("M-8.4 -10 Q0 -13.4 8.8 -10 L8.9 -13.4 Q0 -16.6 -8.6 -13.4 Z", kGold);
  f.inked(
      "M-15 -8.4 C-13.6 -13 -6.4 -12.4 0 -11 C6.4 -12.4 11.8 -13.6 14 -9.8 C11.4 -5.4 5.4 -6.4 0 "
      "-6.4 C-6 -6 -12 -4.6 -15 -8.4 Z",
      kTeal);
  add_feather(f, shift(6, -12) * scaling(-0.98F, 0.9F) * turning(2), kGold);
  f.fine(moved(motif::lozenge(), shift(5.4F, -11.4F)), kCream);
}

void add_hunter_cap(Figure& f) {
  f.shaded(
      "M-9.8 -9.4 C-10.8 -15.4 -7 -19.6 -1.6 -21.4 C2 -22.6 4.6 -20.6 5 -18.4 "
      "C8.6 -16.6 10.6 -13 9.8 -9.4 Z",
      kTeal,
      "M4.6 -19.4 L5 -18.4 C8.6 -16.6 10.6 -13 9.8 -9.4 L6 -9.4 C7.4 -12 6.8 -15.6 4.6 -19.4 Z");
  f.inked(
      "M-10 -6.8 Q0 -11.8 10 -6.8 C11.4 -7.4 11.7 -9.8 10.6 -11 C6 -15 -6 -15 -10.6 -11 "
      "C-11.7 -9.8 -11.4 -7.4 -10 -6.8 Z",
      {0, 78, 86, 255});
  add_feather(f, shift(6.8F, -12.4F) * scaling(0.62F, 0.66F) * turning(-40), kCrimson);
  f.inked(circle({7, -11.8F}, 1.6F), kGold);
}

void add_guard_cap(Figure& f) {
  f.shaded(
      "M-7.4 -7.6 C-12 -11.6 -10.6 -18 -1.6 -19.6 C8 -21 16.6 -17.6 15 -11.4 C14.4 -8.8 12.4 -7 "
      "10.4 -6 Q1.6 -9.4 -7.4 -7.6 Z",
      kNavy,
      "M9 -19 C13.6 -17.6 16 -14.6 15 -11.4 C14.4 -8.8 12.4 -7 10.4 -6 Q9 -6.8 7 -7.4 C11.4 -10 12 "
      "-15 9 -19 Z");
  f.inked(
      "M-7 -6.9 Q1.6 -9 10 -5.2 C11.8 -5.2 12 -7.9 10.6 -8.7 Q1.6 -12.4 -7.4 -9.9 C-9 -9.3 -8.6 -7 "
      "-7 -6.9 Z",
      kGold);
  add_feather(f, shift(0.6F, -11.4F) * scaling(0.86F, 0.84F) * turning(10), kCrimson);
  f.inked(circle({0.4F, -10.8F}, 1.7F), kCream);
}

}  // namespace tombrello::art
