#pragma once

#include <QMainWindow>
#include <QMessageBox>
#include <functional>
#include <string>

#include "qt/chronicle_line.h"
#include "qt/controls.h"
#include "qt/menus.h"
#include "qt/table_widget.h"
#include "seam/event_relay.h"
#include "seam/window.h"

namespace tombrello::qt {

/// The program's window on a Qt desktop. Needs the application object as long as it lives.
class DesktopWindow : public Window {
 public:
  explicit DesktopWindow(painting::PictureSource pictures);

  void set_events(WindowEvents* events) override { relay_.set_target(events); }
  Surface& surface() override { return table_->surface(); }
  void set_caption(const std::string& text) override;
  void show_maximised() override;

  void serve_events() override;
  void show_now(int milliseconds) override;
  bool closing() const override { return closing_; }
  void close() override;
  /// As `close`, and takes down a message box that waits for its answer.
  void stop();

  void set_chronicle(const std::string& now, const std::string& then) override;
  void set_mark(const std::optional<Area>& area) override { table_->set_mark(area); }
  bool wants_places() const override;
  void set_places(const std::vector<TablePlace>& places, int focus) override {
    table_->set_places(places, focus);
  }
  void set_pointer(PointerShape shape) override;
  PointerShape pointer() const override { return pointer_; }
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

  /// Called once, soon after the window has first been painted.
  void after_first_paint(std::function<void()> action) {
    table_->after_first_paint(std::move(action));
  }

  QMainWindow& frame() { return frame_; }
  const QWidget& line() const { return *line_; }
  TableWidget& table() { return *table_; }
  WindowEvents& events() { return relay_; }  ///< where parts beside the window report

 private:
  class Frame : public QMainWindow {
   public:
    explicit Frame(bool& closing) : closing_(closing) {}

   protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

   private:
    void stay_on_screen();

    bool& closing_;
  };

  bool closing_ = false;
  PointerShape pointer_ = PointerShape::arrow;
  EventRelay relay_;
  Frame frame_{closing_};
  TableWidget* table_;  ///< belongs to the frame, as the line below it does
  ChronicleLine* line_;
  Menus menus_{*frame_.menuBar(), relay_};
  painting::Overlay overlay_{[this] { table_->setFocus(); }};
  QMessageBox* box_ = nullptr;  ///< while one waits
};

}  // namespace tombrello::qt
