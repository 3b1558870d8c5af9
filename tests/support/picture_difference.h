#pragma once

#include <QColor>
#include <QImage>
#include <algorithm>
#include <cmath>

namespace veyruna::tests {

/// How far two pictures of one size are apart where both are averaged over squares, because two
/// programs smooth edges and set letters differently by less than a pixel.
struct PictureDifference {
  double mean = 0.0;       ///< of all squares, in levels of 255
  double different = 0.0;  ///< share of squares that differ by more than a tenth of black to white
};

/// The difference in squares of so many pixels each way.
inline PictureDifference differenceOf(const QImage& one, const QImage& other, int square) {
  const auto averaged = [square](const QImage& picture) {
    return picture.convertToFormat(QImage::Format_RGB32)
        .scaled(picture.width() / square, picture.height() / square, Qt::IgnoreAspectRatio,
                Qt::SmoothTransformation);
  };
  const QImage a = averaged(one);
  const QImage b = averaged(other);
  PictureDifference found;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QColor left = a.pixelColor(x, y);
      const QColor right = b.pixelColor(x, y);
      const int levels =
          std::max({std::abs(left.red() - right.red()), std::abs(left.green() - right.green()),
                    std::abs(left.blue() - right.blue())});
      found.mean += levels;
      found.different += levels > 25 ? 1.0 : 0.0;
    }
  }
  const double squares = static_cast<double>(a.width()) * a.height();
  found.mean /= squares;
  found.different /= squares;
  return found;
}

}  // namespace veyruna::tests
