#include "ui/map/scroll_monitor.h"

#include <QCoreApplication>
#include <QPointingDevice>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace veyruna::ui {

namespace {

/// Whichever axis moved: with Alt held, X11 delivers the wheel on the horizontal one.
double furthest(QPoint delta) {
  return std::abs(delta.x()) > std::abs(delta.y()) ? delta.x() : delta.y();
}

double scrollingDelta(const QWheelEvent& wheel) {
  constexpr double notchDelta = 10.0;
  constexpr double notchAngle = QWheelEvent::DefaultDeltasPerStep;
  const double angle = furthest(wheel.angleDelta());
  // Some drivers give pixels for the notches of a wheel too, and far too many.
  const bool isWholeNotches = angle != 0.0 && std::fmod(angle, notchAngle) == 0.0;
  const bool isTouchPad = wheel.device()->type() == QInputDevice::DeviceType::TouchPad;
  if (!wheel.pixelDelta().isNull() && (isTouchPad || !isWholeNotches)) {
    return furthest(wheel.pixelDelta());
  }
  return angle * notchDelta / notchAngle;
}

}  // namespace

ScrollMonitor::ScrollMonitor(const QWidget& member, std::function<void(double)> scrolled)
    : member_(member), scrolled_(std::move(scrolled)) {
  QCoreApplication::instance()->installEventFilter(this);
}

ScrollMonitor::~ScrollMonitor() {
  QCoreApplication::instance()->removeEventFilter(this);
}

bool ScrollMonitor::eventFilter(QObject* target, QEvent* event) {
  if (event->type() != QEvent::Wheel || !isOfWindow(target)) {
    return false;
  }
  const auto& wheel = static_cast<const QWheelEvent&>(*event);
  if (!wheel.modifiers().testFlag(Qt::AltModifier)) {
    return false;
  }
  event->accept();
  scrolled_(scrollingDelta(wheel));
  return true;
}

bool ScrollMonitor::isOfWindow(const QObject* target) const {
  const QWidget* const window = member_.window();
  if (target->isWindowType()) {
    return target == window->windowHandle();
  }
  return target->isWidgetType() && static_cast<const QWidget*>(target)->window() == window;
}

}  // namespace veyruna::ui
