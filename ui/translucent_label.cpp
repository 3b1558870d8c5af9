#include "ui/translucent_label.h"

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
  }
  setVisible(!text.isEmpty());
}

void TranslucentLabel::paintEvent(QPaintEvent* event) {
  constexpr double cornerRadius = 8.0;
  constexpr float opacity = 0.8F;
  QColor ground = palette().color(QPalette::Window);
  ground.setAlphaF(opacity);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground);
  painter.drawRoundedRect(QRectF(rect()), cornerRadius, cornerRadius);
  painter.end();
  QLabel::paintEvent(event);
}

}  // namespace veyruna::ui
