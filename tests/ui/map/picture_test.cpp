// The picture's halvings and the filter that draws it at every scale.
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <cmath>
#include <csignal>
#include <gtest/gtest.h>

#include "ui/map/map_picture.h"
#include "ui/map/map_resample.h"

namespace veyruna::ui {
namespace {

QImage filled(QSize size, QRgb color) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(color);
  return image;
}

int distance(QRgb a, QRgb b) {
  return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                   std::abs(qBlue(a) - qBlue(b))});
}

/// Grey that grows by 2 to the right and by 1 downwards.
QImage slope(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int grey = 2 * x + y;
      image.setPixel(x, y, qRgb(grey, grey / 2, 255 - grey));
    }
  }
  return image;
}

TEST(MapPicture, HalvesUntilItIsSmallAndRoundsUp) {
  const MapPicture picture(filled({101, 75}, 0xff102030));
  EXPECT_EQ(picture.size(), QSize(101, 75));
  EXPECT_EQ(picture.level(1).size(), QSize(51, 38));
  EXPECT_EQ(picture.level(2).size(), QSize(26, 19));
  EXPECT_EQ(picture.level(2).pixel(25, 18), 0xff102030);
}

TEST(MapPicture, AHalvingIsTheMeanOfFourPixels) {
  QImage image = filled({64, 64}, 0xff000000);
  image.setPixel(0, 0, qRgb(200, 100, 40));
  const MapPicture picture(image);
  EXPECT_EQ(picture.level(1).pixel(0, 0), qRgb(50, 25, 10));
  EXPECT_EQ(picture.level(1).pixel(1, 0), qRgb(0, 0, 0));
}

TEST(MapPicture, AHalvingRoundsToTheNearestAndRepeatsAnOddEdge) {
  QImage image = filled({65, 65}, 0xff000000);
  image.setPixel(0, 0, qRgb(1, 2, 3));    // sums of 1, 2 and 3
  image.setPixel(64, 64, qRgb(9, 8, 7));  // alone in its corner
  image.setPixel(64, 0, qRgb(100, 0, 0));
  image.setPixel(0, 64, qRgb(0, 100, 0));
  const MapPicture picture(image);
  EXPECT_EQ(picture.level(1).pixel(0, 0), qRgb(0, 1, 1));
  EXPECT_EQ(picture.level(1).pixel(32, 32), qRgb(9, 8, 7));
  EXPECT_EQ(picture.level(1).pixel(32, 0), qRgb(50, 0, 0));
  EXPECT_EQ(picture.level(1).pixel(0, 32), qRgb(0, 50, 0));
}

TEST(MapPicture, CountsItsOwnPixelsWhateverTheImageSays) {
  QImage image(QSize(66, 66), QImage::Format_RGB888);
  image.fill(qRgb(10, 20, 30));
  image.setDevicePixelRatio(2.0);
  const MapPicture picture(image);
  EXPECT_EQ(picture.level(0).devicePixelRatio(), 1.0);
  EXPECT_EQ(picture.level(0).format(), QImage::Format_RGB32);
  EXPECT_EQ(picture.level(1).pixel(3, 3), qRgb(10, 20, 30));
}

TEST(MapPicture, IsHalvedUntil32PixelsAreLeft) {
  EXPECT_EQ(MapPicture(filled({400, 64}, 0xff000000)).levelFor(1e-9), 1);
  EXPECT_EQ(MapPicture(filled({400, 65}, 0xff000000)).levelFor(1e-9), 2);
  EXPECT_EQ(MapPicture(filled({32, 400}, 0xff000000)).levelFor(1e-9), 0);
}

TEST(MapPicture, ChoosesTheCoarsestLevelThatIsFineEnough) {
  const MapPicture picture(filled({400, 300}, 0xff000000));  // levels 400, 200, 100, 50
  EXPECT_EQ(picture.levelFor(3.0), 0);
  EXPECT_EQ(picture.levelFor(1.0), 0);
  EXPECT_EQ(picture.levelFor(0.51), 0);
  EXPECT_EQ(picture.levelFor(0.5), 1);
  EXPECT_EQ(picture.levelFor(0.26), 1);
  EXPECT_EQ(picture.levelFor(0.25), 2);
  EXPECT_EQ(picture.levelFor(1e-9), 4);
}

TEST(MapPicture, ReadsAFileAndIsNoneWhereThereIsNone) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("map.png"));
  ASSERT_TRUE(filled({20, 10}, 0xff336699).save(path));
  EXPECT_EQ(pictureFile(path)().size(), QSize(20, 10));
  EXPECT_TRUE(pictureFile(folder.filePath(QStringLiteral("none.png")))().isNull());
}

QImage resampled(const QImage& source, QSizeF scale, QPoint first, QSize size) {
  QImage piece(size, QImage::Format_RGB32);
  Resampler().draw(source, scale, first, size, piece);
  return piece;
}

TEST(Resampled, AtItsOwnScaleItIsTheSourceToTheBit) {
  const QImage source = slope(80, 60);
  EXPECT_EQ(resampled(source, {1.0, 1.0}, {10, 20}, {30, 25}), source.copy(10, 20, 30, 25));
}

TEST(Resampled, OneColourStaysThatColour) {
  const QImage source = filled({90, 70}, qRgb(17, 130, 250));
  for (const double scale : {0.5, 0.6, 0.99, 1.0, 1.7, 3.67}) {
    const QImage piece = resampled(source, {scale, scale}, {0, 0}, {32, 32});
    for (int i = 0; i < 32; ++i) {
      EXPECT_EQ(piece.pixel(i, i), qRgb(17, 130, 250)) << scale;
    }
  }
}

TEST(Resampled, ASlopeStaysASlopeAtItsPlace) {
  // A linear picture tells whether pixels lie where they should: half a pixel off would show.
  const QImage source = slope(80, 60);
  for (const double scale : {0.5, 0.7, 1.0, 1.4, 2.0, 3.5}) {
    const int side = static_cast<int>(20.0 * scale);
    const QPoint first(side, side);
    const QImage piece = resampled(source, {scale, scale}, first, {side, side});
    for (int i = 0; i < side; ++i) {
      const double at = (first.x() + i + 0.5) / scale - 0.5;
      EXPECT_NEAR(qRed(piece.pixel(i, i)), 3.0 * at, 1.0) << scale << ' ' << i;
    }
  }
}

/// The same filter written another way: as one sum over a square, in the form of two parabolas'
/// blend that Catmull and Rom gave it.
double weightAt(double distance) {
  // Four pixels in a row, one of them 1: what the curve through them is at the distance.
  const double t = std::abs(distance);
  if (t >= 2.0) {
    return 0.0;
  }
  const double u = t < 1.0 ? t : t - 1.0;
  return t < 1.0 ? 0.5 * (2.0 - 5.0 * u * u + 3.0 * u * u * u)
                 : 0.5 * (-u + 2.0 * u * u - u * u * u);
}

std::array<double, 3> plainSum(const QImage& source, QSizeF scale, QPoint shown) {
  const double wide = std::max(1.0, 1.0 / scale.width());
  const double high = std::max(1.0, 1.0 / scale.height());
  const double x = (shown.x() + 0.5) / scale.width() - 0.5;
  const double y = (shown.y() + 0.5) / scale.height() - 0.5;
  std::array<double, 3> sum{};
  double weights = 0.0;
  for (int row = -20; row < source.height() + 20; ++row) {
    const double weightOfRow = weightAt((row - y) / high);
    for (int column = -20; column < source.width() + 20 && weightOfRow != 0.0; ++column) {
      const double weight = weightAt((column - x) / wide) * weightOfRow;
      const QRgb color = source.pixel(std::clamp(column, 0, source.width() - 1),
                                      std::clamp(row, 0, source.height() - 1));
      sum[0] += weight * qRed(color);
      sum[1] += weight * qGreen(color);
      sum[2] += weight * qBlue(color);
      weights += weight;
    }
  }
  for (double& channel : sum) {
    channel = std::clamp(channel / weights, 0.0, 255.0);
  }
  return sum;
}

TEST(Resampled, IsWhatAPlainSumOverAllPixelsIs) {
  QImage source(31, 23, QImage::Format_RGB32);
  uint noise = 12345;
  for (int y = 0; y < source.height(); ++y) {
    for (int x = 0; x < source.width(); ++x) {
      noise = noise * 1664525U + 1013904223U;
      source.setPixel(x, y, noise | 0xff000000U);
    }
  }
  for (const QSizeF scale : {QSizeF(0.5, 0.5), QSizeF(0.55, 0.8), QSizeF(0.97, 1.03),
                             QSizeF(1.0, 2.0), QSizeF(1.6, 1.4), QSizeF(3.3, 2.7)}) {
    const QSize size = QSizeF(31 * scale.width(), 23 * scale.height()).toSize();
    const QImage piece = resampled(source, scale, {0, 0}, size);
    for (int y = 0; y < size.height(); ++y) {
      for (int x = 0; x < size.width(); ++x) {
        const std::array<double, 3> sum = plainSum(source, scale, {x, y});
        const QRgb seen = piece.pixel(x, y);
        ASSERT_NEAR(qRed(seen), sum[0], 0.52) << scale.width() << ' ' << x << ' ' << y;
        ASSERT_NEAR(qGreen(seen), sum[1], 0.52) << scale.width() << ' ' << x << ' ' << y;
        ASSERT_NEAR(qBlue(seen), sum[2], 0.52) << scale.width() << ' ' << x << ' ' << y;
        ASSERT_EQ(qAlpha(seen), 255);
      }
    }
  }
}

TEST(Resampled, APieceIsAtMost512PixelsWide) {
  const QImage source = filled({60, 10}, qRgb(90, 80, 70));
  EXPECT_EQ(resampled(source, {10.0, 1.0}, {0, 0}, {512, 2}).pixel(511, 1), qRgb(90, 80, 70));
  EXPECT_EXIT(resampled(source, {10.0, 1.0}, {0, 0}, {513, 2}), testing::KilledBySignal(SIGABRT),
              "at most 512 pixels");
}

TEST(Resampled, PiecesMeetWithoutASeam) {
  const QImage source = slope(80, 60);
  const QSizeF scale(2.3, 1.7);
  const QImage whole = resampled(source, scale, {0, 0}, {100, 80});
  EXPECT_EQ(resampled(source, scale, {37, 41}, {50, 39}), whole.copy(37, 41, 50, 39));
}

TEST(Resampled, BeyondTheEdgeTheEdgeGoesOn) {
  const QImage source = filled({10, 10}, qRgb(90, 80, 70));
  const QImage piece = resampled(source, {2.0, 2.0}, {15, 15}, {20, 20});
  EXPECT_EQ(piece.pixel(19, 19), qRgb(90, 80, 70));
}

TEST(Resampled, WritesNothingBesideThePiece) {
  QImage larger = filled({30, 20}, qRgb(1, 2, 3));
  Resampler().draw(filled({10, 10}, qRgb(200, 200, 200)), {1.0, 1.0}, {0, 0}, {5, 4}, larger);
  EXPECT_EQ(larger.pixel(4, 3), qRgb(200, 200, 200));
  EXPECT_EQ(larger.pixel(5, 3), qRgb(1, 2, 3));
  EXPECT_EQ(larger.pixel(4, 4), qRgb(1, 2, 3));
}

TEST(Resampled, AnEdgeGrowsSmoothly) {
  QImage source = filled({20, 20}, qRgb(0, 0, 0));
  for (int y = 0; y < 20; ++y) {
    for (int x = 10; x < 20; ++x) {
      source.setPixel(x, y, qRgb(200, 200, 200));
    }
  }
  const QImage piece = resampled(source, {4.0, 4.0}, {20, 20}, {40, 10});
  for (int x = 1; x < 40; ++x) {
    EXPECT_LE(distance(piece.pixel(x, 5), piece.pixel(x - 1, 5)), 70) << x;  // no steps of 200
  }
}

}  // namespace
}  // namespace veyruna::ui
