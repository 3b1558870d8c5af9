#include "ui/map/translucent_label.h"

#include <QPainter>

namespace veyruna::ui {

TranslucentLabel::TranslucentLabel(QWidget* parent) : QLabel(parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setTextFormat(Qt::PlainText);
  setContentsMargins(10, 6, 10, 6);
  hide();
}

void TranslucentLabel::showText(const QString& text) {
  if (text != this->text()) {
    setText(text);
    resize(sizeHint());
    drawn_ = {};
  }
  setVisible(!text.isEmpty());
}

void TranslucentLabel::paintEvent(QPaintEvent* /*event*/) {
  if (drawn_.devicePixelRatio() != devicePixelRatioF() || drawn_.isNull()) {
    drawn_ = drawn();
  }
  QPainter(this).drawPixmap(0, 0, drawn_);
}

void TranslucentLabel::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);  // the font, the palette, the style
  resize(sizeHint());
  drawn_ = {};
}

QPixmap TranslucentLabel::drawn() const {
  constexpr double cornerRadius = 8.0;
  constexpr float opacity = 0.8F;
  QColor ground = palette().color(QPalette::Window);
  ground.setAlphaF(opacity);
  QPixmap picture((QSizeF(size()) * devicePixelRatioF()).toSize());
  picture.setDevicePixelRatio(devicePixelRatioF());
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground);
  painter.drawRoundedRect(QRectF(rect()), cornerRadius, cornerRadius);
  painter.setFont(font());
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, text());
  return picture;
}

}  // namespace veyruna::ui
