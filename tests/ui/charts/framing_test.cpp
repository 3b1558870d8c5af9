// Where a chart lies when it is enlarged and moved, as pure functions.
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

#include "ui/charts/chart_framing.h"

namespace veyruna::ui {
namespace {

const ChartStage stage{QRectF(-10.0, -10.0, 720.0, 380.0), QSizeF(900.0, 600.0)};

QPointF shown(const ChartFraming& framing, QPointF point, const ChartStage& on = stage) {
  return toView(framing, on).map(point);
}

double apart(QPointF a, QPointF b) {
  return std::hypot(a.x() - b.x(), a.y() - b.y());
}

rc::Gen<double> between(double low, double high) {
  return rc::gen::map(rc::gen::inRange(0, 1'000'001),
                      [=](int i) { return low + (high - low) * i / 1'000'000.0; });
}

ChartFraming someFraming() {
  const double zoom = *between(1.0, mostChartZoom);
  return withinReach({zoom, {*between(0.0, 1.0), *between(0.0, 1.0)}}, stage);
}

TEST(ChartFramings, AtOnceTheChartFitsAndIsCentred) {
  EXPECT_EQ(targetOf({}, stage), QRectF(QPointF(), stage.view));
  EXPECT_LT(apart(shown({}, stage.box.center()), {450.0, 300.0}), 1e-9);
  EXPECT_NEAR(shown({}, stage.box.topLeft()).x(), 0.0, 1e-9);
}

RC_GTEST_PROP(ChartFramings, EnlargeAboutThePointer, ()) {
  const ChartFraming before = someFraming();
  const QPointF anchor(*between(0.0, 900.0), *between(0.0, 600.0));
  const double factor = *between(1.0, 3.0);
  const QPointF point = toView(before, stage).inverted().map(anchor);
  const ChartFraming after = zoomedAbout(before, factor, anchor, stage);
  RC_ASSERT(std::abs(after.zoom - std::min(mostChartZoom, before.zoom * factor)) < 1e-9);
  RC_ASSERT(apart(shown(after, point), anchor) < 1e-6);
}

RC_GTEST_PROP(ChartFramings, ShowNothingBeyondWhatTheFittedViewShows, ()) {
  const ChartFraming framing =
      draggedBy(someFraming(), {*between(-20000.0, 20000.0), *between(-20000.0, 20000.0)}, stage);
  const QRectF target = targetOf(framing, stage);
  RC_ASSERT(target.left() < 1e-6);
  RC_ASSERT(target.top() < 1e-6);
  RC_ASSERT(target.right() > 900.0 - 1e-6);
  RC_ASSERT(target.bottom() > 600.0 - 1e-6);
}

RC_GTEST_PROP(ChartFramings, FollowTheHandWithinTheirReach, ()) {
  const ChartFraming before = someFraming();
  const QPointF translation(*between(-50.0, 50.0), *between(-50.0, 50.0));
  const ChartFraming after = draggedBy(before, translation, stage);
  const QPointF moved = shown(after, {180.0, 180.0}) - shown(before, {180.0, 180.0});
  const QRectF target = targetOf(before, stage).translated(translation);
  if (target.contains(QRectF(QPointF(), stage.view))) {
    RC_ASSERT(apart(moved, translation) < 1e-6);
  } else {
    RC_ASSERT(std::abs(moved.x()) < std::abs(translation.x()) + 1e-6);
    RC_ASSERT(std::abs(moved.y()) < std::abs(translation.y()) + 1e-6);
  }
}

TEST(ChartFramings, APartIsFittedIntoTheViewsMiddle) {
  const QRectF part(100.0, 100.0, 90.0, 30.0);
  const ChartFraming framing = fittedTo(part, stage);
  const QRectF seen = toView(framing, stage).mapRect(part);
  EXPECT_NEAR(seen.width(), 900.0, 1e-6);
  EXPECT_LT(apart(seen.center(), {450.0, 300.0}), 1e-6);
  EXPECT_EQ(fittedTo({100.0, 100.0, 1.0, 1.0}, stage).zoom, mostChartZoom);
  EXPECT_EQ(fittedTo(stage.box, stage).zoom, 1.0);
}

TEST(ChartFramings, WhatIsNoNumberOrHasNoPlaceIsTheFittedChart) {
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(withinReach({nan, {0.2, 0.2}}, stage), ChartFraming());
  EXPECT_EQ(withinReach({2.0, {nan, 0.2}}, stage), ChartFraming());
  EXPECT_EQ(zoomedAbout({}, nan, {}, stage), ChartFraming());
  EXPECT_EQ(zoomedAbout({}, 0.0, {}, stage), ChartFraming());
  const ChartStage nowhere{stage.box, QSizeF(0.0, 0.0)};
  EXPECT_EQ(zoomedAbout({}, 2.0, {}, nowhere), ChartFraming());
  EXPECT_EQ(draggedBy({}, {5.0, 5.0}, nowhere), ChartFraming());
  EXPECT_TRUE(targetOf({}, nowhere).isEmpty());
}

}  // namespace
}  // namespace veyruna::ui
