// Charts as PDF and as pictures, opened again by other programs.
#include "export/chart_files.h"

#include <QRegularExpression>
#include <gtest/gtest.h>
#include <set>

#include "drawing/svg_reader.h"
#include "tests/export/pdf_reader.h"
#include "tests/support/golden_picture.h"
#include "tests/support/reference_case.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using exports::chartPdf;
using exports::chartPng;
using tests::PdfReader;

const exports::PdfInformation horoscopeInformation{u"Horoscope, 720-01-01"_s,
                                                   u"Veyruna Astro 0.1.0"_s};

struct Chart {
  const char* name;
  QSize points;
};

QByteArray svgOf(const Chart& chart, const tests::ReferenceCase& at) {
  return QByteArray::fromStdString(at.expected(std::string(chart.name) + ".svg"));
}

const tests::ReferenceCase& momentOf(const std::string& folder) {
  for (const tests::ReferenceCase& at : tests::referenceCases()) {
    if (at.folder == folder) {
      return at;
    }
  }
  throw std::runtime_error(folder);
}

struct ChartFiles : testing::TestWithParam<Chart> {
  [[nodiscard]] static PdfReader pdfOf(const std::string& folder) {
    return PdfReader(
        chartPdf(svgOf(GetParam(), momentOf(folder)), GetParam().points, horoscopeInformation));
  }
  [[nodiscard]] static QImage golden() { return QImage(tests::goldenPicturePath(GetParam().name)); }
};

TEST_P(ChartFiles, IsOnePageOfExactlyItsSizeWithItsFontInIt) {
  for (const tests::ReferenceCase& at : tests::referenceCases()) {
    const PdfReader pdf = pdfOf(at.folder);
    ASSERT_EQ(pdf.pages().size(), 1U);
    EXPECT_EQ(QSizeF(pdf.pages()[0].width, pdf.pages()[0].height), QSizeF(GetParam().points));
    EXPECT_FALSE(pdf.embeddings().isEmpty());
    EXPECT_FALSE(pdf.embeddings().contains(u"no"_s));
    EXPECT_TRUE(pdf.imageSizes().isEmpty());  // lines and letters, no pixels
  }
}

TEST_P(ChartFiles, LooksAsAnotherProgramDrawsTheChart) {
  EXPECT_TRUE(tests::looksGolden(pdfOf("evening-local").picture(144), GetParam().name, 8,
                                 {.mean = 1.0, .different = 0.0005}));
  // It is this moment's chart that looks so.
  EXPECT_GT(tests::differenceOf(pdfOf("first-start").picture(144), golden(), 8).different, 0.01);
}

TEST_P(ChartFiles, HoldsEveryTextOfTheChartOnceAsWholeWords) {
  const QByteArray svg = svgOf(GetParam(), momentOf("evening-local"));
  QStringList expected;
  for (const drawing::Shape& shape : drawing::readSvg(svg).shapes) {
    if (const auto* const level = std::get_if<drawing::LevelText>(&shape)) {
      expected += level->letters.text.split(u' ');
    } else if (const auto* const bent = std::get_if<drawing::BentText>(&shape)) {
      expected += bent->letters.text.split(u' ');
    }
  }
  QStringList found;
  for (const QString& line :
       PdfReader(chartPdf(svg, GetParam().points, horoscopeInformation)).rawLines()) {
    found += line.split(u' ');
  }
  expected.sort();
  found.sort();
  EXPECT_EQ(found.join(u'|'), expected.join(u'|'));
}

TEST_P(ChartFiles, IsTheSameForTheSameChart) {
  const QByteArray svg = svgOf(GetParam(), momentOf("south"));
  EXPECT_EQ(tests::withoutDates(chartPdf(svg, GetParam().points, horoscopeInformation)),
            tests::withoutDates(chartPdf(svg, GetParam().points, horoscopeInformation)));
}

TEST_P(ChartFiles, AsAPictureIsAsWideAsAskedAndLooksTheSame) {
  const QByteArray svg = svgOf(GetParam(), momentOf("evening-local"));
  const int width = 2 * GetParam().points.width();
  const QImage picture = QImage::fromData(chartPng(svg, GetParam().points, width), "PNG");
  EXPECT_TRUE(tests::looksGolden(picture, GetParam().name, 4, {.mean = 0.5, .different = 0.0001}));
  EXPECT_EQ(QImage::fromData(chartPng(svg, GetParam().points, 333)).width(), 333);
}

INSTANTIATE_TEST_SUITE_P(
    Charts, ChartFiles,
    testing::Values(Chart{"star-map", {720, 720}}, Chart{"horoscope", {1440, 760}}),
    [](const auto& chart) {
      return std::string(chart.param.name == std::string("star-map") ? "StarMap" : "Horoscope");
    });

TEST(ChartFile, SaysWhatItIsAndWhoMadeIt) {
  const PdfReader pdf(chartPdf(QByteArray(), {720, 720}, horoscopeInformation));
  EXPECT_EQ(pdf.information(u"Title"_s), u"Horoscope, 720-01-01"_s);
  EXPECT_EQ(pdf.information(u"Creator"_s), u"Veyruna Astro 0.1.0"_s);
}

TEST(ChartFile, OfNoChartYetIsAnEmptyPage) {
  const PdfReader pdf(chartPdf(QByteArray(), {720, 720}, horoscopeInformation));
  EXPECT_EQ(pdf.pages().size(), 1U);
  EXPECT_TRUE(pdf.words().empty());
}

TEST(ChartFile, OfWhatIsNoChartIsRefused) {
  EXPECT_THROW(chartPdf("<html/>", {720, 720}, horoscopeInformation), drawing::PictureError);
  EXPECT_THROW(chartPng("<html/>", {720, 720}, 720), drawing::PictureError);
}

}  // namespace
}  // namespace veyruna
