#pragma once

#include <QImage>
#include <QPoint>
#include <QSize>
#include <QSizeF>

namespace veyruna::ui {

/// A piece of a picture drawn at another scale, with high-quality interpolation: cubic
/// (Catmull-Rom) where it grows, the same filter widened over all pixels concerned where it
/// shrinks. `source`: Format_RGB32; beyond its edges its outermost pixels go on. `scale`: shown
/// pixels to one of the source, across and down, above zero. `first`: the piece's top-left pixel,
/// counted in the scaled picture. `size`: the piece's, at most 512 pixels wide.
QImage resampled(const QImage& source, QSizeF scale, QPoint first, QSize size);

}  // namespace veyruna::ui
