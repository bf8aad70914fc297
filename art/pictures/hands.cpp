#include "pictures/hands.h"

namespace tombrello::art {

using namespace court;

namespace {

void add_fist(Figure& f, const Look& look) {
  f.inked(
      "M1.6 -4.2 C-0.6 -4.2 -3.3 -4.9 -3.1 -6.6 C-2.8 -8.4 0.2 -7.8 2.4 -6 C4.2 -4.8 5.2 -3.4 5.4 "
      "-1.4 C5.6 0.8 5.2 2.4 5.4 4 C5.6 5.6 6.2 7 7 8.6 L1.4 10 C1.4 7.6 0.6 5.6 -1 4.3 Z",
      look.skin);
}

void add_fist_fingers(Figure& f, const Look& look) {
  f.plain(
      "M2.6 -4.2 L-1.8 -4.3 C-3.4 -4.3 -3.4 -2.1 -2 -2.1 C-3.9 -2.1 -3.9 0.1 -2.2 0.1 "
      "C-3.9 0.1 -3.8 2.3 -2 2.3 C-3.3 2.3 -3.2 4.4 -1.6 4.4 L4.4 4.4 L4.6 -1.8 Z",
      look.skin);
  f.plain("M-2.4 3.3 C-2.8 4.1 -2.2 4.4 -1.6 4.4 L3.8 4.4 C3 3.8 1.6 3.4 -2.4 3.3 Z", look.shade);
  f.line(
      "M2.6 -4.3 L-1.8 -4.3 C-3.4 -4.3 -3.4 -2.1 -2 -2.1 L2 -2.1 M-2 -2.1 C-3.9 -2.1 -3.9 0.1 "
      "-2.2 0.1 L2.2 0.1 M-2.2 0.1 C-3.9 0.1 -3.8 2.3 -2 2.3 L2 2.3 "
      "M-2 2.3 C-3.3 2.3 -3.2 4.4 -1.6 4.4 L2.6 4.4",
      0.55F, kInk);
}

void add_spread_fingers(Figure& f, const Look& look) {
  f.fine(
      "M6.9 1 C7 -2.4 7.4 -4.4 8.2 -6 C9 -7.3 10.6 -6.6 10.2 -5 C9.4 -3 9.1 -1.4 9 1 Z "
      "M4.9 1 C4.6 -2.6 4.1 -5.2 4.2 -7.2 C4.5 -8.8 6.3 -8.8 6.6 -7.2 C6.9 -5 6.9 -2.6 6.9 1 Z "
      "M2.8 1 C2.4 -1.4 1 -3.8 0.4 -5.6 C0.1 -7.2 1.8 -7.8 2.6 -6.6 C3.7 -4.9 4.7 -2.6 4.9 1 Z",
      look.skin);
  f.line("M1.3 -4.4 L2.5 -5 M4.9 -5.4 L6.1 -5.5 M8.3 -4.6 L9.4 -4.1", 0.5F, look.shade);
}

void add_pinch(Figure& f, const Look& look) {
  f.inked(
      "M2.2 10.4 C2.2 8.6 2 7.6 1.6 6.2 C1 4 1.2 1.4 2.6 0.4 C3.6 -0.6 4.8 -1.1 6.2 -1 C8.4 -0.8 9 "
      "1.4 8.8 4 "
      "C8.7 6 8.8 7.6 9.2 9.4 Z",
      look.skin);
  f.plain("M7.4 0 C8.6 0.4 8.5 2.4 8.3 4 C8.2 6 8.3 7.6 8.7 9.2 L6.4 9.6 C6.8 6 7.4 3 7.4 0 Z",
          look.shade);
}

void add_pinch_fingers(Figure& f, const Look& look) {
  f.plain(
      "M6 -0.2 C4 -2.8 0.8 -3.6 -1.6 -2.3 C-2.8 -1.5 -2.1 -0.3 -1 -0.5 C-2.3 -0.5 -2.8 0.5 -1.9 "
      "1.4 C-0.5 2.4 0.9 3.8 1.6 6.2 L5.4 5 Z",
      look.skin);
  f.line(
      "M5.6 -0.6 C4 -2.8 0.8 -3.6 -1.6 -2.3 C-2.8 -1.5 -2.1 -0.3 -1 -0.5 C-2.3 -0.5 -2.8 0.5 -1.9 "
      "1.4 C-0.5 2.4 0.9 3.8 1.6 6.2",
      0.75F, kInk);
  f.line("M-1 -0.5 C0.8 -0.9 2.4 -0.2 3.4 1.2", 0.55F, kInk);
}

void add_cradle(Figure& f, const Look& look) {
  f.inked(
      "M-5.8 0.6 C-7.8 -1.6 -8.8 -5 -7.8 -7 C-6.8 -8.2 -5.4 -7.2 -5.6 -5.6 C-5.6 -4 -5 -2.6 "
      "-3.6 -1.4 L-2.6 3.6 Z",
      look.skin);
}

void add_cradle_fingers(Figure& f, const Look& look) {
  f.inked(
      "M-5.6 0.6 C-6.4 -1.6 -5.9 -3.2 -4.7 -3.3 C-3.5 -3.3 -3 -2 -2.9 -0.6 C-3 -3.2 -2.4 -4.4 "
      "-1.4 -4.4 C-0.2 -4.4 0 -2.8 0 -0.8 C0.1 -3.2 0.6 -4.4 1.7 -4.3 C2.9 -4.2 2.9 -2.6 2.8 "
      "-0.6 C3 -2.6 3.7 -3.4 4.6 -3.2 C6 -2.8 5.9 -0.6 5.3 1 C4.6 3.2 3.9 5 3.8 8.6 L-2.8 8.6 "
      "C-2.8 5.4 -4.8 3.6 -5.6 0.6 Z",
      look.skin);
  // The thumb grows out of the same hand.
  f.plain("M-6 0.2 C-6 -1 -5.5 -1.9 -4.7 -2 L-4 0.6 L-4.8 2 Z", look.skin);
  f.line("M-2.9 -0.6 L-2.4 2 M0 -0.8 L0.1 1.8 M2.8 -0.6 L2.5 1.8", 0.55F, kInk);
  f.plain("M4.8 1 C4.2 3.2 3.5 5 3.4 8.2 L1.4 8.2 C1.6 5 3.4 3.4 4.8 1 Z", look.shade);
}

void add_cuff(Figure& f, Rgba colour) {
  f.inked(
      "M0.4 8.6 C3 8.8 6.4 8 8.6 6.8 C9.6 6.8 10.6 9.8 10 10.8 C7.4 12.4 3.4 13.4 0.8 13 "
      "C-0.2 12.4 -0.4 9.4 0.4 8.6 Z",
      colour);
}

void add_cradle_cuff(Figure& f, Rgba colour) {
  f.inked(
      "M-4 7.4 C-1.4 8.2 2.4 8.2 5 7.2 C6 8 6 10.6 5.2 11.6 C2.4 12.6 -1.4 12.6 -4.2 11.8 "
      "C-5 10.6 -4.8 8.4 -4 7.4 Z",
      colour);
}

void add_palm(Figure& f, Hand hand, const Look& look) {
  if (hand == Hand::fist) return add_fist(f, look);
  if (hand == Hand::cradle) return add_cradle(f, look);
  if (hand == Hand::spread) add_spread_fingers(f, look);
  add_pinch(f, look);
}

void add_fingers(Figure& f, Hand hand, const Look& look) {
  if (hand == Hand::fist) return add_fist_fingers(f, look);
  if (hand == Hand::cradle) return add_cradle_fingers(f, look);
  add_pinch_fingers(f, look);
}

}  // namespace

Affine hand_place(float x, float y, float turn, float side) {
  constexpr float kScale = 1.06F;
  return shift(x, y) * turning(turn) * scaling(side < 0 ? -kScale : kScale, kScale);
}

void add_hand(Figure& f, Hand hand, const Affine& place, const Look& look, Rgba cuff,
              void (*add_held)(Figure&)) {
  f.at = place;
  add_palm(f, hand, look);
  if (hand != Hand::cradle) add_cuff(f, cuff);
  f.at = {};
  add_held(f);
  f.at = place;
  add_fingers(f, hand, look);
  if (hand == Hand::cradle) add_cradle_cuff(f, cuff);
  f.at = {};
}

}  // namespace tombrello::art
