#include "export/report_page.h"

#include <QStringList>

namespace veyruna::exports {

namespace {

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

}  // namespace

QString escaped(QString text) {
  return text.replace(u'&', QStringLiteral("&amp;"))
      .replace(u'<', QStringLiteral("&lt;"))
      .replace(u'>', QStringLiteral("&gt;"));
}

QString reportDocument(const Report& report) {
  QStringList parts;
  for (const ReportSection& section : report.sections) {
    parts.append(sectionHtml(section));
  }
  return reportHead + escaped(report.title) + QStringLiteral("</h1>\n<div class=\"meta\">") +
         escaped(report.meta) + QStringLiteral("</div>\n") + parts.join(u'\n') + closing;
}

}  // namespace veyruna::exports
