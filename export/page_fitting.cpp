// A page of w points is w · 4/3 CSS pixels wide in print; a zoom of 4/3 therefore makes one CSS
// pixel one point.
#include "export/page_fitting.h"

#include <QMarginsF>
#include <QPageSize>
#include <QVariantList>
#include <array>
#include <cmath>
#include <string>

#include "astro/number_text.h"

namespace veyruna::exports {

namespace {

constexpr double pixelsPerPoint = 4.0 / 3.0;

// In a body one pixel wide every line is as wide as its longest unbreakable piece. It is measured
// ten times as large, since on a screen the widths of letters may be rounded to whole pixels.
const QString script = QStringLiteral(R"((function (pageWidth, pixelsPerPoint) {
  const enlarged = 10, linesUnderHeading = 4;
  const root = document.documentElement, body = document.body;
  const computed = getComputedStyle(body);
  const beside = parseFloat(computed.marginRight) + parseFloat(computed.paddingRight);
  const above = parseFloat(computed.paddingTop), below = parseFloat(computed.paddingBottom);
  const style = root.style.cssText;
  root.style.zoom = enlarged;
  root.style.width = '1px';
  const needed = root.scrollWidth / enlarged + beside;
  root.style.cssText = style;
  const zoom = Math.min(pixelsPerPoint, pageWidth / needed);
  root.style.zoom = zoom;
  body.style.paddingTop = body.style.paddingBottom = 0;
  for (const heading of document.querySelectorAll('h2')) {
    const table = heading.nextElementSibling;
    if (table === null || table.tagName !== 'PRE') {
      continue;
    }
    const lines = table.textContent.split('\n');
    const first = table.cloneNode();
    first.textContent = lines.slice(0, linesUnderHeading).join('\n');
    table.textContent = lines.slice(linesUnderHeading).join('\n');
    const unbroken = document.createElement('div');
    unbroken.style.breakInside = 'avoid';
    heading.before(unbroken);
    unbroken.append(heading, first);
  }
  return [above * zoom / pixelsPerPoint, below * zoom / pixelsPerPoint];
})(%1, %2))");

/// A point or a comma must not hang on the locale.
QString numberText(double number) {
  return QString::fromStdString(astro::shortestText(number));
}

}  // namespace

QString fittingScript(const QSizeF& pageSizePoints) {
  return script.arg(numberText(pageSizePoints.width() * pixelsPerPoint),
                    numberText(pixelsPerPoint));
}

std::optional<QPageLayout> fittedLayout(const QSizeF& pageSizePoints,
                                        const QVariant& scriptAnswer) {
  const QVariantList numbers = scriptAnswer.toList();
  const QPageSize pageSize(pageSizePoints, QPageSize::Point, QStringLiteral("page"),
                           QPageSize::ExactMatch);
  if (numbers.size() < 2 || pageSizePoints.isEmpty() || !pageSize.isValid()) {
    return std::nullopt;
  }
  return QPageLayout(pageSize, QPageLayout::Portrait,
                     QMarginsF(0.0, numbers.at(0).toDouble(), 0.0, numbers.at(1).toDouble()),
                     QPageLayout::Point);
}

}  // namespace veyruna::exports
