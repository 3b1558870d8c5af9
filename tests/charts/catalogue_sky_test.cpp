// The shipped sky as an observer sees it: figures that can be told apart, stars all over, one band
// where they crowd. Measured on the sphere, where the stars appear on the charts.
#include <algorithm>
#include <gtest/gtest.h>

#include "reports/zodiac.h"
#include "tests/charts/catalogue_survey.h"

namespace veyruna::charts {
namespace {

using tests::degrees;
using tests::Direction;
using tests::Figure;
using tests::seen;
using tests::surveyOfTheSky;

double widestSpan(const Figure& figure) {
  double widest = 0.0;
  for (const FixedStar* const a : figure.stars) {
    for (const FixedStar* const b : figure.stars) {
      widest = std::max(widest, degrees(tests::angleBetween(seen(*a), seen(*b))));
    }
  }
  return widest;
}

/// What the eye takes in at one look: the width of a figure.
constexpr double oneLookDegrees = 25.0;

TEST(ShippedSky, MostFiguresFitIntoOneLookSomeAreCompactAndFewAreLarge) {
  int compact = 0;
  int large = 0;
  for (const auto& [code, figure] : surveyOfTheSky().figures) {
    const double span = widestSpan(figure);
    EXPECT_GE(span, 4.0) << code << " cannot be made out";
    EXPECT_LE(span, 40.0) << code;
    compact += span <= 9.0 ? 1 : 0;
    if (span > oneLookDegrees) {
      EXPECT_GE(span, 30.0) << code << " is neither large nor taken in at one look";
      ++large;
    }
  }
  EXPECT_GE(compact, 4);
  EXPECT_LE(compact, 6);
  EXPECT_GE(large, 2);
  EXPECT_LE(large, 3);
}

TEST(ShippedSky, LinesOfTwoConstellationsNeverCross) {
  const auto& figures = surveyOfTheSky().figures;
  for (auto one = figures.begin(); one != figures.end(); ++one) {
    for (auto other = std::next(one); other != figures.end(); ++other) {
      for (const auto& [a, b] : one->second.lines) {
        for (const auto& [c, d] : other->second.lines) {
          EXPECT_FALSE(tests::arcsCross(seen(*a), seen(*b), seen(*c), seen(*d)))
              << a->name << "-" << b->name << " crosses " << c->name << "-" << d->name;
        }
      }
    }
  }
}

TEST(ShippedSky, EveryStarOfASignStandsInIt) {
  for (const reports::ZodiacSign& sign : reports::zodiacSigns) {
    const std::string code = tests::codeNamedBy(sign.name);
    ASSERT_TRUE(surveyOfTheSky().figures.contains(code)) << code;
    for (const FixedStar* const star : surveyOfTheSky().figures.at(code).stars) {
      EXPECT_EQ(reports::signName(star->ec.phi), sign.name) << star->name;
    }
  }
}

TEST(ShippedSky, EveryConstellationsNameStandsBesideItsOwnFigure) {
  constexpr double farthestDegrees = 12.0;
  for (const FixedStar* const label : surveyOfTheSky().labels) {
    const std::string code = tests::codeNamedBy(label->name);
    if (!surveyOfTheSky().figures.contains(code)) {
      continue;
    }
    std::string nearest;
    double nearestAngle = tests::fullTurn;
    for (const auto& [otherCode, figure] : surveyOfTheSky().figures) {
      const double angle = tests::angleToFigure(seen(*label), figure);
      if (angle < nearestAngle) {
        nearestAngle = angle;
        nearest = otherCode;
      }
    }
    EXPECT_EQ(nearest, code) << degrees(nearestAngle) << " degrees from it";
    double nearestStar = tests::fullTurn;
    for (const FixedStar* const star : surveyOfTheSky().figures.at(code).stars) {
      nearestStar = std::min(nearestStar, tests::angleBetween(seen(*label), seen(*star)));
    }
    EXPECT_LE(degrees(nearestStar), farthestDegrees) << label->name;
  }
}

TEST(ShippedSky, TheNamedStarIsThePoleStar) {
  const FixedStar* poleStar = nullptr;
  for (const FixedStar* const label : surveyOfTheSky().labels) {
    if (label->dotSize() > 0.0) {
      poleStar = label;
    }
  }
  ASSERT_NE(poleStar, nullptr);
  const Direction pole = {0.0, 0.0, 1.0};
  const double distance = tests::angleBetween(seen(*poleStar), pole);
  EXPECT_LT(degrees(distance), 1.0);
  for (const Direction& star : tests::allStars()) {
    EXPECT_GT(tests::angleBetween(star, pole), distance);
  }
}

TEST(ShippedSky, NoTwoStarsRunTogether) {
  constexpr double closestDegrees = 0.3;
  std::vector<const FixedStar*> dots;
  for (const FixedStar& star : builtInCatalogue().stars()) {
    if (!star.isMarker() && star.dotSize() > 0.0) {
      dots.push_back(&star);
    }
  }
  for (std::size_t i = 0; i < dots.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k) {
      EXPECT_GE(degrees(tests::angleBetween(seen(*dots[i]), seen(*dots[k]))), closestDegrees)
          << dots[i]->name << " and " << dots[k]->name;
    }
  }
}

// Nowhere is a hole in which a figure of its own could stand.
TEST(ShippedSky, ThereIsAStarWhereverOneLooks) {
  constexpr int looks = 40'000;  // about a degree apart
  const std::vector<Direction> stars = tests::allStars();
  double emptiest = 0.0;
  for (const Direction& look : tests::evenlySpread(looks)) {
    double largestCosine = -1.0;
    for (const Direction& star : stars) {
      largestCosine = std::max(largestCosine, tests::dot(look, star));
    }
    emptiest = std::max(emptiest, degrees(std::acos(std::min(largestCosine, 1.0))));
  }
  EXPECT_LE(2.0 * emptiest, oneLookDegrees);
}

/// How many background stars lie within `halfWidth` of the great circle about this pole.
int countInBand(const Direction& pole, double halfWidth) {
  const double limit = std::sin(halfWidth);
  return static_cast<int>(std::count_if(
      surveyOfTheSky().background.begin(), surveyOfTheSky().background.end(),
      [&](const FixedStar* star) { return std::abs(tests::dot(seen(*star), pole)) <= limit; }));
}

// A band 15 degrees to each side of a great circle covers sin 15° of the sphere. The stars of an
// even sky would fill it with that share; here one band holds half as many again.
TEST(ShippedSky, TheFaintStarsCrowdInOneBandThatHasAName) {
  const double halfWidth = tests::radians(15.0);
  const double evenShare = 454.0 * std::sin(halfWidth);
  Direction densestPole{};
  int most = 0;
  for (const Direction& pole : tests::evenlySpread(4'000)) {
    const int count = countInBand(pole, halfWidth);
    if (count > most) {
      most = count;
      densestPole = pole;
    }
  }
  EXPECT_GE(most, 1.5 * evenShare);

  int namesOfNoFigure = 0;
  for (const FixedStar* const label : surveyOfTheSky().labels) {
    const bool namesAFigure = surveyOfTheSky().figures.contains(tests::codeNamedBy(label->name));
    if (!namesAFigure && label->dotSize() == 0.0) {
      ++namesOfNoFigure;
      EXPECT_LE(std::abs(tests::dot(seen(*label), densestPole)), std::sin(halfWidth))
          << label->name << " is the band's name and stands in it";
    }
  }
  EXPECT_EQ(namesOfNoFigure, 1);
}

}  // namespace
}  // namespace veyruna::charts
