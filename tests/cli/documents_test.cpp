// Every document of the table can be had from the command, by itself and in the folder of all.
#include "documents/documents.h"

#include <gtest/gtest.h>
#include <map>

#include "astro/angle.h"
#include "tests/cli/process.h"
#include "tests/cli/scratch_folder.h"
#include "tests/support/reference_case.h"

namespace veyruna {
namespace {

using documents::allDocuments;
using documents::Document;
using documents::Entry;
using tests::runWith;

/// The moment and place of a first start, which need not be typed.
const astro::Observer firstStart = {258840.0, 40.5 * astro::pi / 180.0, -20.9 * astro::pi / 180.0};

/// How the documents without a word of their own are asked for; a label is a line of another.
const std::map<Document, std::vector<std::string>> otherWays = {
    {Document::horoscopeOnPaper, {"horoscope", "--bw"}},
    {Document::date, {"moment"}},
    {Document::nextFullMoon, {"moment"}},
    {Document::nextNewMoon, {"moment"}},
};

TEST(DocumentCommands, WriteEveryDocument) {
  for (const Entry& entry : allDocuments) {
    SCOPED_TRACE(entry.heading);
    const bool hasWord = !entry.command.empty();
    ASSERT_NE(hasWord, otherWays.contains(entry.document)) << "no way, or two, to ask for it";
    const std::string text = documents::textOf(entry.document, firstStart);
    const std::string written =
        runWith(hasWord ? std::vector{std::string(entry.command)} : otherWays.at(entry.document))
            .out;
    if (entry.kind == documents::Kind::label) {
      EXPECT_NE(written.find(text + "\n"), std::string::npos) << written;
    } else {
      EXPECT_EQ(written, text);
    }
  }
}

TEST(DocumentCommands, AllHasEveryDocumentThatIsAFile) {
  const tests::ScratchFolder scratch;
  ASSERT_EQ(runWith({"all", "--out", scratch / "all"}).status, 0);
  for (const Entry& entry : allDocuments) {
    if (!entry.fileName.empty()) {
      EXPECT_EQ(tests::fileContent(scratch / ("all/" + std::string(entry.fileName))),
                documents::textOf(entry.document, firstStart))
          << entry.fileName;
    }
  }
}

TEST(DocumentCommands, HelpSaysWhatEachWrites) {
  const std::string help = runWith({"--help"}).out;
  for (const Entry& entry : allDocuments) {
    if (!entry.command.empty()) {
      const std::size_t line = help.find("\n  " + std::string(entry.command) + " ");
      ASSERT_NE(line, std::string::npos) << entry.command;
      EXPECT_NE(help.substr(line, 100).find(entry.summary), std::string::npos) << help;
    }
  }
}

}  // namespace
}  // namespace veyruna
