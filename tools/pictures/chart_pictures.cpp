#include "tools/pictures/chart_pictures.h"

#include <QPainter>
#include <optional>

#include "documents/documents.h"
#include "drawing/picture_painter.h"
#include "drawing/svg_reader.h"
#include "tools/pictures/evenings.h"

namespace veyruna::pictures {

namespace {

using documents::Document;

/// A numbered disc at a point of the chart, with a line to what it means where it has one.
struct Mark {
  const char* label;
  QPointF at;
  std::optional<QPointF> to = std::nullopt;
};
using Marks = std::vector<Mark>;

const QColor markColor(0xb8, 0x45, 0x00);

void paintMark(QPainter& painter, const Mark& mark) {
  if (mark.to) {
    painter.setPen(QPen(markColor, 1.0));
    painter.drawLine(mark.at, *mark.to);
  }
  constexpr double radius = 5.5;
  painter.setPen(QPen(Qt::white, 0.8));
  painter.setBrush(markColor);
  painter.drawEllipse(mark.at, radius, radius);
  QFont type(QStringLiteral("Liberation Sans"));
  type.setPixelSize(7);
  type.setBold(true);
  type.setHintingPreference(QFont::PreferNoHinting);
  painter.setFont(type);
  painter.setPen(Qt::white);
  painter.drawText(QRectF(mark.at, QSizeF()).adjusted(-radius, -radius, radius, radius),
                   Qt::AlignCenter, QLatin1String(mark.label));
}

/// A part of a chart (its own units), so many pixels wide, with marks.
QImage pictureOf(Document document, const char* evening, const QRectF& part, int widthPixels,
                 const Marks& marks = {}) {
  const std::string svg = documents::textOf(document, eveningOf(evening).observer());
  drawing::Picture chart = drawing::readSvg(QByteArray::fromStdString(svg));
  chart.viewBox = part;
  QImage image(widthPixels, qRound(widthPixels * part.height() / part.width()),
               QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF target(image.rect());
  drawing::PicturePainter().paint(painter, chart, target, drawing::Medium::pixels);
  painter.setTransform(drawing::PicturePainter::fitted(part, target));
  for (const Mark& mark : marks) {
    paintMark(painter, mark);
  }
  return image;
}

const Marks& starMapMarks() {
  static const Marks marks = {
      {"1", {195, 191}, {{181.5, 180}}},  {"2", {22, 304}, {{36, 289}}},
      {"3", {299, 14}, {{309, 19}}},      {"4", {320, 66}, {{313.5, 83}}},
      {"5", {281, 92}, {{289, 77}}},      {"6", {184, 97}, {{194.5, 87}}},
      {"7", {52, 136}, {{67, 135}}},      {"8", {224, 174}, {{233, 163}}},
      {"9", {164, 292}, {{177, 281}}},    {"10", {102, 8}},
      {"11", {196, 242}, {{188, 225.5}}},
  };
  return marks;
}

const Marks& wheelMarks() {
  static const Marks marks = {
      {"1", {104, 1}, {{108, 11}}},
      {"2", {366, 135.5}},
      {"3", {44, 105}, {{26.5, 110}}},
      {"4", {20, 60}, {{34, 74}}},
      {"5", {210, 366}, {{197, 357}}},
      {"6", {336, 203}, {{320, 197}}},
      {"7", {206, 166}, {{220.5, 177.5}}},
      {"8", {354, 79}, {{337, 89}}},
      {"9", {112, 365}, {{121, 352}}},
      {"10", {98, 176}, {{92, 167}}},
      {"11", {6, 39}},
      {"12", {34, 198}, {{47.5, 204}}},
  };
  return marks;
}

const Marks& panelMarks() {
  static const Marks marks = {
      {"1", {391, -2}},  {"2", {391, 48}},  {"3", {391, 98}},  {"4", {391, 168}},
      {"5", {391, 198}}, {"6", {391, 288}}, {"a", {513, 98}},  {"b", {663, 98}},
      {"c", {508, 198}}, {"d", {560, 198}}, {"e", {653, 198}},
  };
  return marks;
}

}  // namespace

Pictures chartPictures() {
  const auto manual = [](const char* name) { return QStringList(inManual(QLatin1String(name))); };
  const auto readme = [](const char* name) { return QStringList(inReadme(QLatin1String(name))); };
  return {
      {readme("star-map"), pictureOf(Document::starMap, "first-tour", {0, 0, 360, 360}, 1000)},
      {readme("horoscope"), pictureOf(Document::horoscope, "wheel", {-10, -10, 720, 380}, 1440)},
      {manual("star-map-parts"),
       pictureOf(Document::starMap, "first-tour", {0, 0, 360, 360}, 900, starMapMarks())},
      {manual("wheel-parts"),
       pictureOf(Document::horoscope, "wheel", {-10, -12, 384, 384}, 900, wheelMarks())},
      {manual("panel-parts"),
       pictureOf(Document::horoscope, "first-tour", {380, -14, 344, 386}, 900, panelMarks())},
      {manual("wheel-black-and-white"),
       pictureOf(Document::horoscopeOnPaper, "wheel", partOf("wheel-by-half"), 512)},
  };
}

}  // namespace veyruna::pictures
