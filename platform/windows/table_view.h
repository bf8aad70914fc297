#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "painting/composition.h"
#include "seam/window.h"
#include "windows/accessible_table.h"
#include "windows/back_buffer.h"
#include "windows/letters.h"
#include "windows/native_window.h"

namespace tombrello::windows {

/// Shows a surface, and reports presses and moves on it.
class TableView : public NativeWindow {
 public:
  TableView(painting::PictureSource source, WindowEvents& events);
  ~TableView() override;
  void create_in(HWND frame);

  Surface& surface() { return surface_; }
  painting::PictureCache& pictures() { return pictures_; }
  const GdiLetters& letters() const { return letters_; }
  const painting::TableGeometry& geometry() const { return geometry_; }
  /// Called whenever the table has moved or changed its size.
  void set_follower(std::function<void()> follower) { follower_ = std::move(follower); }
  /// Called once, right after the table has first been painted.
  void after_first_paint(std::function<void()> action) { first_paint_ = std::move(action); }

  /// Has painted what changed on the surface: soon, or at once without serving events.
  void show_changes();
  void show_changes_now();
  void set_mark(const std::optional<Area>& area);
  void set_pointer(PointerShape shape);
  PointerShape pointer() const { return pointer_; }

  bool wants_places() const { return accessible_ != nullptr; }
  void set_places(const std::vector<TablePlace>& places, int focus);

  /// A key that whoever has the keyboard has no use for: help and escape are the table's anywhere.
  bool take_key_from_elsewhere(WPARAM key);
  /// One that scrolls, while a panel shows.
  bool scrolls_panel(WPARAM key) const;

 protected:
  LRESULT message(UINT message, WPARAM w, LPARAM l) override;

 private:
  LRESULT accessible_object(WPARAM w);
  void follow_screen();
  void repaint(const painting::Region& region);
  void paint();
  void pressed(Button button, LPARAM place);
  void moved(LPARAM place);
  bool key(UINT message, WPARAM key, LPARAM l);
  void repaint_mark();
  bool show_pointer(HWND under) const;
  Point logical(LPARAM place) const;

  WindowEvents& events_;
  Surface surface_;
  painting::PictureCache pictures_;
  GdiLetters letters_;
  BackBuffer buffer_;
  painting::TableGeometry geometry_{{800, 600}, 96.0 / 72};
  painting::PixelSize room_;
  painting::Region stale_;  ///< to be painted into the buffer
  bool stale_sizes_ = false;
  std::optional<Area> mark_;
  AccessibleTable* accessible_ = nullptr;  ///< made when somebody asks for it
  PointerShape pointer_ = PointerShape::arrow;
  LPARAM last_move_ = -1;  ///< where the pointer was last
  std::function<void()> follower_;
  std::function<void()> first_paint_;
};

/// The kind of window that the keys scroll while it lies over the table.
inline constexpr const wchar_t* kPanelKind = L"TombrelloPanel";

/// Sent to a text field whose text has changed.
inline constexpr UINT kTextChanged = WM_APP + 1;

}  // namespace tombrello::windows
