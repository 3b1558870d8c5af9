#include "ui/charts/chart_copy.h"

#include <QImage>
#include <QPainter>

#include "drawing/picture_painter.h"

namespace veyruna::ui {

namespace {

constexpr double pixelsPerUnit = 4.0;

}  // namespace

std::unique_ptr<QMimeData> copyOf(const QString& svg, const drawing::Picture& picture) {
  auto copy = std::make_unique<QMimeData>();
  copy->setData(QStringLiteral("image/svg+xml"), svg.toUtf8());
  QImage bitmap((picture.viewBox.size() * pixelsPerUnit).toSize(), QImage::Format_RGB32);
  if (!bitmap.isNull()) {
    bitmap.fill(Qt::white);
    QPainter painter(&bitmap);
    drawing::PicturePainter().paint(painter, picture, bitmap.rect(), drawing::Medium::pixels);
    painter.end();
    copy->setImageData(bitmap);
  }
  return copy;
}

}  // namespace veyruna::ui
