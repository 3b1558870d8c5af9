#pragma once

#include <QEvent>
#include <QPainter>
#include <QWidget>

#include "ui/controls/shades.h"

namespace veyruna::ui {

/// A warning edge around a field, drawn over whatever the style draws there. Not to be seen until
/// it is shown.
class RefusedEdge final : public QWidget {
 public:
  explicit RefusedEdge(QWidget& field) : QWidget(&field) {
    setObjectName(QStringLiteral("refusedEdge"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    field.installEventFilter(this);
    hide();
  }

 protected:
  bool eventFilter(QObject* field, QEvent* event) override {
    if (event->type() == QEvent::Resize) {
      setGeometry(static_cast<QWidget*>(field)->rect());
    }
    return QWidget::eventFilter(field, event);
  }
  void paintEvent(QPaintEvent* /*event*/) override {
    constexpr double thickness = 2.0;
    constexpr double rounding = 2.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(warningColor(palette()), thickness));
    const double inset = thickness / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), rounding,
                            rounding);
  }
};

}  // namespace veyruna::ui
