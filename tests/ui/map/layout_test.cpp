// Where the map lies in its view, and what a zoom leaves in place.
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

#include "tests/ui/map/map_places.h"
#include "ui/map/map_layout.h"

namespace veyruna::ui {
namespace {

constexpr ZoomRange range{1.0, 12.0};

double someDouble(int least, int most) {
  return *rc::gen::inRange(least * 1000, most * 1000) / 1000.0;
}
QSizeF someView() {
  return {someDouble(1, 3000), someDouble(1, 2000)};
}
Framing someFraming() {
  return {someDouble(1, 12), {someDouble(-5000, 5000), someDouble(-5000, 5000)}};
}
TEST(MapLayout, FitsTheWidthOfATallView) {
  const Layout layout = layoutOf({431.6, 1000.0}, {});
  EXPECT_DOUBLE_EQ(layout.displaySize.width(), 431.6);
  EXPECT_DOUBLE_EQ(layout.displaySize.height(), 326.6);
  EXPECT_DOUBLE_EQ(layout.origin.x(), 0.0);
  EXPECT_DOUBLE_EQ(layout.origin.y(), (1000.0 - 326.6) / 2.0);
}

TEST(MapLayout, FitsTheHeightOfAWideView) {
  const Layout layout = layoutOf({1000.0, 326.6}, {});
  EXPECT_NEAR(layout.displaySize.width(), 431.6, 1e-9);
  EXPECT_DOUBLE_EQ(layout.displaySize.height(), 326.6);
  EXPECT_NEAR(layout.origin.x(), (1000.0 - 431.6) / 2.0, 1e-9);
}

TEST(MapLayout, GrowsAroundTheCentreAndMovesWithThePan) {
  const Layout layout = layoutOf({431.6, 326.6}, {2.0, {10.0, -20.0}});
  EXPECT_NEAR(layout.displaySize.width(), 863.2, 1e-9);
  EXPECT_NEAR(layout.origin.x(), -215.8 + 10.0, 1e-9);
  EXPECT_NEAR(layout.origin.y(), -163.3 - 20.0, 1e-9);
}

TEST(MapLayout, AnEmptyViewHasNoPlaceAndNoZoom) {
  for (const QSizeF view : {QSizeF(0, 0), QSizeF(0, 100), QSizeF(100, 0)}) {
    const Layout layout = layoutOf(view, {});
    EXPECT_EQ(layout.displaySize, QSizeF(0, 0));
    EXPECT_FALSE(placeAt({0.0, 0.0}, layout));
    EXPECT_FALSE(placeAt(layout.origin, layout));
    EXPECT_FALSE(zoomedBy(1.4, {}, {0.0, 0.0}, view, range));
  }
}

TEST(MapLayout, BesideThePictureThereIsNoPlace) {
  const Layout layout{{10.0, 20.0}, {431.6, 326.6}};
  EXPECT_TRUE(placeAt({10.0 + 176.8, 20.0 + 319.4}, layout));
  EXPECT_TRUE(placeAt({10.0 + 176.8, 20.0 + 100.0}, layout));
  EXPECT_FALSE(placeAt({9.9, 120.0}, layout));
  EXPECT_FALSE(placeAt({10.0 + 431.7, 120.0}, layout));
  EXPECT_FALSE(placeAt({100.0, 19.9}, layout));
  EXPECT_FALSE(placeAt({100.0, 20.0 + 326.7}, layout));
}

TEST(MapLayout, ThePicturesWesternEdgeCutsTheMapOff) {
  // Near the equator the map would go on; the picture ends at 33.9° west.
  const Layout layout{{10.0, 20.0}, {431.6, 326.6}};
  EXPECT_TRUE(placeAt({10.0, 320.0}, layout));
  EXPECT_FALSE(placeAt({9.999, 320.0}, layout));
  EXPECT_FALSE(placeAt({0.0, 320.0}, layout));
}

TEST(MapLayout, AZoomThatChangesNothingIsNone) {
  const QSizeF view(800.0, 600.0);
  EXPECT_FALSE(zoomedBy(0.5, {1.0, {300.0, 0.0}}, {0.0, 0.0}, view, range));
  EXPECT_FALSE(zoomedBy(1.4, {12.0, {}}, {0.0, 0.0}, view, range));
  EXPECT_FALSE(zoomedBy(1.0, {3.0, {}}, {0.0, 0.0}, view, range));
  EXPECT_FALSE(zoomedBy(std::numeric_limits<double>::quiet_NaN(), {3.0, {}}, {}, view, range));
}

TEST(MapLayout, BackAtTheLeastZoomTheMapIsCentred) {
  const auto home = zoomedBy(1.0 / 1.4, {1.4, {300.0, 20.0}}, {17.0, 5.0}, {800.0, 600.0}, range);
  ASSERT_TRUE(home);
  EXPECT_EQ(home->zoom, 1.0);
  EXPECT_EQ(home->pan, QPointF());
}

TEST(MapLayout, APinchIsBroughtIntoTheRangeAndKeepsThePan) {
  EXPECT_EQ(pinchedBy(100.0, {2.0, {5.0, 6.0}}, range).zoom, 12.0);
  EXPECT_EQ(pinchedBy(1.5, {2.0, {5.0, 6.0}}, range).zoom, 3.0);
  EXPECT_EQ(pinchedBy(1.5, {2.0, {5.0, 6.0}}, range).pan, QPointF(5.0, 6.0));
  EXPECT_EQ(pinchedBy(0.1, {2.0, {5.0, 6.0}}, range).zoom, 1.0);
  EXPECT_EQ(pinchedBy(0.1, {2.0, {5.0, 6.0}}, range).pan, QPointF());
}

RC_GTEST_PROP(MapLayout, APlaceIsFoundWhereItIsShown, ()) {
  const Layout layout = layoutOf(someView(), someFraming());
  const MapPlace place = tests::someShownPlace();
  const auto point = pointOf(place, layout);
  RC_ASSERT(point);
  const auto found = placeAt(*point, layout);
  RC_ASSERT(found);
  // A view of one point across, moved by thousands, leaves fewer digits than an ordinary one.
  RC_ASSERT(std::abs(found->latitude - place.latitude) < 1e-9);
  RC_ASSERT(std::abs(found->longitude - place.longitude) < 1e-9);
}

RC_GTEST_PROP(MapLayout, AZoomKeepsWhatLiesUnderItsAnchor, ()) {
  const QSizeF view = someView();
  const Framing before = someFraming();
  const QPointF anchor(someDouble(0, 3000), someDouble(0, 2000));
  const auto after = zoomedBy(someDouble(0, 3) + 0.5, before, anchor, view, range);
  RC_PRE(after.has_value());
  RC_PRE(after->zoom != range.least);
  const Layout from = layoutOf(view, before);
  const Layout to = layoutOf(view, *after);
  const auto part = [&anchor](const Layout& layout) {
    const QPointF inside = anchor - layout.origin;
    return QPointF(inside.x() / layout.displaySize.width(),
                   inside.y() / layout.displaySize.height());
  };
  const double tolerance = 1e-9 * (1.0 + std::abs(part(from).x()) + std::abs(part(from).y()));
  RC_ASSERT(std::abs(part(from).x() - part(to).x()) < tolerance);
  RC_ASSERT(std::abs(part(from).y() - part(to).y()) < tolerance);
}

}  // namespace
}  // namespace veyruna::ui
