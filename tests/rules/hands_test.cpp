#include <gtest/gtest.h>

#include "tests/rules/deal.h"

namespace tombrello::test {
namespace {

// The person's 14 slots are sorted by rank, Kings first, empty slots last, equal ranks as they
// stood; the count isn't touched.
TEST(Hands, ThePersonsHandIsSortedByRankAndKeepsEqualRanksInOrder) {
  std::mt19937 engine(3);
  for (int n = 0; n < 2000; ++n) {
    Deal d;
    auto slots = random_deck(engine);
    slots.resize(14);
    for (int& code : slots) code = engine() % 4 == 0 ? 0 : code;
    std::copy(slots.begin(), slots.end(), d.s.mano[1].begin() + 1);
    d.s.n_mano[1] = 9;
    d.rules.hands.raggruppo_carte(1);
    std::stable_sort(slots.begin(), slots.end(), [](int a, int b) {
      return (a == 0 ? 0 : (a - 1) % 13 + 1) > (b == 0 ? 0 : (b - 1) % 13 + 1);
    });
    ASSERT_TRUE(std::equal(slots.begin(), slots.end(), d.s.mano[1].begin() + 1));
    ASSERT_EQ(d.s.n_mano[1], 9);
  }
}

}  // namespace
}  // namespace tombrello::test
