#pragma once

#include <QImage>
#include <QPoint>
#include <QSize>
#include <QSizeF>
#include <array>
#include <vector>

namespace veyruna::ui {

/// Draws pieces of a picture at another scale, with high-quality interpolation: cubic (Catmull-Rom)
/// where it grows, the same filter widened over all pixels concerned where it shrinks. Keeps its
/// working memory from piece to piece; one for each thread.
class Resampler {
 public:
  static constexpr int longestRow = 512;  ///< pixels

  /// `source`: Format_RGB32; beyond its edges its outermost pixels go on. `scale`: shown pixels to
  /// one of the source, across and down, above zero. `first`: the piece's top-left pixel, counted
  /// in the scaled picture. `size`: the piece's, at most 512 pixels wide. `into`: Format_RGB32, at
  /// least as large; the piece is written to its top-left corner.
  void draw(const QImage& source, QSizeF scale, QPoint first, QSize size, QImage& into);

 private:
  using Row = std::array<float, std::size_t{longestRow} * 4>;

  std::vector<Row> rows_;
};

}  // namespace veyruna::ui
