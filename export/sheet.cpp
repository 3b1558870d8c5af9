#include "export/sheet.h"

#include <algorithm>
#include <cmath>

#include "astro/invariant.h"
#include "export/chart_files.h"
#include "export/chart_page.h"
#include "export/report_page.h"
#include "export/report_pages.h"
#include "export/said_text.h"

namespace veyruna::exports {

namespace {

using documents::Document;
using documents::Form;

PdfInformation informationOf(const QString& title, const SheetSky& sky) {
  return {title + QStringLiteral(", ") + sky.date,
          QStringLiteral("Veyruna Astro " VEYRUNA_VERSION)};
}

/// The tab that shows a document; null where none does.
const TabEntry* tabShowing(Document document) {
  // The same tab shows the horoscope in either look.
  const Document shown = document == Document::horoscopeOnPaper ? Document::horoscope : document;
  const auto* const found = std::ranges::find_if(allTabs, [shown](const TabEntry& tab) {
    return std::ranges::count(tab.sections, shown, &TabSection::document) > 0;
  });
  return found == allTabs.end() ? nullptr : found;
}

}  // namespace

QString metaText(const SheetSky& sky) {
  return sky.date + QStringLiteral("   ") + sky.place;
}

Sheet chartSheet(const TabEntry& tab, const QString& svg, const SheetSky& sky) {
  return {.isChart = true,
          .svg = svg,
          .report = {},
          .pageSizePoints = tab.pageSizePoints,
          .information = informationOf(tab.title.toString(), sky)};
}

Sheet reportSheet(const QString& title, const QList<ReportSection>& sections, const SheetSky& sky) {
  return {.isChart = false,
          .svg = {},
          .report = {title, metaText(sky), sections},
          .pageSizePoints = reportPageSizePoints,
          .information = informationOf(title, sky)};
}

Sheet documentSheet(Document document, const QString& heading, const QString& text,
                    const SheetSky& sky) {
  const documents::Entry& entry = documents::entryOf(document);
  const TabEntry* const tab = tabShowing(document);
  if (entry.kind == documents::Kind::chart) {
    astro::requireInvariant(tab != nullptr, "every chart has its tab");
    return chartSheet(*tab, text, sky);
  }
  return reportSheet(tab == nullptr ? saidText(entry.heading) : tab->reportTitle.toString(),
                     {{heading, text, entry.columnHeadingLines}}, sky);
}

QByteArray bytesOf(const Sheet& sheet, Form form, int widthPixels) {
  switch (form) {
    case Form::html:
      return htmlOf(sheet).toUtf8();
    case Form::pdf:
      return pdfOf(sheet);
    case Form::png:
      if (sheet.isChart) {
        const auto pageWidth = static_cast<int>(std::lround(sheet.pageSizePoints.width()));
        return chartPng(sheet.svg.toUtf8(), sheet.pageSizePoints,
                        widthPixels == 0 ? pageWidth : widthPixels);
      }
      [[fallthrough]];
    case Form::svg:
    case Form::text:
    case Form::json:
    case Form::jsonl:
    case Form::csv:
    case Form::count:
      break;
  }
  astro::stopOnBrokenInvariant("a sheet is made into a form that it can have");
}

QString htmlOf(const Sheet& sheet) {
  return sheet.isChart ? chartPage(sheet.svg) : reportDocument(sheet.report);
}

QByteArray pdfOf(const Sheet& sheet) {
  return sheet.isChart ? chartPdf(sheet.svg.toUtf8(), sheet.pageSizePoints, sheet.information)
                       : reportPdf(sheet.report, sheet.information);
}

}  // namespace veyruna::exports
