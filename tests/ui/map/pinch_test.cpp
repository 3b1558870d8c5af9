// Two fingers: Qt hands the magnification over in increments.
#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <limits>

#include "tests/ui/map/shown_picker.h"

namespace veyruna::tests {
namespace {

struct PinchedPicker : ShownPicker {
  bool fingers(Qt::NativeGestureType type, double increment = 0.0) const {
    const QPointF at(200.0, 200.0);
    QNativeGestureEvent gesture(type, QPointingDevice::primaryPointingDevice(), 2, at, at,
                                QPointF(area->mapToGlobal(at.toPoint())), increment, QPointF());
    return QCoreApplication::sendEvent(area, &gesture) && gesture.isAccepted();
  }
  [[nodiscard]] double shownZoom() const { return view->mapLayout().displaySize.width() / 800.0; }
};

TEST_F(PinchedPicker, ItsIncrementsMultiply) {
  EXPECT_TRUE(fingers(Qt::BeginNativeGesture));
  EXPECT_TRUE(fingers(Qt::ZoomNativeGesture, 0.25));
  fingers(Qt::ZoomNativeGesture, 0.25);
  EXPECT_NEAR(shownZoom(), 1.5625, 1e-12);
  EXPECT_EQ(zoomText(), QStringLiteral("100%"));
  EXPECT_TRUE(fingers(Qt::EndNativeGesture));
  EXPECT_EQ(view->zoom(), 1.5625);
  EXPECT_EQ(zoomText(), QStringLiteral("156%"));
}

TEST_F(PinchedPicker, WhileItRunsItIsNeitherClampedNorAnchored) {
  pointAt({100, 100});
  fingers(Qt::BeginNativeGesture);
  fingers(Qt::ZoomNativeGesture, 19.0);
  EXPECT_NEAR(shownZoom(), 20.0, 1e-12);
  EXPECT_EQ(view->pan(), QPointF());
  area->grab();
  fingers(Qt::ZoomNativeGesture, -0.99);
  EXPECT_NEAR(shownZoom(), 0.2, 1e-12);
  area->grab();
  fingers(Qt::ZoomNativeGesture, 99.0);
  fingers(Qt::EndNativeGesture);
  EXPECT_EQ(view->zoom(), 12.0);
  EXPECT_EQ(view->pan(), QPointF());
}

TEST_F(PinchedPicker, AtTheLeastZoomTheMapComesHome) {
  press({300, 300});
  pointAt({380, 330});
  release({380, 330});
  fingers(Qt::BeginNativeGesture);
  fingers(Qt::ZoomNativeGesture, -0.5);
  EXPECT_EQ(view->pan(), QPointF(80.0, 30.0));
  fingers(Qt::EndNativeGesture);
  EXPECT_EQ(view->zoom(), 1.0);
  EXPECT_EQ(view->pan(), QPointF());
}

TEST_F(PinchedPicker, AboveItThePanStays) {
  press({300, 300});
  pointAt({380, 330});
  release({380, 330});
  fingers(Qt::BeginNativeGesture);
  fingers(Qt::ZoomNativeGesture, 1.0);
  fingers(Qt::EndNativeGesture);
  EXPECT_EQ(view->zoom(), 2.0);
  EXPECT_EQ(view->pan(), QPointF(80.0, 30.0));
}

TEST_F(PinchedPicker, LessThanAHundredthIsNoPinch) {
  press({300, 300});
  pointAt({380, 330});
  release({380, 330});
  fingers(Qt::BeginNativeGesture);
  fingers(Qt::ZoomNativeGesture, 0.009);
  EXPECT_EQ(shownZoom(), 1.0);
  fingers(Qt::EndNativeGesture);
  EXPECT_EQ(view->zoom(), 1.0);
  EXPECT_EQ(view->pan(), QPointF(80.0, 30.0));
  fingers(Qt::BeginNativeGesture);
  fingers(Qt::ZoomNativeGesture, 0.009);
  fingers(Qt::ZoomNativeGesture, 0.009);
  EXPECT_NEAR(shownZoom(), 1.009 * 1.009, 1e-12);
}

TEST_F(PinchedPicker, EachPinchBeginsAtItsOwnHundredth) {
  fingers(Qt::BeginNativeGesture);
  fingers(Qt::ZoomNativeGesture, 1.0);
  fingers(Qt::EndNativeGesture);
  fingers(Qt::BeginNativeGesture);
  fingers(Qt::ZoomNativeGesture, 0.009);
  EXPECT_EQ(shownZoom(), 2.0);
  fingers(Qt::EndNativeGesture);
  EXPECT_EQ(view->zoom(), 2.0);
  fingers(Qt::ZoomNativeGesture, 0.02);  // without a beginning: as of rest
  EXPECT_NEAR(shownZoom(), 2.04, 1e-12);
}

TEST_F(PinchedPicker, WhatNoFingersDoChangesNothing) {
  fingers(Qt::BeginNativeGesture);
  for (const double bad : {-1.0, -3.0, std::numeric_limits<double>::quiet_NaN(),
                           std::numeric_limits<double>::infinity()}) {
    fingers(Qt::ZoomNativeGesture, bad);
  }
  EXPECT_EQ(shownZoom(), 1.0);
  fingers(Qt::EndNativeGesture);
  EXPECT_EQ(view->zoom(), 1.0);
}

TEST_F(PinchedPicker, ImmenseAndTinyMapsAreDrawnWithoutHarm) {
  tasks.runNext();
  turnEventLoop();
  for (const double increment : {1e6, 1e6, 1e300}) {
    fingers(Qt::ZoomNativeGesture, increment);
    area->grab();
  }
  fingers(Qt::EndNativeGesture);
  for (int times = 0; times < 40; ++times) {
    fingers(Qt::ZoomNativeGesture, -0.999);
    area->grab();
  }
  fingers(Qt::EndNativeGesture);
  EXPECT_EQ(view->zoom(), 1.0);
}

TEST_F(PinchedPicker, BrokenOffItLeavesNothing) {
  fingers(Qt::BeginNativeGesture);
  fingers(Qt::ZoomNativeGesture, 1.0);
  view->hide();
  view->show();
  EXPECT_EQ(shownZoom(), 1.0);
  fingers(Qt::EndNativeGesture);
  EXPECT_EQ(view->zoom(), 1.0);
  fingers(Qt::ZoomNativeGesture, 1.0);
  view->hide();
  view->show();
  fingers(Qt::ZoomNativeGesture, 0.5);  // not every platform says that a pinch ends and begins
  EXPECT_EQ(shownZoom(), 1.5);
}

TEST_F(PinchedPicker, AClickWhileItRunsIsReadInTheMapAsItStands) {
  fingers(Qt::BeginNativeGesture);
  fingers(Qt::ZoomNativeGesture, 1.0);
  click(pointOf(30.0, 5.0, 2.0).toPoint());
  EXPECT_NEAR(model.manualLatDeg(), 30.0, 0.04);
  EXPECT_NEAR(model.manualLongDeg(), 5.0, 0.04);
}

}  // namespace
}  // namespace veyruna::tests
