// The shipped stars as a sky has them: few bright and many faint ones, drawn where their lines end;
// faint crowds in the band, clusters and doubles outside it.
#include <algorithm>
#include <gtest/gtest.h>

#include "charts/projection.h"
#include "tests/charts/catalogue_survey.h"

namespace veyruna::charts {
namespace {

using tests::degrees;
using tests::seen;
using tests::surveyOfTheSky;

std::ptrdiff_t brighterThan(double magnitude) {
  std::ptrdiff_t count = 0;
  for (const auto& [code, figure] : surveyOfTheSky().figures) {
    count += std::ranges::count_if(
        figure.stars, [magnitude](const FixedStar* star) { return star->magnitude < magnitude; });
  }
  return count;
}

TEST(ShippedStars, EachMagnitudeHasAboutThreeTimesTheStarsOfTheBrighterOnes) {
  EXPECT_GE(brighterThan(2.0), 17);
  EXPECT_LE(brighterThan(2.0), 24);
  for (const double magnitude : {1.0, 2.0, 3.0}) {
    EXPECT_GE(brighterThan(magnitude + 1.0), 2 * brighterThan(magnitude)) << magnitude;
    EXPECT_LE(brighterThan(magnitude + 1.0), 4 * brighterThan(magnitude)) << magnitude;
  }
  EXPECT_GT(brighterThan(9.0) - brighterThan(3.001), 100);
}

TEST(ShippedStars, OneFigureBlazesAndOneIsFaintThroughout) {
  int blazing = 0;
  int faint = 0;
  for (const auto& [code, figure] : surveyOfTheSky().figures) {
    const auto [brightest, faintest] = std::ranges::minmax(figure.stars, {}, &FixedStar::magnitude);
    blazing += faintest->magnitude <= 2.5 ? 1 : 0;
    faint += brightest->magnitude >= 3.0 ? 1 : 0;
  }
  EXPECT_GE(blazing, 1);
  EXPECT_LE(blazing, 3);
  EXPECT_GE(faint, 1);
  EXPECT_LE(faint, 3);
}

// Dots are drawn on whole units and lines are not: on the wheel, which never turns, they meet.
TEST(ShippedStars, OnTheWheelLinesEndInTheMiddleOfTheirDots) {
  for (const auto& [code, figure] : surveyOfTheSky().figures) {
    for (const FixedStar* const star : figure.stars) {
      const ProjectedPoint point = projected(star->ec);
      const PagePoint dot = point.rounded();
      EXPECT_NEAR(point.exact().x, dot.x, 0.01) << star->name;
      EXPECT_NEAR(point.exact().y, dot.y, 0.01) << star->name;
    }
  }
}

double degreesBetween(const FixedStar* a, const FixedStar* b) {
  return degrees(tests::angleBetween(seen(*a), seen(*b)));
}

/// For each background star how many others stand within so many degrees.
std::vector<int> companions(double within) {
  const auto& stars = surveyOfTheSky().background;
  std::vector<int> counts;
  counts.reserve(stars.size());
  for (const FixedStar* const star : stars) {
    counts.push_back(static_cast<int>(std::ranges::count_if(stars, [&](const FixedStar* other) {
      return other != star && degreesBetween(star, other) <= within;
    })));
  }
  return counts;
}

TEST(ShippedStars, SomeAreDoubleAndSomeStandInClusters) {
  const std::vector<int> close = companions(0.76);
  EXPECT_GE(std::ranges::count(close, 1), 10) << "five doubles";
  const std::vector<int> around = companions(4.4);
  EXPECT_GE(std::ranges::count_if(around, [](int count) { return count >= 5; }), 18)
      << "three clusters of six";
}

TEST(ShippedStars, WhereTheyCrowdTheyAreFaint) {
  const std::vector<int> around = companions(5.0);
  double crowded = 0.0;
  double lonely = 0.0;
  int crowdedCount = 0;
  int lonelyCount = 0;
  for (std::size_t i = 0; i < around.size(); ++i) {
    const double magnitude = surveyOfTheSky().background[i]->magnitude;
    if (around[i] >= 7) {
      crowded += magnitude;
      ++crowdedCount;
    } else if (around[i] == 0) {
      lonely += magnitude;
      ++lonelyCount;
    }
  }
  ASSERT_GE(crowdedCount, 80) << "the band";
  ASSERT_GE(lonelyCount, 50) << "the country outside it";
  EXPECT_GE(crowded / crowdedCount, lonely / lonelyCount + 0.25);
}

// The smallest dot is all that is left of the faintest; most of the others differ from it.
TEST(ShippedStars, NotAllDotsAreOfOneSize) {
  const auto& stars = surveyOfTheSky().background;
  EXPECT_LE(
      std::ranges::count_if(stars, [](const FixedStar* star) { return star->dotSize() == 0.4; }),
      260);
}

}  // namespace
}  // namespace veyruna::charts
