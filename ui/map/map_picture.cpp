#include "ui/map/map_picture.h"

#include <QImageReader>
#include <algorithm>
#include <utility>

namespace veyruna::ui {

namespace {

constexpr int smallestSide = 32;  ///< pixels; no view shows the map smaller than that

QRgb meanOf(QRgb a, QRgb b, QRgb c, QRgb d) {
  const auto mean = [=](int (*channel)(QRgb)) {
    return (channel(a) + channel(b) + channel(c) + channel(d) + 2) / 4;
  };
  return qRgb(mean(qRed), mean(qGreen), mean(qBlue));
}

const QRgb* rowOf(const QImage& image, int y) {
  return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

/// Half as wide and high, rounded up; what lies beyond an odd edge counts as the edge.
QImage halved(const QImage& image) {
  QImage half((image.width() + 1) / 2, (image.height() + 1) / 2, QImage::Format_RGB32);
  for (int y = 0; y < half.height(); ++y) {
    const QRgb* const upper = rowOf(image, 2 * y);
    const QRgb* const lower = rowOf(image, std::min(2 * y + 1, image.height() - 1));
    auto* const row = reinterpret_cast<QRgb*>(half.scanLine(y));
    for (qsizetype x = 0; x < half.width(); ++x) {
      const qsizetype left = 2 * x;
      const qsizetype right = std::min(left + 1, qsizetype{image.width()} - 1);
      row[x] = meanOf(upper[left], upper[right], lower[left], lower[right]);
    }
  }
  return half;
}

}  // namespace

PictureSource pictureFile(const QString& path) {
  return [path] { return QImageReader(path).read(); };
}

MapPicture::MapPicture(QImage whole) {
  whole.convertTo(QImage::Format_RGB32);
  whole.setDevicePixelRatio(1.0);
  levels_.push_back(std::move(whole));
  while (std::min(levels_.back().width(), levels_.back().height()) > smallestSide) {
    levels_.push_back(halved(levels_.back()));
  }
  isMade_.store(true, std::memory_order_release);
}

int MapPicture::levelFor(double scale) const {
  int level = 0;
  for (double next = 0.5; next >= scale && level + 1 < static_cast<int>(levels_.size());
       next *= 0.5) {
    ++level;
  }
  return level;
}

}  // namespace veyruna::ui
