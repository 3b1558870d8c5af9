// What a place of the map becomes in the model.
#include <gtest/gtest.h>

#include "tests/model/fakes.h"
#include "ui/map/map_pick.h"

namespace veyruna::ui {
namespace {

struct Pick : testing::Test, tests::FakeModel {};

TEST_F(Pick, RoundsToAThousandthOfADegree) {
  pick({astro::radiansOf(12.34567), astro::radiansOf(-3.0004)}, model);
  EXPECT_EQ(model.manualLatDeg(), 12.346);
  EXPECT_EQ(model.manualLongDeg(), 3.0);
  EXPECT_TRUE(model.latNorth());
  EXPECT_TRUE(model.longWest());
  EXPECT_EQ(model.selectedCityID(), model::manualCityID());
}

TEST_F(Pick, TheHemispheresFollowTheSigns) {
  pick({astro::radiansOf(-1.0), astro::radiansOf(2.0)}, model);
  EXPECT_EQ(model.manualLatDeg(), 1.0);
  EXPECT_FALSE(model.latNorth());
  EXPECT_FALSE(model.longWest());
  pick({0.0, -0.0}, model);
  EXPECT_TRUE(model.latNorth());
  EXPECT_FALSE(model.longWest());
}

TEST_F(Pick, SetsLatitudeThenLongitudeThenFlagsThenSelection) {
  model.setSelectedCityID(model.cities().at(3).id);
  model.setLatNorth(false);
  model.setLongWest(false);
  QStringList order;
  const auto note = [&order](const char* what) {
    return [&order, what] { order.append(QString::fromLatin1(what)); };
  };
  using model::AstronomyModel;
  QObject::connect(&model, &AstronomyModel::manualLatDegChanged, note("latitude"));
  QObject::connect(&model, &AstronomyModel::manualLongDegChanged, note("longitude"));
  QObject::connect(&model, &AstronomyModel::latNorthChanged, note("north"));
  QObject::connect(&model, &AstronomyModel::longWestChanged, note("west"));
  QObject::connect(&model, &AstronomyModel::selectedCityIDChanged, note("selection"));
  settings->groups.clear();
  pick({astro::radiansOf(12.0), astro::radiansOf(-3.0)}, model);
  EXPECT_EQ(order.join(QLatin1Char(' ')).toStdString(), "latitude longitude north west selection");
  EXPECT_EQ(settings->groups.size(), 5U);
  EXPECT_FALSE(model.isCalculating());
}

TEST_F(Pick, StoresEvenWhatIsThereAlready) {
  pick({astro::radiansOf(12.0), astro::radiansOf(-3.0)}, model);
  settings->groups.clear();
  pick({astro::radiansOf(12.0), astro::radiansOf(-3.0)}, model);
  EXPECT_EQ(settings->groups.size(), 5U);
}

}  // namespace
}  // namespace veyruna::ui
