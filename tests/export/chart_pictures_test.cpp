// A chart's PDF looks like the chart. Where the golden pictures come from: golden/README.md.
#include <QFile>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "export/chart_page.h"
#include "tests/export/pdf_reader.h"
#include "tests/support/reference_case.h"
#include "tests/support/source_path.h"

namespace veyruna {
namespace {

struct Chart {
  const char* name;
  int width;  ///< points; the golden picture has twice as many pixels
  int height;
};

struct Difference {
  double mean = 0.0;       ///< of all squares, in levels of 255
  double different = 0.0;  ///< share of squares that differ by more than a tenth of black to white
};

/// Averages over squares of 8 × 8 pixels, 4 × 4 points.
QImage averaged(const QImage& picture) {
  return picture.convertToFormat(QImage::Format_RGB32)
      .scaled(picture.width() / 8, picture.height() / 8, Qt::IgnoreAspectRatio,
              Qt::SmoothTransformation);
}

Difference differenceOf(const QImage& one, const QImage& other) {
  const QImage a = averaged(one);
  const QImage b = averaged(other);
  Difference found;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QColor left = a.pixelColor(x, y);
      const QColor right = b.pixelColor(x, y);
      const int levels =
          std::max({std::abs(left.red() - right.red()), std::abs(left.green() - right.green()),
                    std::abs(left.blue() - right.blue())});
      found.mean += levels;
      found.different += levels > 25 ? 1.0 : 0.0;
    }
  }
  const double squares = static_cast<double>(a.width()) * a.height();
  found.mean /= squares;
  found.different /= squares;
  return found;
}

struct ChartPictures : testing::TestWithParam<Chart> {};

TEST_P(ChartPictures, LookLikeTheChart) {
  const auto& [name, width, height] = GetParam();
  const auto evening =
      std::find_if(tests::referenceCases().begin(), tests::referenceCases().end(),
                   [](const tests::ReferenceCase& at) { return at.folder == "evening-local"; });
  const QString chart = QString::fromStdString(evening->expected(std::string(name) + ".svg"));
  const QString goldenFile = QString::fromStdString(
      tests::sourcePath("tests/export/golden/" + std::string(name) + ".png"));
  const QImage golden(goldenFile);
  ASSERT_EQ(golden.size(), QSize(2 * width, 2 * height));
  const QByteArray pdf = tests::rendered(exports::chartPage(chart), QSizeF(width, height));
  QImage picture = tests::PdfReader(pdf).picture(144);
  ASSERT_LE(std::abs(picture.width() - 2 * width), 1);
  ASSERT_LE(std::abs(picture.height() - 2 * height), 1);
  const Difference found = differenceOf(picture.copy(golden.rect()), golden);
  const QString received = goldenFile + QStringLiteral(".received");
  QFile::remove(received);
  if (found.mean >= 1.0 || found.different >= 0.0005) {
    picture.save(received, "PNG");
    ADD_FAILURE()
        << qPrintable(received) << ": " << found.mean << " levels, " << found.different
        << " of the squares; to draw the golden one anew: tests/export/golden/make_golden";
  }
  // It is this moment's chart that looks so.
  const QString other =
      QString::fromStdString(tests::referenceCases().front().expected(std::string(name) + ".svg"));
  const QImage otherPicture =
      tests::PdfReader(tests::rendered(exports::chartPage(other), QSizeF(width, height)))
          .picture(144);
  const Difference off = differenceOf(otherPicture.copy(golden.rect()), golden);
  EXPECT_GT(off.different, 0.01);
}

INSTANTIATE_TEST_SUITE_P(Charts, ChartPictures,
                         testing::Values(Chart{"star-map", 720, 720},
                                         Chart{"horoscope", 1440, 760}));

}  // namespace
}  // namespace veyruna
