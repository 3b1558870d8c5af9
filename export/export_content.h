#pragma once

#include <QSizeF>
#include <QString>
#include <optional>

#include "export/output_tab.h"
#include "export/pdf_document.h"
#include "export/report.h"
#include "model/astronomy_model.h"

/// What is saved, as values: they hold what was on screen when the command was chosen, whatever
/// the model shows by the time a place on disk has been found.
namespace veyruna::exports {

/// A document to be printed.
struct PdfExport {
  OutputTab tab = OutputTab::count;
  QString svg;    ///< of a tab that shows a chart
  Report report;  ///< of a tab that shows tables
  QSizeF pageSizePoints;
  PdfInformation information;
  QString proposedName;
  QString message;  ///< what the save dialog asks
};

/// The PDF file. Throws drawing::PictureError where a chart cannot be read.
QByteArray pdfOf(const PdfExport& document);

/// The same as a page of HTML that needs no other file.
QString htmlOf(const PdfExport& document);

/// What a native file holds.
enum class NativeFormat { svg, text };

/// A text to be saved as it is.
struct NativeExport {
  QString text;
  NativeFormat format;
  QString extension;  ///< "svg" or "txt"
  QString proposedName;
  QString message;  ///< what the save dialog asks
};

/// The small line of a report: the moment of the last calculation, three blanks, and the place of
/// the inputs.
QString metaText(const model::AstronomyModel& model);

/// What the tab saves as PDF; nothing for the location. Before the first calculation the documents
/// are empty.
std::optional<PdfExport> pdfExport(const model::AstronomyModel& model, OutputTab tab);

/// What the tab saves as it is: a chart as SVG, tables as text; nothing for the location.
std::optional<NativeExport> nativeExport(const model::AstronomyModel& model, OutputTab tab);

}  // namespace veyruna::exports
