#include "qt/chronicle_line.h"

#include <QAccessible>
#include <QPainter>
#include <algorithm>

#include "qt/accessible_notice.h"

namespace tombrello::qt {
namespace {

constexpr int kMargin = 8;
constexpr int kGap = 24;  // between the two parts

// Whole words go from the beginning, until the rest has room.
QString end_of(const QString& text, int room, const QFontMetrics& letters) {
  if (letters.horizontalAdvance(text) <= room) return text;
  const QString gone = QString::fromUtf8("… ");
  qsizetype from = 0;
  while ((from = text.indexOf(' ', from) + 1) > 0) {
    const QString rest = gone + text.mid(from);
    if (letters.horizontalAdvance(rest) <= room) return rest;
  }
  return {};
}

}  // namespace

ChronicleLine::ChronicleLine(QWidget* parent) : QLabel(parent) {
  make_notice(*this);
  setObjectName("chronicle");
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize ChronicleLine::sizeHint() const {
  return {0, fontMetrics().height() + fontMetrics().height() / 2};
}

void ChronicleLine::tell(const std::string& now, const std::string& then) {
  now_ = QString::fromStdString(now);
  then_ = QString::fromStdString(then);
  const QString whole = then_.isEmpty() ? now_ : now_ + QString::fromUtf8(" — ") + then_;
  setText(whole);
  setAccessibleName(whole);
  setToolTip(whole.toHtmlEscaped());  // wrapped where it is long
  update();
  if (!QAccessible::isActive()) return;
  QAccessibleEvent shown(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&shown);
}

void ChronicleLine::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect inside = rect().adjusted(kMargin, 0, -kMargin, 0);
  QFont bold = font();
  bold.setBold(true);
  const QFontMetrics bold_letters(bold);
  painter.setFont(bold);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(inside, Qt::AlignLeft | Qt::AlignVCenter,
                   bold_letters.elidedText(now_, Qt::ElideRight, inside.width()));
  painter.setFont(font());
  const int room = inside.width() - bold_letters.horizontalAdvance(now_) - kGap;
  if (room <= 0) return;
  painter.drawText(inside, Qt::AlignRight | Qt::AlignVCenter, end_of(then_, room, fontMetrics()));
}

}  // namespace tombrello::qt
