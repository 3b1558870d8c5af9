// Charts look as another program draws them. Where the golden pictures come from: golden/README.md.
#include <QPainter>
#include <gtest/gtest.h>

#include "drawing/picture_painter.h"
#include "drawing/svg_reader.h"
#include "tests/support/golden_picture.h"
#include "tests/support/reference_case.h"

namespace veyruna::drawing {
namespace {

QImage chart(const char* name, const char* moment, QSize size, double ratio) {
  const std::string svg = tests::fileContent(
      tests::sourcePath(std::string("tests/reference/") + moment + "/" + name + ".svg"));
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  image.setDevicePixelRatio(ratio);
  QPainter painter(&image);
  PicturePainter().paint(painter, readSvg(QByteArray::fromStdString(svg)),
                         QRectF(QPointF(), QSizeF(size) / ratio), Medium::pixels);
  return image;
}

struct Pictures : testing::TestWithParam<const char*> {};

TEST_P(Pictures, LookAsAnotherProgramDrawsThem) {
  const QSize size = QImage(tests::goldenPicturePath(GetParam())).size();
  for (const double ratio : {1.0, 1.5, 2.0}) {
    EXPECT_TRUE(tests::looksGolden(chart(GetParam(), "evening-local", size, ratio), GetParam(), 4,
                                   {.mean = 0.5, .different = 0.0001}))
        << ratio;
  }
}

TEST_P(Pictures, OfAnotherMomentLookDifferent) {
  const QImage golden(tests::goldenPicturePath(GetParam()));
  const auto found =
      tests::differenceOf(chart(GetParam(), "first-start", golden.size(), 2.0), golden, 4);
  EXPECT_GT(found.different, 0.01);
}

INSTANTIATE_TEST_SUITE_P(Charts, Pictures, testing::Values("star-map", "horoscope"));

}  // namespace
}  // namespace veyruna::drawing
