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
  bool has(const std::string& key) const { return find(key) != nullptr; }
  std::string text(const std::string& key) const;
  int number(const std::string& key) const { return std::atoi(text(key).c_str()); }
  std::vector<int> numbers(const std::string& key) const;
  /// Card k of seat 1's hand, from 1, as it lies: above 1000 while it is selected.
  std::vector<int> hand() const { return numbers("hand1"); }
  int cards(int seat) const { return numbers("n").at(static_cast<std::size_t>(seat - 1)); }
  std::string everything() const;

 private:
  using Told = std::map<std::string, std::string>;
  const std::string* find(const std::string& key) const;
  std::map<std::string, Told> told_;  ///< by kind of line
};

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
  unsigned long clock = 1;
  int deal = 25;   ///< thousandths of the deal's pauses
  int turns = 25;  ///< thousandths of all pauses after the deal
  int rare = 0;    ///< of those in a reshuffle and at the end of a hand, if not as all
};

/// What the environment asks for by this name, or this.
inline int asked_for(const char* name, int otherwise) {
  const char* const value = std::getenv(name);
  return value == nullptr ? otherwise : std::atoi(value);
}

/// A screen of the test's own with a window manager, and the game on it: the one for this system,
/// or, where TOMBRELLO_WINDOWS names its build, the one for Windows, under wine. Presses are real
/// ones, told in the table's logical units. What doesn't happen in time throws, which fails the
/// test.
class DesktopSession : public ::testing::Test {
 protected:
  using Milliseconds = std::chrono::milliseconds;

  void SetUp() override;
  void TearDown() override;

  void start_quick(Quick quick = {});
  /// A copy of the program, in a folder within `folder`.
  void start_shipped(const std::filesystem::path& within = {});
  void start(const std::vector<std::string>& words);

  void wait_until(const std::string& what, const std::function<bool(const View&)>& holds,
                  Milliseconds most = Milliseconds(20000));
  bool comes_true(const std::function<bool(const View&)>& holds, Milliseconds most);
  void wait_for(const std::string& key, int value);
  /// Waits until what is seen stays the same for a moment.
  Shot settled_shot();
  Shot shot();

  void press(float x, float y, int button = 1);
  void move(float x, float y);
  /// Words for one call of xdotool, to press many times without a break.
  std::vector<std::string> press_words(float x, float y, int button);
  void press_screen(const std::string& caption);  ///< an entry or button that shows
  void key(const std::string& keys);
  void type(const std::string& text);
  void paste(const std::string& text);
  Outcome xdo(std::vector<std::string> words);
  /// Runs a short command to its end; throws if it takes longer than half a minute.
  Outcome run(const std::vector<std::string>& words, const std::string& input = {});

  void resize(int width, int height);  ///< once the window isn't maximised any more
  void maximise_or_not();
  void close_by_frame() { key("alt+F4"); }
  void dismiss_opening();

  /// The game ends soon, with status 0 and without a word.
  void expect_quiet_end(Milliseconds most = Milliseconds(1000));
  void expect_still_running();
  void send(int signal);
  void freeze_screen() const;  ///< from here on it answers nobody
  void lose_screen();          ///< with the connection of all that are on it
  std::string file(const std::string& name) const;
  int pixel(const Shot& shot, float x, float y);

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
  Place place_of(float x, float y) const;
  std::unique_ptr<QProcess> launch(const std::vector<std::string>& words);
  void listen(int milliseconds);
  void read_view();
  std::string said() const;  ///< on standard error, by the game
  void start_screen();
  void prepare_wine();
  static std::vector<std::string> under_wine(std::vector<std::string> words);
  void find_size();

  std::unique_ptr<QProcess> screen_;
  std::unique_ptr<QProcess> manager_;
  std::size_t read_ = 0;
  int width_ = 0;
  int height_ = 0;
  int bar_ = 20;   // the menu bar above the table
  int line_ = 24;  // the chronicle line below it
};

}  // namespace tombrello
