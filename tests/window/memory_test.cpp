#include <fstream>

#include "player.h"

namespace tombrello {
namespace {

namespace files = std::filesystem;

/// What the game holds of the machine.
struct Holds {
  long kib = 0;  ///< memory of its own, and that shared with the screen; no library's pages
  long descriptors = 0;
};

class Memory : public PlayingSession {
 protected:
  Holds holds() {
    const files::path process = "/proc/" + std::to_string(game->processId());
    Holds held;
    std::ifstream status(process / "status");
    for (std::string word; status >> word;) {
      if (long kib = 0; (word == "RssAnon:" || word == "RssShmem:") && status >> kib)
        held.kib += kib;
    }
    EXPECT_GT(held.kib, 0);
    held.descriptors = std::distance(files::directory_iterator(process / "fd"), {});
    return held;
  }
};

// One hand after the other; a match that is over is followed by a run of another. The first hands
// fill what is kept on purpose. TOMBRELLO_HANDS asks for more of them.
TEST_F(Memory, HandsLeaveNothingBehind) {
  const int wanted = asked_for("TOMBRELLO_HANDS", 4);
  int hands = 0;
  int runs = 0;
  int compared = 0;
  while (hands < wanted) {
    constexpr int kWithoutTie[] = {2, 3, 4, 5, 7, 8, 9, 10, 11, 12};
    begin({.clock = kWithoutTie[runs % 10], .turns = 2});
    ++runs;
    Holds before;
    for (int hand = 1; hands < wanted; ++hand, ++hands) {
      play_hand();
      if (hand == 3) before = holds();
      if (view.number("continue") != 1) break;
      key("Return");
      wait_for("round", hand + 1);
    }
    const Holds after = holds();
    if (before.kib > 0) {
      ++compared;
      EXPECT_LT(after.kib - before.kib, 2048) << "run " << runs;
      EXPECT_EQ(after.descriptors, before.descriptors);
      std::printf("growth %ld KiB from %ld, %ld descriptors\n", after.kib - before.kib, before.kib,
                  after.descriptors);
    }
    end(game);
  }
  EXPECT_GT(compared, 0);
  std::printf("hands %d\n", hands);
}

}  // namespace
}  // namespace tombrello
