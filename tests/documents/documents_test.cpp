// The table of documents: what each is, and that the pages for people say the same.
#include "documents/documents.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

#include "charts/horoscope.h"
#include "charts/star_map.h"
#include "tests/support/reference_case.h"
#include "tests/support/source_path.h"

namespace veyruna {
namespace {

using documents::allDocuments;
using documents::Document;
using documents::Entry;
using documents::Kind;
using documents::textOf;
using tests::fileContent;

class Documents : public testing::TestWithParam<tests::ReferenceCase> {
 protected:
  const tests::ReferenceCase& at = GetParam();
  const astro::Observer observer = at.observer();
};

TEST_P(Documents, AreThoseOfTheReferences) {
  const std::map<Document, std::string> files = {
      {Document::hourly, "hourly.txt"},       {Document::monthly, "monthly.txt"},
      {Document::daily, "daily.txt"},         {Document::yearly, "yearly.txt"},
      {Document::positions, "positions.txt"},
  };
  for (const auto& [document, file] : files) {
    EXPECT_EQ(textOf(document, observer), at.expected(file)) << file;
  }
  EXPECT_EQ(textOf(Document::date, observer) + "\n", at.expected("label.txt"));
  EXPECT_EQ(textOf(Document::nextFullMoon, observer) + "\n" +
                textOf(Document::nextNewMoon, observer) + "\n",
            at.expected("moons.txt"));
}

TEST_P(Documents, ChartsShowTheProgramsOwnSky) {
  const charts::StarCatalogue& stars = charts::builtInCatalogue();
  EXPECT_EQ(textOf(Document::starMap, observer), charts::starMap(observer, stars));
  EXPECT_EQ(textOf(Document::horoscope, observer), charts::horoscope(false, observer, stars));
  EXPECT_EQ(textOf(Document::horoscopeOnPaper, observer), charts::horoscope(true, observer, stars));
}

TEST_P(Documents, TheMomentIsItsLabelsUnderTheirHeadings) {
  EXPECT_EQ(textOf(Document::moment, observer),
            textOf(Document::date, observer) +
                "\nNext full moon: " + textOf(Document::nextFullMoon, observer) +
                "\nNext new moon: " + textOf(Document::nextNewMoon, observer) + "\n");
}

/// What a document is called is what it is: a chart is a picture, a table as long as it says.
TEST_P(Documents, AreOfTheirKind) {
  for (const Entry& entry : allDocuments) {
    SCOPED_TRACE(entry.heading);
    const std::string text = textOf(entry.document, observer);
    const auto lines = std::ranges::count(text, '\n');
    EXPECT_EQ(text.find("<svg") != std::string::npos, entry.kind == Kind::chart);
    EXPECT_TRUE(entry.kind == Kind::label ||
                entry.fileName.ends_with(entry.kind == Kind::chart ? ".svg" : ".txt"));
    EXPECT_EQ(text.ends_with('\n'), entry.kind != Kind::label);
    EXPECT_EQ(lines == 0, entry.kind == Kind::label);
    if (entry.kind == Kind::table) {
      const auto headerLines = lines - entry.size.rows;
      EXPECT_TRUE(headerLines == 1 || headerLines == 2) << headerLines;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, Documents, testing::ValuesIn(tests::referenceCases()),
                         [](const auto& test) {
                           std::string name = test.param.folder;
                           std::erase(name, '-');
                           return name;
                         });

TEST(DocumentsDeathTest, WhatIsNoDocumentHasNoRow) {
  EXPECT_EXIT(documents::entryOf(Document::count), testing::KilledBySignal(SIGABRT),
              "a document has its row");
}

std::string page(const std::string& path) {
  return fileContent(tests::sourcePath(path));
}

/// The summary as a cell of a table has it.
std::string inACell(std::string_view summary) {
  std::string text(summary);
  text.front() = static_cast<char>(text.front() - 'A' + 'a');
  return text;
}

TEST(DocumentsForPeople, TheManualAndTheReadmeSayWhatEachCommandWrites) {
  const std::string manual = page("docs/manual/command-line.html");
  const std::string readme = page("README.md");
  for (const Entry& entry : allDocuments) {
    if (entry.command.empty()) {
      continue;
    }
    const std::string command(entry.command);
    const std::string summary = inACell(entry.summary);
    EXPECT_NE(manual.find("<tr><th scope=\"row\"><code>" + command + "</code></th><td>" + summary +
                          "</td></tr>"),
              std::string::npos)
        << command << ": " << summary;
    const std::size_t row = readme.find("\n| `" + command);
    ASSERT_NE(row, std::string::npos) << command;
    const std::string line = readme.substr(row + 1, readme.find('\n', row + 1) - row - 1);
    EXPECT_NE(line.find("| " + summary), std::string::npos) << line;
  }
}

/// How a step is called: in a summary, and in the manual's page about tables.
struct StepWords {
  double days;
  std::string_view summaryHas;
  std::string_view manualHas;
};
constexpr std::array<StepWords, 3> steps = {
    {{1.0, " day", "a day apart"},
     {1.0 / 24.0, " hour", "an hour apart"},
     {1.0 / 144.0, "every ten minutes", "ten minutes apart"}}};

TEST(DocumentsForPeople, ATablesStepAndRowsAreSaidAsTheyAre) {
  const std::string manual = page("docs/manual/tables.html");
  for (const Entry& entry : allDocuments) {
    if (entry.kind != Kind::table) {
      continue;
    }
    SCOPED_TRACE(entry.heading);
    const auto* const step = std::ranges::find(steps, entry.size.stepDays, &StepWords::days);
    ASSERT_NE(step, steps.end()) << "no words for a step of " << entry.size.stepDays << " days";
    EXPECT_NE(entry.summary.find(step->summaryHas), std::string_view::npos) << entry.summary;
    const std::size_t place = manual.find("<b>" + std::string(entry.heading) + "</b> has " +
                                          std::to_string(entry.size.rows));
    ASSERT_NE(place, std::string::npos) << "the manual has no such table of " << entry.size.rows;
    const std::string sentence = manual.substr(place, manual.find_first_of(".;", place) - place);
    EXPECT_NE(sentence.find(step->manualHas), std::string::npos) << sentence;
  }
}

TEST(Documents, OfEveryChartItIsKnownWhatItShowsWhere) {
  const astro::Observer observer{1000.25, 0.7, -0.3};
  for (const Entry& entry : allDocuments) {
    const charts::ChartMarks marks = documents::marksOf(entry.document, observer);
    EXPECT_EQ(marks.size() > 100, entry.kind == Kind::chart) << entry.heading;
    EXPECT_EQ(marks.empty(), entry.kind != Kind::chart) << entry.heading;
  }
}

}  // namespace
}  // namespace veyruna
