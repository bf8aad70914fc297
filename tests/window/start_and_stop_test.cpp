#include <signal.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>

#include "player.h"

namespace tombrello {
namespace {

namespace files = std::filesystem;

using StopOver = PlayingSession;

TEST_F(StopOver, ATerminationSignalTakesDownTheTieBox) {
  start_quick({.clock = kTie});
  dismiss_opening();
  turn_up(1, 4);
  wait_until("the box", [](const View& v) { return v.text("box") == "Ripeti, prego"; });
  send(SIGTERM);
  expect_quiet_end();
}

TEST_F(StopOver, TheQuestionOfEsci) {
  const auto ask = [&] {
    press_screen("Esci");
    wait_until("the question",
               [](const View& v) { return v.text("box") == "Uscire da Tombrello?"; });
  };
  start_quick();
  dismiss_opening();
  ask();
  close_by_frame();  // answers the box, which is in front, and leaves the game alone
  wait_until("no box", [](const View& v) { return v.text("box").empty(); });
  turn_up(1, 1);
  ask();
  press_screen("Sì");
  expect_quiet_end();
}

TEST_F(StopOver, ATerminationSignalUnderTheQuestionAndUnderAMenu) {
  start_quick();
  key("alt+e");
  wait_until("the question", [](const View& v) { return !v.text("box").empty(); });
  send(SIGTERM);
  expect_quiet_end();

  start_quick();
  dismiss_opening();
  press_screen("Opzioni");
  press_screen("Velocità gioco");
  wait_until("both menus", [](const View& v) { return v.has("Alta"); });
  send(SIGTERM);
  expect_quiet_end();
}

TEST_F(StopOver, ATerminationSignalWhileTheScreenAnswersNobody) {
  start_quick();
  freeze_screen();
  send(SIGTERM);
  expect_quiet_end(Milliseconds(2500));
}

using Shipped = PlayingSession;

// Nobody tells here what the game does: the picture does.
TEST_F(Shipped, OpensDealsAndCloses) {
  const auto started = std::chrono::steady_clock::now();
  start_shipped();
  Shot opening = settled_shot();
  const auto painted = std::chrono::steady_clock::now() - started;
  RecordProperty("painted_within_ms",
                 static_cast<int>(std::chrono::duration_cast<Milliseconds>(painted).count()));
  constexpr int kGrey = 0xC0C0C0;
  EXPECT_EQ(pixel(opening, 30, 300), kGrey);
  EXPECT_NE(pixel(opening, 400, 300), kGrey);
  press(400, 300);
  const Shot table = settled_shot();
  EXPECT_EQ(pixel(table, 100, 500), 0x007000);
  EXPECT_NE(pixel(table, 400, 300), 0x007000) << "the deck";
  key("alt+o");
  for (const char* each : {"Down", "Right", "Up", "Return"}) key(each);  // the last pace: "Alta"
  auto cards_are_dealt = [&] {
    const Shot now = shot();
    return pixel(now, 258, 60) != 0x007000 || pixel(now, 258, 530) != 0x007000;
  };
  bool dealing = false;
  for (int tries = 0; tries < 60 && !dealing; ++tries) {
    press(400, 300);
    key("Return");  // a tie has a box
    dealing = cards_are_dealt();
  }
  EXPECT_TRUE(dealing);
  close_by_frame();
  expect_quiet_end();
  EXPECT_EQ(out, "");
}

// As a bus does that hangs: it takes calls, and never says a word.
TEST_F(Shipped, StartsWithoutASignOfTheSessionBus) {
  sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
  const std::string path = folder / "bus";
  path.copy(address.sun_path, sizeof address.sun_path - 1);
  const int bus = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  ASSERT_EQ(bind(bus, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  ASSERT_EQ(::listen(bus, 8), 0);
  environment.insert("DBUS_SESSION_BUS_ADDRESS", QString::fromStdString("unix:path=" + path));
  start_shipped();
  EXPECT_EQ(pixel(settled_shot(), 30, 300), 0xC0C0C0);
  close_by_frame();
  expect_quiet_end();
  close(bus);
}

TEST_F(Shipped, StartsWhateverLiesInTheSettingsFilesPlace) {
  const auto settings = folder / "config.zvq";
  auto starts = [&](const char* with) {
    SCOPED_TRACE(with);
    start_shipped();
    EXPECT_EQ(pixel(settled_shot(), 30, 300), 0xC0C0C0);
    close_by_frame();
    expect_quiet_end();
    files::remove_all(settings);
  };
  files::create_directory(settings);
  starts("a folder");
  std::ofstream(settings) << std::string(1000, '\0');
  starts("NUL bytes");
  std::ofstream(settings) << std::string(100U << 20, '7');
  starts("a hundred megabytes");
  std::ofstream(settings) << " 1 \r\nA\r\n";
  files::permissions(settings, files::perms::none);
  starts("nothing that may be read");
  files::create_symlink(settings, settings);
  starts("a link to itself");
}

// Also where a whole path is longer than old systems took.
TEST_F(Shipped, KeepsItsSettingsBesideItselfInAnyFolder) {
  const files::path part = "è" + std::string(100, 'l');
  for (const files::path& within : {files::path("perché no (1) & 'ora' 🂡"), part / part / part}) {
    SCOPED_TRACE(within);
    start_shipped(within);
    EXPECT_EQ(pixel(settled_shot(), 30, 300), 0xC0C0C0);
    for (const char* each : {"alt+s", "Right", "Return"}) key(each);
    const auto kept = [&](const View&) { return files::exists(folder / within / "config.zvq"); };
    EXPECT_TRUE(comes_true(kept, Milliseconds(5000)));
    close_by_frame();
    expect_quiet_end();
  }
}

TEST_F(Shipped, AnswersOnTheCommandLineWithoutAScreen) {
  environment.insert("DISPLAY", "");
  const Outcome version = run({TOMBRELLO, "--version"});
  EXPECT_EQ(version.status, 0);
  EXPECT_EQ(version.out, "tombrello " TOMBRELLO_VERSION "\n");
  const Outcome help = run({TOMBRELLO, "-session", "an id", "--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.out.find("--version"), std::string::npos);
  EXPECT_EQ(help.err + version.err, "");
  const Outcome refused = run({TOMBRELLO, "--no-such", "--help"});
  EXPECT_EQ(refused.status, 2);
  EXPECT_EQ(refused.out, "");
  EXPECT_NE(refused.err.find("'--no-such'"), std::string::npos);
  EXPECT_EQ(std::count(refused.err.begin(), refused.err.end(), '\n'), 1) << refused.err;
}

TEST_F(Shipped, SaysInOneLineThatThereIsNoScreen) {
  for (const char* display : {"", ":9999"}) {
    environment.insert("DISPLAY", display);
    const Outcome outcome = run({TOMBRELLO});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    EXPECT_NE(outcome.err.find("DISPLAY"), std::string::npos) << outcome.err;
  }
}

}  // namespace
}  // namespace tombrello
