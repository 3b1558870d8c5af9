#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <variant>
#include <vector>

/// A chart as a flat list of shapes, painted in this order. Lengths are the chart's own units, y
/// points down, angles are degrees clockwise as on the page. A colour without alpha is not drawn.
namespace veyruna::drawing {

struct Circle {
  QPointF centre;
  double radius = 0.0;
  QColor fill = Qt::transparent;
  QColor stroke = Qt::transparent;
  double strokeWidth = 1.0;
};

struct Line {
  QPointF from;
  QPointF to;
  QColor stroke = Qt::transparent;  ///< with its opacity as alpha
  double strokeWidth = 1.0;
};

struct Outline {
  QPainterPath path;
  QColor fill = Qt::transparent;
};

/// What all lettering has. The type is always Arial, or what stands in for it.
struct Lettering {
  QString text;  ///< blanks collapsed
  QColor fill = Qt::transparent;
  double size = 0.0;
};

struct LevelText {
  Lettering letters;
  QPointF at;  ///< on the base line
  bool isCentred = false;
};

/// A circle that a text runs along, clockwise on the outside from its beginning and round again.
struct Rim {
  QPointF centre;
  double radius = 0.0;
  double beginning = 0.0;  ///< degrees clockwise from the right
};

struct BentText {
  Lettering letters;
  Rim rim;
  double startOffset = 0.0;  ///< turns from the rim's beginning
};

/// What follows, up to its EndGroup, is turned about a point.
struct BeginRotated {
  double degrees = 0.0;
  QPointF centre;
};

/// What follows, up to its EndGroup, is seen inside this circle alone.
struct BeginClipped {
  QPointF centre;
  double radius = 0.0;
};

struct EndGroup {};

using Shape =
    std::variant<Circle, Line, Outline, LevelText, BentText, BeginRotated, BeginClipped, EndGroup>;

struct Picture {
  QRectF viewBox;
  std::vector<Shape> shapes;
};

/// A circle true to 4e-6 of its radius, where Qt's own leaves it by 3e-4.
QPainterPath circlePath(QPointF centre, double radius);

}  // namespace veyruna::drawing
