#include <algorithm>
#include <array>

#include "pictures/faces.h"
#include "pictures/outline.h"

namespace tombrello::art {
namespace {

constexpr Rgba kWhite{255, 255, 255, 255};
constexpr Rgba kNavy{20, 36, 96, 255};
constexpr Rgba kBlue{64, 96, 176, 255};
constexpr Rgba kMist{206, 218, 242, 255};
constexpr Rgba kCoral{232, 108, 74, 255};
constexpr Rgba kBrick{186, 58, 44, 255};
constexpr Rgba kIvory{255, 243, 222, 255};

struct Field {
  float left;
  float top;
  float right;
  float bottom;

  Point middle() const { return {(left + right) / 2, (top + bottom) / 2}; }
};

void add_ring(Drawing& back, Point middle, float radius, float width, Rgba colour) {
  Path ring = circle(middle, radius);
  join(ring, circle(middle, radius - width));
  fill(back, ring, colour);
  back.shapes.back().even_odd = true;
}

// Rows of the same motif: a shape for each row, which paints faster than one for all. Left out
// is whatever would reach into `cut`.
void add_rows(Drawing& back, const Field& field, const Path& motif, int columns, int rows,
              bool between, const std::vector<Point>& cut, Rgba colour) {
  const float w = (field.right - field.left) / static_cast<float>(columns);
  const float h = (field.bottom - field.top) / static_cast<float>(rows);
  const float offset = between ? 1.0F : 0.5F;
  for (int row = 0; row < (between ? rows - 1 : rows); ++row) {
    Path line;
    for (int column = 0; column < (between ? columns - 1 : columns); ++column) {
      const Path one = moved(motif, shift(field.left + w * (static_cast<float>(column) + offset),
                                          field.top + h * (static_cast<float>(row) + offset)) *
                                        scaling(w / 2, h / 2));
      const bool is_cut = std::any_of(one.points.begin(), one.points.end(),
                                      [&](Point p) { return within(cut, p); });
      if (!is_cut) join(line, one);
    }
    fill(back, line, colour);
  }
}

void add_frame(Drawing& back, float inset, float width, Rgba colour) {
  Path frame = rounded_box(inset, inset, kCardWidth - inset, back.height - inset, 2);
  const float inner = inset + width;
  join(frame, rounded_box(inner, inner, kCardWidth - inner, back.height - inner, 1.4F));
  fill(back, frame, colour);
  back.shapes.back().even_odd = true;
}

void add_beads(Drawing& back, float inset, float radius, Rgba colour) {
  Path upright;
  Path lying;
  const float w = kCardWidth - 2 * inset;
  const float h = back.height - 2 * inset;
  constexpr int kAcross = 20;
  constexpr int kDown = 34;
  for (int i = 0; i <= kAcross; ++i) {
    const float x = inset + w * static_cast<float>(i) / kAcross;
    join(lying, circle({x, inset}, radius));
    join(upright, circle({x, back.height - inset}, radius));
  }
  fill(back, lying, colour);
  fill(back, upright, colour);
  for (const float x : {inset, kCardWidth - inset}) {
    Path side;
    for (int i = 1; i < kDown; ++i) {
      join(side, circle({x, inset + h * static_cast<float>(i) / kDown}, radius));
    }
    fill(back, side, colour);
  }
}

// A four-pointed star that touches its neighbours in a net.
Path star() {
  return outline("M0 -1 Q0.2 -0.2 1 0 Q0.2 0.2 0 1 Q-0.2 0.2 -1 0 Q-0.2 -0.2 0 -1 Z");
}

// The frame around the medallion, an ogee quatrefoil.
Path quatrefoil(Point middle, float size) {
  return moved(outline("M0 -1.5 C0.1 -1.3 0.2 -1.2 0.42 -1.1 C0.7 -0.98 0.78 -0.75 0.72 -0.55 "
                       "C0.95 -0.5 1.08 -0.25 1.12 0 C1.08 0.25 0.95 0.5 0.72 0.55 "
                       "C0.78 0.75 0.7 0.98 0.42 1.1 C0.2 1.2 0.1 1.3 0 1.5 "
                       "C-0.1 1.3 -0.2 1.2 -0.42 1.1 C-0.7 0.98 -0.78 0.75 -0.72 0.55 "
                       "C-0.95 0.5 -1.08 0.25 -1.12 0 C-1.08 -0.25 -0.95 -0.5 -0.72 -0.55 "
                       "C-0.78 -0.75 -0.7 -0.98 -0.42 -1.1 C-0.2 -1.2 -0.1 -1.3 0 -1.5 Z"),
               shift(middle.x, middle.y) * scaling(size, size));
}

// Navy: a net of stars around a rosette.
void add_first_back(Drawing& back) {
  fill(back, rounded_box(5, 5, kCardWidth - 5, back.height - 5, 3), kNavy);
  add_frame(back, 6.2F, 0.8F, kWhite);
  add_beads(back, 9.2F, 1.05F, kMist);
  add_frame(back, 11.4F, 0.8F, kWhite);
  const Field field{12.6F, 12.6F, kCardWidth - 12.6F, back.height - 12.6F};
  const Point m = field.middle();
  const Path halo = quatrefoil(m, 25);
  add_rows(back, field, star(), 8, 14, false, {}, kMist);
  add_rows(back, field, ellipse({0, 0}, 0.34F, 0.34F), 8, 14, true, corners_of(halo), kBlue);
  fill(back, halo, kNavy);
  fill(back, quatrefoil(m, 23.4F), kWhite);
  fill(back, quatrefoil(m, 22.2F), kNavy);
  const Path drop = outline(
      "M0 -29 C0.4 -26.6 2.7 -25 2.7 -22.4 C2.7 -20.6 1.5 -19.4 0 -19.4 C-1.5 -19.4 -2.7 -20.6 "
      "-2.7 -22.4 C-2.7 -25 -0.4 -26.6 0 -29 Z");
  for (const float side : {1.0F, -1.0F}) {
    fill(back, moved(drop, shift(m.x, m.y) * scaling(1, side)), kMist);
  }
  fill(back, petals(m, 24, 12.6F, 16.8F, 1.4F), kBlue);
  add_ring(back, m, 17.8F, 0.9F, kWhite);
  fill(back, petals(m, 12, 2.4F, 14.6F, 4), kWhite);
  fill(back, petals(m, 12, 5, 12.6F, 2.2F), kBlue);
  fill(back, circle(m, 3.6F), kNavy);
  fill(back, petals(m, 6, 0, 3, 1.1F), kMist);
}

// A row of half discs that stand on `base`; those that straddle the field's sides are halved.
Path fans(const Field& field, float base, float radius, float size, bool shifted) {
  const float k = size * 0.5523F;
  Path row;
  for (float x = field.left + (shifted ? 0 : radius); x < field.right + 1; x += 2 * radius) {
    row.move({x, base});
    if (x > field.left + 1) {
      row.line({x - size, base});
      row.cubic({x - size, base - k}, {x - k, base - size}, {x, base - size});
    } else {
      row.line({x, base - size});
    }
    if (x < field.right - 1)
      row.cubic({x + k, base - size}, {x + size, base - k}, {x + size, base});
    row.close();
  }
  return row;
}

struct Band {
  float size;
  Rgba colour;
};

constexpr std::array<Band, 3> kFanBands = {{{1, kIvory}, {0.84F, kCoral}, {0.46F, kBrick}}};

void add_sun(Drawing& back, Point m) {
  fill(back, circle(m, 22.2F), kIvory);  // swallows the arcs that would just miss the disc
  fill(back, circle(m, 21), kCoral);
  fill(back, petals(m, 12, 7, 18.4F, 4.6F), kIvory);
  fill(back, petals(m, 12, 10, 16.6F, 2.2F), kBrick);
  fill(back, circle(m, 9.8F), kIvory);
  fill(back, circle(m, 8.6F), kBrick);
  fill(back, petals(m, 6, 1.4F, 7.8F, 3.4F), kIvory);
  fill(back, circle(m, 2.2F), kCoral);
}

// The ribbon along which the fans of both halves meet.
void add_ribbon(Drawing& back, const Field& field) {
  const float y = field.middle().y;
  const auto band = [&](float half) {
    return polygon({{field.left, y - half},
                    {field.right, y - half},
                    {field.right, y + half},
                    {field.left, y + half}});
  };
  fill(back, band(7), kIvory);  // as high as the cores of the fans behind it
  fill(back, band(6), kBrick);
  Path beads;
  for (const float off : {25.5F, 30.9F, 36.3F, -25.5F, -30.9F, -36.3F}) {
    const float x = field.middle().x + off;
    join(beads, polygon({{x, y - 2.9F}, {x + 2.05F, y}, {x, y + 2.9F}, {x - 2.05F, y}}));
  }
  fill(back, beads, kIvory);
}

// The white border, laid over the fans' ends.
void add_border(Drawing& back, float inset) {
  Path border =
      rounded_box(kEdgeWidth, kEdgeWidth, kCardWidth - kEdgeWidth, back.height - kEdgeWidth, 5.4F);
  join(border, rounded_box(inset, inset, kCardWidth - inset, back.height - inset, 3));
  fill(back, border, kPaper);
  back.shapes.back().even_odd = true;
}

// Coral: waves of fans that rise to both ends behind a sun.
void add_second_back(Drawing& back) {
  const Field field{8, 8, kCardWidth - 8, back.height - 8};
  const Point m = field.middle();
  const float radius = (field.right - field.left) / 12;
  const float step = radius * 0.58F;
  Drawing half{back.width, back.height, {}};
  for (int row = static_cast<int>((m.y - field.top) / step) + 1; row > 0; --row) {
    const float base = m.y - static_cast<float>(row - 1) * step;
    for (const Band& band : kFanBands) {
      fill(half, fans(field, base, radius, radius * band.size, row % 2 != 0), band.colour);
    }
  }
  fill(back, rounded_box(5, 5, kCardWidth - 5, back.height - 5, 3), kCoral);
  append(back, half, {});
  append(back, half, half_turn(back.width, back.height));
  add_ribbon(back, field);
  add_border(back, 8);
  add_frame(back, 5, 3.4F, kCoral);
  add_frame(back, 7.3F, 1.1F, kIvory);
  add_sun(back, m);
}

}  // namespace

Drawing draw_back(int pack) {
  Drawing back = blank_card(pack == 0 ? 154.0F : 155.0F);
  if (pack == 0) {
    add_first_back(back);
  } else {
    add_second_back(back);
  }
  return back;
}

}  // namespace tombrello::art
