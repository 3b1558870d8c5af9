// The table of forms: what each is, and that the manual says it.
#include "documents/forms.h"

#include <gtest/gtest.h>

#include "tests/support/reference_case.h"
#include "tests/support/source_path.h"

namespace veyruna {
namespace {

using documents::allForms;
using documents::canBe;
using documents::Form;
using documents::FormEntry;
using documents::formOf;
using documents::Kind;

TEST(Forms, AreFoundByTheirExtensionInAnyLetterCase) {
  for (const FormEntry& entry : allForms) {
    EXPECT_EQ(formOf(entry.extension), entry.form);
    EXPECT_EQ(documents::formEntry(entry.form).extension, entry.extension);
  }
  EXPECT_EQ(formOf("PDF"), Form::pdf);
  EXPECT_EQ(formOf("Html"), Form::html);
  for (const char* const none : {"", ".pdf", "pd", "pdf ", "jpg"}) {
    EXPECT_EQ(formOf(none), std::nullopt) << none;
  }
}

TEST(Forms, AreThoseThatADocumentCanHave) {
  EXPECT_EQ(documents::acceptedExtensions({.kind = Kind::chart}, "."), ".svg, .html, .pdf or .png");
  EXPECT_EQ(documents::acceptedExtensions({.kind = Kind::table}),
            "txt, html, pdf, json, jsonl or csv");
  EXPECT_EQ(documents::acceptedExtensions({.kind = Kind::list}),
            "txt, html, pdf, json, jsonl or csv");
  EXPECT_EQ(documents::acceptedExtensions({.kind = Kind::log}), "txt, json, jsonl or csv");
  EXPECT_EQ(documents::acceptedExtensions(documents::entryOf(documents::Document::horoscope)),
            "svg, html, pdf, png, json, jsonl or csv");
  EXPECT_EQ(documents::acceptedExtensions({.kind = Kind::label}), "txt");
  for (const Kind kind : {Kind::chart, Kind::table, Kind::list, Kind::label, Kind::log}) {
    EXPECT_TRUE(canBe(kind, documents::ownForm(kind)));
    EXPECT_TRUE(documents::formEntry(documents::ownForm(kind)).isAsItIs);
    EXPECT_TRUE(documents::formEntry(documents::ownForm(kind)).isText);
  }
}

TEST(Forms, AreDrawnWhereTheyAreNeitherTheTextNorForPrograms) {
  for (const Form form : {Form::html, Form::pdf, Form::png}) {
    EXPECT_TRUE(documents::isDrawn(form));
  }
  for (const Form form : {Form::svg, Form::text, Form::json, Form::jsonl, Form::csv}) {
    EXPECT_FALSE(documents::isDrawn(form));
  }
}

TEST(FormsForPeople, TheManualSaysWhatEachIs) {
  const std::string manual = tests::fileContent(tests::sourcePath("docs/manual/command-line.html"));
  for (const FormEntry& entry : allForms) {
    const std::string start =
        "<tr><th scope=\"row\"><code>." + std::string(entry.extension) + "</code></th><td>";
    const std::size_t row = manual.find(start);
    ASSERT_NE(row, std::string::npos) << entry.extension;
    const std::string line = manual.substr(row, manual.find('\n', row) - row);
    const std::string of = entry.isOfCharts && entry.isOfTables ? "charts, tables"
                           : entry.isOfCharts                   ? "charts"
                                                                : "tables";
    EXPECT_TRUE(line.ends_with("</td><td>" + of + "</td></tr>")) << line;
  }
}

TEST(FormsDeathTest, WhatIsNoFormHasNoRow) {
  EXPECT_EXIT(documents::formEntry(Form::count), testing::KilledBySignal(SIGABRT),
              "a form has its row");
}

}  // namespace
}  // namespace veyruna
