#include "ui/charts/chart_view.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

#include "charts/mark_reading.h"
#include "ui/charts/accessible_chart.h"
#include "ui/charts/chart_copy.h"
#include "ui/charts/chart_menu.h"
#include "ui/charts/hit_test.h"
#include "ui/charts/page_points.h"
#include "ui/controls/plain_key.h"

namespace veyruna::ui {

namespace {

using charts::ChartMark;
using charts::MarkKind;

QStringList linesOf(const ChartMark& mark, const astro::Observer& observer) {
  QStringList lines;
  for (const std::string& line : charts::readOut(mark, observer)) {
    lines.append(QString::fromStdString(line));
  }
  return lines;
}

/// The mark that many places after this one, round and round.
const ChartMark* stepped(const std::vector<const ChartMark*>& marks, const ChartMark& from,
                         std::ptrdiff_t steps) {
  const auto here = std::ranges::find(marks, &from) - marks.begin();
  const auto count = static_cast<std::ptrdiff_t>(marks.size());
  return marks[static_cast<std::size_t>(((here + steps) % count + count) % count)];
}

}  // namespace

QRect ChartView::Overlay::bounds() const {
  QRectF all = box;
  for (const auto& [ring, kind] : rings) {
    all |= boundsOfRing(ring);
  }
  return all.toAlignedRect();
}

ChartView::ChartView(const Chart& chart, const ShownMarks::ObserverSource& observerOfShown,
                     ChartSelection& selection)
    : ZoomedView(chart.name, chart.parts),
      marks_(chart.document, observerOfShown),
      selection_(selection) {
  setObjectName(QLatin1String(chart.objectName));
  makeChartsAccessible();
  connect(&selection, &ChartSelection::changed, this, &ChartView::refreshOverlay);
}

QString ChartView::description() {
  if (marks_.all().empty()) {
    return accessibleDescription();
  }
  return tr("%1. %2").arg(accessibleDescription(),
                          QString::fromStdString(charts::summary(marks_.all(), marks_.observer())));
}

const ChartMark* ChartView::focusedMark() {
  return focused_ ? marks_.find(*focused_) : nullptr;
}

void ChartView::focusMark(const MarkKey& key) {
  const ChartMark* const mark = marks_.find(key);
  if (mark == nullptr) {
    return;
  }
  focused_ = key;
  pointer_.reset();  // of keys and pointer the one used last is answered
  const QPointF at = pointOf(anchorOf(*mark));
  if (!QRectF(rect()).contains(chartToView().map(at))) {
    setFraming(centredOn(framing(), at, stage()));
  }
  refreshOverlay();
  tellOfFocus(*this, key);
}

void ChartView::select(const MarkKey& key) {
  if (key.kind == MarkKind::body) {
    selection_.setBody(key.ordinal);
  }
}

QRectF ChartView::placeOf(const ChartMark& mark) const {
  return ringAround(mark, chartToView()).boundingRect();
}

const ChartMark* ChartView::markUnder(QPointF position) {
  const QTransform transform = chartToView();
  return markAt(marks_.all(), pagePoint(transform.inverted().map(position)), transform.m11());
}

void ChartView::clicked(QPointF position) {
  if (const ChartMark* const mark = markUnder(position)) {
    const MarkKey key(*mark);
    select(key);
    focusMark(key);
    point(position);
  }
}

void ChartView::pictureChanged() {
  isOverlayOutdated_ = true;
}

ChartView::Overlay ChartView::makeOverlay() {
  Overlay overlay;
  const bool hasMarksToShow = pointer_ || focused_ || selection_.body();
  if (!hasMarksToShow || marks_.all().empty()) {
    return overlay;  // nothing is worked out for a chart that nobody asks
  }
  const QTransform transform = chartToView();
  const auto ring = [&](const ChartMark* mark, RingKind kind) {
    if (mark != nullptr) {
      overlay.rings.emplace_back(ringAround(*mark, transform), kind);
    }
  };
  if (selection_.body()) {
    ring(marks_.find({MarkKind::body, *selection_.body()}), RingKind::selected);
  }
  const ChartMark* const focused = hasFocus() ? focusedMark() : nullptr;
  ring(focused, RingKind::focused);
  const ChartMark* const pointed = pointer_ ? markUnder(*pointer_) : nullptr;
  ring(pointed, RingKind::pointed);
  if (const ChartMark* const told = pointer_ ? pointed : focused) {
    overlay.readOut = ReadOut(linesOf(*told, marks_.observer()), font());
    overlay.box = boxBeside(pointer_.value_or(transform.map(pointOf(anchorOf(*told)))),
                            overlay.readOut.size(), size());
  }
  return overlay;
}

void ChartView::refreshOverlay() {
  update(overlay_.bounds());
  overlay_ = makeOverlay();
  isOverlayOutdated_ = false;
  update(overlay_.bounds());
}

void ChartView::paintOver(QPainter& painter) {
  if (isOverlayOutdated_) {
    overlay_ = makeOverlay();
    isOverlayOutdated_ = false;
  }
  for (const auto& [ring, kind] : overlay_.rings) {
    paintRing(painter, ring, kind);
  }
  if (!overlay_.readOut.isEmpty()) {
    overlay_.readOut.paint(painter, overlay_.box, palette());
  }
  if (hasFocus()) {
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0));
  }
}

QPointF ChartView::keyAnchor() const {
  const ChartMark* const mark = const_cast<ChartView*>(this)->focusedMark();
  return mark == nullptr ? ZoomedView::keyAnchor() : chartToView().map(pointOf(anchorOf(*mark)));
}

void ChartView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    copyPicture();
    return;
  }
  if (isPlain(*event)) {
    const int key = event->key();
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if ((isReturn && focused_) || (key == Qt::Key_Escape && letGo()) || moveFocus(key)) {
      if (isReturn) {
        select(*focused_);
      }
      return;
    }
  }
  ZoomedView::keyPressEvent(event);
}

bool ChartView::letGo() {
  if (!focused_ && !selection_.body()) {
    return false;
  }
  focused_.reset();
  selection_.setBody(std::nullopt);
  refreshOverlay();
  return true;
}

bool ChartView::moveFocus(int key) {
  const bool isMove = (key >= Qt::Key_Home && key <= Qt::Key_PageDown);
  const std::vector<const ChartMark*>& marks = marks_.speaking();
  if (!isMove || marks.empty()) {
    return isMove;
  }
  const ChartMark* const here = focusedMark();
  const ChartMark* next = nullptr;
  if (key == Qt::Key_Home || key == Qt::Key_End) {
    next = key == Qt::Key_Home ? marks.front() : marks.back();
  } else if (here == nullptr || std::ranges::find(marks, here) == marks.end()) {
    const QPointF from = here == nullptr ? chartToView().inverted().map(QRectF(rect()).center())
                                         : pointOf(anchorOf(*here));
    next = nearestTo(marks, pagePoint(from));
  } else if (key == Qt::Key_PageDown || key == Qt::Key_PageUp) {
    next = stepped(marks, *here, key == Qt::Key_PageDown ? 1 : -1);
  } else {
    const Direction direction = key == Qt::Key_Left    ? Direction::left
                                : key == Qt::Key_Right ? Direction::right
                                : key == Qt::Key_Up    ? Direction::up
                                                       : Direction::down;
    next = neighbourOf(marks, *here, direction);
  }
  if (next != nullptr) {
    focusMark(MarkKey(*next));
  }
  return true;
}

void ChartView::mouseMoveEvent(QMouseEvent* event) {
  ZoomedView::mouseMoveEvent(event);
  point(event->position());
}

void ChartView::enterEvent(QEnterEvent* event) {
  point(event->position());
}

void ChartView::leaveEvent(QEvent* /*event*/) {
  point(std::nullopt);
}

void ChartView::point(std::optional<QPointF> position) {
  // What is being moved is not pointed at, nor what lies beyond the edge that a drag has left.
  const bool isPointing = position && !isDragging() && QRectF(rect()).contains(*position);
  pointer_ = isPointing ? position : std::nullopt;
  refreshOverlay();
}

void ChartView::focusInEvent(QFocusEvent* event) {
  ZoomedView::focusInEvent(event);
  isOverlayOutdated_ = true;
  update();
}

void ChartView::focusOutEvent(QFocusEvent* event) {
  ZoomedView::focusOutEvent(event);
  isOverlayOutdated_ = true;
  update();
}

void ChartView::resizeEvent(QResizeEvent* event) {
  ZoomedView::resizeEvent(event);
  isOverlayOutdated_ = true;
}

void ChartView::contextMenuEvent(QContextMenuEvent* event) {
  openChartMenu(*this, event->reason() == QContextMenuEvent::Mouse
                           ? event->globalPos()
                           : mapToGlobal(keyAnchor().toPoint()));
}

void ChartView::copyPicture() const {
  if (!svg().isEmpty()) {
    QApplication::clipboard()->setMimeData(copyOf(svg(), picture()).release());
  }
}

void ChartView::copyDescription() {
  QApplication::clipboard()->setText(description());
}

}  // namespace veyruna::ui
