// Dots and rings to the pixel, at the scale factors of common screens; and whose name shows.
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>

#include "astro/angle.h"
#include "ui/map/map_marks.h"

namespace veyruna::ui {
namespace {

constexpr double degree = astro::pi / 180.0;
constexpr QRgb red = 0xff8b1a1a;
constexpr QRgb violet = 0xff6a1b9a;
constexpr QRgb cream = 0xfffff8e8;
constexpr QRgb sea = 0xff4080c0;
constexpr QSize frameSize(120, 90);  // points

/// The picture a pixel to a point, so that the equator meets the central meridian at `centre`.
Layout around(QPointF centre) {
  return {centre - QPointF(1768.0, 3194.0), {4316.0, 3266.0}};
}

QImage drawn(const std::vector<MapMark>& marks, const Layout& layout, double scale) {
  QImage frame((QSizeF(frameSize) * scale).toSize(), QImage::Format_RGB32);
  frame.fill(sea);
  QPainter painter(&frame);
  MarkStamps().draw(painter, marks, layout, QTransform::fromScale(scale, scale), frame.rect());
  return frame;
}

/// One thing painted: everything from one distance of the mark's middle to another, in points.
struct Layer {
  double from;
  double to;
  QRgb color;
};

/// A dot of 3 points in red under a line of 1.5; for the selected one a ring, violet and 3.07 wide
/// on a line of 4.87, a point off the printed disc of 16.5.
std::vector<Layer> layersOf(bool isSelected) {
  std::vector<Layer> layers = {{-1.0, 3.0, red}, {2.25, 3.75, cream}};
  if (isSelected) {
    layers.push_back({17.5, 22.37, cream});
    layers.push_back({18.4, 21.47, violet});
  }
  return layers;
}

/// A pixel's colour: each layer covers what lies beneath as far as it fills the pixel, which is
/// counted at many points within it.
std::array<double, 3> expectedColor(QPoint pixel, QPointF middle, double scale, bool isSelected) {
  constexpr int side = 8;
  std::array<double, 3> mixed{double(qRed(sea)), double(qGreen(sea)), double(qBlue(sea))};
  for (const Layer& layer : layersOf(isSelected)) {
    int covered = 0;
    for (int i = 0; i < side * side; ++i) {
      const QPointF part((i % side + 0.5) / side, (i / side + 0.5) / side);
      const QPointF away = (QPointF(pixel) + part - middle) / scale;
      const double distance = std::hypot(away.x(), away.y());
      covered += distance >= layer.from && distance < layer.to ? 1 : 0;
    }
    const double share = double(covered) / (side * side);
    const std::array<int, 3> color{qRed(layer.color), qGreen(layer.color), qBlue(layer.color)};
    for (std::size_t i = 0; i < mixed.size(); ++i) {
      mixed[i] += share * (color[i] - mixed[i]);
    }
  }
  return mixed;
}

void expectMark(const QImage& frame, QPointF middle, double scale, bool isSelected) {
  constexpr double tolerance = 35.0;  // of 221 at most: a sixth of a pixel
  for (int y = 0; y < frame.height(); ++y) {
    for (int x = 0; x < frame.width(); ++x) {
      const QRgb seen = frame.pixel(x, y);
      const QPointF away = (QPointF(x, y) - middle) / scale;
      if (std::hypot(away.x(), away.y()) > 24.0) {
        ASSERT_EQ(seen, sea) << "at " << x << ", " << y << ", scale " << scale;
        continue;
      }
      const std::array<double, 3> mean = expectedColor({x, y}, middle, scale, isSelected);
      const double off = std::max({std::abs(qRed(seen) - mean[0]), std::abs(qGreen(seen) - mean[1]),
                                   std::abs(qBlue(seen) - mean[2])});
      ASSERT_LE(off, tolerance) << "at " << x << ", " << y << ", scale " << scale;
    }
  }
}

TEST(MarkPictures, ADotAndARingAreDrawnAsTheyAreMeasuredAtEveryScale) {
  for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
    for (const bool isSelected : {false, true}) {
      const QPointF centre(60.0 + 0.3 / scale, 45.0 + 0.8 / scale);
      const QImage frame = drawn({{{0.0, 0.0}, {}, isSelected}}, around(centre), scale);
      // On the middle of the pixel it lies in, so that it is even on all sides.
      const QPointF middle(std::floor(centre.x() * scale) + 0.5,
                           std::floor(centre.y() * scale) + 0.5);
      expectMark(frame, middle, scale, isSelected);
    }
  }
}

TEST(MarkPictures, TheRingStandsOutsideThePrintedDiscAndNearItAtEveryZoom) {
  // The picture's width in points: at 100 % in a small and a common window, at 384 and 1200 %.
  for (const double width : {300.0, 835.0, 3206.0, 10'020.0}) {
    const double rim = 16.5 * width / 4316.0;
    const Layout layout{{200.4 - 1768.0 * width / 4316.0, 200.4 - 3194.0 * width / 4316.0},
                        {width, width * 3266.0 / 4316.0}};
    QImage frame(400, 400, QImage::Format_RGB32);
    frame.fill(sea);
    QPainter painter(&frame);
    MarkStamps().draw(painter, {{{0.0, 0.0}, {}, true}}, layout, {}, frame.rect());
    int ringed = 0;
    for (int y = 0; y < frame.height(); ++y) {
      for (int x = 0; x < frame.width(); ++x) {
        const double away = std::hypot(x - 200.0, y - 200.0);
        if (frame.pixel(x, y) == violet) {
          ++ringed;
          ASSERT_GT(away, std::max(rim, 4.5)) << width;
          ASSERT_LT(away, std::max(rim, 4.5) + 7.0) << width;
        }
        // No letter of the map stands within 43 pixels of a place.
        ASSERT_TRUE(frame.pixel(x, y) == sea || away < std::max(43.0 * width / 4316.0, 9.0))
            << width;
      }
    }
    EXPECT_GT(ringed, 20) << width;
  }
}

TEST(MarkPictures, OneSetOfStampsServesMapsOfDifferentSizes) {
  const std::vector<MapMark> marks = {{{0.0, 0.0}, {}, true}};
  MarkStamps stamps;
  for (const double width : {2000.0, 4316.0, 2000.0}) {
    const double share = width / 4316.0;
    const Layout layout{QPointF(60.0, 45.0) - QPointF(1768.0, 3194.0) * share,
                        {width, 3266.0 * share}};
    QImage frame(frameSize, QImage::Format_RGB32);
    frame.fill(sea);
    QPainter painter(&frame);
    stamps.draw(painter, marks, layout, {}, frame.rect());
    EXPECT_EQ(frame, drawn(marks, layout, 1.0)) << width;
  }
}

TEST(MarkPictures, OneSetOfStampsServesScreensOfDifferentScales) {
  const std::vector<MapMark> marks = {{{0.0, 0.0}, {}, true}};
  MarkStamps stamps;
  for (const double scale : {1.0, 2.0, 1.0}) {
    QImage frame((QSizeF(frameSize) * scale).toSize(), QImage::Format_RGB32);
    frame.fill(sea);
    QPainter painter(&frame);
    stamps.draw(painter, marks, around({60.0, 45.0}), QTransform::fromScale(scale, scale),
                frame.rect());
    EXPECT_EQ(frame, drawn(marks, around({60.0, 45.0}), scale));
  }
}

TEST(MarkPictures, AMarkBesideTheViewShowsThePartThatReachesIn) {
  const std::vector<MapMark> marks = {{{0.0, 0.0}, {}, true}};
  for (const QPointF beside :
       {QPointF(-9, 45), QPointF(129, 45), QPointF(60, -9), QPointF(60, 99)}) {
    const QImage frame = drawn(marks, around(beside), 1.0);
    int cut = 0;
    for (int y = 0; y < frame.height(); ++y) {
      for (int x = 0; x < frame.width(); ++x) {
        cut += frame.pixel(x, y) != sea ? 1 : 0;
      }
    }
    EXPECT_GT(cut, 3) << beside.x() << ' ' << beside.y();
  }
}

TEST(MarkPictures, AMarkThatIsNotOnTheMapHidesNoOther) {
  const std::vector<MapMark> marks = {{{-0.5, 0.0}, {}, true}, {{0.0, 0.0}, {}, false}};
  expectMark(drawn(marks, around({60.0, 45.0}), 1.0), {60.5, 45.5}, 1.0, false);
}

TEST(MarkPictures, InAMapBeyondAllBoundsNothingIsDrawn) {
  const double endless = std::numeric_limits<double>::infinity();
  const Layout layout{{-endless, 20.0}, {endless, 3266.0}};
  QImage ground(frameSize, QImage::Format_RGB32);
  ground.fill(sea);
  EXPECT_EQ(drawn({{{0.5, 0.1}, {}, true}}, layout, 1.0), ground);
}

// Which name shows.

const MapMark& atTheMiddle() {
  static const MapMark mark{{0.0, 0.0}, QStringLiteral("Middle"), false};
  return mark;
}
const Layout plain = around({1768.0, 3194.0});

TEST(NameAt, ReachesEightPoints) {
  for (const QPointF away : {QPointF(8, 0), QPointF(-8, 0), QPointF(0, 8), QPointF(0, -8)}) {
    const QPointF middle(1768.0, 3194.0);
    EXPECT_EQ(nameAt(middle + away, {atTheMiddle()}, plain).text, QStringLiteral("Middle"));
    EXPECT_EQ(nameAt(middle + away, {atTheMiddle()}, plain).mark, middle);
    EXPECT_TRUE(nameAt(middle + away * 1.001, {atTheMiddle()}, plain).text.isEmpty());
  }
}

TEST(NameAt, TheNearestIsNamedWhateverTheirOrder) {
  const MapMark east{{0.0, 10.0 / (470.0 / 9.0) * degree}, QStringLiteral("East"), false};
  for (const auto& marks : {std::vector{atTheMiddle(), east}, std::vector{east, atTheMiddle()}}) {
    EXPECT_EQ(nameAt({1768.0 + 4.9, 3194.0}, marks, plain).text, QStringLiteral("Middle"));
    EXPECT_EQ(nameAt({1768.0 + 5.1, 3194.0}, marks, plain).text, QStringLiteral("East"));
    EXPECT_NEAR(nameAt({1768.0 + 5.1, 3194.0}, marks, plain).mark.x(), 1778.0, 1e-9);
  }
}

TEST(NameAt, AtOneSpotAllAreNamedAlsoAtTheEndOfTheirReach) {
  MapMark twin = atTheMiddle();
  twin.name = QStringLiteral("Twin");
  for (const double away : {0.0, 3.0, 8.0}) {
    EXPECT_EQ(nameAt({1768.0 + away, 3194.0}, {atTheMiddle(), twin}, plain).text,
              QStringLiteral("Middle\nTwin"));
  }
}

TEST(NameAt, AMarkWithoutANameHidesNoOther) {
  MapMark nameless = atTheMiddle();
  nameless.name.clear();
  const MapMark elsewhere{{-0.5, 0.0}, QStringLiteral("Not on the map"), false};
  EXPECT_EQ(nameAt({1771.0, 3194.0}, {nameless, elsewhere, atTheMiddle()}, plain).text,
            QStringLiteral("Middle"));
}

}  // namespace
}  // namespace veyruna::ui
