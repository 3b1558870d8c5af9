#pragma once

#include <QList>
#include <QRect>
#include <QSize>

namespace veyruna::ui {

/// Where a window stands, so that it can stand there again. Frame and size are those it has, or
/// returns to, when it is neither maximised nor full screen.
struct Placement {
  QRect frame;  ///< on the desktop, with what the window manager puts around the window
  QSize size;   ///< of the window itself
  bool isMaximized = false;
  bool isFullScreen = false;

  bool operator==(const Placement&) const = default;
};

/// The placement as it is where a person can take hold of the window on one of these screens, given
/// as the rooms that panels leave: at least a piece of its upper edge is in sight, and the window
/// is no larger than all of them together. Else made to fit, wholly into the screen that shows most
/// of it. There is at least one room.
Placement onScreens(Placement placement, const QList<QRect>& rooms);

}  // namespace veyruna::ui
