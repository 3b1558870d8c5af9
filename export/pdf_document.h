#pragma once

#include <QByteArray>
#include <QSizeF>
#include <QString>
#include <functional>

class QPainter;
class QPdfWriter;

namespace veyruna::exports {

/// What a PDF says of itself to whoever lists or searches it.
struct PdfInformation {
  QString title;
  QString program;  ///< what made it
};

/// A PDF whose pages have this size in points. `paint` gets a painter that counts in points from
/// the first page's top-left corner, and the writer, which begins further pages. Fonts are
/// embedded. But for the date of its making the bytes are the same for the same content.
QByteArray pdfDocument(const PdfInformation& information, const QSizeF& pageSizePoints,
                       const std::function<void(QPainter& painter, QPdfWriter& writer)>& paint);

}  // namespace veyruna::exports
