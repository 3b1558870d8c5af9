#pragma once

#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QStringList>

namespace veyruna::ui {

/// Where a box of this size stands beside a point of the view: below and to the right of it, or
/// where that has no room on another side; inside the view, and not over the point as long as the
/// view has room for that.
QRectF boxBeside(QPointF point, QSizeF size, QSizeF view);

/// A few lines in a box, the first of them bold.
class ReadOut {
 public:
  ReadOut() = default;
  ReadOut(const QStringList& lines, const QFont& font);

  [[nodiscard]] bool isEmpty() const { return lines_.isEmpty(); }
  [[nodiscard]] const QStringList& lines() const { return lines_; }
  [[nodiscard]] QSizeF size() const { return size_; }

  /// In the window's colours, which are readable whatever chart lies under the box.
  void paint(QPainter& painter, const QRectF& box, const QPalette& palette) const;

 private:
  QStringList lines_;
  QFont font_;
  QFont nameFont_;
  QSizeF size_;
};

}  // namespace veyruna::ui
