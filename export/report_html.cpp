#include "export/report_html.h"

#include <QStringList>
#include <vector>

#include "export/file_names.h"
#include "reports/positions.h"

namespace veyruna::exports {

namespace {

const QString chartHead = QStringLiteral(R"(<!DOCTYPE html>
<html>
<head>
<meta charset="utf-8">
<style>
html, body { margin: 0; padding: 0; width: 100%; height: 100%; background: transparent; }
svg { display: block; width: 100%; height: 100%; }
</style>
</head>
<body>
)");

const QString reportHead = QStringLiteral(R"(<!DOCTYPE html>
<html>
<head>
<meta charset="utf-8">
<style>
body { font-family: -apple-system, "Helvetica Neue", sans-serif; color: #1a1a1a; padding: 28px; margin: 0; }
h1 { font-size: 18px; margin: 0 0 4px 0; }
.meta { font-size: 10px; color: #666; margin-bottom: 18px; white-space: pre-wrap; }
h2 { font-size: 12px; margin: 14px 0 4px 0; color: #444; }
pre { font-family: "Menlo", "Courier New", monospace; font-size: 9px; line-height: 1.25; margin: 0; }
</style>
</head>
<body>
<h1>)");

const QString closing = QStringLiteral("\n</body>\n</html>");

QString sectionHtml(const ReportSection& section) {
  return QStringLiteral("<h2>") + escaped(section.heading) + QStringLiteral("</h2>\n<pre>") +
         escaped(section.body) + QStringLiteral("</pre>");
}

QString dashed(const ReportSection& section) {
  return QStringLiteral("— ") + section.heading + QStringLiteral(" —\n\n") + section.body;
}

}  // namespace

QString escaped(QString text) {
  return text.replace(u'&', QStringLiteral("&amp;"))
      .replace(u'<', QStringLiteral("&lt;"))
      .replace(u'>', QStringLiteral("&gt;"));
}

QString chartPage(const QString& svg) {
  return chartHead + svg + closing;
}

QString reportDocument(const QString& title, const QString& meta,
                       const QList<ReportSection>& sections) {
  QStringList parts;
  for (const ReportSection& section : sections) {
    parts.append(sectionHtml(section));
  }
  return reportHead + escaped(title) + QStringLiteral("</h1>\n<div class=\"meta\">") +
         escaped(meta) + QStringLiteral("</div>\n") + parts.join(u'\n') + closing;
}

QString metaText(const model::AstronomyModel& model) {
  return model.dateLabel() + QStringLiteral("   ") + placeText(model, u"  ");
}

QString positionsTableText(const QList<model::BodyPosition>& positions) {
  std::vector<reports::PositionRow> rows;
  for (const model::BodyPosition& body : positions) {
    rows.push_back({body.name.toStdString(), body.bodyType.toStdString(),
                    body.azimuth.toStdString(), body.altitude.toStdString(),
                    body.ecLong.toStdString(), body.sign.toStdString()});
  }
  return QString::fromStdString(reports::positionsTableText(rows));
}

QString joinedTables(const ReportSection& first, const ReportSection& second) {
  return dashed(first) + QStringLiteral("\n\n") + dashed(second);
}

}  // namespace veyruna::exports
