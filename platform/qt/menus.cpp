#include "qt/menus.h"

#include <QAction>
#include <QMenu>

namespace tombrello::qt {

// An entry becomes a menu when the first entry is put under it; until then it is a command.
QWidget& Menus::container(EntryId parent) {
  const auto found = entries_.find(parent);
  if (found == entries_.end()) return bar_;
  QAction& action = *found->second.action;
  if (action.menu<QMenu*>() == nullptr) action.setMenu(new QMenu(&bar_));
  return *action.menu<QMenu*>();
}

void Menus::add(EntryId entry, EntryId parent, const std::string& caption) {
  auto* action = new QAction(QString::fromStdString(caption), &bar_);
  action->setMenuRole(QAction::NoRole);
  QObject::connect(action, &QAction::triggered, &bar_, [this, entry] { chosen(entry); });
  container(parent).addAction(action);
  entries_[entry] = Entry{action, false};
}

// The program alone moves checks: what the click did to the mark is undone before it is told.
void Menus::chosen(EntryId entry) {
  set_checked(entry, checked(entry));
  events_.entry_chosen(entry);
}

// Checkable only while checked: an unchecked entry shows no empty box.
void Menus::set_checked(EntryId entry, bool checked) {
  const auto found = entries_.find(entry);
  if (found == entries_.end()) return;
  found->second.checked = checked;
  found->second.action->setCheckable(checked);
  found->second.action->setChecked(checked);
}

bool Menus::checked(EntryId entry) const {
  const auto found = entries_.find(entry);
  return found != entries_.end() && found->second.checked;
}

void Menus::set_enabled(EntryId entry, bool enabled) {
  const auto found = entries_.find(entry);
  if (found != entries_.end()) found->second.action->setEnabled(enabled);
}

bool Menus::enabled(EntryId entry) const {
  const auto found = entries_.find(entry);
  return found != entries_.end() && found->second.action->isEnabled();
}

}  // namespace tombrello::qt
