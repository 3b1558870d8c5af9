#pragma once

#include <QByteArray>
#include <QSizeF>
#include <QString>

#include "documents/forms.h"
#include "export/output_tab.h"
#include "export/pdf_document.h"
#include "export/report.h"

namespace veyruna::exports {

/// A chart, or tables on pages: one value, of which files of several forms are made.
struct Sheet {
  bool isChart = false;
  QString svg;    ///< of a chart
  Report report;  ///< of tables
  QSizeF pageSizePoints;
  PdfInformation information;
};

/// The moment and place that a sheet speaks of, in words.
struct SheetSky {
  QString date;
  QString place;
};

/// The small line of a report: the moment, three blanks, and the place.
QString metaText(const SheetSky& sky);

Sheet chartSheet(const TabEntry& tab, const QString& svg, const SheetSky& sky);
Sheet reportSheet(const QString& title, const QList<ReportSection>& sections, const SheetSky& sky);

/// A document by itself, as the tab that shows it has it; one that no tab shows under its own
/// heading. `heading` stands over a table or list.
Sheet documentSheet(documents::Document document, const QString& heading, const QString& text,
                    const SheetSky& sky);

/// What a file of the form holds; a PNG is so many pixels wide, or as its page has points where
/// that is 0. Throws std::runtime_error where a chart cannot be read, or where there is no memory
/// for its pixels. A form that the sheet cannot have, and its own text, is a broken invariant.
QByteArray bytesOf(const Sheet& sheet, documents::Form form, int widthPixels = 0);

/// The same as a page of HTML that needs no other file.
QString htmlOf(const Sheet& sheet);

/// And as a PDF.
QByteArray pdfOf(const Sheet& sheet);

}  // namespace veyruna::exports
