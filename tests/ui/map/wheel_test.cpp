// The wheel: with Alt it zooms and goes no further, without it is none of the map's business.
#include <QPointingDevice>

#include "tests/ui/map/shown_picker.h"

namespace veyruna::tests {
namespace {

constexpr QPoint notch(0, 120);

TEST_F(ShownPicker, ANotchZoomsThroughTheTable) {
  for (const QString& step : zoomTable()) {
    EXPECT_TRUE(turnWheel(area, Qt::AltModifier, notch));
    EXPECT_EQ(zoomText(), step);
  }
}

TEST_F(ShownPicker, X11sHorizontalWheelZoomsTheSame) {
  EXPECT_TRUE(turnWheel(area, Qt::AltModifier, {120, 0}));
  EXPECT_EQ(view->zoom(), 1.4);
  EXPECT_TRUE(turnWheel(area, Qt::AltModifier, {-120, 0}));
  EXPECT_EQ(view->zoom(), 1.0);  // 0.6 times 1.4 is below the least
}

TEST_F(ShownPicker, ATrackpadsPixelsAreTheDelta) {
  turnWheel(area, Qt::AltModifier, {0, 999}, {0, 5});
  EXPECT_DOUBLE_EQ(view->zoom(), 1.2);
  turnWheel(area, Qt::AltModifier, {}, {5, 1});
  EXPECT_DOUBLE_EQ(view->zoom(), 1.44);
}

TEST_F(ShownPicker, ADiagonalWheelCountsDownwards) {
  turnWheel(area, Qt::AltModifier, {-120, 120});
  EXPECT_EQ(view->zoom(), 1.4);
  turnWheel(area, Qt::AltModifier, {120, -120});
  EXPECT_EQ(view->zoom(), 1.0);
  turnWheel(area, Qt::AltModifier, {}, {-5, 5});
  EXPECT_EQ(view->zoom(), 1.2);
  turnWheel(area, Qt::AltModifier, {-121, 120});  // more across than down
  EXPECT_EQ(view->zoom(), 1.0);
}

TEST_F(ShownPicker, ATrackpadsPixelsAreTheDeltaAlsoWhereItCountsNotches) {
  const QPointingDevice trackpad(QStringLiteral("trackpad"), 7, QInputDevice::DeviceType::TouchPad,
                                 QPointingDevice::PointerType::Finger,
                                 QInputDevice::Capability::Scroll, 1, 0);
  const auto scroll = [&](QPoint pixels, QPoint angle) {
    QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), pixels, angle, Qt::NoButton, Qt::AltModifier,
                      Qt::NoScrollPhase, false, Qt::MouseEventNotSynthesized, &trackpad);
    QCoreApplication::sendEvent(area, &wheel);
  };
  scroll({0, 5}, {0, 120});
  EXPECT_EQ(view->zoom(), 1.2);
  scroll({}, {0, 120});
  EXPECT_DOUBLE_EQ(view->zoom(), 1.68);
}

TEST_F(ShownPicker, AMousesNotchIsOneAlsoWhereItsDriverGivesPixels) {
  turnWheel(area, Qt::AltModifier, notch, {0, 120});
  EXPECT_EQ(view->zoom(), 1.4);
}

TEST_F(ShownPicker, OneTurnZoomsByTwoOrHalfAtMost) {
  turnWheel(area, Qt::AltModifier, {}, {0, 100});
  EXPECT_EQ(view->zoom(), 2.0);
  turnWheel(area, Qt::AltModifier, {}, {0, 100});
  EXPECT_EQ(view->zoom(), 4.0);
  turnWheel(area, Qt::AltModifier, {}, {0, -100});
  EXPECT_EQ(view->zoom(), 2.0);
}

TEST_F(ShownPicker, APlainWheelPassesOn) {
  EXPECT_FALSE(turnWheel(area, Qt::NoModifier, notch));
  EXPECT_TRUE(turnWheel(beside, Qt::NoModifier, notch));
  EXPECT_TRUE(turnWheel(beside, Qt::ControlModifier | Qt::ShiftModifier, notch));
  EXPECT_EQ(beside->wheels, 2);
  EXPECT_EQ(zoomText(), QStringLiteral("100%"));
}

TEST_F(ShownPicker, AnAltWheelIsTakenAtTheZoomsEnds) {
  EXPECT_TRUE(turnWheel(area, Qt::AltModifier, {0, -120}));
  for (int turn = 0; turn < 12; ++turn) {
    EXPECT_TRUE(turnWheel(area, Qt::AltModifier, notch));
  }
  EXPECT_EQ(view->zoom(), 12.0);
  EXPECT_TRUE(turnWheel(area, Qt::AltModifier, {}));
  EXPECT_TRUE(turnWheel(area, Qt::AltModifier | Qt::ShiftModifier, notch));
}

TEST_F(ShownPicker, AnAltWheelIsTakenWhereTheMapHasNoSize) {
  area->setFixedSize(0, 0);
  turnEventLoop();
  EXPECT_TRUE(turnWheel(area, Qt::AltModifier, notch));
  EXPECT_EQ(zoomText(), QStringLiteral("100%"));
}

TEST_F(ShownPicker, AnAltWheelElsewhereInTheWindowZoomsTheMapInSight) {
  EXPECT_TRUE(turnWheel(beside, Qt::AltModifier, notch));
  EXPECT_EQ(beside->wheels, 0);
  EXPECT_EQ(zoomText(), QStringLiteral("140%"));
}

TEST_F(ShownPicker, AsThePlatformDeliversItAWheelZoomsOnce) {
  QWheelEvent wheel(inWindow({300, 300}), window.mapToGlobal(inWindow({300, 300})), {}, {120, 0},
                    Qt::NoButton, Qt::AltModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(window.windowHandle(), &wheel);
  EXPECT_EQ(zoomText(), QStringLiteral("140%"));
}

TEST_F(ShownPicker, WhenTheMapIsOutOfSightNothingIsCaptured) {
  view->hide();
  EXPECT_TRUE(turnWheel(beside, Qt::AltModifier, notch));
  EXPECT_EQ(beside->wheels, 1);
  view->show();
  EXPECT_EQ(zoomText(), QStringLiteral("100%"));
  turnWheel(beside, Qt::AltModifier, notch);
  EXPECT_EQ(beside->wheels, 1);
  EXPECT_EQ(zoomText(), QStringLiteral("140%"));  // once, however often it was shown
  delete view;
  turnWheel(beside, Qt::AltModifier, notch);
  EXPECT_EQ(beside->wheels, 2);
}

TEST_F(ShownPicker, AnotherWindowKeepsItsWheel) {
  WheelCounter other;
  other.show();
  EXPECT_TRUE(turnWheel(&other, Qt::AltModifier, notch));
  EXPECT_EQ(other.wheels, 1);
  turnWheel(other.windowHandle(), Qt::AltModifier, notch);
  QObject nobody;
  turnWheel(&nobody, Qt::AltModifier, notch);
  EXPECT_EQ(zoomText(), QStringLiteral("100%"));
}

TEST_F(ShownPicker, TheWheelKeepsThePlaceUnderThePointer) {
  pointAt({250, 400});
  const QString under = text("mapReadout");
  for (const int turn : {120, 120, 120, -120, 120, 120, 120, -120}) {
    turnWheel(area, Qt::AltModifier, {turn, 0});
    EXPECT_EQ(text("mapReadout"), under);
  }
}

}  // namespace
}  // namespace veyruna::tests
