// What is true of every star map, whatever the moment and the place. Altitudes are computed here
// from the triangle of pole, zenith and star.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <set>

#include "astro/moon.h"
#include "astro/planet.h"
#include "charts/star_map.h"
#include "tests/charts/sky_generators.h"
#include "tests/charts/xml_check.h"

namespace veyruna::charts {
namespace {

using astro::Observer;
using tests::horizonMargin;
using tests::readXml;
using tests::select;

std::vector<tests::XmlElement> mapFor(const Observer& at, const StarCatalogue& sky) {
  return readXml(starMap(at, sky));
}

std::set<std::string> namesOn(const std::vector<tests::XmlElement>& map) {
  const auto texts = tests::textsOf(map);
  return {texts.begin(), texts.end()};
}

double distanceFromZenith(const tests::XmlElement& element, const std::string& x,
                          const std::string& y) {
  return std::hypot(element.number(x) - 180.0, element.number(y) - 180.0);
}

RC_GTEST_PROP(StarMap, ShowsTheNamesOfExactlyTheStarsThatAreUp, ()) {
  const Observer at = tests::someObserver();
  const auto stars = tests::someNamedStars();
  const auto names = namesOn(mapFor(at, StarCatalogue(stars, {})));
  for (const FixedStar& star : stars) {
    const double height = tests::sineOfAltitude(at, tests::equatorialPlace(star));
    if (std::abs(height) > horizonMargin) {
      RC_ASSERT(names.contains(star.name) == (height > 0.0));
    }
  }
}

RC_GTEST_PROP(StarMap, DrawsADotAsFarFromTheMiddleAsItsStarIsFromTheZenith, ()) {
  const Observer at = tests::someObserver();
  const FixedStar star =
      makeStar("Lamp", true, "#f4f4f3", *tests::someAngle(180), *tests::someAngle(90), 1.0);
  const auto dots = select(mapFor(at, StarCatalogue({star}, {})), "circle", "fill", "#f4f4f3");
  const double height = tests::sineOfAltitude(at, tests::equatorialPlace(star));
  RC_PRE(height > horizonMargin);
  RC_ASSERT(dots.size() == 1U);
  const double fromZenith = tests::degrees(std::acos(std::fmin(height, 1.0)));
  constexpr double roundingOfBothCoordinates = 0.70711;
  RC_ASSERT(std::abs(distanceFromZenith(dots[0], "cx", "cy") - 2.0 * fromZenith) <
            roundingOfBothCoordinates);
}

RC_GTEST_PROP(StarMap, ShowsTheWanderersThatAreUp, ()) {
  const Observer at = tests::someObserver();
  const auto map = mapFor(at, StarCatalogue({}, {}));
  const auto names = namesOn(map);
  for (const astro::Planet planet : astro::allPlanets) {
    const double height = tests::sineOfAltitude(
        at, tests::equatorialOfEcliptic(planetEcliptic(planet, at.baseTime).phi));
    if (std::abs(height) > horizonMargin) {
      RC_ASSERT(names.contains(std::string(displayName(planet))) == (height > 0.0));
    }
  }
  const double sun =
      tests::sineOfAltitude(at, tests::equatorialOfEcliptic(astro::sunLongitude(at.baseTime)));
  if (std::abs(sun) > horizonMargin) {
    RC_ASSERT(select(map, "circle", "fill", "#f1c536").size() == (sun > 0.0 ? 1U : 0U));
  }
  const astro::Moon moon(at.baseTime);
  const double moonHeight = tests::sineOfAltitude(at, {moon.eq.phi, moon.eq.theta});
  if (std::abs(moonHeight) > horizonMargin) {
    RC_ASSERT(names.contains("IVRO") == (moonHeight > 0.0));
    RC_ASSERT(select(map, "g").size() == (moonHeight > 0.0 ? 1U : 0U));
  }
}

RC_GTEST_PROP(StarMap, KeepsEveryDotAndLineOfTheShippedSkyOnTheDisc, ()) {
  const auto map = mapFor(tests::someObserver(), builtInCatalogue());
  for (const char* const color : {"#adadad", "#f4f4f3", "#fef651", "#f1c536", "#407ff5", "#e3463e",
                                  "#e98739", "#b141d5", "#3a3a3a"}) {
    for (const auto& dot : select(map, "circle", "fill", color)) {
      RC_ASSERT(distanceFromZenith(dot, "cx", "cy") <= 180.0 + 0.70711);
    }
  }
  for (const auto& line : select(map, "line", "stroke", "#eaeae9")) {
    RC_ASSERT(distanceFromZenith(line, "x1", "y1") <= 180.0 + 0.0708);
    RC_ASSERT(distanceFromZenith(line, "x2", "y2") <= 180.0 + 0.0708);
  }
}

RC_GTEST_PROP(StarMap, DrawsTheLinesWhoseEndsAreBothUp, ()) {
  const Observer at = tests::someObserver();
  const StarCatalogue& sky = builtInCatalogue();
  std::size_t expected = 0;
  std::size_t uncertain = 0;
  for (const StarCatalogue::Line& line : sky.lines()) {
    const double from = tests::sineOfAltitude(at, tests::equatorialPlace(sky.stars()[line.from]));
    const double to = tests::sineOfAltitude(at, tests::equatorialPlace(sky.stars()[line.to]));
    uncertain += std::fmin(std::abs(from), std::abs(to)) <= horizonMargin ? 1U : 0U;
    expected += from > horizonMargin && to > horizonMargin ? 1U : 0U;
  }
  const auto drawn = select(mapFor(at, sky), "line", "stroke", "#eaeae9").size();
  RC_ASSERT(drawn >= expected);
  RC_ASSERT(drawn <= expected + uncertain);
}

// Half of every great circle is up, in one piece; the drawing cuts it where longitude 0 is up.
RC_GTEST_PROP(StarMap, DrawsTheEclipticInOnePieceFromRimToRim, ()) {
  const Observer at = tests::someObserver();
  const auto segments = select(mapFor(at, StarCatalogue({}, {})), "line", "opacity", "0.7");
  std::size_t expected = 0;
  for (int i = 0; i < 360; ++i) {
    const auto height = [&at](int degree) {
      return tests::sineOfAltitude(at, tests::equatorialOfEcliptic(tests::radians(degree)));
    };
    RC_PRE(std::abs(height(i)) > horizonMargin);
    expected += height(i) > 0.0 && height(i + 1) > 0.0 ? 1U : 0U;
  }
  RC_ASSERT(segments.size() == expected);

  // One degree of the ecliptic rises or sets within one degree, two units, of the rim.
  constexpr double nearRim = 180.0 - 2.01;
  int breaks = 0;
  for (std::size_t i = 1; i < segments.size(); ++i) {
    const auto& before = segments[i - 1];
    const auto& after = segments[i];
    if (!after.has("x1", before.attribute("x2")) || !after.has("y1", before.attribute("y2"))) {
      ++breaks;
      RC_ASSERT(distanceFromZenith(before, "x2", "y2") > nearRim);
      RC_ASSERT(distanceFromZenith(after, "x1", "y1") > nearRim);
    }
  }
  RC_ASSERT(breaks <= 1);
  if (breaks == 1) {
    const auto& first = segments.front();
    const auto& last = segments.back();
    RC_ASSERT(std::hypot(first.number("x1") - last.number("x2"),
                         first.number("y1") - last.number("y2")) < 0.02);
  }
}

RC_GTEST_PROP(StarMap, DrawsTicksFourUnitsLongSquareToTheEcliptic, ()) {
  const Observer at = tests::someObserver();
  const double longitude = *tests::someAngle(180);
  const auto isUp = [&](double offset) {
    return tests::sineOfAltitude(at, tests::equatorialOfEcliptic(longitude + offset)) >
           horizonMargin;
  };
  RC_PRE(isUp(-0.01) && isUp(0.0) && isUp(0.01));
  const FixedStar marker = makeStar("_MARK", false, "#f4f4f3", longitude, 0.0, 1.0);
  const auto lampAt = [](const char* name, double where) {
    return makeStar(name, false, "#f4f4f3", where, 0.0, 1.0);
  };
  // A line between two stars a hundredth beside the marker shows which way the ecliptic runs.
  const StarCatalogue sky(
      {marker, lampAt("West", longitude - 0.01), lampAt("East", longitude + 0.01)},
      {{"West", "East"}});
  const auto map = mapFor(at, sky);
  const auto ticks = select(map, "line", "stroke-width", "0.8");
  const auto chords = select(map, "line", "stroke", "#eaeae9");
  RC_ASSERT(ticks.size() == 1U);
  RC_ASSERT(chords.size() == 1U);
  const auto run = [](const tests::XmlElement& line, const char* from, const char* to) {
    return line.number(to) - line.number(from);
  };
  const double tickX = run(ticks[0], "x1", "x2");
  const double tickY = run(ticks[0], "y1", "y2");
  const double chordX = run(chords[0], "x1", "x2");
  const double chordY = run(chords[0], "y1", "y2");
  RC_ASSERT(std::abs(std::hypot(tickX, tickY) - 4.0) < 0.0142);
  // The chord's ends are rounded to 0.1, the tick's to 0.01.
  const double slack = 4.0 * 0.1415 + std::hypot(chordX, chordY) * 0.01415;
  RC_ASSERT(std::abs(tickX * chordX + tickY * chordY) < slack);
}

}  // namespace
}  // namespace veyruna::charts
