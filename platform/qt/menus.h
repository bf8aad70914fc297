#pragma once

#include <QMenuBar>
#include <map>
#include <string>

#include "seam/window.h"

namespace tombrello::qt {

/// The entries of the menu bar, by their numbers. A number that nobody added is ignored.
class Menus {
 public:
  Menus(QMenuBar& bar, WindowEvents& events) : bar_(bar), events_(events) {}

  void add(EntryId entry, EntryId parent, const std::string& caption);
  void set_checked(EntryId entry, bool checked);
  bool checked(EntryId entry) const;
  void set_enabled(EntryId entry, bool enabled);
  bool enabled(EntryId entry) const;

 private:
  struct Entry {
    QAction* action = nullptr;  ///< belongs to the bar
    bool checked = false;
  };

  QWidget& container(EntryId parent);
  void chosen(EntryId entry);

  QMenuBar& bar_;
  WindowEvents& events_;
  std::map<EntryId, Entry> entries_;
};

}  // namespace tombrello::qt
