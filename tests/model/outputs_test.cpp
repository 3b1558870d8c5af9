// What a calculation publishes is what the engine computes.
#include <gtest/gtest.h>

#include "charts/horoscope.h"
#include "charts/star_map.h"
#include "reports/positions.h"
#include "tests/model/observed.h"
#include "tests/support/reference_case.h"

namespace veyruna {
namespace {

using model::AstronomyModel;
using model::BodyColor;
using tests::FakeModel;

class Outputs : public testing::TestWithParam<tests::ReferenceCase> {
 protected:
  const tests::ReferenceCase& at = GetParam();
  tests::ObservedModel world{at};
};

TEST_P(Outputs, AreThoseOfTheReferences) {
  const AstronomyModel& model = world.model;
  ASSERT_EQ(model.effectiveLatitude(), at.latitude);
  ASSERT_EQ(model.effectiveLongitude(), at.longitude);
  EXPECT_EQ(model.basicTableHourly().toStdString(), at.expected("hourly.txt"));
  EXPECT_EQ(model.basicTableMonthly().toStdString(), at.expected("monthly.txt"));
  EXPECT_EQ(model.conjunctionDaily().toStdString(), at.expected("daily.txt"));
  EXPECT_EQ(model.conjunctionYearly().toStdString(), at.expected("yearly.txt"));
  EXPECT_EQ(model.dateLabel().toStdString() + "\n", at.expected("label.txt"));
  EXPECT_EQ(model.nextFullMoonLabel().toStdString() + "\n" +
                model.nextNewMoonLabel().toStdString() + "\n",
            at.expected("moons.txt"));

  std::vector<reports::PositionRow> rows;
  for (const model::BodyPosition& body : model.positions()) {
    rows.push_back({body.name.toStdString(), body.bodyType.toStdString(),
                    body.azimuth.toStdString(), body.altitude.toStdString(),
                    body.ecLong.toStdString(), body.sign.toStdString()});
  }
  EXPECT_EQ(reports::positionsTableText(rows), at.expected("positions.txt"));

  const charts::StarCatalogue& stars = charts::builtInCatalogue();
  EXPECT_EQ(model.starMapSVG().toStdString(), charts::starMap(at.observer(), stars));
  EXPECT_EQ(model.horoscopeSVG().toStdString(), charts::horoscope(false, at.observer(), stars));
  EXPECT_EQ(model.lastHoroscopeBasetime(), at.baseTime());
}

INSTANTIATE_TEST_SUITE_P(All, Outputs, testing::ValuesIn(tests::referenceCases()),
                         [](const auto& test) {
                           std::string name = test.param.folder;
                           std::erase(name, '-');
                           return name;
                         });

TEST(Positions, HaveTheirNamesKindsAndColours) {
  FakeModel world;
  world.calculate();
  struct Body {
    const char* name;
    const char* kind;
    BodyColor color;
  };
  const std::vector<Body> expected = {
      {"Thessil", "Sun", BodyColor::yellow},     {"Ivro", "Moon", BodyColor::white},
      {"Bralo", "Terrestrial", BodyColor::blue}, {"Dunmor", "Terrestrial", BodyColor::red},
      {"Galvi", "Gas Giant", BodyColor::orange}, {"Pallox", "Gas Giant", BodyColor::purple},
  };
  const QList<model::BodyPosition>& rows = world.model.positions();
  ASSERT_EQ(rows.size(), 6);
  for (qsizetype row = 0; row < 6; ++row) {
    const Body& body = expected[static_cast<std::size_t>(row)];
    EXPECT_EQ(rows[row].name.toStdString(), body.name);
    EXPECT_EQ(rows[row].bodyType.toStdString(), body.kind);
    EXPECT_EQ(rows[row].color, body.color) << body.name;
  }
}

TEST(Positions, AStrangeBodyIsGray) {
  const reports::PositionRow row{"Comet", "Sun", "", "", "", ""};
  const auto rows = model::bodyPositions(std::span(&row, 1), tests::countingIds());
  ASSERT_EQ(rows.size(), 1);
  EXPECT_EQ(rows.front().color, BodyColor::gray);
}

}  // namespace
}  // namespace veyruna
