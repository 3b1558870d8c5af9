// Reports as PDF: no row and no column is missing or cut, whatever the tables hold, and every page
// can be read by itself.
#include "export/report_pages.h"

#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "tests/export/pdf_reader.h"
#include "tests/support/reference_case.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using exports::PdfInformation;
using exports::Report;
using exports::ReportSection;
using tests::PdfReader;
using tests::squeezedLines;

const PdfInformation information{u"Title of the file"_s, u"Veyruna Astro 0.1.0"_s};

PdfReader printed(const Report& report) {
  return PdfReader(exports::reportPdf(report, information));
}

/// Every page is a letter, every word is on it, and every font is in the file.
void expectWholePages(const PdfReader& pdf) {
  for (const PdfReader::Page& page : pdf.pages()) {
    EXPECT_EQ(page.width, 612.0);
    EXPECT_EQ(page.height, 792.0);
  }
  for (const PdfReader::Word& word : pdf.words()) {
    EXPECT_TRUE(word.left >= 27.0 && word.top >= 0.0 && word.right <= 612.0 - 27.0 &&
                word.bottom <= 792.0)
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

QStringList rowsOf(const QString& text) {
  return squeezedLines(text);
}

class ReportPages : public testing::TestWithParam<tests::ReferenceCase> {
 protected:
  [[nodiscard]] static QString table(const char* file) {
    return QString::fromStdString(GetParam().expected(file));
  }
};

TEST_P(ReportPages, HoldThePositions) {
  const PdfReader pdf = printed(
      {u"Planet Positions"_s, u"a moment"_s, {{u"Positions"_s, table("positions.txt"), 2}}});
  expectSameLines(pdf.lines(), squeezedLines(u"Planet Positions\na moment\nPositions\n"_s +
                                             table("positions.txt")));
  EXPECT_EQ(pdf.pages().size(), 1U);
  expectWholePages(pdf);
}

TEST_P(ReportPages, HoldSunAndMoon) {
  const PdfReader pdf =
      printed({u"Sun & Moon"_s,
               u"a moment"_s,
               {{u"Hourly"_s, table("hourly.txt"), 1}, {u"Monthly"_s, table("monthly.txt"), 1}}});
  expectSameLines(pdf.lines(),
                  squeezedLines(u"Sun & Moon\na moment\nHourly\n"_s + table("hourly.txt") +
                                u"\nMonthly\n"_s + table("monthly.txt")));
  expectWholePages(pdf);
}

TEST_P(ReportPages, HoldTheConjunctionsAndRepeatTheHeadingsOfTheirColumns) {
  const QStringList yearly = rowsOf(table("yearly.txt"));
  const PdfReader pdf =
      printed({u"Conjunctions"_s, u"a moment"_s, {{u"Yearly"_s, table("yearly.txt"), 2}}});
  QStringList lines = pdf.lines();
  const auto count = static_cast<qsizetype>(pdf.pages().size());
  ASSERT_GT(count, 2);
  EXPECT_EQ(lines.count(yearly[0]), count);
  EXPECT_EQ(lines.count(yearly[1]), count);
  EXPECT_EQ(lines.count(u"Conjunctions a moment"_s), count - 1);
  for (qsizetype page = 1; page <= count; ++page) {
    EXPECT_EQ(lines.count(u"%1/%2"_s.arg(page).arg(count)), 1) << page;
  }
  for (const QString& row : yearly.mid(2)) {
    EXPECT_EQ(lines.count(row), yearly.count(row)) << row.toStdString();
  }
  expectWholePages(pdf);
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

/// Widths of the rows, in characters: from a report that needs no scaling to far beyond.
class WideReports : public testing::TestWithParam<int> {};

TEST_P(WideReports, HoldEveryRowToItsEnd) {
  const QString table = wideTable(360, GetParam());
  const PdfReader pdf = printed({u"T"_s, u"M"_s, {{u"One"_s, table}}});
  QStringList lines = pdf.lines();
  for (const QString& row : rowsOf(table)) {
    EXPECT_EQ(lines.count(row), 1) << row.toStdString();
  }
  expectWholePages(pdf);
  double right = 0.0;
  for (const PdfReader::Word& word : pdf.words()) {
    if (word.text.endsWith(u'Z')) {
      right = std::max(right, word.right);
    }
  }
  // A line of 9 points has letters 5.4 points wide; 28 points stand free on both sides.
  const double wanted = std::min(5.4 * GetParam(), 612.0 - 56.0);
  EXPECT_NEAR(right, 28.0 + wanted, 1.0);
}

INSTANTIATE_TEST_SUITE_P(Characters, WideReports, testing::Values(40, 102, 103, 104, 164, 190, 240),
                         testing::PrintToStringParamName());

TEST(ReportScale, IsThatOfItsHtmlForm) {
  const PdfReader pdf =
      printed({u"Title"_s, u"Meta"_s, {{u"One"_s, u"0123456789\n"_s.repeated(2)}}});
  const auto words = pdf.words();
  ASSERT_EQ(words.size(), 5U);
  for (const PdfReader::Word& word : words) {
    EXPECT_NEAR(word.left, 28.0, 0.5);
  }
  EXPECT_NEAR(words[3].right - words[3].left, 54.0, 0.5);
  EXPECT_NEAR(words[4].top - words[3].top, 9.0 * 1.25, 0.2);
  EXPECT_NEAR(words[0].top, 28.0, 1.5);
}

TEST(ReportPaper, HasItsMarginsOnEveryPage) {
  const PdfReader pdf = printed({u"T"_s, u"M"_s, {{u"One"_s, wideTable(200, 60)}}});
  ASSERT_GT(pdf.pages().size(), 2U);
  for (const PdfReader::Word& word : pdf.words()) {
    const bool isRow = word.text.contains(u"abcd"_s) || word.text.startsWith(u'A');
    if (isRow) {
      EXPECT_GE(word.top, 27.0) << word.text.toStdString();
      EXPECT_LE(word.bottom, 792.0 - 27.0) << word.text.toStdString();
    }
  }
}

TEST(ReportPaper, OnePageNeedsNoNumber) {
  EXPECT_EQ(printed({u"T"_s, u"M"_s, {{u"One"_s, u"row\n"_s}}}).lines(),
            QStringList({u"T"_s, u"M"_s, u"One"_s, u"row"_s}));
}

TEST(ReportPaper, KeepsAHeadingWithItsTable) {
  // One of these leaves the second heading at the foot of the first page, if anything does.
  for (int rows = 50; rows <= 62; ++rows) {
    const PdfReader pdf =
        printed({u"T"_s, u"M"_s, {{u"One"_s, wideTable(rows, 60)}, {u"Two"_s, wideTable(9, 60)}}});
    const auto words = pdf.words();
    const auto heading = std::find_if(words.begin(), words.end(),
                                      [](const auto& word) { return word.text == u"Two"_s; });
    const auto firstRow = std::find_if(heading, words.end(),
                                       [](const auto& word) { return word.text == u"A0001"_s; });
    ASSERT_TRUE(heading != words.end() && firstRow != words.end());
    EXPECT_EQ(heading->page, firstRow->page) << rows;
  }
}

TEST(ReportText, KeepsWhatPeopleType) {
  const PdfReader pdf = printed(
      {u"Alpha & Beta"_s, u"Salt & <Sand> \"Quay\" Ærø Ж"_s, {{u"less < more"_s, u"&lt;"_s}}});
  EXPECT_EQ(pdf.lines(), QStringList({u"Alpha & Beta"_s, u"Salt & <Sand> \"Quay\" Ærø Ж"_s,
                                      u"less < more"_s, u"&lt;"_s}));
}

TEST(ReportText, BreaksAPlaceTooLongForItsLine) {
  const QString place = u"Wendmark upon the "_s + u"long "_s.repeated(60) + u"road"_s;
  const PdfReader pdf = printed({u"T"_s, place, {{u"One"_s, wideTable(120, 60)}}});
  expectWholePages(pdf);
  EXPECT_TRUE(pdf.lines().join(u' ').contains(place));
  const QString unbroken = u"x"_s.repeated(300);
  const PdfReader narrow = printed({unbroken, u"M"_s, {}});
  expectWholePages(narrow);
  EXPECT_TRUE(narrow.lines().join(QString()).contains(unbroken));
}

TEST(ReportText, WithoutSectionsIsATitleAndALine) {
  EXPECT_EQ(printed({u"T"_s, u"M"_s, {}}).lines(), QStringList({u"T"_s, u"M"_s}));
  EXPECT_EQ(printed({u"T"_s, u"M"_s, {{u"One"_s, QString()}}}).lines(),
            QStringList({u"T"_s, u"M"_s, u"One"_s}));
}

TEST(ReportFile, SaysWhatItIsAndWhoMadeIt) {
  const PdfReader pdf = printed({u"T"_s, u"M"_s, {{u"One"_s, u"row\n"_s}}});
  EXPECT_EQ(pdf.information(u"Title"_s), u"Title of the file"_s);
  EXPECT_EQ(pdf.information(u"Creator"_s), u"Veyruna Astro 0.1.0"_s);
}

TEST(ReportFile, IsTheSameForTheSameContent) {
  const Report report{u"T"_s, u"M"_s, {{u"One"_s, wideTable(100, 60)}}};
  EXPECT_EQ(tests::withoutDates(exports::reportPdf(report, information)),
            tests::withoutDates(exports::reportPdf(report, information)));
}

TEST(ReportFile, IsTheSameBesideOthersInTheMaking) {
  const Report report{u"T"_s, u"M"_s, {{u"One"_s, wideTable(3, 60)}}};
  const QByteArray alone = tests::withoutDates(exports::reportPdf(report, information));
  std::atomic<int> others = 0;
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 8; ++thread) {
    threads.emplace_back([&] {
      for (int i = 0; i < 60; ++i) {
        others += tests::withoutDates(exports::reportPdf(report, information)) == alone ? 0 : 1;
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(others, 0);
}

}  // namespace
}  // namespace veyruna
