// The saved places and the selected one on the map.
#include "tests/ui/map/shown_picker.h"
#include "ui/map/map_marks.h"

namespace veyruna::tests {
namespace {

constexpr double degree = astro::pi / 180.0;

int selectedIn(const std::vector<ui::MapMark>& marks) {
  return static_cast<int>(
      std::ranges::count_if(marks, [](const ui::MapMark& mark) { return mark.isSelected; }));
}

TEST_F(ShownPicker, EverySavedPlaceAndTheManualOneAreMarked) {
  const auto marks = ui::marksOf(model);
  EXPECT_EQ(marks.size(), 14U);
  ASSERT_EQ(selectedIn(marks), 1);
  EXPECT_TRUE(marks.front().isSelected);
  EXPECT_TRUE(marks.front().name.isEmpty());
  EXPECT_NEAR(marks.front().place.latitude, 40.5 * degree, 1e-12);
  EXPECT_NEAR(marks.front().place.longitude, -20.9 * degree, 1e-12);
}

TEST_F(ShownPicker, ASelectedSavedPlaceIsMarkedAndTheManualOneIsNot) {
  model.setSelectedCityID(model.cities().at(2).id);
  const auto marks = ui::marksOf(model);
  EXPECT_EQ(marks.size(), 13U);
  ASSERT_EQ(selectedIn(marks), 1);
  EXPECT_EQ(marks.at(1).name, model.cities().at(2).name);
  EXPECT_TRUE(marks.at(1).isSelected);
}

TEST_F(ShownPicker, ASelectionWhosePlaceIsGoneMarksNothing) {
  model.setSelectedCityID(QUuid::createUuid());
  EXPECT_EQ(selectedIn(ui::marksOf(model)), 0);
}

TEST_F(ShownPicker, ASavedPlaceShowsItsNameUnderThePointer) {
  pointAt(pointOf(40.5, -20.9).toPoint());
  EXPECT_TRUE(shows("mapPlaceName"));
  EXPECT_EQ(text("mapPlaceName"), QStringLiteral("Wendmark"));
  pointAt(pointOf(40.5, -20.9).toPoint() + QPoint(30, 0));
  EXPECT_FALSE(shows("mapPlaceName"));
  pointAt(pointOf(11.5, 25.3).toPoint());
  EXPECT_EQ(text("mapPlaceName"), QStringLiteral("Vossenfel"));
  pointAt(besideMap());
  EXPECT_FALSE(shows("mapPlaceName"));
}

TEST_F(ShownPicker, PlacesAtOneSpotShowAllTheirNamesAsTheyAreWritten) {
  pointAt(pointOf(40.5, -20.9).toPoint());
  model.addCity(QStringLiteral("<b>Twin</b>"));
  EXPECT_EQ(text("mapPlaceName"), QStringLiteral("<b>Twin</b>\nWendmark"));
  EXPECT_EQ(view->findChild<QLabel*>(QStringLiteral("mapPlaceName"))->textFormat(), Qt::PlainText);
}

TEST_F(ShownPicker, ADeletedPlaceLosesItsMark) {
  pointAt(pointOf(40.5, -20.9).toPoint());
  const auto cities = model.cities();
  const auto wendmark = std::ranges::find_if(cities, [](const model::CityPreset& city) {
    return city.name == QStringLiteral("Wendmark");
  });
  model.deleteCity(wendmark->id);
  EXPECT_FALSE(shows("mapPlaceName"));
}

TEST_F(ShownPicker, ANameStaysInsideTheMap) {
  model.setManualLatDeg(30.0);
  model.setManualLongDeg(44.5);
  model.setLongWest(false);
  model.addCity(QStringLiteral("A place with a name as long as its road"));
  pointAt(pointOf(30.0, 44.5).toPoint());
  const auto* const name = view->findChild<QLabel*>(QStringLiteral("mapPlaceName"));
  ASSERT_TRUE(name->isVisible());
  EXPECT_TRUE(area->rect().contains(name->geometry()));
}

/// How many pixels of the ring's violet lie around a point of the map.
int ringAround(ui::MapArea* area, QPointF point) {
  const QImage shown = area->grab().toImage();
  const double pixels = shown.devicePixelRatio();
  const QPoint centre = (point * pixels).toPoint();
  const int reach = static_cast<int>(12.0 * pixels);
  int ring = 0;
  for (int y = centre.y() - reach; y <= centre.y() + reach; ++y) {
    for (int x = centre.x() - reach; x <= centre.x() + reach; ++x) {
      ring += shown.pixel(x, y) == 0xff6a1b9aU ? 1 : 0;
    }
  }
  return ring;
}

TEST_F(ShownPicker, TheSelectedPlaceWearsARing) {
  const QPointF wendmark = pointOf(40.5, -20.9);
  const QPointF morvay = pointOf(37.7, -16.4);
  EXPECT_GT(ringAround(area, wendmark), 20);
  EXPECT_EQ(ringAround(area, morvay), 0);
  const auto cities = model.cities();
  for (const model::CityPreset& city : cities) {
    if (city.name == QStringLiteral("Morvay")) {
      model.setSelectedCityID(city.id);
    }
  }
  EXPECT_GT(ringAround(area, morvay), 20);
  EXPECT_EQ(ringAround(area, wendmark), 0);
}

TEST_F(ShownPicker, APickedPlaceIsMarkedWhereItWasClicked) {
  const QPoint point(500, 330);
  EXPECT_EQ(ringAround(area, point), 0);
  click(point);
  EXPECT_GT(ringAround(area, point), 20);
}

}  // namespace
}  // namespace veyruna::tests
