#include "export/chart_files.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <cmath>
#include <stdexcept>
#include <string>

#include "drawing/picture_painter.h"
#include "drawing/svg_reader.h"

namespace veyruna::exports {

using drawing::Medium;
using drawing::PicturePainter;

QByteArray chartPdf(const QByteArray& svg, const QSizeF& pageSizePoints,
                    const PdfInformation& information) {
  const drawing::Picture picture = drawing::readSvg(svg);
  return pdfDocument(information, pageSizePoints, [&](QPainter& painter, QPdfWriter& /*writer*/) {
    PicturePainter().paint(painter, picture, QRectF(QPointF(), pageSizePoints), Medium::page);
  });
}

QByteArray chartPng(const QByteArray& svg, const QSizeF& pageSizePoints, int widthPixels) {
  const drawing::Picture picture = drawing::readSvg(svg);
  const int height =
      static_cast<int>(std::lround(widthPixels * pageSizePoints.height() / pageSizePoints.width()));
  QImage image(widthPixels, height, QImage::Format_RGB32);
  if (image.isNull()) {
    throw std::runtime_error("there is no memory for a picture of " + std::to_string(widthPixels) +
                             " × " + std::to_string(height) + " pixels");
  }
  image.fill(Qt::white);
  QPainter painter(&image);
  PicturePainter().paint(painter, picture, image.rect(), Medium::pixels);
  painter.end();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return bytes;
}

}  // namespace veyruna::exports
