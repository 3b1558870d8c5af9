#include "export/pdf_document.h"

#include <QBuffer>
#include <QHash>
#include <QPainter>
#include <QPdfWriter>

namespace veyruna::exports {

namespace {

/// Qt writes the fonts of a PDF in the order of a hash, which differs from process to process. From
/// the first PDF on it is always the same: several are made side by side, so none may end it.
void keepFontsInOneOrder() {
  [[maybe_unused]] static const bool isKept = [] {
    QHashSeed::setDeterministicGlobalSeed();
    return true;
  }();
}

}  // namespace

QByteArray pdfDocument(const PdfInformation& information, const QSizeF& pageSizePoints,
                       const std::function<void(QPainter& painter, QPdfWriter& writer)>& paint) {
  keepFontsInOneOrder();
  constexpr int pointsPerInch = 72;
  constexpr int dotsPerPoint = 10;  // as fine as a printer draws
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(information.title);
  writer.setCreator(information.program);
  writer.setResolution(pointsPerInch * dotsPerPoint);
  writer.setPageSize(QPageSize(pageSizePoints, QPageSize::Point, QString(), QPageSize::ExactMatch));
  writer.setPageMargins(QMarginsF());
  QPainter painter(&writer);
  painter.scale(dotsPerPoint, dotsPerPoint);
  paint(painter, writer);
  painter.end();
  return bytes;
}

}  // namespace veyruna::exports
