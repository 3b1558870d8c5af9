// What is pointed at and where the arrows lead, as pure functions.
#include "ui/charts/hit_test.h"

#include <gtest/gtest.h>

namespace veyruna::ui {
namespace {

using charts::ChartMark;
using charts::ChartMarks;
using charts::MarkKind;
using charts::PagePoint;

ChartMark star(std::size_t ordinal, PagePoint at, double magnitude) {
  return {MarkKind::star, ordinal, "Star", magnitude, {{at, at, 1.0}}, {}, {}, {}};
}

std::size_t found(const ChartMarks& marks, PagePoint at, double pointsPerUnit = 1.0) {
  const ChartMark* const mark = markAt(marks, at, pointsPerUnit);
  return mark == nullptr ? 0 : mark->ordinal;
}

TEST(HitTest, TheLeastOfDistanceAndMagnitudeWins) {
  const ChartMarks marks = {star(1, {10.0, 0.0}, 5.0), star(2, {20.0, 0.0}, 1.0)};
  EXPECT_EQ(found(marks, {10.0, 0.0}), 1U);
  EXPECT_EQ(found(marks, {12.9, 0.0}), 1U);  // 1.9 + 5.0 against 6.1 + 1.0
  EXPECT_EQ(found(marks, {13.1, 0.0}), 2U);
  EXPECT_EQ(found(marks, {20.0, 0.0}), 2U);
}

TEST(HitTest, DistancesAreThoseOfTheScreen) {
  const ChartMarks marks = {star(1, {10.0, 0.0}, 5.0), star(2, {20.0, 0.0}, 1.0)};
  EXPECT_EQ(found(marks, {14.0, 0.0}, 1.0), 2U);
  EXPECT_EQ(found(marks, {14.0, 0.0}, 3.0), 1U);
  EXPECT_EQ(found(marks, {12.4, 0.0}, 0.1), 2U);
}

TEST(HitTest, NothingIsPointedAtBeyondTwentyFivePoints) {
  const ChartMarks marks = {star(1, {0.0, 0.0}, -30.0)};
  EXPECT_EQ(found(marks, {26.0, 0.0}), 1U);  // the dot's edge is at 1
  EXPECT_EQ(found(marks, {26.1, 0.0}), 0U);
  EXPECT_EQ(found(marks, {13.5, 0.0}, 2.0), 1U);
  EXPECT_EQ(found(marks, {14.0, 0.0}, 2.0), 0U);
  EXPECT_EQ(markAt({}, {0.0, 0.0}, 1.0), nullptr);
}

TEST(HitTest, ANameIsPointedAtWhereNoStarIs) {
  ChartMark planet = star(1, {0.0, 0.0}, -1.0);
  planet.letters = {{{10.0, 0.0}, {30.0, 0.0}, 2.0}};
  const ChartMarks marks = {planet, star(2, {20.0, 0.0}, 5.0)};
  EXPECT_EQ(found(marks, {0.0, 0.0}), 1U);
  EXPECT_EQ(found(marks, {20.0, 0.0}), 2U);
  EXPECT_EQ(found(marks, {30.0, 0.0}), 1U);
}

struct Arrows : testing::Test {
  ChartMarks marks = {star(1, {0.0, 0.0}, 1.0),  star(2, {10.0, 4.0}, 1.0),
                      star(3, {20.0, 0.0}, 1.0), star(4, {-3.0, -8.0}, 1.0),
                      star(5, {0.0, 30.0}, 1.0), star(6, {0.0, 0.0}, 1.0)};

  std::size_t next(std::size_t from, Direction direction) {
    std::vector<const ChartMark*> all;
    for (const ChartMark& mark : marks) {
      all.push_back(&mark);
    }
    const ChartMark* const neighbour = neighbourOf(all, marks[from - 1], direction);
    return neighbour == nullptr ? 0 : neighbour->ordinal;
  }
};

TEST_F(Arrows, LeadToTheNearestOnThatSide) {
  EXPECT_EQ(next(6, Direction::right), 2U);
  EXPECT_EQ(next(2, Direction::right), 3U);
  EXPECT_EQ(next(1, Direction::up), 4U);
  EXPECT_EQ(next(1, Direction::down), 5U);
  EXPECT_EQ(next(3, Direction::left), 2U);
  EXPECT_EQ(next(3, Direction::right), 0U);
}

TEST_F(Arrows, MarksOnOnePointAreReachedOneAfterTheOther) {
  EXPECT_EQ(next(1, Direction::right), 6U);
  EXPECT_EQ(next(6, Direction::left), 1U);
}

}  // namespace
}  // namespace veyruna::ui
