#pragma once

#include <optional>
#include <string>
#include <vector>

#include "seam/colour.h"
#include "seam/picture.h"
#include "seam/surface.h"

namespace tombrello {

enum class PointerShape { arrow, up_arrow, hourglass };
enum class Button { left = 1, right = 2, other = 4 };
enum class Buttons { ok, yes_no };
enum class Answer { ok, yes, no };

/// Numbers that the program gives to its menu entries and overlay controls, from 1.
using EntryId = int;
using ControlId = int;
inline constexpr EntryId kMenuBar = 0;

/// The keys that the table takes while it has the keyboard. Held down, those that move go on, and
/// the others are told once.
enum class Key { up, down, left, right, next, previous, enter, space, help, escape };

/// A place of the table as it is read out, in the order in which places are met. Nothing that
/// the player can't see is told in it.
struct TablePlace {
  std::string name;  ///< UTF-8, one line
  Area area;
  bool can_press = false;   ///< a left press does something there now
  bool can_select = false;  ///< a right press does
  bool selected = false;
  bool operator==(const TablePlace&) const = default;
};

/// What of a typed UTF-8 text a field takes, in which so many characters stand already beside it.
using FieldRule = std::string (*)(const std::string& text, int characters_already);

/// What the window tells the program, always from inside `Window::serve_events`
/// or `Window::message_box`, nested in whatever wait the game is in. Handlers post and return;
/// they never throw, and wait for nothing but the answer to a box of theirs.
class WindowEvents {
 public:
  virtual ~WindowEvents() = default;
  /// A button was pressed on the table. x and y are logical units, 0..800 by 0..600; beside the
  /// table they are those of the nearest border.
  virtual void pressed(Button button, float x, float y) = 0;
  virtual void moved(float x, float y) = 0;  ///< as for `pressed`
  virtual void entry_chosen(EntryId entry) = 0;
  virtual void control_clicked(ControlId control) = 0;
  virtual void control_key_pressed(ControlId control) = 0;  ///< while it has the focus
  virtual void field_changed(ControlId field, const std::string& text) = 0;
  virtual void field_confirmed(ControlId field) = 0;  ///< Enter in a text field
  virtual void timer_ticked() = 0;
  virtual void key_pressed(Key key) = 0;
  virtual void key_released(Key key) = 0;  ///< or the window has lost the keyboard meanwhile
  /// Somebody acts on a place by its number in the last `set_places`, from 0.
  virtual void place_pressed(int place, Button button) = 0;
};

/// The program's only window, the table in its middle: 4 : 3, the largest that fits.
/// One thread uses it. `serve_events` and `message_box` are the only calls that run handlers.
class Window {
 public:
  virtual ~Window() = default;

  virtual void set_events(WindowEvents* events) = 0;
  virtual Surface& surface() = 0;
  virtual void set_caption(const std::string& text) = 0;
  virtual void show_maximised() = 0;

  /// Paints what changed, sleeps until something happens, and runs its handlers.
  virtual void serve_events() = 0;
  /// Paints what stands at once, serving no events, and returns so long after the call, or later
  /// if painting took longer.
  virtual void show_now(int milliseconds) = 0;
  /// The frame was closed, or the process was asked to end. Stays true.
  virtual bool closing() const = 0;
  virtual void close() = 0;

  /// The line below the table, in the desktop's own font: left what can be done now, right what
  /// the others did. Where it is too narrow the beginning of the right part goes first.
  virtual void set_chronicle(const std::string& now, const std::string& then) = 0;
  /// A thin outline over the table, no part of the surface; none for nothing.
  virtual void set_mark(const std::optional<Area>& area) = 0;
  /// True once assistive technology listens: until then nobody needs `set_places`.
  virtual bool wants_places() const = 0;
  /// All places of the table; `focus` is the marked one, -1 for none.
  virtual void set_places(const std::vector<TablePlace>& places, int focus) = 0;

  virtual void set_pointer(PointerShape shape) = 0;
  virtual PointerShape pointer() const = 0;

  /// Modal; returns when it has been answered, or as if with OK or No when the program is asked
  /// to end meanwhile.
  virtual Answer message_box(const std::string& text, Buttons buttons) = 0;

  /// An entry without entries of its own is a command, on the bar too. Captions are UTF-8; an
  /// ampersand marks the access key. Entries are enabled and unchecked at first.
  virtual void add_entry(EntryId entry, EntryId parent, const std::string& caption) = 0;
  virtual void set_checked(EntryId entry, bool checked) = 0;
  virtual bool checked(EntryId entry) const = 0;
  virtual void set_enabled(EntryId entry, bool enabled) = 0;
  virtual bool enabled(EntryId entry) const = 0;

  /// Overlay controls lie over the table, placed in logical units; hidden at first.
  /// A panel shows fixed text in a font of its own; a negative colour means the system's.
  virtual void add_panel(ControlId panel, const std::string& text, const Font& font,
                         long text_colour, long back_colour) = 0;
  /// What `rule` doesn't take can't be typed or pasted into a field.
  virtual void add_field(ControlId field, FieldRule rule, const Font& font) = 0;
  /// What assistive technology calls a field, where it asks for names.
  virtual void name_field(ControlId field, const std::string& name) = 0;
  virtual void add_shape(ControlId shape, Colour colour) = 0;
  virtual void add_picture(ControlId control, Picture picture) = 0;
  virtual void place(ControlId control, const Area& area) = 0;
  virtual void set_visible(ControlId control, bool visible) = 0;
  virtual bool visible(ControlId control) const = 0;
  /// A field also takes the keyboard.
  virtual void bring_to_front(ControlId control) = 0;
  /// Tells nobody: `field_changed` is for what a person types.
  virtual void set_text(ControlId field, const std::string& text) = 0;
};

}  // namespace tombrello
