#include "ui/charts/zoomed_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/controls/plain_key.h"

namespace veyruna::ui {

namespace {

constexpr double notchFactor = 1.25;      ///< of the zoom, at a notch of the wheel
constexpr double notch = 120.0;           ///< as Qt counts a notch
constexpr double pixelsOfANotch = 100.0;  ///< of a trackpad, that do the same
constexpr double keyFactor = 1.5;

/// Notches away from the person.
double notchesOf(const QWheelEvent& wheel) {
  return wheel.pixelDelta().isNull() ? wheel.angleDelta().y() / notch
                                     : wheel.pixelDelta().y() / pixelsOfANotch;
}

}  // namespace

ZoomedView::ZoomedView(const QString& accessibleName, std::vector<QRectF> parts, QWidget* parent)
    : SVGView(accessibleName, parent), parts_(std::move(parts)) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
}

void ZoomedView::zoomBy(double factor, QPointF anchor) {
  setFraming(zoomedAbout(framing(), factor, anchor, stage()));
}

bool ZoomedView::event(QEvent* event) {
  if (event->type() == QEvent::NativeGesture) {
    const bool isTaken = pinch(static_cast<const QNativeGestureEvent&>(*event));
    event->setAccepted(isTaken);
    return isTaken;
  }
  return SVGView::event(event);
}

bool ZoomedView::pinch(const QNativeGestureEvent& event) {
  switch (event.gestureType()) {
    case Qt::BeginNativeGesture:
    case Qt::EndNativeGesture:
      return true;
    case Qt::ZoomNativeGesture:
      zoomBy(1.0 + event.value(), mapFromGlobal(event.globalPosition()));
      return true;
    default:
      return false;
  }
}

void ZoomedView::wheelEvent(QWheelEvent* event) {
  if (event->modifiers() != Qt::ControlModifier) {
    event->ignore();
    return;
  }
  zoomBy(std::pow(notchFactor, notchesOf(*event)), event->position());
  event->accept();
}

void ZoomedView::keyPressEvent(QKeyEvent* event) {
  if (!isPlain(*event)) {
    SVGView::keyPressEvent(event);
    return;
  }
  switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      zoomBy(keyFactor, keyAnchor());
      break;
    case Qt::Key_Minus:
      zoomBy(1.0 / keyFactor, keyAnchor());
      break;
    case Qt::Key_0:
      setFraming({});
      break;
    default:
      SVGView::keyPressEvent(event);
  }
}

void ZoomedView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    press_ = Press(event->position());
    pressedFraming_ = framing();
  }
}

void ZoomedView::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) {
    endDrag();  // the button may have been let go where nobody told
  }
  if (press_.becomesDrag(event->position())) {
    setCursor(Qt::ClosedHandCursor);
  }
  if (press_.isDrag()) {
    setFraming(draggedBy(pressedFraming_, press_.translationTo(event->position()), stage()));
  }
}

void ZoomedView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !press_.isDown()) {
    return;
  }
  const bool isClick = !press_.isDrag();
  endDrag();
  if (isClick) {
    clicked(event->position());
  }
}

void ZoomedView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    return;
  }
  if (fit_ && beforeFit_ && framing() == withinReach(*fit_, stage())) {
    setFraming(*beforeFit_);
    fit_.reset();
    return;
  }
  beforeFit_ = framing();
  fit_ = fittedTo(partAt(event->position()), stage());
  setFraming(*fit_);
}

QRectF ZoomedView::partAt(QPointF position) const {
  const QPointF point = chartToView().inverted().map(position);
  const auto part =
      std::ranges::find_if(parts_, [point](const QRectF& each) { return each.contains(point); });
  return part == parts_.end() ? picture().viewBox : *part;
}

void ZoomedView::hideEvent(QHideEvent* event) {
  SVGView::hideEvent(event);
  endDrag();
}

void ZoomedView::endDrag() {
  if (std::exchange(press_, Press()).isDrag()) {
    unsetCursor();
  }
}

}  // namespace veyruna::ui
