#pragma once

#include <QPainter>
#include <QPushButton>
#include <QStyle>

#include "ui/controls/focus_ring.h"

namespace veyruna::ui {

/// A button behind which something is lost for good: white on red, on light and on dark desktops.
/// It is painted here, since styles shade a button's colour as they like and the word would drown.
class DestructiveButton final : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    constexpr QColor red(0xb0, 0x20, 0x20);
    constexpr QColor pressedRed(0x8a, 0x14, 0x14);
    constexpr double rounding = 2.5;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pressedRed);
    painter.setBrush(isDown() || underMouse() ? pressedRed : red);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), rounding, rounding);
    painter.setPen(Qt::white);
    const bool isUnderlined = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
    painter.drawText(rect(),
                     Qt::AlignCenter | (isUnderlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
                     text());
    paintFocusRing(painter, *this, Qt::white);
  }
};

}  // namespace veyruna::ui
