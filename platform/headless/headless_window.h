#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "seam/archive.h"
#include "seam/timer.h"
#include "seam/window.h"

namespace tombrello {

/// Counts time instead of letting it pass: its end comes with the next pass of the window.
class HeadlessTimer : public Timer {
 public:
  void start(int milliseconds) override;
  void end() { running_ = false; }
  bool running() const { return running_; }
  int period() const { return period_; }  ///< of the last start, milliseconds

 private:
  bool running_ = false;
  int period_ = 0;
};

/// Of the letters of Western Europe.
char32_t plain_capital(char32_t letter);

/// Files that live in memory.
class MemoryArchive : public Archive {
 public:
  std::optional<std::string> read(const std::string& name, std::size_t most) override;
  bool replace(const std::string& name, const std::string& content) override;
  Trouble trouble() const override { return trouble_; }
  std::vector<std::string> list(const std::string& folder, std::size_t most) override;

  std::map<std::string, std::string> files;
  Trouble to_come = Trouble::none;  ///< what the next `replace` meets
  int writes = 0;

 private:
  Trouble trouble_ = Trouble::none;
};

/// The person before a window of a test, whose acts come from `on_pass` and `script`, from inside
/// the window's `serve_events`.
class ScriptedPlayer {
 public:
  using Action = std::function<void()>;

  /// Runs at the start of every pass, whatever the game waits for.
  Action on_pass;
  /// One action for each pass in which the game waits for the player and no timer runs. When
  /// they have run out the player leaves.
  std::deque<Action> script;
  /// The player leaves after so many passes, whatever the script says.
  int most_passes = 200'000;
  /// Runs while a box stands, before it is answered.
  Action on_box;
  /// Answers to boxes of yes and no; yes when they have run out.
  std::deque<Answer> answers;
  /// The texts of the boxes so far.
  std::vector<std::string> boxes;

  int passes() const { return passes_; }

 protected:
  /// One pass of `window`, whose handlers are `events`.
  void pass(Window& window, HeadlessTimer& timer, WindowEvents* events);
  Answer next_answer();

 private:
  int passes_ = 0;
};

/// A window that nobody sees. What a person couldn't do in it, such as choosing a disabled entry
/// or typing into a hidden field, isn't passed on.
class HeadlessWindow : public Window, public ScriptedPlayer {
 public:
  explicit HeadlessWindow(HeadlessTimer& timer) : timer_(timer) {}

  /// What was set last.
  std::string told_now;
  std::string told_then;
  std::optional<Area> mark;
  bool listening = false;  ///< as assistive technology does
  std::vector<TablePlace> places;
  int focused = -1;

  void press(float x, float y, Button button = Button::left);
  void key(Key key);  ///< pressed and let go
  void hold(Key key, bool down);
  void move(float x, float y);
  bool choose(EntryId entry);
  bool click(ControlId control);
  bool press_key(ControlId control);
  bool type(ControlId field, const std::string& text);
  bool press_enter(ControlId field);

  const std::string& caption() const { return caption_; }
  bool shown() const { return shown_; }
  /// How long `show_now` held the table, all in all.
  int milliseconds_shown() const { return milliseconds_shown_; }
  /// Top to bottom and left to right, the entries of a parent or of the bar.
  std::vector<EntryId> entries(EntryId parent) const;
  const std::string& caption(EntryId entry) const { return entries_.at(entry).caption; }
  const Area& area(ControlId control) const { return controls_.at(control).area; }
  const std::string& text(ControlId control) const { return controls_.at(control).text; }
  const std::string& name(ControlId field) const { return controls_.at(field).name; }
  /// Letters in points, colours as numbers.
  const std::string& look(ControlId control) const { return controls_.at(control).look; }
  /// The visible control that lies over all others, 0 for none.
  ControlId front() const;

  void set_events(WindowEvents* events) override { events_ = events; }
  Surface& surface() override { return surface_; }
  void set_caption(const std::string& text) override { caption_ = text; }
  void show_maximised() override { shown_ = true; }
  void serve_events() override { pass(*this, timer_, events_); }
  void show_now(int milliseconds) override { milliseconds_shown_ += milliseconds; }
  bool closing() const override { return closing_; }
  void close() override { closing_ = true; }
  void set_chronicle(const std::string& now, const std::string& then) override {
    told_now = now;
    told_then = then;
  }
  void set_mark(const std::optional<Area>& area) override { mark = area; }
  bool wants_places() const override { return listening; }
  void set_places(const std::vector<TablePlace>& told, int focus) override {
    places = told;
    focused = focus;
  }
  void set_pointer(PointerShape shape) override { pointer_ = shape; }
  PointerShape pointer() const override { return pointer_; }
  Answer message_box(const std::string& text, Buttons buttons) override;

  void add_entry(EntryId entry, EntryId parent, const std::string& caption) override;
  void set_checked(EntryId entry, bool checked) override { entries_.at(entry).checked = checked; }
  bool checked(EntryId entry) const override { return entries_.at(entry).checked; }
  void set_enabled(EntryId entry, bool enabled) override { entries_.at(entry).enabled = enabled; }
  bool enabled(EntryId entry) const override { return entries_.at(entry).enabled; }

  void add_panel(ControlId panel, const std::string& text, const Font& font, long text_colour,
                 long back_colour) override;
  void add_field(ControlId field, FieldRule rule, const Font& font) override;
  void name_field(ControlId field, const std::string& name) override {
    controls_.at(field).name = name;
  }
  void add_shape(ControlId shape, Colour colour) override;
  void add_picture(ControlId control, Picture picture) override;
  void place(ControlId control, const Area& area) override { controls_.at(control).area = area; }
  void set_visible(ControlId control, bool visible) override;
  bool visible(ControlId control) const override;
  void bring_to_front(ControlId control) override { controls_.at(control).height = ++highest_; }
  void set_text(ControlId field, const std::string& text) override;

 private:
  struct Entry {
    EntryId parent = kMenuBar;
    std::string caption;
    bool checked = false;
    bool enabled = true;
    int place = 0;  // in the order in which entries were added
  };
  struct Control {
    Area area;
    std::string text;
    FieldRule rule = nullptr;  // of a field
    std::string name;          // of a field
    std::string look;          // letters and colours, as they were told
    bool visible = false;
    int height = 0;  // above the table
  };

  void add_control(ControlId control, std::string text, std::string look, FieldRule rule = nullptr);

  HeadlessTimer& timer_;
  WindowEvents* events_ = nullptr;
  Surface surface_;
  std::map<EntryId, Entry> entries_;
  std::map<ControlId, Control> controls_;
  std::string caption_;
  PointerShape pointer_ = PointerShape::arrow;
  bool shown_ = false;
  bool closing_ = false;
  bool in_box_ = false;
  int milliseconds_shown_ = 0;
  int highest_ = 0;
};

}  // namespace tombrello
