// Every tab and every document: what of which is saved, and what is not and why.
#include <QSet>
#include <gtest/gtest.h>
#include <map>

#include "export/export_content.h"
#include "export/output_tab.h"
#include "export/report_page.h"
#include "tests/model/observed.h"
#include "tests/support/source_path.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using documents::Document;
using exports::OutputTab;
using exports::TabEntry;

/// What no tab saves, and where it is seen.
const std::map<Document, const char*> savedByNoTab = {
    {Document::horoscopeOnPaper, "the horoscope's tab saves the form that is shown"},
    {Document::date, "over every tab, and in every report"},
    {Document::nextFullMoon, "under the tables of Sun & Moon"},
    {Document::nextNewMoon, "under the tables of Sun & Moon"},
    {Document::moment, "the three labels before it in one text, for the command"},
};

TEST(EveryDocument, IsSavedByOneTabOrIsSaidNotToBe) {
  for (const documents::Entry& entry : documents::allDocuments) {
    std::ptrdiff_t tabs = 0;
    for (const TabEntry& tab : exports::allTabs) {
      tabs += std::ranges::count(tab.sections, entry.document, &exports::TabSection::document);
    }
    EXPECT_EQ(tabs, savedByNoTab.contains(entry.document) ? 0 : 1) << entry.heading;
  }
}

TEST(EveryDocument, OfATabIsHeldByTheModel) {
  for (const TabEntry& tab : exports::allTabs) {
    for (const exports::TabSection& section : tab.sections) {
      EXPECT_TRUE(model::isHeld(section.document)) << documents::entryOf(section.document).heading;
    }
  }
}

TEST(EveryTab, IsCalledLikeNoOther) {
  QSet<QString> titles;
  QSet<QString> prefixes;
  qsizetype saving = 0;
  for (const TabEntry& tab : exports::allTabs) {
    titles.insert(tab.title.toString());
    if (!tab.sections.empty()) {
      prefixes.insert(exports::filePrefix(tab));
      ++saving;
    }
  }
  EXPECT_EQ(titles.size(), static_cast<qsizetype>(exports::outputTabCount));
  EXPECT_EQ(prefixes.size(), saving);
}

/// A picture fills its page, so it stands alone; tables have a report's title over them.
TEST(EveryTab, IsAChartOrAReport) {
  for (const TabEntry& tab : exports::allTabs) {
    SCOPED_TRACE(tab.title.toString().toStdString());
    EXPECT_EQ(tab.reportTitle.isEmpty(), tab.sections.empty() || exports::isChart(tab.tab));
    for (const exports::TabSection& section : tab.sections) {
      EXPECT_EQ(documents::entryOf(section.document).fileTitle,
                exports::filePrefix(tab).toStdString());
      const bool isChart = documents::entryOf(section.document).kind == documents::Kind::chart;
      EXPECT_EQ(isChart, exports::isChart(tab.tab));
      EXPECT_TRUE(!isChart || tab.sections.size() == 1);
    }
  }
}

/// A page of the manual.
QString manualPage(const QString& name) {
  return QString::fromStdString(
      tests::fileContent(tests::sourcePath("docs/manual/" + name.toStdString())));
}

TEST(EveryTab, HasItsRowInTheManualsTableOfExports) {
  const QString page = manualPage(u"export.html"_s);
  for (const TabEntry& tab : exports::allTabs) {
    const qsizetype start = page.indexOf(u"<tr><th scope=\"row\">"_s +
                                         exports::escaped(tab.title.toString()) + u"</th>"_s);
    ASSERT_GE(start, 0) << tab.title.toString().toStdString();
    const QString row = page.mid(start, page.indexOf(u"</tr>"_s, start) - start);
    SCOPED_TRACE(row.toStdString());
    EXPECT_EQ(row.contains(u"<b>SVG</b>"_s), exports::isChart(tab.tab));
    EXPECT_EQ(row.contains(u"<b>TXT</b>"_s), !tab.reportTitle.isEmpty());
    EXPECT_EQ(row.contains(u"nothing to save"_s), tab.sections.empty());
    if (!tab.reportTitle.isEmpty()) {
      EXPECT_TRUE(row.contains(u'“' + exports::escaped(tab.reportTitle.toString()) + u'”'));
    }
    if (exports::isChart(tab.tab)) {
      EXPECT_TRUE(row.contains(QString::number(tab.pageSizePoints.width())));
    }
  }
}

TEST(EveryTab, HasItsKeyInTheManual) {
  const QString page = manualPage(u"keyboard.html"_s);
  for (std::size_t i = 0; i < exports::outputTabCount; ++i) {
    const QString row =
        u"<tr><th scope=\"row\"><kbd>Ctrl</kbd>+<kbd>%1</kbd></th><td>%2</td></tr>"_s.arg(i + 1)
            .arg(exports::escaped(exports::allTabs[i].title.toString()));
    EXPECT_TRUE(page.contains(row)) << row.toStdString();
  }
}

class EveryTabSaved : public testing::TestWithParam<tests::ReferenceCase> {};

TEST_P(EveryTabSaved, HoldsItsDocumentsInBothForms) {
  const tests::ObservedModel world(GetParam());
  for (const TabEntry& tab : exports::allTabs) {
    SCOPED_TRACE(tab.title.toString().toStdString());
    const auto native = exports::nativeExport(world.model, tab.tab);
    const auto pdf = exports::sheetExport(world.model, tab.tab, documents::Form::pdf);
    ASSERT_EQ(native.has_value(), !tab.sections.empty());
    ASSERT_EQ(pdf.has_value(), !tab.sections.empty());
    for (const exports::TabSection& section : tab.sections) {
      const QString text = world.model.text(section.document);
      EXPECT_FALSE(text.isEmpty());
      EXPECT_TRUE(native->text.contains(text));
      EXPECT_TRUE(exports::htmlOf(*pdf).contains(text));
    }
    if (native) {
      EXPECT_TRUE(native->proposedName.startsWith(exports::filePrefix(tab)));
      EXPECT_TRUE(native->proposedName.endsWith(exports::isChart(tab.tab) ? u".svg" : u".txt"));
      EXPECT_TRUE(pdf->proposedName.startsWith(exports::filePrefix(tab)));
      EXPECT_TRUE(pdf->proposedName.endsWith(u".pdf"));
      EXPECT_EQ(pdf->pageSizePoints, tab.pageSizePoints);
      EXPECT_EQ(exports::htmlOf(*pdf).contains(u"<h1>"_s), !exports::isChart(tab.tab));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, EveryTabSaved, testing::ValuesIn(tests::referenceCases()),
                         [](const auto& test) { return test.param.testName(); });

}  // namespace
}  // namespace veyruna
