#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tombrello {

/// What the quick game told last. A key that it didn't tell reads as empty, or as 0.
class View {
 public:
  void take(const std::string& line);
  bool has(const std::string& key) const { return told_.contains(key); }
  std::string text(const std::string& key) const { return has(key) ? told_.at(key) : ""; }
  int number(const std::string& key) const { return std::atoi(text(key).c_str()); }
  std::vector<int> numbers(const std::string& key) const;
  /// Card k of seat 1's hand, from 1, as it lies: above 1000 while it is selected.
  std::vector<int> hand() const { return numbers("hand1"); }
  bool shows(const std::string& on_table) const;

 private:
  std::map<std::string, std::string> told_;
};

using Condition = std::function<bool(const View&)>;

/// The window's picture.
struct Shot {
  int width = 0;
  int height = 0;
  std::string rgb;

  int pixel(int x, int y) const;  ///< 0xRRGGBB
  bool operator==(const Shot&) const = default;
};

struct Outcome {
  int status = 0;  ///< of the exit, or 128 after a crash
  std::string out;
  std::string err;
};

/// The numbers that the quick game is started with.
struct Quick {
  int clock = 1;
  int deal = 25;   ///< thousandths of the deal's pauses
  int turns = 25;  ///< thousandths of all pauses after the deal
  int rare = 0;    ///< of those in a reshuffle and at the end of a hand, if not as all
};

/// What the environment asks for by this name, or this.
inline int asked_for(const char* name, int otherwise) {
  const char* const value = std::getenv(name);
  return value == nullptr ? otherwise : std::atoi(value);
}

/// The build of the program for Windows, if that is the one to be played, under wine.
inline const char* const kWindows = std::getenv("TOMBRELLO_WINDOWS");

/// A screen of the test's own with a window manager, and the game on it: the one for this system,
/// or, where TOMBRELLO_WINDOWS names its build, the one for Windows, under wine. Presses are real
/// ones, told in the table's logical units. What doesn't happen within a minute throws, which
/// fails the test.
class DesktopSession : public ::testing::Test {
 protected:
  using Milliseconds = std::chrono::milliseconds;
  using Words = std::vector<std::string>;

  void SetUp() override;
  void TearDown() override;

  void start_screen();
  /// `before` stands before the game's own words.
  void start_quick(Quick quick = {}, const std::filesystem::path& program = TOMBRELLO_QUICK,
                   Words before = {});
  /// A copy of the program, in a folder within `folder`.
  void start_shipped(const std::filesystem::path& within = {});
  void start(const Words& words);
  /// Runs a command to its end; throws if that takes longer than two minutes.
  Outcome run(const Words& words, const std::string& input = {});
  /// Starts a server, and waits for what it prints.
  std::unique_ptr<QProcess> serve(const Words& words, std::string& printed);
  static void end(std::unique_ptr<QProcess>& process);
  static Words under_wine(Words words);

  void wait_until(const std::string& what, const Condition& holds);
  void wait_for(const std::string& key, int value);
  bool comes_true(const Condition& holds, Milliseconds most);
  /// Waits until what is seen stays the same for a moment.
  Shot settled_shot();
  Shot shot();
  void wait_for_colour(float x, float y, int colour);
  int pixel(const Shot& shot, float x, float y);

  void press(float x, float y, int button = 1) { point(window, place_of(x, y), button); }
  void move(float x, float y) { point(window, place_of(x, y), 0); }
  void press_screen(const std::string& caption);  ///< an entry or button that shows
  void key(const std::string& keys) { xdo({"key", keys}); }
  void keys(const Words& each);
  void paste(const std::string& text);
  Outcome xdo(Words words);

  void resize(int width, int height);  ///< once the window isn't maximised any more
  /// Asked of the window manager itself: a key that comes while it moves the focus is lost on it.
  void maximise_or_not();
  void close_by_frame() { run({"wmctrl", "-i", "-c", window}); }
  void clear_the_way();  ///< of boxes and menus
  void dismiss_opening();

  /// The game ends soon, with status 0 and without a word.
  void expect_quiet_end();
  void send(int signal);
  /// Stopped, it answers nobody; killed, it takes the connection of all that are on it along.
  void signal_screen(int signal) const;
  std::string file(const std::string& name) const;

  View view;
  std::filesystem::path folder;
  std::unique_ptr<QProcess> game;
  std::string out;  ///< all that the game has written
  std::string err;
  std::string window;
  QProcessEnvironment environment;

 private:
  struct Place {
    int x;
    int y;
  };
  Place place_of(float x, float y);
  void point(const std::string& origin, Place to, int button);
  std::unique_ptr<QProcess> launch(const Words& words);
  void listen(int milliseconds);
  void read_view();
  std::string said() const;  ///< on standard error, by the game
  void prepare_wine();

  std::unique_ptr<QProcess> screen_;
  std::unique_ptr<QProcess> manager_;
  std::size_t read_ = 0;
};

}  // namespace tombrello
