#include "windows/menus.h"

#include "windows/strings.h"

namespace tombrello::windows {

// An entry becomes a menu when the first entry is put under it; until then it is a command.
HMENU Menus::container(EntryId parent) {
  const auto found = entries_.find(parent);
  if (found == entries_.end()) return bar_;
  Entry& entry = found->second;
  if (entry.menu == nullptr) {
    entry.menu = CreatePopupMenu();
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_SUBMENU;
    info.hSubMenu = entry.menu;
    SetMenuItemInfoW(entry.in, static_cast<UINT>(parent), FALSE, &info);
  }
  return entry.menu;
}

void Menus::add(EntryId entry, EntryId parent, const std::string& caption) {
  const HMENU in = container(parent);
  AppendMenuW(in, MF_STRING, static_cast<UINT_PTR>(entry), wide(caption).c_str());
  entries_[entry] = Entry{in};
  if (in == bar_ && frame_ != nullptr) DrawMenuBar(frame_);
}

void Menus::set_checked(EntryId entry, bool checked) {
  const auto found = entries_.find(entry);
  if (found == entries_.end()) return;
  found->second.checked = checked;
  CheckMenuItem(found->second.in, static_cast<UINT>(entry), checked ? MF_CHECKED : MF_UNCHECKED);
}

bool Menus::checked(EntryId entry) const {
  const auto found = entries_.find(entry);
  return found != entries_.end() && found->second.checked;
}

void Menus::set_enabled(EntryId entry, bool enabled) {
  const auto found = entries_.find(entry);
  if (found == entries_.end()) return;
  found->second.enabled = enabled;
  EnableMenuItem(found->second.in, static_cast<UINT>(entry), enabled ? MF_ENABLED : MF_GRAYED);
  if (found->second.in == bar_ && frame_ != nullptr) DrawMenuBar(frame_);
}

bool Menus::enabled(EntryId entry) const {
  const auto found = entries_.find(entry);
  return found != entries_.end() && found->second.enabled;
}

}  // namespace tombrello::windows
