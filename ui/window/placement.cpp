#include "ui/window/placement.h"

#include <algorithm>

namespace veyruna::ui {

namespace {

constexpr QSize grip(100, 20);  // as much of the upper edge is to be in sight

bool isInSight(const QRect& frame, const QList<QRect>& rooms) {
  const QRect upperEdge(frame.topLeft(), QSize(frame.width(), grip.height()));
  return std::any_of(rooms.begin(), rooms.end(), [&](const QRect& room) {
    const QRect seen = upperEdge & room;
    return seen.height() == grip.height() && seen.width() >= std::min(grip.width(), frame.width());
  });
}

QRect roomOfMost(const QRect& frame, const QList<QRect>& rooms) {
  const auto seen = [&frame](const QRect& room) {
    const QRect common = frame & room;
    return qint64{common.width()} * common.height();
  };
  return *std::max_element(rooms.begin(), rooms.end(), [&](const QRect& one, const QRect& other) {
    return seen(one) < seen(other);
  });
}

/// Changes the window's size, and with it the frame's.
void resize(Placement& placement, const QSize& size) {
  placement.frame.setSize(placement.frame.size() + size - placement.size);
  placement.size = size;
}

}  // namespace

Placement onScreens(Placement placement, const QList<QRect>& rooms) {
  QRect desktop;
  for (const QRect& room : rooms) {
    desktop |= room;
  }
  resize(placement, placement.size.boundedTo(desktop.size()));
  if (!isInSight(placement.frame, rooms)) {
    const QRect room = roomOfMost(placement.frame, rooms);
    const QSize decoration = placement.frame.size() - placement.size;
    resize(placement, placement.size.boundedTo(room.size() - decoration));
    const QPoint last =
        room.bottomRight() - placement.frame.bottomRight() + placement.frame.topLeft();
    placement.frame.moveTo(std::clamp(placement.frame.x(), room.x(), last.x()),
                           std::clamp(placement.frame.y(), room.y(), last.y()));
  }
  return placement;
}

}  // namespace veyruna::ui
