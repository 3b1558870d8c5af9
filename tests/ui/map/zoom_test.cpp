// The zoom's steps by buttons, shortcuts and keys, and where they leave the map.
#include "tests/ui/map/shown_picker.h"

namespace veyruna::tests {
namespace {

TEST_F(ShownPicker, TheButtonsGoThroughTheTable) {
  for (const QString& step : zoomTable()) {
    push("zoomInButton");
    EXPECT_EQ(zoomText(), step);
  }
  EXPECT_EQ(view->zoom(), 12.0);
}

TEST_F(ShownPicker, TheShortcutsGoThroughTheTable) {
  for (const QString& step : zoomTable()) {
    QTest::keyClick(window.windowHandle(), Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(zoomText(), step);
  }
  QTest::keyClick(window.windowHandle(), Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(zoomText(), QStringLiteral("857%"));
  QTest::keyClick(window.windowHandle(), Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(view->zoom(), 12.0);
}

TEST_F(ShownPicker, TheShortcutsRestWhileTheMapIsOutOfSight) {
  view->hide();
  QTest::keyClick(window.windowHandle(), Qt::Key_Equal, Qt::ControlModifier);
  QTest::keyClick(window.windowHandle(), Qt::Key_Plus, Qt::ControlModifier);
  view->show();
  EXPECT_EQ(zoomText(), QStringLiteral("100%"));
}

TEST_F(ShownPicker, TheKeysGoThroughTheTable) {
  for (const QString& step : zoomTable()) {
    QTest::keyClick(area, Qt::Key_Plus);
    EXPECT_EQ(zoomText(), step);
  }
  QTest::keyClick(area, Qt::Key_Minus);
  EXPECT_EQ(zoomText(), QStringLiteral("857%"));
}

TEST_F(ShownPicker, OneStepInAndOneOutIsExactlyHome) {
  push("zoomInButton");
  press({300, 300});
  pointAt({380, 330});
  release({380, 330});
  pointAt(besideMap());
  push("zoomOutButton");
  EXPECT_EQ(view->zoom(), 1.0);
  EXPECT_EQ(view->pan(), QPointF());
}

TEST_F(ShownPicker, AtTheLeastZoomAFurtherStepOutLeavesADraggedMap) {
  press({300, 300});
  pointAt({380, 330});
  release({380, 330});
  push("zoomOutButton");
  EXPECT_EQ(view->pan(), QPointF(80.0, 30.0));
}

TEST_F(ShownPicker, ResetBringsAMapDraggedFarAwayHome) {
  push("zoomInButton");
  for (int times = 0; times < 5; ++times) {
    press({100, 100});
    pointAt({790, 600});
    release({790, 600});
  }
  EXPECT_GT(view->mapLayout().origin.x(), 3000.0);
  push("resetButton");
  EXPECT_EQ(zoomText(), QStringLiteral("100%"));
  EXPECT_EQ(view->pan(), QPointF());
}

TEST_F(ShownPicker, AZoomKeepsThePlaceUnderThePointer) {
  const QPoint point(250, 400);
  pointAt(point);
  const QString under = text("mapReadout");
  for (int step = 0; step < 9; ++step) {
    QTest::keyClick(window.windowHandle(), Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(text("mapReadout"), under);
  }
  click(point);
  EXPECT_EQ(QString::number(model.manualLatDeg(), 'f', 3), under.left(6));
}

TEST_F(ShownPicker, AButtonZoomsAroundTheCentre) {
  push("zoomInButton");
  push("zoomInButton");
  EXPECT_NEAR(view->pan().x(), 0.0, 1e-9);
  EXPECT_NEAR(view->pan().y(), 0.0, 1e-9);
}

}  // namespace
}  // namespace veyruna::tests
