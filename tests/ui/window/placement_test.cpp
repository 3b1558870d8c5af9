// Where a window may stand: as it was, wherever a person can still take hold of it.
#include "ui/window/placement.h"

#include <gtest/gtest.h>

namespace veyruna::ui {
namespace {

const QList<QRect> one = {QRect(0, 30, 1280, 690)};
const QList<QRect> two = {QRect(0, 30, 1280, 690), QRect(1280, 0, 1920, 1080)};

/// A window of this outer place, in a frame of one pixel with a title bar of 24 pixels.
Placement framed(const QRect& frame) {
  return {frame, frame.size() - QSize(2, 25), false, false};
}

TEST(Placement, StaysAsItIsWhereItCanBeReached) {
  for (const QRect& frame : {
           QRect(0, 30, 1280, 690),     // the whole room
           QRect(40, 50, 700, 500),     // inside
           QRect(-600, 200, 700, 500),  // out to the left but for a piece
           QRect(1180, 200, 700, 500),  // to the right
           QRect(40, 700, 700, 500),    // its upper edge alone
           QRect(40, 30, 700, 690),
       }) {
    EXPECT_EQ(onScreens(framed(frame), one), framed(frame)) << frame.x() << ", " << frame.y();
  }
  Placement large = framed(QRect(40, 50, 700, 500));
  large.isMaximized = true;
  large.isFullScreen = true;
  EXPECT_EQ(onScreens(large, one), large);
}

TEST(Placement, MovesOntoTheScreenWhereItsUpperEdgeIsOutOfSight) {
  const auto frameOf = [](const QRect& frame) { return onScreens(framed(frame), one).frame; };
  EXPECT_EQ(frameOf(QRect(40, 29, 700, 500)), QRect(40, 30, 700, 500));  // under a panel
  EXPECT_EQ(frameOf(QRect(-601, 200, 700, 500)), QRect(0, 200, 700, 500));
  EXPECT_EQ(frameOf(QRect(1181, 200, 700, 500)), QRect(580, 200, 700, 500));
  EXPECT_EQ(frameOf(QRect(40, 701, 700, 500)), QRect(40, 220, 700, 500));
  EXPECT_EQ(frameOf(QRect(9000, -9000, 700, 500)), QRect(580, 30, 700, 500));
}

TEST(Placement, KeepsItsFrameAroundItWhereItShrinks) {
  // In sight, it gives way only where the window itself is larger than all there is.
  EXPECT_EQ(onScreens(framed(QRect(0, 30, 3000, 2000)), one), framed(QRect(0, 30, 1282, 715)));
  EXPECT_EQ(onScreens(framed(QRect(0, -30, 3000, 2000)), one), framed(QRect(0, 30, 1280, 690)));
}

TEST(Placement, MaySpanTwoScreens) {
  const Placement spanning = framed(QRect(400, 40, 2500, 600));
  EXPECT_EQ(onScreens(spanning, two), spanning);
  EXPECT_EQ(onScreens(spanning, one).frame.width(), 1282);
}

TEST(Placement, MovesToTheScreenThatShowsMostOfIt) {
  EXPECT_EQ(onScreens(framed(QRect(1200, -100, 700, 500)), two).frame, QRect(1280, 0, 700, 500));
  EXPECT_EQ(onScreens(framed(QRect(650, 0, 700, 500)), two).frame, QRect(580, 30, 700, 500));
}

}  // namespace
}  // namespace veyruna::ui
