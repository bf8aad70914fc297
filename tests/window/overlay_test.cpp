#include <signal.h>

#include "player.h"

namespace tombrello {
namespace {

/// The panels and the dialog of the names, which lie over the table.
class OverTheTable : public PlayingSession {
 protected:
  void open_names() {
    press_screen("Partita");
    press_screen("Nomi dei giocatori");
    wait_for("dialog", 1);
  }

  void fill(int seat, const std::string& text, const std::string& name) {
    press(130, 40 + static_cast<float>(seat - 1) * 15);
    key("ctrl+a");
    paste(text);
    wait_until(name, [&](const View& v) { return v.text("name" + std::to_string(seat)) == name; });
  }

  bool prints(const std::string& text) {
    return comes_true([&](const View& v) { return v.text("texts").find(text) != text.npos; },
                      Milliseconds(5000));
  }
};

TEST_F(OverTheTable, NamesStandAtTheTableInTheScoreAndInBothFiles) {
  start_quick({.clock = clock_of_short_hand(), .turns = 5});
  dismiss_opening();
  open_names();
  fill(1, std::string(10000, 'q'), "QQQQQQQ");
  fill(1, "zoë, \"b\"", "ZOË B");
  fill(2, "straße", "STRAßE");
  fill(3, "🂡 leo", "🂡 LEO");
  fill(4, "ottolettere", "OTTOLET");
  press(105, 120);
  wait_for("dialog", 0);
  EXPECT_TRUE(prints("|ZOË B|"));
  EXPECT_TRUE(prints("|🂡 LEO|"));
  EXPECT_TRUE(prints("|S|T|R|A|ß|E|"));
  const std::string names = "ZOË B\r\nSTRAßE\r\n🂡 LEO\r\nOTTOLET\r\n";
  EXPECT_EQ(file("Players"), names);
  turn_up(1, 4);
  wait_for("pile", 1);
  play_hand(false);
  EXPECT_TRUE(prints("Game    ZOË B-🂡 LEO|STRAßE-OTTOLET|"));
  EXPECT_NE(file("config.zvq").find("\r\n" + names), std::string::npos);
}

TEST_F(OverTheTable, TheDialogLeftOpenKeepsWhatWasTyped) {
  for (const auto& [x, y] : {std::pair{400.F, 300.F}, {700.F, 550.F}}) {
    start_quick();
    open_names();
    fill(4, "ida", "IDA");
    press(x, y);
    wait_for("opening", 0);
    wait_for("dialog", 0);
    EXPECT_EQ(file("Players"), "TU\r\nOVEST\r\nNORD\r\nIDA\r\n");
    EXPECT_TRUE(prints("|I|D|A|"));
    open_names();
    fill(2, "ugo", "UGO");
    press(400, 300);
    wait_for("index", 2);
    wait_for("dialog", 0);
    EXPECT_EQ(file("Players"), "TU\r\nUGO\r\nNORD\r\nIDA\r\n");
    EXPECT_TRUE(prints("|U|G|O|"));
    close_by_frame();
    expect_quiet_end();
    std::filesystem::remove(folder / "Players");
  }
}

TEST_F(OverTheTable, TheGameCanBeLeftFromTheDialog) {
  const std::vector<std::function<void()>> ways = {[&] { close_by_frame(); },
                                                   [&] { send(SIGTERM); },
                                                   [&] {
                                                     press_screen("Esci");
                                                     press_screen("Sì");
                                                   }};
  for (const auto& leave : ways) {
    start_quick();
    open_names();
    fill(4, "ida", "IDA");
    leave();
    expect_quiet_end();
    EXPECT_EQ(file("Players"), "") << "nothing is saved on the way out";
  }
}

// A press beside takes the keyboard, and its blinking mark, from the field.
TEST_F(OverTheTable, EachFollowsTheWindowAndStaysSharp) {
  start_quick();
  dismiss_opening();
  const std::vector<std::pair<const char*, std::function<void()>>> overlays = {
      {"rules", [&] { press_screen("Regole"); }},
      {"help", [&] { press_screen("Help"); }},
      {"info", [&] { press_screen("Info"); }},
      {"dialog", [&] { open_names(); }}};
  for (const auto& [name, open] : overlays) {
    SCOPED_TRACE(name);
    const bool dialog = std::string(name) == "dialog";
    open();
    wait_for(name, 1);
    if (dialog) press(600, 560);
    move(600, 590);
    const Shot full = settled_shot();
    maximise_or_not();
    wait_until("a smaller window", [&](const View& v) { return v.number("width") < full.width; });
    for (const auto& [width, height] : {std::pair{400, 300}, {1000, 420}, {401, 733}, {800, 600}}) {
      resize(width, height);
    }
    const Shot at_800 = settled_shot();
    xdo({"windowminimize", window});
    wait_for("minimised", 1);
    xdo({"windowactivate", window});
    wait_for("minimised", 0);
    EXPECT_EQ(settled_shot(), at_800);
    if (dialog) {
      press(105, 120);  // its bar, where it stands now
      wait_for(name, 0);
      wait_for("action", 7);
    } else {
      open();
      wait_for(name, 0);
    }
    open();
    wait_for(name, 1);
    if (dialog) press(600, 560);
    move(600, 590);
    EXPECT_EQ(settled_shot(), at_800) << "as when it is opened at this size";
    maximise_or_not();
    wait_for("width", full.width);
    EXPECT_EQ(settled_shot(), full);
    EXPECT_EQ(view.number(name), 1);
    if (dialog) fill(1, "leo", "LEO");
    key("Return");
    press(600, 560);
    wait_for(name, 0);
    wait_for("ready", 1);
  }
}

}  // namespace
}  // namespace tombrello
