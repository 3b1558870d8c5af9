#pragma once

#include <QByteArray>
#include <stdexcept>

#include "drawing/picture.h"

namespace veyruna::drawing {

/// A text that is no chart; the message names the line, what stands there and what is understood.
class PictureError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads a chart's SVG text (UTF-8): an svg element with a viewBox; circles, lines, paths of moves,
/// arcs and closings, and texts, level or along a circle; groups that are rotated or clipped by a
/// circle. What lies outside throws PictureError; nothing is left out silently but `stroke-weight`,
/// which is no attribute of SVG's. An empty text is an empty picture.
Picture readSvg(const QByteArray& svg);

}  // namespace veyruna::drawing
