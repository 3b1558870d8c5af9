// The picture's pixels and the world's angles.
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

#include "tests/ui/map/map_places.h"
#include "ui/map/map_projection.h"

namespace veyruna::ui {
namespace {

TEST(MapProjection, HasTheScalesOfItsDraughtsman) {
  EXPECT_EQ(pixelsPerLatitude, 2987.9749016072433);
  EXPECT_EQ(pixelsPerLongitude, 2992.1129301276324);
  EXPECT_EQ(mapWidth / mapHeight, 1.3214941824862216);
  EXPECT_EQ(northernmost, 1.0471975511965976);
  EXPECT_EQ(easternmost, 0.7853981633974483);
}

TEST(MapProjection, TheEquatorMeetsTheCentralMeridian) {
  const auto place = placeAtPixel({1768.0, 3194.0});
  ASSERT_TRUE(place);
  EXPECT_EQ(place->latitude, 0.0);
  EXPECT_EQ(place->longitude, 0.0);
}

TEST(MapProjection, TheNorthernEdgeIsSixtyDegrees) {
  const auto place = placeAtPixel({1768.0, 65.0});
  ASSERT_TRUE(place);
  EXPECT_NEAR(astro::degreesOf(place->latitude), 60.0, 1e-12);
  EXPECT_FALSE(placeAtPixel({1768.0, 64.99}));
  EXPECT_FALSE(placeAtPixel({1768.0, 64.0}));
}

TEST(MapProjection, BelowTheEquatorThereIsNothing) {
  EXPECT_TRUE(placeAtPixel({1768.0, 3193.99}));
  EXPECT_FALSE(placeAtPixel({1768.0, 3194.01}));
  EXPECT_FALSE(placeAtPixel({1768.0, 3266.0}));
}

TEST(MapProjection, TheEdgeRunsAlongTheSine) {
  // 45° west at 60° north: 2350 pixels at the equator, half of that here.
  const auto corner = placeAtPixel({593.0, 65.0});
  ASSERT_TRUE(corner);
  EXPECT_NEAR(astro::degreesOf(corner->longitude), -45.0, 1e-9);
  EXPECT_FALSE(placeAtPixel({592.9, 65.0}));
  EXPECT_FALSE(placeAtPixel({100.0, 100.0}));
  const auto east = placeAtPixel({4117.999, 3194.0});
  ASSERT_TRUE(east);
  EXPECT_NEAR(astro::degreesOf(east->longitude), 45.0, 1e-3);
  EXPECT_FALSE(placeAtPixel({4118.001, 3194.0}));
}

TEST(MapProjection, WhatIsNoNumberIsNowhere) {
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  constexpr double endless = std::numeric_limits<double>::infinity();
  for (const double bad : {none, endless, -endless}) {
    EXPECT_FALSE(placeAtPixel({bad, 100.0}));
    EXPECT_FALSE(placeAtPixel({1768.0, bad}));
    EXPECT_FALSE(pixelOf({bad, 0.0}));
    EXPECT_FALSE(pixelOf({0.0, bad}));
  }
}

TEST(MapProjection, PlacesOutsideHaveNoPixel) {
  EXPECT_TRUE(pixelOf({northernmost, -easternmost}));
  EXPECT_FALSE(pixelOf({-0.001, 0.0}));
  EXPECT_FALSE(pixelOf({northernmost + 0.001, 0.0}));
  EXPECT_FALSE(pixelOf({0.5, easternmost + 0.001}));
  EXPECT_FALSE(pixelOf({0.5, -easternmost - 0.001}));
  // 45° west on the equator lies 582 pixels beyond the picture's western edge.
  EXPECT_FALSE(pixelOf({0.0, -easternmost}));
  EXPECT_TRUE(pixelOf({0.0, easternmost}));
}

RC_GTEST_PROP(MapProjection, ThereAndBackIsTheSamePlace, ()) {
  const MapPlace shown = tests::someShownPlace();
  const auto pixel = pixelOf(shown);
  RC_ASSERT(pixel);
  const auto place = placeAtPixel(*pixel);
  RC_ASSERT(place);
  RC_ASSERT(std::abs(place->latitude - shown.latitude) < 1e-12);
  RC_ASSERT(std::abs(place->longitude - shown.longitude) < 1e-12);
}

}  // namespace
}  // namespace veyruna::ui
