#pragma once

#include <windows.h>

#include <map>
#include <string>

#include "seam/window.h"

namespace tombrello::windows {

/// The entries of the menu bar, by their numbers. A number that nobody added is ignored.
class Menus {
 public:
  Menus() : bar_(CreateMenu()) {}

  /// Goes with the window that it is given to.
  HMENU bar() const { return bar_; }
  void set_frame(HWND frame) { frame_ = frame; }

  void add(EntryId entry, EntryId parent, const std::string& caption);
  bool has(EntryId entry) const { return entries_.contains(entry); }
  void set_checked(EntryId entry, bool checked);
  bool checked(EntryId entry) const;
  void set_enabled(EntryId entry, bool enabled);
  bool enabled(EntryId entry) const;

 private:
  struct Entry {
    HMENU in = nullptr;    ///< the menu that it stands in
    HMENU menu = nullptr;  ///< its own, once it has entries
    bool checked = false;
    bool enabled = true;
  };

  HMENU container(EntryId parent);

  HMENU bar_;
  HWND frame_ = nullptr;
  std::map<EntryId, Entry> entries_;
};

}  // namespace tombrello::windows
