#pragma once

#include <QByteArray>
#include <QSizeF>

#include "export/pdf_document.h"

namespace veyruna::exports {

/// A chart on one page of this size in points, as large as fits, its texts to be searched and
/// copied. Throws drawing::PictureError where the SVG is no chart; an empty text is an empty page.
QByteArray chartPdf(const QByteArray& svg, const QSizeF& pageSizePoints,
                    const PdfInformation& information);

/// The same as a PNG picture on white, so many pixels wide, as high as the page's shape asks.
/// Throws std::runtime_error too where there is no memory for it.
QByteArray chartPng(const QByteArray& svg, const QSizeF& pageSizePoints, int widthPixels);

}  // namespace veyruna::exports
