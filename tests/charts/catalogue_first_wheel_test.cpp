// The wheel a new user sees first: no name lies under a line or under the label of a planet.
#include <algorithm>
#include <gtest/gtest.h>

#include "charts/horoscope.h"
#include "tests/charts/arial.h"
#include "tests/charts/catalogue_survey.h"
#include "tests/charts/xml_check.h"

namespace veyruna::charts {
namespace {

/// Noon of the first day of the year 720 at Wendmark.
const astro::Observer firstStart{258840.0, tests::radians(40.5), tests::radians(-20.9)};

/// A name drawn upright: the box of its letters, in user units.
struct UprightName {
  std::string name;
  double left;
  double right;
  double top;
  double bottom;

  /// From a point, 0 inside the box.
  [[nodiscard]] double distance(double x, double y) const {
    return std::hypot(std::max({left - x, 0.0, x - right}), std::max({top - y, 0.0, y - bottom}));
  }
};

struct FirstWheel : testing::Test {
  FirstWheel() {
    for (const FixedStar* const label : tests::surveyOfTheSky().labels) {
      for (const tests::XmlElement& element : tests::select(elements, "text")) {
        if (element.text == label->name) {
          const double width = tests::widthOf(element.text);
          const double left =
              element.number("x") - (element.has("text-anchor", "middle") ? width / 2.0 : 0.0);
          const double y = element.number("y");
          boxes.push_back(
              {element.text, left, left + width, y - tests::ascent, y + tests::descent});
        }
      }
    }
  }

  const std::vector<tests::XmlElement> elements =
      tests::readXml(horoscope(false, firstStart, builtInCatalogue()));
  std::vector<UprightName> boxes;
};

TEST_F(FirstWheel, TheCircleOfTheLatitudeCutsNoName) {
  const auto circles = tests::select(elements, "circle", "stroke", "orange");
  ASSERT_EQ(circles.size(), 1U);
  ASSERT_GE(boxes.size(), 10U);
  for (int step = 0; step < 3600; ++step) {
    const double angle = tests::radians(step / 10.0);
    const double x = circles[0].number("cx") + circles[0].number("r") * std::cos(angle);
    const double y = circles[0].number("cy") + circles[0].number("r") * std::sin(angle);
    for (const UprightName& box : boxes) {
      ASSERT_GE(box.distance(x, y), 1.5) << box.name;
    }
  }
}

TEST_F(FirstWheel, NoChordCutsAName) {
  const auto chords = tests::select(elements, "line", "stroke-width", "0.8");
  int lines = 0;
  for (const tests::XmlElement& chord : chords) {
    if (chord.has("stroke", "#f4f4f3")) {
      continue;  // a tick on the rim
    }
    ++lines;
    for (int step = 0; step <= 1000; ++step) {
      const double share = step / 1000.0;
      const double x = std::lerp(chord.number("x1"), chord.number("x2"), share);
      const double y = std::lerp(chord.number("y1"), chord.number("y2"), share);
      for (const UprightName& box : boxes) {
        ASSERT_GE(box.distance(x, y), 1.0) << box.name;
      }
    }
  }
  EXPECT_EQ(lines, 6);
}

TEST_F(FirstWheel, NoPlanetsLabelLiesOnAName) {
  struct Stretch {
    std::string name;
    double begin;
    double end;
  };
  constexpr double innerRadius = 170.0;
  std::vector<Stretch> stretches;
  for (const tests::XmlElement& element :
       tests::select(elements, "textPath", "xlink:href", "#rim_inner")) {
    const double begin = tests::leadingNumber(element.attribute("startOffset")) / 100.0 *
                         tests::fullTurn * innerRadius;
    stretches.push_back({element.text, begin, begin + tests::widthOf(element.text)});
  }
  std::ranges::sort(stretches, {}, &Stretch::begin);
  EXPECT_EQ(std::ranges::count(stretches, "Dunmor", &Stretch::name), 1);
  EXPECT_EQ(std::ranges::count(stretches, "Dalmi", &Stretch::name), 1);
  for (std::size_t i = 1; i < stretches.size(); ++i) {
    EXPECT_GE(stretches[i].begin - stretches[i - 1].end, 1.0)
        << stretches[i - 1].name << " and " << stretches[i].name;
  }
}

}  // namespace
}  // namespace veyruna::charts
