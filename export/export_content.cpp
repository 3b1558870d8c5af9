#include "export/export_content.h"

#include <QStringList>

#include "export/chart_page.h"
#include "export/file_names.h"
#include "export/report_page.h"

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

QString headingOf(documents::Document document) {
  const std::string_view heading = documents::entryOf(document).heading;
  return QString::fromUtf8(heading.data(), static_cast<qsizetype>(heading.size()));
}

/// The chart of a tab that has one.
QString chartSvg(const AstronomyModel& model, const TabEntry& tab) {
  return model.text(tab.sections.front().document);
}

QString reportHtml(const AstronomyModel& model, const TabEntry& tab) {
  QList<ReportSection> sections;
  for (const TabSection& section : tab.sections) {
    sections.append({headingOf(section.document), model.text(section.document)});
  }
  return reportDocument(tab.reportTitle.toString(), metaText(model), sections);
}

/// One table as it is; several under their headings between em dashes.
QString tablesText(const AstronomyModel& model, const TabEntry& tab) {
  if (tab.sections.size() == 1) {
    return model.text(tab.sections.front().document);
  }
  QStringList tables;
  for (const auto& [document, ownHeading] : tab.sections) {
    const QString heading = ownHeading.isEmpty() ? headingOf(document) : ownHeading.toString();
    tables.append(QStringLiteral("— ") + heading + QStringLiteral(" —\n\n") + model.text(document));
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
  return PdfExport{isChart(tab) ? chartPage(chartSvg(model, entry)) : reportHtml(model, entry),
                   entry.pageSizePoints,
                   proposedFileName(model, entry.filePrefix, pdfFile.extension),
                   pdfFile.message.toString()};
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
