#pragma once

#include <QPainter>
#include <QWidget>

namespace veyruna::ui {

/// A ring inside of a control that has the focus, in the ink of its text: styles show the focus of
/// a coloured or a default button faintly or not at all.
inline void paintFocusRing(QPainter& painter, const QWidget& control, const QColor& ink) {
  if (!control.hasFocus()) {
    return;
  }
  constexpr double thickness = 1.5;
  constexpr double inset = 3.0;
  constexpr double rounding = 2.0;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(ink, thickness));
  painter.drawRoundedRect(QRectF(control.rect()).adjusted(inset, inset, -inset, -inset), rounding,
                          rounding);
  painter.restore();
}

}  // namespace veyruna::ui
