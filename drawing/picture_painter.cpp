#include "drawing/picture_painter.h"

#include <QPaintDevice>
#include <algorithm>
#include <cmath>
#include <optional>

#include "astro/angle.h"

namespace veyruna::drawing {

namespace {

/// Qt's own circles are true enough for dots, and sooner drawn.
constexpr double largestDot = 10.0;

/// Paints the shapes of one picture; the painter counts in the picture's units.
class ShapePainter {
 public:
  ShapePainter(QPainter& painter, Letters& letters, Medium medium)
      : painter_(painter), letters_(letters), medium_(medium), inSight_(seenOf(painter, medium)) {}

  void operator()(const Circle& circle) {
    const bool isRing = circle.fill.alpha() == 0;
    if (!isInSight(squareAbout(circle.centre, circle.radius + circle.strokeWidth)) ||
        (isRing && isSightInside(circle.centre, circle.radius - circle.strokeWidth))) {
      return;
    }
    setColors(circle.fill, circle.stroke, circle.strokeWidth);
    drawCircle(circle.centre, circle.radius);
  }

  void operator()(const Line& line) {
    const double width = line.strokeWidth;
    if (!isInSight(
            QRectF(line.from, line.to).normalized().adjusted(-width, -width, width, width))) {
      return;
    }
    setColors(Qt::transparent, line.stroke, line.strokeWidth);
    painter_.drawLine(line.from, line.to);
  }

  void operator()(const Outline& outline) { painter_.fillPath(outline.path, outline.fill); }

  void operator()(const LevelText& text) {
    const GlyphRow& row = letters_.row(text.letters.text);
    const double perUnit = text.letters.size / unitsPerEm;
    const QPointF begin = text.at - QPointF(text.isCentred ? row.width * perUnit / 2.0 : 0.0, 0.0);
    const double size = text.letters.size;
    if (!isInSight(
            QRectF(begin, QSizeF(row.width * perUnit, 0.0)).adjusted(-size, -size, size, size))) {
      return;
    }
    if (medium_ == Medium::page) {
      letters_.draw(painter_, row, begin, text.letters.size, text.letters.fill);
    } else if (painter_.transform().type() <= QTransform::TxScale) {
      drawFitted(row, begin, text.letters);
    } else {
      for (const GlyphRow::Glyph& glyph : row.glyphs) {
        drawOutline(glyph,
                    QTransform(perUnit, 0, 0, perUnit, begin.x() + glyph.at * perUnit, begin.y()),
                    text.letters.fill);
      }
    }
  }

  void operator()(const BentText& text) {
    const GlyphRow& row = letters_.row(text.letters.text);
    const double perUnit = text.letters.size / unitsPerEm;
    const double radius = text.rim.radius;
    const double start = astro::radiansOf(text.rim.beginning) + text.startOffset * astro::twoPi;
    for (const GlyphRow::Glyph& glyph : row.glyphs) {
      // The middle of a letter lies on the rim, and the letter along the rim's direction there.
      const double angle = start + (glyph.at + glyph.advance / 2.0) * perUnit / radius;
      const QPointF at = text.rim.centre + radius * QPointF(std::cos(angle), std::sin(angle));
      if (!isInSight(squareAbout(at, 2.0 * text.letters.size))) {
        continue;
      }
      QTransform transform = QTransform::fromTranslate(text.rim.centre.x(), text.rim.centre.y());
      transform.rotateRadians(angle + astro::halfPi);
      transform.translate(-glyph.advance / 2.0 * perUnit, -radius);
      transform.scale(perUnit, perUnit);
      drawOutline(glyph, transform, text.letters.fill);
    }
    if (medium_ == Medium::page) {
      // Outlines cannot be searched: the whole name lies there too, unseen.
      const QPointF at = text.rim.centre + radius * QPointF(std::cos(start), std::sin(start));
      letters_.draw(painter_, row, at, text.letters.size, Qt::transparent);
    }
  }

  void operator()(const BeginRotated& rotated) {
    painter_.save();
    painter_.translate(rotated.centre);
    painter_.rotate(rotated.degrees);
    painter_.translate(-rotated.centre);
  }

  void operator()(const BeginClipped& clipped) {
    painter_.save();
    if (!isSightInside(clipped.centre, clipped.radius)) {
      painter_.setClipPath(circlePath(clipped.centre, clipped.radius), Qt::IntersectClip);
    }
  }

  void operator()(EndGroup /*end*/) { painter_.restore(); }

 private:
  /// What of the picture lies on the device, in its units; a page is drawn whole.
  static std::optional<QRectF> seenOf(const QPainter& painter, Medium medium) {
    if (medium == Medium::page) {
      return std::nullopt;
    }
    const QPaintDevice& device = *painter.device();
    // Widgets are measured in points, all else in pixels.
    const double pixels = device.devType() == QInternal::Widget ? device.devicePixelRatioF() : 1.0;
    return painter.deviceTransform().inverted().mapRect(
        QRectF(0.0, 0.0, device.width() * pixels, device.height() * pixels));
  }

  static QRectF squareAbout(QPointF middle, double reach) {
    return {middle - QPointF(reach, reach), middle + QPointF(reach, reach)};
  }

  /// Whether something with these bounds may be seen. What is turned is not asked for.
  [[nodiscard]] bool isInSight(const QRectF& bounds) const {
    return !inSight_ || painter_.transform().type() > QTransform::TxScale ||
           inSight_->intersects(bounds);
  }

  /// Whether all that is in sight lies inside the circle.
  [[nodiscard]] bool isSightInside(QPointF centre, double radius) const {
    const auto isInside = [&](QPointF corner) {
      return std::hypot(corner.x() - centre.x(), corner.y() - centre.y()) < radius;
    };
    return inSight_ && isInside(inSight_->topLeft()) && isInside(inSight_->topRight()) &&
           isInside(inSight_->bottomLeft()) && isInside(inSight_->bottomRight());
  }

  void setColors(const QColor& fill, const QColor& stroke, double strokeWidth) {
    painter_.setBrush(fill.alpha() == 0 ? QBrush(Qt::NoBrush) : QBrush(fill));
    painter_.setPen(stroke.alpha() == 0 || strokeWidth <= 0.0
                        ? QPen(Qt::NoPen)
                        : QPen(stroke, strokeWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  }

  void drawCircle(QPointF centre, double radius) {
    if (radius > largestDot) {
      painter_.drawPath(circlePath(centre, radius));
    } else {
      painter_.drawEllipse(centre, radius, radius);
    }
  }

  void drawOutline(const GlyphRow::Glyph& glyph, const QTransform& place, const QColor& fill) {
    const QTransform before = painter_.transform();
    painter_.setTransform(place, true);
    painter_.fillPath(letters_.outline(glyph.face, glyph.index), fill);
    painter_.setTransform(before);
  }

  /// Letters fitted to rows of pixels: set in the device's own pixels.
  void drawFitted(const GlyphRow& row, QPointF begin, const Lettering& letters) {
    const QTransform toPixels = painter_.deviceTransform();
    const QPointF at = toPixels.map(begin);
    const double pixelSize = letters.size * toPixels.m11();
    const QTransform before = painter_.worldTransform();
    const double ratio = painter_.device()->devicePixelRatioF();
    painter_.setWorldTransform(QTransform::fromScale(1.0 / ratio, 1.0 / ratio));
    letters_.draw(painter_, row, at, pixelSize, letters.fill);
    painter_.setWorldTransform(before);
  }

  QPainter& painter_;
  Letters& letters_;
  Medium medium_;
  std::optional<QRectF> inSight_;
};

}  // namespace

QTransform PicturePainter::fitted(const QRectF& viewBox, const QRectF& target) {
  const double scale =
      std::min(target.width() / viewBox.width(), target.height() / viewBox.height());
  const QPointF corner = target.center() - scale * viewBox.center();
  return {scale, 0.0, 0.0, scale, corner.x(), corner.y()};
}

void PicturePainter::paint(QPainter& painter, const Picture& picture, const QRectF& target,
                           Medium medium) {
  if (picture.viewBox.isEmpty() || target.isEmpty()) {
    return;
  }
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setTransform(fitted(picture.viewBox, target), true);
  ShapePainter shapes(painter, letters_, medium);
  for (const Shape& shape : picture.shapes) {
    std::visit(shapes, shape);
  }
  painter.restore();
}

}  // namespace veyruna::drawing
