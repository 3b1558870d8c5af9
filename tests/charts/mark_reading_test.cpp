#include "charts/mark_reading.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "charts/horoscope.h"
#include "charts/star_map.h"
#include "reports/positions.h"
#include "tests/support/reference_case.h"

namespace veyruna::charts {
namespace {

using Lines = std::vector<std::string>;

std::string trimmed(std::string text) {
  text.erase(0, text.find_first_not_of(' '));
  return text.erase(text.find_last_not_of(' ') + 1);
}

ChartMarks starMapMarks(const astro::Observer& observer) {
  ChartMarks marks;
  starMap(observer, builtInCatalogue(), &marks);
  return marks;
}

ChartMarks horoscopeMarks(const astro::Observer& observer) {
  ChartMarks marks;
  horoscope(false, observer, builtInCatalogue(), &marks);
  return marks;
}

class MarkReading : public testing::TestWithParam<tests::ReferenceCase> {
 protected:
  astro::Observer observer = GetParam().observer();
  ChartMarks onMap = starMapMarks(observer);
  ChartMarks onWheel = horoscopeMarks(observer);

  static const ChartMark* find(const ChartMarks& marks, MarkKind kind, std::size_t ordinal) {
    const auto found = std::ranges::find_if(
        marks, [&](const ChartMark& mark) { return mark.kind == kind && mark.ordinal == ordinal; });
    return found == marks.end() ? nullptr : &*found;
  }
};

TEST_P(MarkReading, OfABodyIsItsRowOfThePositionsListOnBothCharts) {
  const auto rows = reports::positionRows(observer);
  int found = 0;
  for (const ChartMarks* const marks : {&onMap, &onWheel}) {
    for (std::size_t row = 0; row < rows.size(); ++row) {
      if (const ChartMark* const body = find(*marks, MarkKind::body, row)) {
        EXPECT_EQ(readOut(*body, observer),
                  (Lines{trimmed(rows[row].name), "Altitude: " + trimmed(rows[row].altitude),
                         "Azimuth: " + trimmed(rows[row].azimuth),
                         "Ec. Longitude: " + trimmed(rows[row].ecLong),
                         "Sign: " + trimmed(rows[row].sign)}));
        EXPECT_EQ(spoken(*body, observer), trimmed(rows[row].name) + ", " +
                                               trimmed(rows[row].sign) + ", altitude " +
                                               trimmed(rows[row].altitude));
        ++found;
      }
    }
  }
  EXPECT_GE(found, 6);
}

TEST_P(MarkReading, OfAChordIsItsLineOfThePanel) {
  int chords = 0;
  for (const ChartMark& mark : onWheel) {
    if (mark.kind == MarkKind::chord) {
      const Lines lines = readOut(mark, observer);
      ASSERT_EQ(lines.size(), 2U);
      EXPECT_EQ(lines[0] + ", " + lines[1], mark.line);
      EXPECT_EQ(spoken(mark, observer), mark.line);
      ++chords;
    }
  }
  EXPECT_EQ(chords, 6);
}

TEST_P(MarkReading, NamesEverythingFirst) {
  for (const ChartMarks* const marks : {&onMap, &onWheel}) {
    for (const ChartMark& mark : *marks) {
      EXPECT_FALSE(mark.name.empty());
      EXPECT_EQ(readOut(mark, observer).front(), mark.name);
      EXPECT_TRUE(spoken(mark, observer).starts_with(mark.name));
    }
  }
}

TEST_P(MarkReading, TheWheelHasWhatIsNotInSight) {
  EXPECT_TRUE(summary(onWheel, observer).starts_with("On the wheel are Thessil in "));
  EXPECT_TRUE(summary(onMap, observer).starts_with("In sight are ") ||
              summary(onMap, observer).starts_with("None of the bodies is in sight."));
}

TEST_P(MarkReading, SumsAChartUpInTwoSentences) {
  for (const ChartMarks* const marks : {&onMap, &onWheel}) {
    const std::string text = summary(*marks, observer);
    int ends = text.back() == '.' ? 1 : 0;
    for (std::size_t at = text.find(". "); at != std::string::npos; at = text.find(". ", at + 1)) {
      ++ends;
    }
    EXPECT_EQ(ends, 2) << text;
  }
}

INSTANTIATE_TEST_SUITE_P(References, MarkReading, testing::ValuesIn(tests::referenceCases()),
                         [](const auto& tested) {
                           std::string name = tested.param.folder;
                           std::erase(name, '-');
                           return name;
                         });

TEST(MarkReadings, OfStarsSayMagnitudeAltitudeAndSign) {
  // At the pole the altitude is the declination, here the ecliptic's inclination at a right angle.
  const astro::Observer pole{0.0, astro::halfPi, 0.0};
  const ChartMark star{
      MarkKind::star, 3, "Voni", 2.74, {}, {}, astro::Vec3D(astro::halfPi, 0.0), {}};
  EXPECT_EQ(readOut(star, pole),
            (Lines{"Voni", "Magnitude: 2.7", "Altitude: 021:00", "Sign: Lothac"}));
  EXPECT_EQ(spoken(star, pole), "Voni, Lothac, altitude 021:00, star of magnitude 2.7");
}

TEST(MarkReadings, SaySoWhereNoBodyIsInSight) {
  EXPECT_EQ(summary({}, {}),
            "None of the bodies is in sight. "
            "The stars around them are 0 of 0 figures.");
}

}  // namespace
}  // namespace veyruna::charts
