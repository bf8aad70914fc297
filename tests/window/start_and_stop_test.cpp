#include <algorithm>

#include "player.h"

namespace tombrello {
namespace {

namespace files = std::filesystem;

using Shipped = DesktopSession;

constexpr int kGrey = 0xC0C0C0;
constexpr int kFelt = 0x007000;

// Nobody tells here what the game does: the picture does.
TEST_F(Shipped, OpensDealsAndCloses) {
  const auto started = std::chrono::steady_clock::now();
  start_shipped();
  wait_for_colour(30, 300, kGrey);
  const auto painted = std::chrono::steady_clock::now() - started;
  RecordProperty("painted_within_ms",
                 static_cast<int>(std::chrono::duration_cast<Milliseconds>(painted).count()));
  EXPECT_NE(pixel(settled_shot(), 400, 300), kGrey);
  press(400, 300);
  wait_for_colour(100, 500, kFelt);
  EXPECT_NE(pixel(settled_shot(), 400, 300), kFelt) << "the deck";
  keys({"alt+o", "Down", "Right", "Up", "Return"});  // the last pace: "Alta"
  wait_until("cards to be dealt", [&](const View&) {
    press(400, 300);
    key("Return");  // a tie has a box
    const Shot now = shot();
    return pixel(now, 258, 60) != kFelt || pixel(now, 258, 530) != kFelt;
  });
  close_by_frame();
  expect_quiet_end();
  EXPECT_EQ(out, "");
}

// Wherever it lies, also where a path is longer than old systems took, and though the session's
// bus hangs: it takes calls, and never says a word.
TEST_F(Shipped, KeepsItsSettingsBesideItselfInAnyFolderWithoutASignOfTheSessionBus) {
  environment.insert("DBUS_SESSION_BUS_ADDRESS", "unixexec:path=wc");
  const files::path part = "è" + std::string(100, 'l');
  const files::path within = part / part / "perché no (1) & 'ora' 🂡";
  start_shipped(within);
  keys({"alt+s", "Right", "Return"});
  wait_until("the file",
             [&](const View&) { return files::exists(folder / within / "config.zvq"); });
  close_by_frame();
  expect_quiet_end();
}

TEST_F(Shipped, AnswersWithoutAScreen) {
  struct Call {
    const char* display;
    Words words;
    int status;
    const char* says;
    const char* complains;
  };
  for (const auto& [display, words, status, says, complains] :
       {Call{"", {"--version"}, 0, "tombrello " TOMBRELLO_VERSION "\n", ""},
        {"", {"-session", "an id", "--help"}, 0, "  --version  say the version", ""},
        {"", {"--no-such", "--help"}, 2, "", "'--no-such'"},
        {"", {}, 1, "", "DISPLAY"},
        {":9999", {}, 1, "", "DISPLAY"}}) {
    SCOPED_TRACE(testing::Message() << status << display);
    environment.insert("DISPLAY", display);
    Words all = {TOMBRELLO};
    all.insert(all.end(), words.begin(), words.end());
    const Outcome outcome = run(all);
    EXPECT_EQ(outcome.status, status);
    EXPECT_NE(outcome.out.find(says), std::string::npos) << outcome.out;
    EXPECT_NE(outcome.err.find(complains), std::string::npos) << outcome.err;
    EXPECT_EQ(outcome.out.empty(), status != 0);
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), status == 0 ? 0 : 1);
  }
}

}  // namespace
}  // namespace tombrello
