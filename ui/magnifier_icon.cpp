#include "ui/magnifier_icon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace veyruna::ui {

namespace {

/// Draws on a field of 16 × 16 whatever the size; follows the palette from paint to paint.
class MagnifierEngine final : public QIconEngine {
 public:
  explicit MagnifierEngine(Magnifier sign) : sign_(sign) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
             QIcon::State /*state*/) override {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor ink = QGuiApplication::palette().color(group, QPalette::ButtonText);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / 16.0, rect.height() / 16.0);
    painter->setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap));
    painter->drawEllipse(QPointF(6.5, 6.5), 5.0, 5.0);
    painter->drawLine(QPointF(10.25, 10.25), QPointF(14.25, 14.25));
    painter->drawLine(QPointF(4.25, 6.5), QPointF(8.75, 6.5));
    if (sign_ == Magnifier::plus) {
      painter->drawLine(QPointF(6.5, 4.25), QPointF(6.5, 8.75));
    }
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return drawn;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new MagnifierEngine(*this); }

 private:
  Magnifier sign_;
};

}  // namespace

QIcon magnifierIcon(Magnifier sign) {
  const QString name =
      sign == Magnifier::plus ? QStringLiteral("zoom-in") : QStringLiteral("zoom-out");
  return QIcon::fromTheme(name, QIcon(new MagnifierEngine(sign)));
}

}  // namespace veyruna::ui
