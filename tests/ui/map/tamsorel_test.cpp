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

constexpr double mostError = 0.75;  ///< pixels

/// How strongly a pixel belongs to what is measured; 0 where it does not.
using Weight = double (*)(QRgb);

/// The red disc of a place.
double ofPlace(QRgb pixel) {
  return std::max(0.0, qRed(pixel) - (qGreen(pixel) + qBlue(pixel)) / 2.0 - 50.0);
}

/// The dark dot of a crossing on its light disc.
double ofCrossing(QRgb pixel) {
  return std::max(0.0, 150.0 - qGray(pixel));
}

/// How far the middle of what has weight within `radius` pixels of a point lies from that point;
/// beyond any picture where nothing has. Pixel (0, 0) reaches from 0 to 1.
double offset(QPointF expected, double radius, Weight weightOf) {
  const QImage& map = tamsorel();
  double weights = 0.0;
  QPointF sum;
  for (int y = 0; y < map.height(); ++y) {
    if (std::abs(y + 0.5 - expected.y()) > radius) {
      continue;
    }
    for (int x = 0; x < map.width(); ++x) {
      const QPointF centre(x + 0.5, y + 0.5);
      const QPointF from = centre - expected;
      if (std::hypot(from.x(), from.y()) <= radius) {
        const double weight = weightOf(map.pixel(x, y));
        weights += weight;
        sum += centre * weight;
      }
    }
  }
  if (weights < 500.0) {
    return 1e9;
  }
  const QPointF off = sum / weights - expected;
  return std::hypot(off.x(), off.y());
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
    EXPECT_LT(offset(*pixel, 12.0, &ofPlace), mostError) << qPrintable(city.name);
    EXPECT_GT(offset(*pixel + QPointF(4.0, 0.0), 12.0, &ofPlace), mostError);  // it can tell
  }
}

TEST(Tamsorel, TheGraticuleCrossesEveryFiveDegrees) {
  ASSERT_FALSE(tamsorel().isNull()) << VEYRUNA_MAP;
  int crossings = 0;
  int dots = 0;
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
      if (expected.x() > 8.0) {  // its dot would lie across the edge of the sheet
        ++dots;
        EXPECT_LT(offset(expected, 6.5, &ofCrossing), mostError) << latitude << ' ' << longitude;
      }
    }
  }
  EXPECT_EQ(crossings, 228);
  EXPECT_EQ(dots, 227);
}

}  // namespace
}  // namespace veyruna::ui
