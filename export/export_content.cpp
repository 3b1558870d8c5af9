#include "export/export_content.h"

#include <QStringList>

#include "export/chart_files.h"
#include "export/chart_page.h"
#include "export/file_names.h"
#include "export/report_page.h"
#include "export/report_pages.h"

namespace veyruna::exports {

namespace {

using model::AstronomyModel;

/// A kind of file.
struct FileType {
  QStringView extension;
  QStringView message;
};
constexpr FileType pdfFile{u"pdf", u"Choose where to save the PDF file"};
constexpr FileType svgFile{u"svg", u"Choose where to save the SVG file"};
constexpr FileType textFile{u"txt", u"Choose where to save the text file"};

/// The chart of a tab that has one.
QString chartSvg(const AstronomyModel& model, const TabEntry& tab) {
  return model.text(tab.sections.front().document);
}

Report reportOf(const AstronomyModel& model, const TabEntry& tab) {
  Report report{tab.reportTitle.toString(), metaText(model), {}};
  for (const TabSection& section : tab.sections) {
    report.sections.append({heading(section.document), model.text(section.document),
                            documents::entryOf(section.document).columnHeadingLines});
  }
  return report;
}

/// One table as it is; several under their headings between em dashes.
QString tablesText(const AstronomyModel& model, const TabEntry& tab) {
  if (tab.sections.size() == 1) {
    return model.text(tab.sections.front().document);
  }
  QStringList tables;
  for (const auto& [document, ownHeading] : tab.sections) {
    const QString shown = ownHeading.isEmpty() ? heading(document) : ownHeading.toString();
    tables.append(QStringLiteral("— ") + shown + QStringLiteral(" —\n\n") + model.text(document));
  }
  return tables.join(QStringLiteral("\n\n"));
}

}  // namespace

QString metaText(const AstronomyModel& model) {
  return model.dateLabel() + QStringLiteral("   ") + inputPlaceText(model, u"  ");
}

std::optional<PdfExport> pdfExport(const AstronomyModel& model, OutputTab tab) {
  const TabEntry& entry = entryOf(tab);
  if (entry.sections.empty()) {
    return std::nullopt;
  }
  const QString what = isChart(tab) ? title(tab) : entry.reportTitle.toString();
  PdfExport document;
  document.tab = tab;
  if (isChart(tab)) {
    document.svg = chartSvg(model, entry);
  } else {
    document.report = reportOf(model, entry);
  }
  document.pageSizePoints = entry.pageSizePoints;
  document.information = {what + QStringLiteral(", ") + model.dateLabel(),
                          QStringLiteral("Veyruna Astro " VEYRUNA_VERSION)};
  document.proposedName = proposedFileName(model, entry.filePrefix, pdfFile.extension);
  document.message = pdfFile.message.toString();
  return document;
}

QByteArray pdfOf(const PdfExport& document) {
  return isChart(document.tab)
             ? chartPdf(document.svg.toUtf8(), document.pageSizePoints, document.information)
             : reportPdf(document.report, document.information);
}

QString htmlOf(const PdfExport& document) {
  return isChart(document.tab) ? chartPage(document.svg) : reportDocument(document.report);
}

std::optional<NativeExport> nativeExport(const AstronomyModel& model, OutputTab tab) {
  const TabEntry& entry = entryOf(tab);
  if (entry.sections.empty()) {
    return std::nullopt;
  }
  const bool isSvg = isChart(tab);
  const FileType& type = isSvg ? svgFile : textFile;
  return NativeExport{isSvg ? chartSvg(model, entry) : tablesText(model, entry),
                      isSvg ? NativeFormat::svg : NativeFormat::text, type.extension.toString(),
                      proposedFileName(model, entry.filePrefix, type.extension),
                      type.message.toString()};
}

}  // namespace veyruna::exports
