// The map as it is shipped (resources/tamsorel.jpg): what is marked on it lies where the
// projection says.
#include <QFile>
#include <QImage>
#include <QRectF>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <string>

#include "model/city_preset.h"
#include "model/first_places.h"
#include "tests/support/source_path.h"
#include "ui/map/map_picture.h"
#include "ui/map/map_projection.h"

namespace veyruna::ui {
namespace {

constexpr double oneDegree = astro::pi / 180.0;

QString mapFile() {
  return QString::fromStdString(tests::sourcePath("resources/tamsorel.jpg"));
}

const QImage& tamsorel() {
  static const QImage map = pictureFile(mapFile())().convertToFormat(QImage::Format_RGB32);
  return map;
}

constexpr QRgb discOfPlace = 0xffc22a1c;    // radius 8.5 pixels
constexpr QRgb dotOfCrossing = 0xff1d3557;  // radius 3.6 pixels, on a light disc of 7

/// The middle of what is drawn in a colour around a point of the picture, and how much it is.
struct Spot {
  QPointF middle;
  int pixels = 0;
};

Spot spotAround(QPointF point, double reach, QRgb color) {
  constexpr int likeness = 40;  // of each channel: the picture is compressed
  const auto isAlike = [color](QRgb other) {
    return std::abs(qRed(color) - qRed(other)) <= likeness &&
           std::abs(qGreen(color) - qGreen(other)) <= likeness &&
           std::abs(qBlue(color) - qBlue(other)) <= likeness;
  };
  Spot spot;
  const QRect around =
      QRectF(point.x() - reach, point.y() - reach, 2.0 * reach, 2.0 * reach).toAlignedRect();
  for (int y = around.top(); y <= around.bottom(); ++y) {
    for (int x = around.left(); x <= around.right(); ++x) {
      const QPointF middle(x + 0.5, y + 0.5);
      const bool isNear = std::hypot(middle.x() - point.x(), middle.y() - point.y()) <= reach;
      if (isNear && tamsorel().valid(x, y) && isAlike(tamsorel().pixel(x, y))) {
        spot.middle += middle;
        ++spot.pixels;
      }
    }
  }
  spot.middle *= 1.0 / std::max(1, spot.pixels);
  return spot;
}

/// How far the middle of a mark may lie from its place: less than a pixel.
constexpr double mostOff = 0.75;

void expectMark(QPointF place, double radius, QRgb color, const std::string& what) {
  const Spot spot = spotAround(place, radius + 3.0, color);
  EXPECT_NEAR(spot.pixels, astro::pi * radius * radius, 0.3 * astro::pi * radius * radius) << what;
  EXPECT_NEAR(spot.middle.x(), place.x(), mostOff) << what;
  EXPECT_NEAR(spot.middle.y(), place.y(), mostOff) << what;
}

TEST(Tamsorel, HasTheSizeOfItsProjection) {
  ASSERT_FALSE(tamsorel().isNull()) << mapFile().toStdString();
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
  QFile file(mapFile());
  ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << mapFile().toStdString();
  EXPECT_EQ(frameMarker(file.readAll()), 0xc0);
  EXPECT_LE(file.size(), 6'000'000);
}

TEST(Tamsorel, MarksTheThirteenPlacesWhereTheyAre) {
  ASSERT_FALSE(tamsorel().isNull()) << mapFile().toStdString();
  const QList<model::CityPreset> places = model::initialCities(&QUuid::createUuid);
  ASSERT_EQ(places.size(), 13);
  for (const model::CityPreset& city : places) {
    const auto pixel = pixelOf({city.latitude, city.longitude});
    ASSERT_TRUE(pixel) << qPrintable(city.name);
    const auto back = placeAtPixel(*pixel);
    ASSERT_TRUE(back) << qPrintable(city.name);
    EXPECT_NEAR(back->latitude, city.latitude, 1e-12) << qPrintable(city.name);
    EXPECT_NEAR(back->longitude, city.longitude, 1e-12) << qPrintable(city.name);
    expectMark(*pixel, 8.5, discOfPlace, city.name.toStdString());
  }
}

TEST(Tamsorel, HasNothingInTheVioletOfTheChosenPlace) {
  constexpr QRgb violet = 0xff6a1b9a;
  constexpr int likeness = 40;  // of each channel
  int alike = 0;
  for (int y = 0; y < tamsorel().height(); ++y) {
    const auto* const row = reinterpret_cast<const QRgb*>(tamsorel().constScanLine(y));
    alike += static_cast<int>(std::count_if(row, row + tamsorel().width(), [](QRgb color) {
      return std::abs(qRed(color) - qRed(violet)) <= likeness &&
             std::abs(qGreen(color) - qGreen(violet)) <= likeness &&
             std::abs(qBlue(color) - qBlue(violet)) <= likeness;
    }));
  }
  EXPECT_EQ(alike, 0);
}

TEST(Tamsorel, TheGraticuleCrossesEveryFiveDegrees) {
  ASSERT_FALSE(tamsorel().isNull()) << mapFile().toStdString();
  int crossings = 0;
  int marked = 0;
  for (int latitude = 0; latitude <= 60; latitude += 5) {
    for (int longitude = -45; longitude <= 45; longitude += 5) {
      // Worked out here: 52.15 pixels to a degree of latitude, 470/9 to one of longitude.
      const QPointF expected(1768.0 + longitude * 470.0 / 9.0 * std::cos(latitude * oneDegree),
                             3194.0 - latitude * 52.15);
      if (expected.x() < 0.0) {
        EXPECT_FALSE(pixelOf({latitude * oneDegree, longitude * oneDegree}));
        continue;  // beyond the picture's western edge
      }
      ++crossings;
      const auto place = placeAtPixel(expected + QPointF(longitude < 0 ? 1e-6 : -1e-6, 0.0) +
                                      QPointF(0.0, latitude > 0 ? 1e-6 : -1e-6));
      ASSERT_TRUE(place) << latitude << ' ' << longitude;
      EXPECT_NEAR(place->latitude / oneDegree, latitude, 1e-6);
      EXPECT_NEAR(place->longitude / oneDegree, longitude, 1e-6);
      const auto pixel = pixelOf({std::min(latitude * oneDegree, northernmost),
                                  std::clamp(longitude * oneDegree, -easternmost, easternmost)});
      ASSERT_TRUE(pixel) << latitude << ' ' << longitude;
      EXPECT_NEAR(pixel->x(), expected.x(), 1e-9);
      EXPECT_NEAR(pixel->y(), expected.y(), 1e-9);
      if (expected.x() < 7.0) {
        continue;  // the picture's edge would cut its dot: that of 15° north, 35° west
      }
      ++marked;
      expectMark(expected, 3.6, dotOfCrossing,
                 std::to_string(latitude) + ' ' + std::to_string(longitude));
    }
  }
  EXPECT_EQ(crossings, 228);
  EXPECT_EQ(marked, 227);
}

}  // namespace
}  // namespace veyruna::ui
