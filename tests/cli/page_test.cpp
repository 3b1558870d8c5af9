// The page for browsers, made for a session. What the page makes of it is tested in a browser.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

#include "tests/cli/process.h"
#include "tests/cli/scratch_folder.h"
#include "tests/support/reference_case.h"

namespace veyruna {
namespace {

using tests::fileContent;
using tests::namesIn;
using tests::Outcome;
using tests::run;
using tests::ScratchFolder;
using tests::words;

const std::string beforeSession = R"(<!DOCTYPE html><script type="application/json" id="session">)";
const std::string behindSession = "</script><p>the rest</p>\n";

class Page : public testing::Test {
 protected:
  Page() {
    std::ofstream(scratch / "built.html") << beforeSession << "{}" << behindSession;
    std::filesystem::create_directory(scratch / "out");
  }

  [[nodiscard]] Outcome page(std::vector<std::string> arguments,
                             const std::string& built = "built.html") const {
    arguments.insert(arguments.begin(), "page");
    return run({.arguments = std::move(arguments),
                .environment = {"VEYRUNA_PAGE=" + scratch / built, "HOME=" + scratch.path()},
                .folder = scratch / "out"});
  }

  /// The session that a run writes, which succeeds without a word.
  [[nodiscard]] std::string sessionOf(const std::vector<std::string>& arguments) const {
    const Outcome outcome = page(arguments);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    EXPECT_TRUE(outcome.out.starts_with(beforeSession)) << outcome.out;
    EXPECT_TRUE(outcome.out.ends_with(behindSession)) << outcome.out;
    return outcome.out.size() < beforeSession.size() + behindSession.size()
               ? ""
               : outcome.out.substr(
                     beforeSession.size(),
                     outcome.out.size() - beforeSession.size() - behindSession.size());
  }

  const ScratchFolder scratch;
};

TEST_F(Page, WithoutASessionIsThePageItself) {
  EXPECT_EQ(sessionOf({}), "{}");
}

TEST_F(Page, HoldsItsBoundsPlaceAndTitle) {
  EXPECT_EQ(sessionOf(words("--from 720-06-12T18:00 --to 720-06-13T02:00 --location ebb --player "
                            "--title Evening")),
            R"({"title":"Evening","from_base_time":259001.25,"to_base_time":259001.58333333334,)"
            R"("lat":13.4,"long":8.8,"place":"Ebb","player":true})");
  EXPECT_EQ(sessionOf(words("--from @10 --for 2 days")),
            R"({"from_base_time":10.0,"to_base_time":12.0})");
  EXPECT_EQ(sessionOf(words("--lat 33S --long 12.5")),
            R"({"lat":-33.0,"long":12.5,"place":"33.00°S  12.50°E"})");
}

TEST_F(Page, OpensAtTheMomentThatIsTyped) {
  EXPECT_EQ(sessionOf(words("--base-time 5.25")), R"({"base_time":5.25})");
  EXPECT_EQ(sessionOf(words("--year 1 --hour 18")), R"({"base_time":0.25})");
}

TEST_F(Page, TakesClocksOfThePlaceWhereTheyAreLocal) {
  const std::string standard =
      sessionOf(words("--from 720-06-12T18:00 --for 1 day --location Ebb"));
  const std::string local =
      sessionOf(words("--from 720-06-12T18:00 --for 1 day --location Ebb --local"));
  EXPECT_NE(local, standard);
  EXPECT_NE(local.find("from_base_time\":2590"), std::string::npos) << local;
}

TEST_F(Page, KeepsATitleFromEndingTheScript) {
  EXPECT_EQ(sessionOf({"--title", "A </script><b>\"\\ \xFF"}),
            R"({"title":"A \u003c/script>\u003cb>\"\\ )"
            "\uFFFD\"}");
}

TEST_F(Page, IsWrittenWholeIntoAFile) {
  EXPECT_EQ(page({"-o", "evening.HTML"}).out, "");
  EXPECT_EQ(fileContent(scratch / "out/evening.HTML"), beforeSession + "{}" + behindSession);
}

struct RefusedPage {
  const char* arguments;
  const char* says;
};

TEST_F(Page, WhatIsNotAcceptedIsQuotedAndNothingIsWritten) {
  constexpr RefusedPage refusals[] = {
      {"-o sky.pdf", "-o: \"sky.pdf\" is not accepted; give a name that ends in .html for page"},
      {"--format pdf", "--format: \"pdf\" is not accepted; give html"},
      {"--size 700 -o x.html", "--size \"700\""},
      {"--player -o x.html", "--player: what eyes can see is of one place and of an evening"},
      {"--player --location Ebb -o x.html", "--player"},
      {"--player --from 720-01-01 --for 1 day -o x.html", "--player"},
      {"--from 720-01-01 -o x.html", "page needs an end"},
      {"--to 720-01-01 -o x.html", "page needs a beginning"},
      {"--from 720-13-01 --for 1 day -o x.html", "--from: \"720-13-01\" is not accepted"},
      {"--from 720-02-01 --to 720-01-01 -o x.html", "\"720-01-01\" is before --from"},
      {"--from 720-01-01 --for 1 day --hour 12 -o x.html", "--hour is of one moment"},
      {"--location all -o x.html", "a page opens at one place"},
      {"--location Nowhere -o x.html", "\"Nowhere\" is not a saved place"},
      {"--lat 91 -o x.html", "--lat: \"91\" is not accepted"},
  };
  for (const RefusedPage& refused : refusals) {
    const Outcome outcome = page(words(refused.arguments));
    EXPECT_EQ(outcome.status, 2) << refused.arguments;
    EXPECT_NE(outcome.err.find(refused.says), std::string::npos)
        << refused.arguments << ": " << outcome.err;
    EXPECT_EQ(outcome.out, "") << refused.arguments;
  }
  EXPECT_TRUE(namesIn(scratch / "out").empty());
}

TEST_F(Page, IsNothingForATerminal) {
  const Outcome outcome = run({.arguments = {"page"},
                               .environment = {"VEYRUNA_PAGE=" + scratch / "built.html"},
                               .outputOnTerminal = true});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_NE(outcome.err.find("nothing for a terminal"), std::string::npos) << outcome.err;
}

TEST_F(Page, ThatWasNotBuiltIsSaidToBeMissing) {
  const Outcome missing = page({"-o", "x.html"}, "nowhere.html");
  EXPECT_EQ(missing.status, 1);
  EXPECT_NE(missing.err.find("the page for browsers is not here: \""), std::string::npos);
  EXPECT_NE(missing.err.find("./page builds it"), std::string::npos);
  std::ofstream(scratch / "other.html") << "<p>something else</p>\n";
  const Outcome other = page({"-o", "x.html"}, "other.html");
  EXPECT_EQ(other.status, 1);
  EXPECT_NE(other.err.find("is no page for browsers"), std::string::npos);
  EXPECT_TRUE(namesIn(scratch / "out").empty());
}

TEST_F(Page, StandsBesideAllDocumentsInHtml) {
  const auto all = [this](const std::string& built) {
    return run({.arguments = words("--base-time 5.5 --lat 1 --long 2 all --out some --format html"),
                .environment = {"VEYRUNA_PAGE=" + scratch / built},
                .folder = scratch / "out"});
  };
  const Outcome outcome = all("built.html");
  EXPECT_EQ(outcome.err, "");
  EXPECT_TRUE(outcome.out.ends_with("some/moment.html\nsome/veyruna.html\n")) << outcome.out;
  EXPECT_EQ(fileContent(scratch / "out/some/veyruna.html"),
            beforeSession + R"({"base_time":5.5,"lat":1.0,"long":2.0,"place":"1.00°N  2.00°E"})" +
                behindSession);
  const Outcome without = all("nowhere.html");
  EXPECT_EQ(without.status, 0);
  EXPECT_TRUE(without.out.ends_with("some/moment.html\n")) << without.out;
  EXPECT_NE(without.err.find("left out is veyruna.html: the page for browsers is not here"),
            std::string::npos)
      << without.err;
}

}  // namespace
}  // namespace veyruna
