#pragma once

#include <functional>
#include <string>

#include "painting/overlay.h"
#include "seam/event_relay.h"
#include "seam/window.h"
#include "windows/chronicle_line.h"
#include "windows/menus.h"
#include "windows/question.h"
#include "windows/table_view.h"
#include "windows/waitable_timer.h"

namespace tombrello::windows {

/// The window on the system's desktop.
class DesktopWindow : public NativeWindow, public Window {
 public:
  explicit DesktopWindow(painting::PictureSource pictures);

  void set_events(WindowEvents* events) override { relay_.set_target(events); }
  Surface& surface() override { return table_.surface(); }
  void set_caption(const std::string& text) override;
  void show_maximised() override;
  void serve_events() override;
  void show_now(int milliseconds) override;
  bool closing() const override { return closing_; }
  void close() override;
  /// As `close`, and takes down a box or a menu that waits for its answer.
  void stop();

  void set_chronicle(const std::string& now, const std::string& then) override {
    line_.tell(now, then);
  }
  void set_mark(const std::optional<Area>& area) override { table_.set_mark(area); }
  bool wants_places() const override { return table_.wants_places(); }
  void set_places(const std::vector<TablePlace>& places, int focus) override {
    table_.set_places(places, focus);
  }

  void set_pointer(PointerShape shape) override { table_.set_pointer(shape); }
  PointerShape pointer() const override { return table_.pointer(); }
  Answer message_box(const std::string& text, Buttons buttons) override;

  void add_entry(EntryId entry, EntryId parent, const std::string& caption) override;
  void set_checked(EntryId entry, bool checked) override { menus_.set_checked(entry, checked); }
  bool checked(EntryId entry) const override { return menus_.checked(entry); }
  void set_enabled(EntryId entry, bool enabled) override { menus_.set_enabled(entry, enabled); }
  bool enabled(EntryId entry) const override { return menus_.enabled(entry); }

  void add_panel(ControlId panel, const std::string& text, const Font& font, long text_colour,
                 long back_colour) override;
  void add_field(ControlId field, FieldRule rule, const Font& font) override;
  void name_field(ControlId field, const std::string& name) override {
    overlay_.name_field(field, name);
  }
  void add_shape(ControlId shape, Colour colour) override;
  void add_picture(ControlId control, Picture picture) override;
  void place(ControlId control, const Area& area) override { overlay_.place(control, area); }
  void set_visible(ControlId control, bool visible) override {
    overlay_.set_visible(control, visible);
  }
  bool visible(ControlId control) const override { return overlay_.visible(control); }
  void bring_to_front(ControlId control) override { overlay_.bring_to_front(control); }
  void set_text(ControlId field, const std::string& text) override {
    overlay_.set_text(field, text);
  }

  Timer& timer() { return timer_; }
  TableView& table() { return table_; }
  const ChronicleLine& line() const { return line_; }
  Question& question() { return question_; }
  /// Called on this thread soon after any thread has called `wake`.
  void set_woken(std::function<void()> woken) { woken_ = std::move(woken); }
  void wake() const { PostMessageW(handle(), kWake, 0, 0); }

 protected:
  LRESULT message(UINT message, WPARAM w, LPARAM l) override;

 private:
  static constexpr UINT kWake = WM_APP + 2;

  void wait();
  void lay_out();
  void place_in_work_area();
  void keep_smallest_size(MINMAXINFO& info) const;
  void keep_keyboard(bool active);

  bool closing_ = false;
  EventRelay relay_;
  WaitableTimer timer_;
  Menus menus_;
  TableView table_;
  ChronicleLine line_;
  painting::Overlay overlay_{[this] { SetFocus(table_.handle()); }};
  Question question_;
  HWND keyboard_ = nullptr;  ///< where it was when the window was left
  std::function<void()> woken_;
};

}  // namespace tombrello::windows
