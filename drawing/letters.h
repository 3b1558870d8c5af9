#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPointF>
#include <QRawFont>
#include <QString>
#include <map>
#include <utility>
#include <vector>

class QPainter;

namespace veyruna::drawing {

/// Text is set once at this many units to the em, so that it keeps its proportions at every size.
inline constexpr double unitsPerEm = 1000.0;

/// The glyphs of a text in a row, kerned; lengths in units of the em's thousandth.
struct GlyphRow {
  struct Glyph {
    int face = 0;  ///< a name may need letters that the first face lacks
    quint32 index = 0;
    double at = 0.0;  ///< its origin on the base line
    double advance = 0.0;
  };
  std::vector<Glyph> glyphs;
  double width = 0.0;
};

/// A type by its family's name; where that is missing, what the desktop has stand in for it.
struct Face {
  QString family = QStringLiteral("Arial");  ///< the charts'
  bool isBold = false;
};

/// A type at work: texts as glyphs, glyphs as outlines or as fonts of a size. Keeps what it has
/// worked out. For one thread at a time.
class Letters {
 public:
  explicit Letters(Face face = {}) : face_(std::move(face)) {}

  /// The reference holds until the next call.
  const GlyphRow& row(const QString& text);

  /// A glyph's outline at unitsPerEm, y downward.
  const QPainterPath& outline(int face, quint32 index);

  /// The face at a size in pixels, its letters fitted to the rows of pixels as they stand.
  const QRawFont& font(int face, double pixelSize);

  /// Draws a row from a point of the base line at a size, both in the painter's units; on a
  /// document to be printed it stays text.
  void draw(QPainter& painter, const GlyphRow& row, QPointF begin, double size,
            const QColor& color);

 private:
  [[nodiscard]] GlyphRow set(const QString& text);
  int numberOf(const QRawFont& face);

  Face face_;
  std::vector<QRawFont> faces_;
  std::map<QString, GlyphRow> rows_;
  std::map<std::pair<int, quint32>, QPainterPath> outlines_;
  std::map<std::pair<int, double>, QRawFont> fonts_;
};

}  // namespace veyruna::drawing
