#include "pictures/held.h"

#include "pictures/cloth.h"

namespace tombrello::art {

using namespace court;

namespace {

constexpr Rgba kPetalInk{98, 8, 30, 255};

}  // namespace

void add_sceptre(Figure& f) {
  f.inked("M26 24 L28 24 L28.4 80 L25.6 80 Z", kGold);
  f.inked(ellipse({27, 26.4F}, 2.9F, 1.6F), kGold);
  f.inked(ellipse({27, 47}, 2.2F, 1.3F), kGold);
  f.inked(suit_outline(Suit::hearts, {27, 18.6F}, 11.6F), suit_colour(Suit::hearts));
  f.plain("M23.6 17 C23.6 15 24.8 14.2 26 14.6 C25 15.2 24.4 16 23.6 17 Z", kCream);
}

void add_axe(Figure& f) {
  f.inked("M63.5 13 L65.9 13 L66.3 74 L63.1 74 Z", kWood);
  f.inked(
      "M65.9 17.4 C69.1 17.4 71.1 15.6 72.3 13 C74.5 19 74.5 27 72.3 33.4 C70.9 30.4 68.9 29 65.9 "
      "29 "
      "Z",
      kSteel);
  f.line("M71.7 16.4 C72.9 21 72.9 26 71.7 30.2", 0.7F, kWhite);
  f.inked("M63.5 19.8 L60.6 23.2 L63.5 26.6 Z", kSteel);
  f.fine("M63.1 30.6 L66.3 30.6 L66.3 33 L63.1 33 Z", kGold);
}

void add_orb(Figure& f) {
  f.inked(circle({30, 54.4F}, 7), kCrimson);
  f.plain(
      "M33.6 49 C36 51.6 36.4 56 34 59.4 C36 58 36.8 55.6 36.5 53.6 C36.3 51.8 35.4 50 33.6 49 Z",
      kFold);
  f.inked("M23.1 53 Q30 56.6 36.9 53 L36.9 55.6 Q30 59.2 23.1 55.6 Z", kGold);
  f.inked("M28.6 47.4 L31.4 47.4 L31.2 55.2 L28.8 55.2 Z", kGold);
  f.inked(
      "M28.9 47.6 L28.9 43.6 L26 43.6 L26 41 L28.9 41 L28.9 37.8 L31.1 37.8 L31.1 41 L34 41 "
      "L34 43.6 L31.1 43.6 L31.1 47.6 Z",
      kGold);
}

void add_sword(Figure& f) {
  f.inked("M66.2 51 L66.2 19 L68.5 12.6 L70.8 19 L70.8 51 Z", kSteel);
  f.plain("M68.5 13.4 L70.4 19 L70.4 50.6 L68.5 50.6 Z", kIron);
  f.line("M68.5 18 L68.5 46", 0.5F, kWhite);
  f.inked("M62.2 49.8 C64.4 51.4 72.6 51.4 74.4 49.8 L74.4 53 C72.6 54 64.4 54 62.2 53 Z", kGold);
  f.inked("M67.2 53.4 L69.8 53.4 L69.8 66 L67.2 66 Z", {120, 74, 42, 255});
  f.inked(circle({68.5F, 67}, 2.3F), kGold);
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

void add_mirror(Figure& f) {
  f.inked("M66.5 52 L68.9 52 L69.2 72 L66.2 72 Z", kGold);
  f.inked(ellipse({67.7F, 43.6F}, 6.7F, 9), kGold);
  f.fine(ellipse({67.7F, 43.6F}, 4.9F, 7), {204, 230, 240, 255});
  f.line("M65.2 46.6 L69.6 38.6 M66.6 49 L71 41", 1, kWhite);
  f.inked(moved(motif::lozenge(), shift(67.7F, 33.4F) * scaling(1.1F, 1)), kVermilion);
}

void add_fan(Figure& f) {
  constexpr Point pivot{32.4F, 65.6F};
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
  f.at = before * shift(65.6F, 46.6F) * turning(8);
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
      "M65.2 19 C68.4 17.6 70.8 20.6 74.2 19.2 L71.4 25 L74.2 31.4 C70.8 32.6 68.4 29.6 65.2 "
      "31 Z",
      kTeal);
  f.fine(moved(motif::lozenge(), shift(68.3F, 24.9F) * scaling(1.25F, 1.4F)), kGold);
}

void add_bow(Figure& f) {
  f.line("M62.2 14 L62.2 65", 0.55F, kInk);
  f.inked(
      "M61 12.6 C62.8 12.2 64 13.4 64.8 15.4 C66.6 19.6 72.6 27 72.9 39.5 C72.6 52 66.6 59.4 "
      "64.8 63.6 C64 65.6 62.8 66.8 61 66.4 C62.2 65.8 62.6 65 63 63.2 "
      "C64.8 57.6 70 51 70.3 39.5 C70 28 64.8 21.4 63 15.8 C62.6 14 62.2 13.2 61 12.6 Z",
      kWood);
  f.inked("M70.2 34.6 L73 34.6 L73 44.4 L70.2 44.4 Z", kCrimson);
}

void add_halberd(Figure& f) {
  f.inked("M25.8 27 L28.2 27 L28.6 81 L25.4 81 Z", kWood);
  f.inked("M27 11.8 L29 19 L28.2 28 L25.8 28 L25 19 Z", kSteel);
  f.line("M27 14 L27 26", 0.5F, kWhite);
  f.inked(
      "M28.2 24 C30.6 24 32.6 22.6 34 20.4 C35.4 25 35.4 31 33.4 36 C32 33.6 30.4 32.4 28.2 "
      "32.2 Z",
      kSteel);
  f.inked("M25.8 25 L21.6 28.4 L25.8 31.4 Z", kSteel);
  f.fine("M25.2 34 L28.8 34 L28.9 37 L25.1 37 Z", kGold);
}

}  // namespace tombrello::art
