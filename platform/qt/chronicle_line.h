#pragma once

#include <QLabel>
#include <string>

namespace tombrello::qt {

/// The line below the table, in the desktop's own font. The left part keeps its place; of the
/// right one, where it is too wide, the beginning goes. The tooltip holds the whole.
class ChronicleLine : public QLabel {
 public:
  explicit ChronicleLine(QWidget* parent);

  void tell(const std::string& now, const std::string& then);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString now_;
  QString then_;
};

}  // namespace tombrello::qt
