// Reports as PDF: no row and no column is missing or cut, whatever the tables hold.
#include <algorithm>
#include <gtest/gtest.h>

#include "export/export_content.h"
#include "export/report_page.h"
#include "tests/export/pdf_reader.h"
#include "tests/model/observed.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using exports::OutputTab;
using tests::PdfReader;
using tests::squeezedLines;

constexpr QSizeF letterPoints(612, 792);

/// Every page is a letter, every word is on it, and every font is in the file.
void expectWholePages(const PdfReader& pdf) {
  for (const PdfReader::Page& page : pdf.pages()) {
    EXPECT_NEAR(page.width, 612.0, 0.1);
    EXPECT_NEAR(page.height, 792.0, 0.1);
  }
  for (const PdfReader::Word& word : pdf.words()) {
    EXPECT_TRUE(word.left >= 0.0 && word.top >= 0.0 && word.right <= 612.0 && word.bottom <= 792.0)
        << word.text.toStdString() << ' ' << word.left << ' ' << word.top << ' ' << word.right
        << ' ' << word.bottom;
  }
  const QStringList embeddings = pdf.embeddings();
  EXPECT_FALSE(embeddings.isEmpty());
  EXPECT_FALSE(embeddings.contains(u"no"_s));
}

/// Shows the first line that differs, not all.
void expectSameLines(const QStringList& found, const QStringList& expected) {
  EXPECT_EQ(found.size(), expected.size());
  for (qsizetype line = 0; line < std::min(found.size(), expected.size()); ++line) {
    ASSERT_EQ(found.at(line), expected.at(line)) << "line " << line;
  }
}

class ReportPages : public testing::TestWithParam<tests::ReferenceCase> {
 protected:
  /// The report's PDF holds exactly these texts, line for line.
  static void expectLines(const PdfReader& pdf, const QStringList& texts) {
    expectSameLines(pdf.lines(), squeezedLines(texts.join(u'\n')));
    expectWholePages(pdf);
  }
  [[nodiscard]] PdfReader report(OutputTab tab) const {
    const auto content = exports::pdfExport(world.model, tab);
    return PdfReader(tests::rendered(content->html, content->pageSizePoints));
  }

  tests::ObservedModel world{GetParam()};
  QString meta = exports::metaText(world.model);
};

TEST_P(ReportPages, HoldThePositions) {
  const PdfReader pdf = report(OutputTab::planets);
  expectLines(pdf, {u"Planet Positions"_s, meta, u"Positions"_s,
                    world.model.text(documents::Document::positions)});
  EXPECT_EQ(pdf.pages().size(), 1U);
}

TEST_P(ReportPages, HoldSunAndMoon) {
  const PdfReader pdf = report(OutputTab::sunMoon);
  expectLines(pdf, {u"Sun & Moon"_s, meta, u"Hourly"_s, world.model.basicTableHourly(),
                    u"Monthly"_s, world.model.basicTableMonthly()});
}

TEST_P(ReportPages, HoldTheConjunctions) {
  const PdfReader pdf = report(OutputTab::positions);
  expectLines(pdf, {u"Conjunctions"_s, meta, u"Daily"_s, world.model.conjunctionDaily(),
                    u"Yearly"_s, world.model.conjunctionYearly()});
  EXPECT_GT(pdf.pages().size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(References, ReportPages, testing::ValuesIn(tests::referenceCases()),
                         [](const auto& reference) {
                           std::string name = reference.param.folder;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

/// A table of numbered rows of so many characters, with a letter at each end.
QString wideTable(int rows, int characters) {
  QString table;
  for (int row = 1; row <= rows; ++row) {
    const QString begin = u"A%1 "_s.arg(row, 4, 10, QChar(u'0'));
    const QString end = u" %1Z"_s.arg(row, 4, 10, QChar(u'0'));
    table += begin + u"abcd efgh "_s.repeated(characters).left(characters - 12) + end + u'\n';
  }
  return table;
}

/// Widths of the rows, in characters: from a report that needs no scaling to far beyond what a
/// browser's own shrinking, which stops at a half, would cover.
class WideReports : public testing::TestWithParam<int> {};

TEST_P(WideReports, HoldEveryRowToItsEnd) {
  const QString table = wideTable(360, GetParam());
  const PdfReader pdf(
      tests::rendered(exports::reportDocument(u"T"_s, u"M"_s, {{u"One"_s, table}}), letterPoints));
  expectSameLines(pdf.lines(), squeezedLines(u"T\nM\nOne\n"_s + table));
  expectWholePages(pdf);
  double right = 0.0;
  for (const PdfReader::Word& word : pdf.words()) {
    right = std::max(right, word.right);
  }
  // A line of 9 points has letters 5.4 points wide; 28 points stand free on both sides.
  const double asWritten = 28.0 + 5.4 * GetParam();
  const double scale = std::min(1.0, 612.0 / (asWritten + 28.0));
  EXPECT_LE(right, asWritten * scale + 0.5);
  // No smaller than it must be, to a hundredth of the page.
  EXPECT_GE(right, asWritten * scale - 6.12);
  std::printf("%d characters: %zu pages, scale %.3f\n", GetParam(), pdf.pages().size(), scale);
}

INSTANTIATE_TEST_SUITE_P(Characters, WideReports,
                         testing::Values(40, 102, 103, 104, 105, 164, 190, 240),
                         testing::PrintToStringParamName());

TEST(ReportScale, IsAPointForAPixel) {
  const PdfReader pdf(tests::rendered(
      exports::reportDocument(u"Title"_s, u"Meta"_s, {{u"One"_s, u"0123456789\n"_s.repeated(2)}}),
      letterPoints));
  const auto words = pdf.words();
  ASSERT_EQ(words.size(), 5U);
  EXPECT_NEAR(words[0].left, 28.0, 0.5);
  EXPECT_NEAR(words[3].left, 28.0, 0.5);
  EXPECT_NEAR(words[3].right - words[3].left, 54.0, 0.5);
  EXPECT_NEAR(words[4].top - words[3].top, 9.0 * 1.25, 0.2);
  EXPECT_NEAR(words[0].top, 28.0, 0.5);
}

TEST(ReportPaper, HasItsMarginOnEveryPage) {
  const PdfReader pdf(tests::rendered(
      exports::reportDocument(u"T"_s, u"M"_s, {{u"One"_s, wideTable(200, 60)}}), letterPoints));
  ASSERT_GT(pdf.pages().size(), 2U);
  for (const PdfReader::Word& word : pdf.words()) {
    EXPECT_GE(word.top, 27.0) << word.text.toStdString();
    EXPECT_LE(word.bottom, 792.0 - 27.0) << word.text.toStdString();
  }
}

TEST(ReportPaper, KeepsAHeadingWithItsTable) {
  // One of these leaves the second heading at the foot of the first page, if anything does.
  for (int rows = 50; rows <= 62; ++rows) {
    const PdfReader pdf(tests::rendered(
        exports::reportDocument(u"T"_s, u"M"_s,
                                {{u"One"_s, wideTable(rows, 60)}, {u"Two"_s, wideTable(9, 60)}}),
        letterPoints));
    const auto words = pdf.words();
    const auto heading = std::find_if(words.begin(), words.end(),
                                      [](const auto& word) { return word.text == u"Two"_s; });
    ASSERT_TRUE(heading != words.end() && heading + 1 != words.end());
    EXPECT_EQ(heading->page, (heading + 1)->page) << rows;
  }
}

TEST(ReportText, KeepsWhatPeopleType) {
  const PdfReader pdf(
      tests::rendered(exports::reportDocument(u"Alpha & Beta"_s, u"Salt & <Sand> \"Quay\""_s,
                                              {{u"less < more"_s, u"&lt;"_s}}),
                      letterPoints));
  EXPECT_EQ(pdf.lines(), QStringList({u"Alpha & Beta"_s, u"Salt & <Sand> \"Quay\""_s,
                                      u"less < more"_s, u"&lt;"_s}));
}

}  // namespace
}  // namespace veyruna
