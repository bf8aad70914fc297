#include "pictures/cloth.h"

namespace tombrello::art {

using namespace court;

namespace {

constexpr Point kRepeat{5.7F, 3.5F};  // of a brocade

}  // namespace

namespace motif {

Path pomegranate() {
  return outline(
      "M0 -2.7 C1.5 -1.2 1.7 0.2 0 1.8 C-1.7 0.2 -1.5 -1.2 0 -2.7 Z "
      "M-2.5 0 Q-1.7 2.2 0 2.4 Q1.7 2.2 2.5 0 Q2.3 3 0 3.2 Q-2.3 3 -2.5 0 Z");
}

Path sprig() {
  return outline(
      "M0 -2.2 Q1 -1.2 0 -0.1 Q-1 -1.2 0 -2.2 Z M0.2 0.1 Q1.6 -1 2.2 -0.2 Q1.8 1 0.2 0.5 Z "
      "M-0.2 0.1 Q-1.6 -1 -2.2 -0.2 Q-1.8 1 -0.2 0.5 Z M-0.3 0.4 L0.3 0.4 L0.3 2.2 L-0.3 2.2 Z");
}

Path star() {
  return outline("M0 -2 Q0.4 -0.4 2 0 Q0.4 0.4 0 2 Q-0.4 0.4 -2 0 Q-0.4 -0.4 0 -2 Z");
}

Path ring() {
  return outline(
      "M0 -1.6 Q1.6 -1.6 1.6 0 Q1.6 1.6 0 1.6 Q-1.6 1.6 -1.6 0 Q-1.6 -1.6 0 -1.6 Z "
      "M0 -0.8 Q-0.8 -0.8 -0.8 0 Q-0.8 0.8 0 0.8 Q0.8 0.8 0.8 0 Q0.8 -0.8 0 -0.8 Z");
}

Path tail() {
  return outline(
      "M0 -1.5 C0.3 -0.4 1.1 0.6 1 1.6 L0.3 1.2 L0 2 L-0.3 1.2 L-1 1.6 "
      "C-1.1 0.6 -0.3 -0.4 0 -1.5 Z");
}

Path link() {
  return outline("M-1.05 -0.5 C-1 1 1 1 1.05 -0.5 C0.6 0.4 -0.6 0.4 -1.05 -0.5 Z");
}

Path lozenge() {
  return outline("M0 -2.4 Q0.7 -0.9 1.8 0 Q0.7 0.9 0 2.4 Q-0.7 0.9 -1.8 0 Q-0.7 -0.9 0 -2.4 Z");
}

}  // namespace motif

void add_shoulders(Figure& f, const Path& motif, Rgba ground, Rgba thread) {
  f.inked("M20 82 L20 70 C23 63.4 30 60.2 38 58.6 L61 58.6 C68 60.2 73.4 63 76 67 L76 71 Z",
          ground);
  // The motifs stay clear of the belt and of what lies over the breast.
  f.figured("M21.2 81 L21.2 69 C23 63.4 30 60.2 38 58.6 L46 58.6 L46 77 Z", motif, kRepeat, thread);
  f.figured("M54 58.6 L61 58.6 C68 60.2 73 62.6 74.8 65.4 L74.8 70.6 L54 75 Z", motif, kRepeat,
            thread);
  f.plain(
      "M67.4 60.4 C71.6 62 74.6 64.2 75.7 67 L75.7 70.6 L66.8 72.4 C68.8 68.6 69 64.4 67.4 60.4 Z",
      kFold);
}

void add_brocade(Figure& f, std::string_view cloth, const Path& motif, Rgba ground, Rgba thread) {
  f.inked(cloth, ground);
  f.figured(cloth, motif, kRepeat, thread);
}

void add_ermine(Figure& f, std::string_view fur) {
  f.inked(fur, kCream);
  f.figured(fur, motif::tail(), {5.4F, 2.9F}, kInk);
}

void add_mail(Figure& f, std::string_view mail, std::initializer_list<std::string_view> seen) {
  f.inked(mail, kSteel);
  for (const std::string_view part : seen) f.figured(part, motif::link(), {2.4F, 1.4F}, kIron);
}

}  // namespace tombrello::art
