#include "qt/accessible_table.h"

#include <QAccessibleActionInterface>
#include <QApplication>
#include <map>

namespace tombrello::qt {
namespace {

/// One place of the table, by its number: it reads what the table holds when it is asked.
class AccessiblePlace : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AccessiblePlace(TableWidget& table, int index) : table_(table), index_(index) {}

  bool isValid() const override { return place() != nullptr; }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&table_);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name || place() == nullptr) return {};
    return QString::fromStdString(place()->name);
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    if (place() == nullptr) return {};
    const QRect here = table_.widget_area(place()->area);
    return {table_.mapToGlobal(here.topLeft()), here.size()};
  }
  QAccessible::Role role() const override {
    if (place() == nullptr) return QAccessible::NoRole;
    return place()->can_press || place()->can_select ? QAccessible::Button
                                                     : QAccessible::StaticText;
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    if (place() == nullptr) {
      state.invalid = true;
      return state;
    }
    state.focusable = place()->can_press || place()->can_select;
    state.focused = index_ == table_.focused_place();
    state.selectable = place()->can_select;
    state.selected = place()->selected;
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type != QAccessible::ActionInterface) return nullptr;
    return static_cast<QAccessibleActionInterface*>(this);
  }
  QStringList actionNames() const override {
    QStringList names;
    if (place() != nullptr && place()->can_press) names << pressAction();
    if (place() != nullptr && place()->can_select) names << toggleAction();
    return names;
  }
  void doAction(const QString& action) override {
    if (QApplication::activeModalWidget() != nullptr) return;  // a box stands over the table
    table_.press_place(index_, action == toggleAction() ? Button::right : Button::left);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  const TablePlace* place() const {
    const auto& places = table_.places();
    const auto i = static_cast<std::size_t>(index_);
    return i < places.size() ? &places[i] : nullptr;
  }

  TableWidget& table_;
  int index_;
};

class AccessibleTable : public QAccessibleWidget {
 public:
  explicit AccessibleTable(TableWidget& table)
      : QAccessibleWidget(&table, QAccessible::Table, "Tavolo"), table_(table) {}
  ~AccessibleTable() override {
    for (const QAccessible::Id id : ids_) QAccessible::deleteAccessibleInterface(id);
  }

  QAccessible::Role role() const override { return QAccessible::Grouping; }
  int childCount() const override { return places() + QAccessibleWidget::childCount(); }
  QAccessibleInterface* child(int index) const override {
    if (index >= places()) return QAccessibleWidget::child(index - places());
    while (static_cast<int>(ids_.size()) <= index) {
      auto* place = new AccessiblePlace(table_, static_cast<int>(ids_.size()));
      ids_.push_back(QAccessible::registerAccessibleInterface(place));
    }
    return QAccessible::accessibleInterface(ids_[static_cast<std::size_t>(index)]);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    for (int i = 0; i < places(); ++i) {
      if (this->child(i) == child) return i;
    }
    const int widget = QAccessibleWidget::indexOfChild(child);
    return widget < 0 ? widget : widget + places();
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    for (int i = places() - 1; i >= 0; --i) {
      if (child(i)->rect().contains(x, y)) return child(i);
    }
    return QAccessibleWidget::childAt(x, y);
  }
  QAccessibleInterface* focusChild() const override {
    const int focus = table_.focused_place();
    return focus < 0 ? QAccessibleWidget::focusChild() : child(focus);
  }

 private:
  int places() const { return static_cast<int>(table_.places().size()); }

  TableWidget& table_;
  mutable std::vector<QAccessible::Id> ids_;  ///< made when first asked for
};

QAccessibleInterface* table_interface(const QString&, QObject* object) {
  auto* table = dynamic_cast<TableWidget*>(object);
  return table == nullptr ? nullptr : new AccessibleTable(*table);
}

void tell(TableWidget& table, int place, QAccessible::Event what) {
  QAccessibleEvent event(&table, what);
  event.setChild(place);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

void make_tables_accessible() {
  QAccessible::installFactory(table_interface);
}

void announce_places(TableWidget& table, const std::vector<TablePlace>& before, int focus_before) {
  const auto& now = table.places();
  if (now.size() != before.size()) tell(table, -1, QAccessible::ObjectReorder);
  for (std::size_t i = 0; i < now.size() && i < before.size(); ++i) {
    const int place = static_cast<int>(i);
    if (now[i].name != before[i].name) tell(table, place, QAccessible::NameChanged);
    if (now[i].selected != before[i].selected) tell(table, place, QAccessible::Selection);
  }
  const int focus = table.focused_place();
  if (focus >= 0 && focus != focus_before) tell(table, focus, QAccessible::Focus);
}

}  // namespace tombrello::qt
