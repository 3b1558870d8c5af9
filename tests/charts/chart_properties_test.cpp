// What is true of every document of both charts.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "astro/sun.h"
#include "charts/horoscope.h"
#include "charts/star_map.h"
#include "tests/charts/sky_generators.h"
#include "tests/charts/xml_check.h"

namespace veyruna::charts {
namespace {

using astro::Observer;

std::string wheelFor(const Observer& at, const StarCatalogue& sky, bool blackAndWhite = false) {
  return horoscope(blackAndWhite, at, sky);
}

std::string mapFor(const Observer& at, const StarCatalogue& sky) {
  return starMap(at, sky);
}

/// A name as a catalogue may hold it: any characters but the comma and those XML cannot carry.
std::string someName() {
  const auto pieces =
      *rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(std::vector<std::string>{
          "A", "z", "7", " ", "&", "<", ">", "\"", "'", "_", ";", "amp", "]]", "°", "Ø", "星"}));
  std::string name = "Name ";
  for (const std::string& piece : pieces) {
    name += piece;
  }
  return name;
}

RC_GTEST_PROP(Charts, AreWellFormedForTheShippedSky, ()) {
  const Observer at = tests::someObserver();
  const auto map = tests::readXml(mapFor(at, builtInCatalogue()));
  const auto wheel = tests::readXml(wheelFor(at, builtInCatalogue(), *rc::gen::arbitrary<bool>()));
  RC_ASSERT(map.front().attribute("viewBox") == "0 0 360 360");
  RC_ASSERT(wheel.front().attribute("viewBox") == "-10 -10 720 380");
  for (const auto* const document : {&map, &wheel}) {
    RC_ASSERT(document->front().name == "svg");
    RC_ASSERT(document->front().attribute("xmlns") == "http://www.w3.org/2000/svg");
  }
}

RC_GTEST_PROP(Charts, CarryAnyNameWholeAndWellFormed, ()) {
  const Observer at = tests::someObserver();
  const std::string name = someName();
  // At the zenith, so that the star map shows it too.
  const StarCatalogue sky(
      {makeStar(name, true, "#f4f4f3", tests::meridian(at), at.latitude, *rc::gen::inRange(0, 3))},
      {});
  for (const std::string& document : {mapFor(at, sky), wheelFor(at, sky)}) {
    const auto texts = tests::textsOf(tests::readXml(document));
    RC_ASSERT(std::count(texts.begin(), texts.end(), name) == 1);
  }
}

RC_GTEST_PROP(Charts, AreTheSameBytesForTheSameMomentAndPlace, ()) {
  const Observer at = tests::someObserver();
  const Observer elsewhere = tests::someObserver();
  const std::string map = mapFor(at, builtInCatalogue());
  const std::string wheel = wheelFor(at, builtInCatalogue());
  const std::string paper = wheelFor(at, builtInCatalogue(), true);
  mapFor(elsewhere, builtInCatalogue());
  wheelFor(elsewhere, builtInCatalogue());
  RC_ASSERT(wheelFor(at, builtInCatalogue(), true) == paper);
  RC_ASSERT(wheelFor(at, builtInCatalogue()) == wheel);
  RC_ASSERT(mapFor(at, builtInCatalogue()) == map);
}

RC_GTEST_PROP(Charts, HoldNumbersWhereNumbersBelong, ()) {
  const Observer at = tests::someObserver();
  for (const std::string& document :
       {mapFor(at, builtInCatalogue()), wheelFor(at, builtInCatalogue())}) {
    for (const auto& element : tests::readXml(document)) {
      for (const char* const key : {"x", "y", "x1", "y1", "x2", "y2", "cx", "cy", "r"}) {
        if (element.attributes.contains(key)) {
          RC_ASSERT(std::isfinite(element.number(key)));
        }
      }
    }
  }
}

// The wheel turns with nothing but the year's circle: every star keeps its place on it for ever.
RC_GTEST_PROP(Charts, ShowTheFixedStarsAtOnePlaceOfTheWheel, ()) {
  const StarCatalogue sky(tests::someNamedStars(), {});
  const auto starDots = [&sky](const Observer& at) {
    std::vector<std::map<std::string, std::string>> dots;
    for (const auto& dot :
         tests::select(tests::readXml(wheelFor(at, sky)), "circle", "fill", "#f4f4f3")) {
      dots.push_back(dot.attributes);
    }
    return dots;
  };
  RC_ASSERT(starDots(tests::someObserver()) == starDots(tests::someObserver()));
}

// Both charts at a whole turn of longitude further east: the same sky, only the header differs.
RC_GTEST_PROP(Charts, AWholeTurnEastIsTheSamePlace, ()) {
  const Observer at = tests::someObserver(80);
  const Observer turned{at.baseTime, at.latitude, at.longitude + tests::fullTurn};
  const auto names = [](const std::string& document) {
    auto texts = tests::textsOf(tests::readXml(document));
    std::erase_if(texts, [](const std::string& text) {
      return text.starts_with("Lat: ") || text.starts_with("\n") || text.starts_with("Sun HA: ");
    });
    return texts;
  };
  const StarCatalogue sky({}, {});
  const double sun =
      tests::sineOfAltitude(at, tests::equatorialOfEcliptic(astro::sunLongitude(at.baseTime)));
  RC_PRE(std::abs(sun) > tests::horizonMargin);
  RC_ASSERT(names(wheelFor(at, sky)) == names(wheelFor(turned, sky)));
}

}  // namespace
}  // namespace veyruna::charts
