#include "ui/charts/read_out.h"

#include <QFontMetricsF>
#include <algorithm>
#include <array>

namespace veyruna::ui {

namespace {

constexpr double padding = 6.0;
constexpr double rounding = 4.0;

/// From the point to the nearest corner of the box: beyond the pointer's own picture.
constexpr QPointF below(16.0, 18.0);
constexpr QPointF above(10.0, 10.0);

}  // namespace

QRectF boxBeside(QPointF point, QSizeF size, QSizeF view) {
  const double right = point.x() + below.x();
  const double left = point.x() - above.x() - size.width();
  const double under = point.y() + below.y();
  const double over = point.y() - above.y() - size.height();
  const std::array<QPointF, 4> corners = {QPointF(right, under), QPointF(left, under),
                                          QPointF(right, over), QPointF(left, over)};
  const QRectF room(QPointF(), view);
  for (const QPointF& corner : corners) {
    if (const QRectF box(corner, size); room.contains(box)) {
      return box;
    }
  }
  // In a small view it is moved along on one of the four sides on which it does not cover the
  // point.
  const auto within = [](double at, double length, double whole) {
    return std::clamp(at, 0.0, std::max(0.0, whole - length));
  };
  const double x = within(right, size.width(), view.width());
  const double y = within(under, size.height(), view.height());
  for (const QPointF& corner :
       {QPointF(x, under), QPointF(x, over), QPointF(right, y), QPointF(left, y)}) {
    if (const QRectF box(corner, size); room.contains(box)) {
      return box;
    }
  }
  return {QPointF(x, y), size};
}

ReadOut::ReadOut(const QStringList& lines, const QFont& font)
    : lines_(lines), font_(font), nameFont_(font) {
  nameFont_.setBold(true);
  double width = 0.0;
  for (const QString& line : lines_) {
    const bool isName = &line == &lines_.constFirst();
    width = std::max(width, QFontMetricsF(isName ? nameFont_ : font_).horizontalAdvance(line));
  }
  const double height = QFontMetricsF(font_).lineSpacing() * static_cast<double>(lines_.size());
  size_ = QSizeF(width + 2.0 * padding, height + 2.0 * padding);
}

void ReadOut::paint(QPainter& painter, const QRectF& box, const QPalette& palette) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor ink = palette.color(QPalette::Active, QPalette::WindowText);
  painter.setPen(QPen(ink, 1.0));
  painter.setBrush(palette.color(QPalette::Active, QPalette::Window));
  painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), rounding, rounding);
  const QFontMetricsF metrics(font_);
  QPointF at = box.topLeft() + QPointF(padding, padding + metrics.ascent());
  for (const QString& line : lines_) {
    painter.setFont(&line == &lines_.constFirst() ? nameFont_ : font_);
    painter.drawText(at, line);
    at.ry() += metrics.lineSpacing();
  }
  painter.restore();
}

}  // namespace veyruna::ui
