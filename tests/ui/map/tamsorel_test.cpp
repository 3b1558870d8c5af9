// The map as it is shipped (VEYRUNA_MAP names the file): what is marked on it lies where the
// projection says.
#include <QFile>
#include <QImage>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "model/city_preset.h"
#include "ui/map_picture.h"
#include "ui/map_projection.h"

namespace veyruna::ui {
namespace {

constexpr double degree = astro::pi / 180.0;

const QImage& tamsorel() {
  static const QImage map =
      pictureFile(QStringLiteral(VEYRUNA_MAP))().convertToFormat(QImage::Format_RGB32);
  return map;
}

/// The pixel that holds a point of the picture: pixel (0, 0) reaches from 0 to 1.
QPoint holding(QPointF point) {
  return {static_cast<int>(std::floor(point.x())), static_cast<int>(std::floor(point.y()))};
}

// TO BE FILLED IN with the draughtsman's colours: whether the mark of a place is centred on a
// pixel.
bool isMarkOfPlace(const QImage& map, QPoint pixel) {
  return qGray(map.pixel(pixel)) < 96;
}

// TO BE FILLED IN likewise: whether a line of the graticule crosses another there.
bool isCrossing(const QImage& map, QPoint pixel) {
  return qGray(map.pixel(pixel)) < qGray(map.pixel(pixel + QPoint(12, 12)));
}

TEST(Tamsorel, HasTheSizeOfItsProjection) {
  ASSERT_FALSE(tamsorel().isNull()) << VEYRUNA_MAP;
  EXPECT_EQ(tamsorel().width(), mapWidth);
  EXPECT_EQ(tamsorel().height(), mapHeight);
}

/// The second byte of the first marker that begins a JPEG's frame.
uchar frameMarker(const QByteArray& file) {
  for (qsizetype at = 2; at + 4 <= file.size();) {
    const auto byte = [&](qsizetype i) { return static_cast<uchar>(file[at + i]); };
    const uchar marker = byte(1);
    if (marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc) {
      return marker;
    }
    at += 2 + (byte(2) << 8) + byte(3);
  }
  return 0;
}

TEST(Tamsorel, IsReadFromTopToBottom) {
  // A progressive JPEG is held as a whole a second time while it is read: 84 million bytes.
  QFile file(QStringLiteral(VEYRUNA_MAP));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << VEYRUNA_MAP;
  EXPECT_EQ(frameMarker(file.readAll()), 0xc0);
  EXPECT_LE(file.size(), 6'000'000);
}

TEST(Tamsorel, MarksTheThirteenPlacesWhereTheyAre) {
  ASSERT_FALSE(tamsorel().isNull()) << VEYRUNA_MAP;
  const QList<model::CityPreset> places = model::initialCities(&QUuid::createUuid);
  ASSERT_EQ(places.size(), 13);
  for (const model::CityPreset& city : places) {
    const auto pixel = pixelOf({city.latitude, city.longitude});
    ASSERT_TRUE(pixel) << qPrintable(city.name);
    const auto back = placeAtPixel(*pixel);
    ASSERT_TRUE(back) << qPrintable(city.name);
    EXPECT_NEAR(back->latitude, city.latitude, 1e-12) << qPrintable(city.name);
    EXPECT_NEAR(back->longitude, city.longitude, 1e-12) << qPrintable(city.name);
    EXPECT_TRUE(isMarkOfPlace(tamsorel(), holding(*pixel))) << qPrintable(city.name);
  }
}

TEST(Tamsorel, TheGraticuleCrossesEveryFiveDegrees) {
  ASSERT_FALSE(tamsorel().isNull()) << VEYRUNA_MAP;
  int crossings = 0;
  for (int latitude = 0; latitude <= 60; latitude += 5) {
    for (int longitude = -45; longitude <= 45; longitude += 5) {
      // Worked out here: 52.15 pixels to a degree of latitude, 470/9 to one of longitude.
      const QPointF expected(1768.0 + longitude * 470.0 / 9.0 * std::cos(latitude * degree),
                             3194.0 - latitude * 52.15);
      if (expected.x() < 0.0) {
        EXPECT_FALSE(pixelOf({latitude * degree, longitude * degree}));
        continue;  // beyond the picture's western edge
      }
      ++crossings;
      const auto place = placeAtPixel(expected + QPointF(longitude < 0 ? 1e-6 : -1e-6, 0.0) +
                                      QPointF(0.0, latitude > 0 ? 1e-6 : -1e-6));
      ASSERT_TRUE(place) << latitude << ' ' << longitude;
      EXPECT_NEAR(place->latitude / degree, latitude, 1e-6);
      EXPECT_NEAR(place->longitude / degree, longitude, 1e-6);
      const auto pixel = pixelOf({std::min(latitude * degree, northernmost),
                                  std::clamp(longitude * degree, -easternmost, easternmost)});
      ASSERT_TRUE(pixel) << latitude << ' ' << longitude;
      EXPECT_NEAR(pixel->x(), expected.x(), 1e-9);
      EXPECT_NEAR(pixel->y(), expected.y(), 1e-9);
      EXPECT_TRUE(isCrossing(tamsorel(), holding(expected))) << latitude << ' ' << longitude;
    }
  }
  EXPECT_EQ(crossings, 228);
}

}  // namespace
}  // namespace veyruna::ui
