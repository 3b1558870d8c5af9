// Every document of four moments and places, to the byte. tests/reference/README.md says where the
// expected ones come from: not from this program.
#include <array>
#include <charconv>
#include <gtest/gtest.h>

#include "astro/calendar.h"
#include "astro/local_time.h"
#include "astro/lunar_phases.h"
#include "astro/number_text.h"
#include "charts/horoscope.h"
#include "charts/star_map.h"
#include "reports/conjunctions.h"
#include "reports/ephemeris.h"
#include "reports/positions.h"
#include "tests/support/golden.h"
#include "tests/support/reference_case.h"

namespace veyruna {
namespace {

using tests::isGolden;
using tests::ReferenceCase;
using tests::referenceCatalogue;

class ReferenceDocuments : public testing::TestWithParam<ReferenceCase> {
 protected:
  const ReferenceCase& at = GetParam();
  const astro::Observer observer = at.observer();
  const double t = observer.baseTime;
};

/// The reference texts end with a line feed of their own.
std::string line(const std::string& text) {
  return text + "\n";
}

TEST_P(ReferenceDocuments, BaseTime) {
  std::array<char, 32> digits{};
  char* const end =
      std::to_chars(digits.begin(), digits.end(), t, std::chars_format::general, 17).ptr;
  EXPECT_TRUE(isGolden(at.goldenName("base-time.txt"), line(std::string(digits.begin(), end))));
}

TEST_P(ReferenceDocuments, DateLabel) {
  EXPECT_TRUE(isGolden(at.goldenName("label.txt"), line(astro::calendarLabel(t))));
}

TEST_P(ReferenceDocuments, NextMoons) {
  const auto label = [this](double target) {
    return line(astro::calendarLabelWithLocalClock(observer.at(astro::nextPhase({t, target}))));
  };
  EXPECT_TRUE(isGolden(at.goldenName("moons.txt"),
                       label(astro::fullMoonElongation) + label(astro::newMoonElongation)));
}

TEST_P(ReferenceDocuments, Positions) {
  EXPECT_TRUE(isGolden(at.goldenName("positions.txt"),
                       reports::positionsTableText(reports::positionRows(observer))));
}

TEST_P(ReferenceDocuments, HourlyEphemeris) {
  EXPECT_TRUE(
      isGolden(at.goldenName("hourly.txt"), reports::ephemerisTable(observer, {24, 1.0 / 24.0})));
}

TEST_P(ReferenceDocuments, MonthlyEphemeris) {
  EXPECT_TRUE(isGolden(at.goldenName("monthly.txt"), reports::ephemerisTable(observer, {30, 1.0})));
}

TEST_P(ReferenceDocuments, DailyConjunctions) {
  EXPECT_TRUE(
      isGolden(at.goldenName("daily.txt"), reports::conjunctionTable(t, {144, 1.0 / 144.0})));
}

TEST_P(ReferenceDocuments, YearlyConjunctions) {
  EXPECT_TRUE(isGolden(at.goldenName("yearly.txt"), reports::conjunctionTable(t, {360, 1.0})));
}

TEST_P(ReferenceDocuments, StarMap) {
  EXPECT_TRUE(
      isGolden(at.goldenName("star-map.svg"), charts::starMap(observer, referenceCatalogue())));
}

TEST_P(ReferenceDocuments, Horoscope) {
  EXPECT_TRUE(isGolden(at.goldenName("horoscope.svg"),
                       charts::horoscope(false, observer, referenceCatalogue())));
}

TEST_P(ReferenceDocuments, HoroscopeInBlackAndWhite) {
  EXPECT_TRUE(isGolden(at.goldenName("horoscope-bw.svg"),
                       charts::horoscope(true, observer, referenceCatalogue())));
}

INSTANTIATE_TEST_SUITE_P(All, ReferenceDocuments, testing::ValuesIn(tests::referenceCases()),
                         [](const auto& test) { return test.param.testName(); });

}  // namespace
}  // namespace veyruna
