#include "pictures/held.h"

#include "pictures/cloth.h"

namespace tombrello::art {

using namespace court;

namespace {

constexpr Rgba kPetalInk{98, 8, 30, 255};

}  // namespace

void add_sceptre(Figure& f) {
  f.inked("M26 26 L28 26 L28.4 80 L25.6 80 Z", kGold);
  f.inked(ellipse({27, 28.4F}, 2.9F, 1.6F), kGold);
  f.inked(ellipse({27, 47}, 2.2F, 1.3F), kGold);
  f.inked(suit_outline(Suit::hearts, {27, 21}, 10.4F), suit_colour(Suit::hearts));
  f.plain("M23.8 19.6 C23.8 17.8 24.9 17 26 17.4 C25.1 18 24.5 18.6 23.8 19.6 Z", kCream);
}

void add_axe(Figure& f) {
  f.inked("M63.5 13 L65.9 13 L66.3 74 L63.1 74 Z", kWood);
  f.inked(
      "M65.9 17.4 C69 17.4 70.8 15.6 72 13 C74.1 19 74.1 27 72 33.4 C70.7 30.4 68.9 29 65.9 "
      "29 "
      "Z",
      kSteel);
  f.line("M71.4 16.4 C72.6 21 72.6 26 71.4 30.2", 0.7F, kWhite);
  f.inked("M63.5 19.8 L60.6 23.2 L63.5 26.6 Z", kSteel);
  f.fine("M63.1 30.6 L66.3 30.6 L66.3 33 L63.1 33 Z", kGold);
}

void add_orb(Figure& f) {
  f.inked(circle({31, 54.4F}, 7), kCrimson);
  f.plain(
      "M34.6 49 C37 51.6 37.4 56 35 59.4 C37 58 37.8 55.6 37.5 53.6 C37.3 51.8 36.4 50 34.6 49 "
      "Z",
      kFold);
  f.inked("M24.1 53 Q31 56.6 37.9 53 L37.9 55.6 Q31 59.2 24.1 55.6 Z", kGold);
  f.inked("M29.6 47.4 L32.4 47.4 L32.2 55.2 L29.8 55.2 Z", kGold);
  f.inked(
      "M29.9 47.6 L29.9 43.6 L27 43.6 L27 41 L29.9 41 L29.9 37.8 L32.1 37.8 L32.1 41 L35 41 "
      "L35 43.6 L32.1 43.6 L32.1 47.6 Z",
      kGold);
}

void add_sword(Figure& f) {
  f.inked("M65.8 51 L65.8 19 L68.1 12.6 L70.4 19 L70.4 51 Z", kSteel);
  f.plain("M68.1 13.4 L70 19 L70 50.6 L68.1 50.6 Z", kIron);
  f.line("M68.1 18 L68.1 46", 0.5F, kWhite);
  f.inked("M62.4 49.8 C64.4 51.4 71.8 51.4 73.8 49.8 L73.8 53 C71.8 54 64.4 54 62.4 53 Z", kGold);
  f.inked("M66.8 53.4 L69.4 53.4 L69.4 66 L66.8 66 Z", {120, 74, 42, 255});
  f.inked(circle({68.1F, 67}, 2.3F), kGold);
}

void add_rose(Figure& f) {
  f.line("M29.1 45 C28.7 52 29.5 60 28.7 80", 1.7F, kInk);
  f.line("M29.1 45 C28.7 52 29.5 60 28.7 80", 0.9F, kLeaf);
  f.fine("M28.9 56 C25.3 56.4 23.1 54 22.5 50.4 C26.5 50.4 28.9 52.4 28.9 56 Z", kLeaf);
  f.inked(
      "M29.1 46.6 C24.7 47.4 21.5 44.4 22.5 40.8 C21.5 37 24.1 34 27.1 34.4 C28.7 32.4 32.1 "
      "32.6 33.3 34.8 C36.1 35.6 37.1 39 35.7 41.4 C36.1 45 32.7 47.4 29.1 46.6 Z",
      kCrimson);
  f.plain(
      "M23.5 40 C24.7 45 30.7 47 34.9 42.4 C34.1 45.4 31.7 46.2 29.3 46.2 C25.7 46.2 23.7 43.4 "
      "23.5 40 Z",
      {140, 10, 36, 255});
  f.line(
      "M26.9 38.4 C27.3 35.4 31.7 35.4 32.1 38.6 C32.1 41 28.5 41.4 28.5 39.2 M24.3 38 C24.3 "
      "43.4 31.7 45 34.3 40.4 M29.7 34.4 C32.3 34.4 34.3 36 34.5 38.4",
      0.6F, kPetalInk);
}

void add_mirror(Figure& f) {
  f.inked("M65.9 52 L68.3 52 L68.6 72 L65.6 72 Z", kGold);
  f.inked(ellipse({67.1F, 43.6F}, 6.6F, 9), kGold);
  f.fine(ellipse({67.1F, 43.6F}, 4.8F, 7), {204, 230, 240, 255});
  f.line("M64.6 46.6 L69 38.6 M66 49 L70.4 41", 1, kWhite);
  f.inked(moved(motif::lozenge(), shift(67.1F, 33.4F) * scaling(1.1F, 1)), kVermilion);
}

void add_fan(Figure& f) {
  constexpr Point pivot{33.6F, 65.6F};
  constexpr float reach = 20;
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

void add_letter(Figure& f) {
  const Affine before = f.at;
  f.at = before * shift(65.3F, 46.6F) * turning(8);
  f.inked("M-7.6 -5.8 L7.6 -5.8 L7.6 5.8 L-7.6 5.8 Z", kWhite);
  f.line("M-7.6 5.8 L-2.2 -0.2 M7.6 5.8 L2.2 -0.2", 0.5F, kInk);
  f.fine("M-7.6 -5.8 L7.6 -5.8 L1.2 1 Q0 2 -1.2 1 Z", kCream);
  f.fine(suit_outline(Suit::hearts, {0, 0.9F}, 5.6F), suit_colour(Suit::hearts));
  f.at = before;
}

void add_pennon(Figure& f) {
  f.inked("M62.8 18 L65.2 18 L65.6 76 L62.4 76 Z", kWood);
  f.inked("M64 11.6 C66 14 66 16.4 64 19.4 C62 16.4 62 14 64 11.6 Z", kSteel);
  f.inked(
      "M65.2 19 C68.4 17.6 70.8 20.6 73.7 19.2 L71.2 25 L73.7 31.4 C70.8 32.6 68.4 29.6 65.2 "
      "31 Z",
      kTeal);
  f.fine(moved(motif::lozenge(), shift(68.3F, 24.9F) * scaling(1.25F, 1.4F)), kGold);
}

void add_bow(Figure& f) {
  f.line("M60.7 14 L60.7 65", 0.55F, kInk);
  f.inked(
      "M59.5 12.6 C61.3 12.2 62.5 13.4 63.3 15.4 C65.1 19.6 71.1 27 71.4 39.5 C71.1 52 65.1 "
      "59.4 63.3 63.6 C62.5 65.6 61.3 66.8 59.5 66.4 C60.7 65.8 61.1 65 61.5 63.2 C63.3 57.6 "
      "68.5 51 68.8 39.5 C68.5 28 63.3 21.4 61.5 15.8 C61.1 14 60.7 13.2 59.5 12.6 Z",
      kWood);
  f.inked("M68.7 34.6 L71.5 34.6 L71.5 44.4 L68.7 44.4 Z", kCrimson);
}

void add_halberd(Figure& f) {
  f.inked("M25.8 27 L28.2 27 L28.6 81 L25.4 81 Z", kWood);
  f.inked("M27 11.8 L29 19 L28.2 28 L25.8 28 L25 19 Z", kSteel);
  f.line("M27 14 L27 26", 0.5F, kWhite);
  f.inked(
      "M28.2 24 C30.6 24 32.6 22.6 34 20.4 C35.4 25 35.4 31 33.4 36 C32 33.6 30.4 32.4 28.2 "
      "32.2 Z",
      kSteel);
  f.inked("M25.8 25 L22.4 28.3 L25.8 31.2 Z", kSteel);
  f.fine("M25.2 34 L28.8 34 L28.9 37 L25.1 37 Z", kGold);
}

}  // namespace tombrello::art
