// What man and the shells are told, of options whose texts hold signs that mean something to them.
#include <gtest/gtest.h>
#include <string>

#include "cli/guides/completion.h"
#include "cli/guides/man_page.h"
#include "cli/guides/option_table.h"

namespace veyruna {
namespace {

cli::Guide guideSaying(const std::string& description) {
  return {.summary = "A sky.",
          .options = {{.names = {"--odd"},
                       .value = "TEXT",
                       .description = description,
                       .group = "Options",
                       .offered = {}}},
          .commands = {}};
}

void expectHolds(const std::string& text, const std::string& part) {
  EXPECT_NE(text.find(part), std::string::npos) << part << " in\n" << text;
}

TEST(Guides, RoffReadsSignsForThemselves) {
  expectHolds(cli::manPage(guideSaying(R"(A \ and a ` and a ')"), "1"),
              R"(A \e and a \(ga and a \(aq)");
  expectHolds(cli::manPage(guideSaying(".Dot at the start"), "1"), "\n\\&.Dot");
}

TEST(Guides, FishReadsABackslashAndAQuoteForThemselves) {
  expectHolds(cli::fishCompletion(guideSaying(R"(A \ and a ')")), R"('A \\ and a \'')");
}

TEST(Guides, HtmlReadsSignsForThemselves) {
  expectHolds(cli::optionTable(guideSaying("Less than < and &")), "Less than &lt; and &amp;");
}

}  // namespace
}  // namespace veyruna
