#pragma once

#include <QPainter>

#include "drawing/letters.h"
#include "drawing/picture.h"

namespace veyruna::drawing {

/// What is painted on.
enum class Medium {
  pixels,  ///< a screen or an image: letters are fitted to its rows of pixels
  page     ///< a document to be printed: letters stay text that can be searched and copied
};

/// Paints pictures and keeps what letters cost from one to the next. For one thread at a time.
class PicturePainter {
 public:
  /// The picture as large as fits into `target` (the painter's coordinates), centred. The painter
  /// is left as it was.
  void paint(QPainter& painter, const Picture& picture, const QRectF& target, Medium medium);

  /// The transformation from the picture's units to the target's.
  static QTransform fitted(const QRectF& viewBox, const QRectF& target);

 private:
  Letters letters_;
};

}  // namespace veyruna::drawing
