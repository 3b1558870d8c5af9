// Dragging the map, within the view and far beyond it.
#include "tests/ui/map/shown_picker.h"

namespace veyruna::tests {
namespace {

TEST_F(ShownPicker, ADragMovesTheMapAndPicksNothing) {
  settings->groups.clear();
  const QPointF before = view->mapLayout().origin;
  press({300, 300});
  pointAt({340, 270});
  EXPECT_EQ(area->cursor().shape(), Qt::ClosedHandCursor);
  EXPECT_EQ(view->pan(), QPointF());  // it moves with the hand, and rests when it is let go
  EXPECT_NEAR(view->mapLayout().origin.x(), before.x() + 40.0, 0.5);
  EXPECT_NEAR(view->mapLayout().origin.y(), before.y() - 30.0, 0.5);
  release({340, 270});
  EXPECT_EQ(area->cursor().shape(), Qt::CrossCursor);
  EXPECT_NEAR(view->pan().x(), 40.0, 0.5);
  EXPECT_NEAR(view->pan().y(), -30.0, 0.5);
  EXPECT_TRUE(settings->groups.empty());
}

TEST_F(ShownPicker, BelowFivePointsItIsAClick) {
  press({300, 300});
  pointAt({303, 303});  // 4.24 points away
  EXPECT_EQ(area->cursor().shape(), Qt::CrossCursor);
  settings->groups.clear();
  release({303, 303});
  EXPECT_EQ(view->pan(), QPointF());
  EXPECT_EQ(settings->groups.size(), 5U);
}

TEST_F(ShownPicker, AtFivePointsItIsADragEvenBackToItsStart) {
  settings->groups.clear();
  press({300, 300});
  pointAt({303, 304});
  EXPECT_EQ(area->cursor().shape(), Qt::ClosedHandCursor);
  pointAt({300, 300});
  release({300, 300});
  EXPECT_TRUE(settings->groups.empty());
}

TEST_F(ShownPicker, ADragGoesOnBeyondTheBorder) {
  press({300, 300});
  pointAt({-2000, 300});
  EXPECT_FALSE(shows("mapReadout"));
  EXPECT_NEAR(view->mapLayout().origin.x(), -2300.0, 0.5);
  pointAt({-5000, -5000});
  release({-5000, -5000});
  EXPECT_NEAR(view->pan().x(), -5300.0, 0.5);
  EXPECT_NEAR(view->pan().y(), -5300.0, 0.5);
  settings->groups.clear();
  click({400, 300});  // the map is out of sight
  EXPECT_TRUE(settings->groups.empty());
  area->grab();
}

TEST_F(ShownPicker, ADraggedMapIsPickedWhereItLies) {
  press({300, 300});
  pointAt({400, 350});
  release({400, 350});
  const QPoint point = pointOf(30.0, 5.0, 1.0, {100.0, 50.0}).toPoint();
  click(point);
  EXPECT_NEAR(model.manualLatDeg(), 30.0, 0.06);
  EXPECT_NEAR(model.manualLongDeg(), 5.0, 0.07);
}

TEST_F(ShownPicker, ADragBrokenOffLeavesNothing) {
  press({300, 300});
  pointAt({400, 350});
  view->hide();
  view->show();
  EXPECT_EQ(view->pan(), QPointF());
  EXPECT_EQ(view->mapLayout().origin.x(), 0.0);
  EXPECT_EQ(area->cursor().shape(), Qt::CrossCursor);
  release({400, 350});
  EXPECT_EQ(view->pan(), QPointF());
}

}  // namespace
}  // namespace veyruna::tests
