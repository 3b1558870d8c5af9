// Every document of four moments and places, to the byte. tests/reference/README.md says where the
// expected ones come from: not from this program.
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
#include "tests/support/reference_case.h"

namespace veyruna {
namespace {

using tests::ReferenceCase;
using tests::referenceCatalogue;

class ReferenceDocuments : public testing::TestWithParam<ReferenceCase> {
 protected:
  const ReferenceCase& at = GetParam();
  const double t = at.baseTime();
};

/// The reference texts end with a line feed of their own.
std::string line(const std::string& text) {
  return text + "\n";
}

TEST_P(ReferenceDocuments, BaseTime) {
  const std::string expected = at.expected("base-time.txt");
  double value = 0.0;
  std::from_chars(expected.data(), expected.data() + expected.size(), value);
  EXPECT_EQ(t, value);
}

TEST_P(ReferenceDocuments, DateLabel) {
  EXPECT_EQ(line(astro::calendarLabel(t)), at.expected("label.txt"));
}

TEST_P(ReferenceDocuments, NextMoons) {
  const auto label = [this](double target) {
    return line(astro::calendarLabelWithLocalClock(astro::nextPhase(t, target), at.longitude));
  };
  EXPECT_EQ(label(astro::fullMoonElongation) + label(astro::newMoonElongation),
            at.expected("moons.txt"));
}

TEST_P(ReferenceDocuments, Positions) {
  EXPECT_EQ(reports::positionsTableText(reports::positionRows(t, at.latitude, at.longitude)),
            at.expected("positions.txt"));
}

TEST_P(ReferenceDocuments, HourlyEphemeris) {
  EXPECT_EQ(reports::ephemerisTable(24, t, 1.0 / 24.0, at.latitude), at.expected("hourly.txt"));
}

TEST_P(ReferenceDocuments, MonthlyEphemeris) {
  EXPECT_EQ(reports::ephemerisTable(30, t, 1.0, at.latitude), at.expected("monthly.txt"));
}

TEST_P(ReferenceDocuments, DailyConjunctions) {
  EXPECT_EQ(reports::conjunctionTable(144, t, 1.0 / 144.0), at.expected("daily.txt"));
}

TEST_P(ReferenceDocuments, YearlyConjunctions) {
  EXPECT_EQ(reports::conjunctionTable(360, t, 1.0), at.expected("yearly.txt"));
}

TEST_P(ReferenceDocuments, StarMap) {
  EXPECT_EQ(charts::starMap(t, at.latitude, at.longitude, referenceCatalogue()),
            at.expected("star-map.svg"));
}

TEST_P(ReferenceDocuments, Horoscope) {
  EXPECT_EQ(charts::horoscope(false, t, at.latitude, at.longitude, referenceCatalogue()),
            at.expected("horoscope.svg"));
}

TEST_P(ReferenceDocuments, HoroscopeInBlackAndWhite) {
  EXPECT_EQ(charts::horoscope(true, t, at.latitude, at.longitude, referenceCatalogue()),
            at.expected("horoscope-bw.svg"));
}

INSTANTIATE_TEST_SUITE_P(All, ReferenceDocuments, testing::ValuesIn(tests::referenceCases()),
                         [](const auto& test) {
                           std::string name = test.param.folder;
                           std::erase(name, '-');
                           return name;
                         });

}  // namespace
}  // namespace veyruna
