#include "drawing/path_reader.h"

#include <cmath>
#include <gtest/gtest.h>

namespace veyruna::drawing {
namespace {

TEST(PathReader, AHalfDiscIsOnItsSideOfTheChord) {
  // Clockwise on the page from the top: over the right.
  const auto right = outlineOf(u"M 10,5 A 5.00,5.00 0 0,1 10,15 Z");
  ASSERT_TRUE(right);
  EXPECT_TRUE(right->contains(QPointF(14.9, 10.0)));
  EXPECT_FALSE(right->contains(QPointF(15.1, 10.0)));
  EXPECT_FALSE(right->contains(QPointF(9.9, 10.0)));
  const auto left = outlineOf(u"M 10,5 A 5,5 0 0,0 10,15 Z");
  EXPECT_TRUE(left->contains(QPointF(5.1, 10.0)));
  EXPECT_FALSE(left->contains(QPointF(10.1, 10.0)));
}

TEST(PathReader, ACrescentIsTheLimbLessTheShadow) {
  const auto crescent = outlineOf(u"M 0,-5 A 5.00,5.00 0 0,1 0,5 A 3.00,5.00 0 0,0 0,-5 Z");
  ASSERT_TRUE(crescent);
  EXPECT_TRUE(crescent->contains(QPointF(4.0, 0.0)));
  EXPECT_FALSE(crescent->contains(QPointF(2.9, 0.0)));
  EXPECT_TRUE(crescent->contains(QPointF(3.1, 0.0)));
}

TEST(PathReader, ALargeArcIsTheLongWayRound) {
  const auto large = outlineOf(u"M 1,0 A 1,1 0 1,1 0,-1 Z");
  ASSERT_TRUE(large);
  EXPECT_TRUE(large->contains(QPointF(-0.5, 0.5)));
  EXPECT_FALSE(large->contains(QPointF(0.9, -0.9)));
  const auto small = outlineOf(u"M 1,0 A 1,1 0 0,0 0,-1 Z");
  EXPECT_FALSE(small->contains(QPointF(-0.5, 0.5)));
  EXPECT_TRUE(small->contains(QPointF(0.6, -0.6)));
}

TEST(PathReader, AnArcWithoutBreadthIsItsChord) {
  const auto flat = outlineOf(u"M 0,0 A 0,5 0 0,1 0,10");
  ASSERT_TRUE(flat);
  EXPECT_EQ(flat->boundingRect(), QRectF(0.0, 0.0, 0.0, 10.0));
}

TEST(PathReader, AxesTooShortToReachAreEnlarged) {
  const auto arc = outlineOf(u"M 0,0 A 1,1 0 0,1 0,10 Z");
  ASSERT_TRUE(arc);
  EXPECT_NEAR(arc->boundingRect().right(), 5.0, 1e-3);
}

TEST(PathReader, ACircleIsTrueToItsRadius) {
  const QPainterPath circle = circlePath(QPointF(180.0, 180.0), 175.0);
  for (int i = 0; i <= 1000; ++i) {
    const QPointF at = circle.pointAtPercent(i / 1000.0) - QPointF(180.0, 180.0);
    EXPECT_NEAR(std::hypot(at.x(), at.y()), 175.0, 175.0 * 5e-6);
  }
}

TEST(PathReader, WhatElseStandsThereIsRefused) {
  for (const QStringView data :
       {QStringView(u"A 5,5 0 0,1 1,1"), QStringView(u"M 1"), QStringView(u"m 1,2"),
        QStringView(u"M 1,2 A 5,5 30 0,1 1,1"), QStringView(u"M 1,2 A 5,5 0 2,1 1,1"),
        QStringView(u"M 1,2 A -5,5 0 0,1 1,1"), QStringView(u"M 1,2 C 1 2 3 4 5 6"),
        QStringView(u"M 1,2 3,4"), QStringView(u"M 1,1e400"), QStringView(u"M 1,2 €")}) {
    EXPECT_FALSE(outlineOf(data)) << data.toString().toStdString();
  }
}

TEST(PathReader, ARimIsACircleOfTwoClockwiseHalves) {
  const auto rim = rimOf(u"M180,5 A175,175, 0 1,1 180,355 A175,175, 0 1,1 180,5");
  ASSERT_TRUE(rim);
  EXPECT_EQ(rim->centre, QPointF(180.0, 180.0));
  EXPECT_EQ(rim->radius, 175.0);
  EXPECT_EQ(rim->beginning, -90.0);
  EXPECT_FALSE(rimOf(u"M180,5 A175,175, 0 1,0 180,355 A175,175, 0 1,0 180,5"));
  EXPECT_FALSE(rimOf(u"M180,5 A175,175, 0 1,1 180,355"));
  EXPECT_FALSE(rimOf(u"M180,5 A175,170, 0 1,1 180,355 A175,170, 0 1,1 180,5"));
  EXPECT_FALSE(rimOf(u"M180,5 A180,180, 0 1,1 180,355 A180,180, 0 1,1 180,5"));
  EXPECT_FALSE(rimOf(u"M180,5 A175,175, 0 1,1 180,355 A175,175, 0 1,1 180,6"));
}

}  // namespace
}  // namespace veyruna::drawing
