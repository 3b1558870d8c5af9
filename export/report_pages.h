#pragma once

#include <QByteArray>
#include <QSizeF>

#include "export/pdf_document.h"
#include "export/report.h"

namespace veyruna::exports {

/// US Letter.
inline constexpr QSizeF reportPageSizePoints(612, 792);

/// A report on pages of that size: title and small line, then the tables under their headings, in
/// the sizes, colours and margins of its HTML form. Tables wider than the page are set smaller, all
/// alike. A table that goes on repeats its column headings; a page that goes on says of what; every
/// page of several has its number.
QByteArray reportPdf(const Report& report, const PdfInformation& information);

}  // namespace veyruna::exports
