#include "qt/accessible_notice.h"

#include <QAccessibleWidget>

namespace tombrello::qt {
namespace {

constexpr const char* kNotice = "tombrello-notice";

QAccessibleInterface* notice_interface(const QString&, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr || !widget->property(kNotice).toBool()) return nullptr;
  return new QAccessibleWidget(widget, QAccessible::Notification);
}

}  // namespace

void make_notice(QWidget& widget) {
  QAccessible::installFactory(notice_interface);
  widget.setProperty(kNotice, true);
}

}  // namespace tombrello::qt
