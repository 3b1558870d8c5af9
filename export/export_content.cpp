#include "export/export_content.h"

#include "export/file_names.h"
#include "export/report_html.h"

namespace veyruna::exports {

namespace {

using model::AstronomyModel;

constexpr QSizeF starMapPoints(720, 720);
constexpr QSizeF horoscopePoints(1440, 760);
constexpr QSizeF letterPoints(612, 792);

/// What the tab's files are called; its title says something else for one of them.
QString namePrefix(OutputTab tab) {
  return tab == OutputTab::planets ? QStringLiteral("Planets") : title(tab);
}

QString chartSvg(const AstronomyModel& model, OutputTab tab) {
  return tab == OutputTab::starMap ? model.starMapSVG() : model.horoscopeSVG();
}

QString planetsReport(const AstronomyModel& model) {
  return reportDocument(QStringLiteral("Planet Positions"), metaText(model),
                        {{QStringLiteral("Positions"), positionsTableText(model.positions())}});
}

QString sunMoonReport(const AstronomyModel& model) {
  return reportDocument(QStringLiteral("Sun & Moon"), metaText(model),
                        {{QStringLiteral("Hourly"), model.basicTableHourly()},
                         {QStringLiteral("Monthly"), model.basicTableMonthly()}});
}

/// The files are named after the tab, the report after what it holds.
QString conjunctionReport(const AstronomyModel& model) {
  return reportDocument(QStringLiteral("Conjunctions"), metaText(model),
                        {{QStringLiteral("Daily"), model.conjunctionDaily()},
                         {QStringLiteral("Yearly"), model.conjunctionYearly()}});
}

QString tablesText(const AstronomyModel& model, OutputTab tab) {
  switch (tab) {
    case OutputTab::sunMoon:
      return joinedTables({QStringLiteral("Hourly"), model.basicTableHourly()},
                          {QStringLiteral("Monthly"), model.basicTableMonthly()});
    case OutputTab::positions:
      return joinedTables({QStringLiteral("Daily Conjunctions"), model.conjunctionDaily()},
                          {QStringLiteral("Yearly Conjunctions"), model.conjunctionYearly()});
    default:
      return positionsTableText(model.positions());
  }
}

}  // namespace

std::optional<PdfExport> pdfExport(const AstronomyModel& model, OutputTab tab) {
  const auto exported = [&](const QString& html, QSizeF pageSizePoints) {
    return PdfExport{html, pageSizePoints, proposedFileName(model, namePrefix(tab), u"pdf"),
                     QStringLiteral("Choose where to save the PDF file")};
  };
  switch (tab) {
    case OutputTab::starMap:
      return exported(chartPage(chartSvg(model, tab)), starMapPoints);
    case OutputTab::horoscope:
      return exported(chartPage(chartSvg(model, tab)), horoscopePoints);
    case OutputTab::planets:
      return exported(planetsReport(model), letterPoints);
    case OutputTab::sunMoon:
      return exported(sunMoonReport(model), letterPoints);
    case OutputTab::positions:
      return exported(conjunctionReport(model), letterPoints);
    case OutputTab::location:
      return std::nullopt;
  }
  return std::nullopt;
}

std::optional<NativeExport> nativeExport(const AstronomyModel& model, OutputTab tab) {
  if (tab == OutputTab::location) {
    return std::nullopt;
  }
  if (isChart(tab)) {
    return NativeExport{chartSvg(model, tab), NativeFormat::svg, QStringLiteral("svg"),
                        proposedFileName(model, namePrefix(tab), u"svg"),
                        QStringLiteral("Choose where to save the SVG file")};
  }
  return NativeExport{tablesText(model, tab), NativeFormat::text, QStringLiteral("txt"),
                      proposedFileName(model, namePrefix(tab), u"txt"),
                      QStringLiteral("Choose where to save the text file")};
}

}  // namespace veyruna::exports
