#include "ui/controls/icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <array>

#include "ui/controls/shades.h"

namespace veyruna::ui {

namespace {

constexpr std::array<int, 5> ownSizes = {16, 24, 32, 48, 64};

/// An icon of the own set: which of its two forms is drawn is seen from the palette each time.
class OwnIcon final : public QIconEngine {
 public:
  explicit OwnIcon(QString name) : name_(std::move(name)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal pixels = painter->device()->devicePixelRatio();
    QPixmap drawn = scaledPixmap(rect.size() * pixels, mode, state, pixels);
    painter->drawPixmap(rect, drawn);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
    const QPalette colors = QGuiApplication::palette();
    int best = ownSizes.back();
    for (const int own : ownSizes) {
      if (own >= size.width()) {
        best = own;
        break;
      }
    }
    // On a highlight the text is light, whatever the palette.
    const bool isLightInk = isDark(colors) || mode == QIcon::Selected;
    const QPixmap own(QStringLiteral(":/icons/%1/%2_%3.png")
                          .arg(isLightInk ? QStringLiteral("dark") : QStringLiteral("light"), name_)
                          .arg(best));
    QPixmap fitted(size);
    fitted.fill(Qt::transparent);
    QPainter painter(&fitted);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setOpacity(mode == QIcon::Disabled ? 0.4 : 1.0);
    painter.drawPixmap(fitted.rect(), own);
    return fitted;
  }

  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                       qreal scale) override {
    QPixmap drawn = pixmap(size, mode, state);
    drawn.setDevicePixelRatio(scale);
    return drawn;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new OwnIcon(name_); }
  [[nodiscard]] QString key() const override { return QStringLiteral("veyruna"); }
  QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
    QList<QSize> sizes;
    for (const int own : ownSizes) {
      sizes.append(QSize(own, own));
    }
    return sizes;
  }

 private:
  QString name_;
};

}  // namespace

QIcon programIcon() {
  QIcon all;
  for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
    all.addFile(QStringLiteral(":/icons/veyruna_astro_%1.png").arg(size), QSize(size, size));
  }
  return all;
}

QIcon icon(const char* themeName, const char* ownName) {
  const QIcon fromTheme = QIcon::fromTheme(QLatin1String(themeName));
  return fromTheme.isNull() ? QIcon(new OwnIcon(QLatin1String(ownName))) : fromTheme;
}

}  // namespace veyruna::ui
