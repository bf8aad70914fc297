#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "seam/window.h"

namespace tombrello::painting {

/// Something that lies over the table and follows it.
class Control {
 public:
  virtual ~Control() = default;
  virtual void fit(const Area& area) = 0;
  virtual void set_shown(bool shown) = 0;
  /// A field also takes the keyboard.
  virtual void bring_to_front() = 0;
  virtual bool has_keyboard() = 0;
  virtual void take_keyboard() = 0;
  /// The keyboard returns to it when another control has gone.
  virtual bool rests_keyboard() const { return false; }
  // Of a field.
  virtual void set_name(const std::string&) {}
  virtual void set_text(const std::string&) {}
};

/// The controls that lie over the table, by their numbers; hidden at first. A number that nobody
/// added is ignored. Those that don't show aren't laid out.
class Overlay {
 public:
  explicit Overlay(std::function<void()> keyboard_to_table)
      : keyboard_to_table_(std::move(keyboard_to_table)) {}

  void add(ControlId id, std::unique_ptr<Control> control);
  /// The table has moved or changed its size.
  void follow_table();

  void place(ControlId control, const Area& area);
  void set_visible(ControlId control, bool visible);
  bool visible(ControlId control) const;
  void bring_to_front(ControlId control);
  void name_field(ControlId field, const std::string& name);
  void set_text(ControlId field, const std::string& text);

 private:
  struct Placed {
    std::unique_ptr<Control> control;
    Area area;
    bool visible = false;
  };

  Placed* find(ControlId id);
  void give_keyboard_back();

  std::function<void()> keyboard_to_table_;
  std::map<ControlId, Placed> controls_;
};

}  // namespace tombrello::painting
