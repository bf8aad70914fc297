#pragma once

#include <QLineEdit>
#include <QTextEdit>
#include <QWidget>
#include <future>

#include "painting/overlay.h"
#include "qt/table_widget.h"

namespace tombrello::qt {

/// What lies over the table is a widget of its own.
class Control : public painting::Control {
 public:
  explicit Control(const TableWidget& table) : table_(table) {}
  void set_shown(bool shown) override { widget().setVisible(shown); }
  void bring_to_front() override { widget().raise(); }
  bool has_keyboard() override { return widget().hasFocus(); }
  void take_keyboard() override { widget().setFocus(); }

 protected:
  virtual QWidget& widget() = 0;

  const TableWidget& table_;
};

/// A framed text with bold headings. Where it needs more room than it was given, it grows downward
/// to the table's lower edge, and scrolls beyond that.
class Panel : public QTextEdit, public Control {
 public:
  Panel(ControlId id, const std::string& text, const Font& font, long text_colour, long back_colour,
        TableWidget& table, WindowEvents& events);
  void fit(const Area& area) override;

 protected:
  QWidget& widget() override { return *this; }
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  bool eventFilter(QObject* table, QEvent* event) override;

 private:
  ControlId id_;
  WindowEvents& events_;
};

class Field : public QLineEdit, public Control {
 public:
  Field(ControlId id, FieldRule rule, const Font& font, TableWidget& table, WindowEvents& events);
  void fit(const Area& area) override;
  void bring_to_front() override;
  void set_name(const std::string& name) override;
  void set_text(const std::string& text) override;

 protected:
  QWidget& widget() override { return *this; }
  void paintEvent(QPaintEvent* event) override;

 private:
  QString allowed(const QString& raw, qsizetype characters_already) const;
  void edited(const QString& raw);

  ControlId id_;
  FieldRule rule_;
  Font font_;
  WindowEvents& events_;
};

/// A bar that invites a press, which is a press on the table under it.
class ShapeControl : public QWidget, public Control {
 public:
  ShapeControl(Colour colour, TableWidget& table);
  void fit(const Area& area) override;

 protected:
  QWidget& widget() override { return *this; }
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor colour_;
};

/// A picture that can be clicked, and that takes the keyboard while it shows. Its pixels are kept
/// no longer than that.
class PictureControl : public QWidget, public Control {
 public:
  PictureControl(ControlId id, Picture picture, TableWidget& table, WindowEvents& events);
  bool rests_keyboard() const override { return true; }
  void fit(const Area& area) override;

 protected:
  QWidget& widget() override { return *this; }
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  bool eventFilter(QObject* parent, QEvent* event) override;

 private:
  void prepare();
  raster::Bitmap come();

  ControlId id_;
  Picture picture_;
  WindowEvents& events_;
  QSize asked_for_;
  std::future<raster::Bitmap> coming_;  ///< in the size asked for
  raster::Bitmap bitmap_;               ///< what has come
  painting::PixelRect pixels_;          ///< the table's
  double ratio_ = 1;
};

}  // namespace tombrello::qt
