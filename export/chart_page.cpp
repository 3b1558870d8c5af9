#include "export/chart_page.h"

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

const QString chartClosing = QStringLiteral("\n</body>\n</html>");

}  // namespace

QString chartPage(const QString& svg) {
  return chartHead + svg + chartClosing;
}

}  // namespace veyruna::exports
