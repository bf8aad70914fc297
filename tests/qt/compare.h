#pragma once

#include <gtest/gtest.h>

#include <QImage>

namespace tombrello::qt {

/// Whether two pictures agree in every pixel; where they don't, it says where.
inline testing::AssertionResult same_pixels(const QImage& a, const QImage& b) {
  if (a.size() != b.size()) return testing::AssertionFailure() << "sizes differ";
  int differing = 0;
  QPoint first;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      if (a.pixel(x, y) == b.pixel(x, y)) continue;
      if (differing++ == 0) first = {x, y};
    }
  }
  if (differing == 0) return testing::AssertionSuccess();
  return testing::AssertionFailure()
         << differing << " pixels differ, the first at " << first.x() << ", " << first.y() << ": "
         << std::hex << a.pixel(first) << " and " << b.pixel(first);
}

}  // namespace tombrello::qt
