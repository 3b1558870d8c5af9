#include "ui/controls/wrapped_label.h"

#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace veyruna::ui {

namespace {

constexpr int usualCharacters = 40;  // in a line, where nothing else says how wide
constexpr int leastCharacters = 8;

}  // namespace

WrappedLabel::WrappedLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
}

QSize WrappedLabel::sizeHint() const {
  const int usual = usualCharacters * fontMetrics().averageCharWidth();
  const int width = std::min(usual, fontMetrics().size(0, text()).width() + 1);
  return {width, heightForWidth(width)};
}

QSize WrappedLabel::minimumSizeHint() const {
  return {leastCharacters * fontMetrics().averageCharWidth(), heightForWidth(QWIDGETSIZE_MAX)};
}

int WrappedLabel::heightForWidth(int width) const {
  QTextLayout lines;
  return layOut(lines, width);  // of no text, one line
}

int WrappedLabel::layOut(QTextLayout& lines, int width) const {
  QTextOption option(Qt::AlignLeft);
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  lines.setTextOption(option);
  lines.setFont(font());
  // A line break of the text is one for the layout too.
  lines.setText(text().replace(QLatin1Char('\n'), QChar::LineSeparator));
  double height = 0.0;
  lines.beginLayout();
  for (QTextLine line = lines.createLine(); line.isValid(); line = lines.createLine()) {
    line.setLineWidth(std::max(width, 1));
    line.setPosition(QPointF(0.0, height));
    height += line.height();
  }
  lines.endLayout();
  return static_cast<int>(std::ceil(height));
}

void WrappedLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  QTextLayout lines;
  layOut(lines, width());
  lines.draw(&painter, QPointF());
}

}  // namespace veyruna::ui
