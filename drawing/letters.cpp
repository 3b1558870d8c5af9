#include "drawing/letters.h"

#include <QFont>
#include <QGlyphRun>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <limits>

namespace veyruna::drawing {

namespace {

/// More than the texts and letters of any chart; a sky that moves through time brings ever new
/// ones.
constexpr std::size_t mostKept = 1000;
/// A window that is being resized asks for ever new sizes.
constexpr std::size_t mostFonts = 100;

/// What is kept under a key, made by `make` where it is not there yet.
template <class Kept, class Key, class Make>
const auto& keptOrMade(Kept& kept, const Key& key, std::size_t most, Make make) {
  if (const auto known = kept.find(key); known != kept.end()) {
    return known->second;
  }
  if (kept.size() >= most) {
    kept.clear();
  }
  return kept.emplace(key, make()).first->second;
}

QFont fontOf(const Face& face) {
  QFont font(face.family);
  font.setBold(face.isBold);
  font.setPixelSize(static_cast<int>(unitsPerEm));
  font.setHintingPreference(QFont::PreferVerticalHinting);
  return font;
}

}  // namespace

const GlyphRow& Letters::row(const QString& text) {
  return keptOrMade(rows_, text, mostKept, [&] { return set(text); });
}

const QPainterPath& Letters::outline(int face, quint32 index) {
  return keptOrMade(outlines_, std::pair(face, index), mostKept,
                    [&] { return faces_[static_cast<std::size_t>(face)].pathForGlyph(index); });
}

const QRawFont& Letters::font(int face, double pixelSize) {
  return keptOrMade(fonts_, std::pair(face, pixelSize), mostFonts, [&] {
    QRawFont sized = faces_[static_cast<std::size_t>(face)];
    sized.setPixelSize(pixelSize);
    return sized;
  });
}

void Letters::draw(QPainter& painter, const GlyphRow& row, QPointF begin, double size,
                   const QColor& color) {
  painter.setPen(color);
  std::size_t at = 0;
  while (at < row.glyphs.size()) {
    const int face = row.glyphs[at].face;
    QList<quint32> indexes;
    QList<QPointF> positions;
    for (; at < row.glyphs.size() && row.glyphs[at].face == face; ++at) {
      indexes.append(row.glyphs[at].index);
      positions.append({row.glyphs[at].at * size / unitsPerEm, 0.0});
    }
    QGlyphRun run;
    run.setRawFont(font(face, size));
    run.setGlyphIndexes(indexes);
    run.setPositions(positions);
    painter.drawGlyphRun(begin, run);
  }
}

GlyphRow Letters::set(const QString& text) {
  QTextLayout layout(text, fontOf(face_));
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setNumColumns(std::numeric_limits<int>::max());
  layout.endLayout();

  GlyphRow row;
  row.width = line.naturalTextWidth();
  for (const QGlyphRun& run : layout.glyphRuns()) {
    const int face = numberOf(run.rawFont());
    const QList<quint32> indexes = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    for (qsizetype i = 0; i < indexes.size(); ++i) {
      row.glyphs.push_back({face, indexes[i], positions[i].x(), 0.0});
    }
  }
  std::sort(row.glyphs.begin(), row.glyphs.end(),
            [](const GlyphRow::Glyph& a, const GlyphRow::Glyph& b) { return a.at < b.at; });
  for (std::size_t i = 0; i < row.glyphs.size(); ++i) {
    const double next = i + 1 < row.glyphs.size() ? row.glyphs[i + 1].at : row.width;
    row.glyphs[i].advance = next - row.glyphs[i].at;
  }
  return row;
}

int Letters::numberOf(const QRawFont& face) {
  const auto known = std::find(faces_.begin(), faces_.end(), face);
  if (known != faces_.end()) {
    return static_cast<int>(known - faces_.begin());
  }
  faces_.push_back(face);
  return static_cast<int>(faces_.size()) - 1;
}

}  // namespace veyruna::drawing
