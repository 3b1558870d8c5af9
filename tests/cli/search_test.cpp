// `veyruna search`: when conditions hold, and what is said where they cannot be read.
#include "almanac/search/search.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <sstream>

#include "almanac/search/condition_reader.h"
#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/local_time.h"
#include "cli/almanac/span_table.h"
#include "cli/program/command_line.h"
#include "tests/cli/process.h"
#include "tests/cli/scratch_folder.h"
#include "tests/support/reference_case.h"
#include "words/quoting.h"

namespace veyruna {
namespace {

using tests::Outcome;
using tests::words;

using Arguments = std::vector<std::string>;

std::vector<std::string> rowsOf(const std::string& text) {
  std::vector<std::string> rows;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    rows.push_back(line);
  }
  return rows;
}

void write(const std::string& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

/// `options` are cut at blanks, conditions stay whole.
Arguments searchFor(const Arguments& conditions, const std::string& options) {
  Arguments arguments = words("search " + options);
  arguments.insert(arguments.end(), conditions.begin(), conditions.end());
  return arguments;
}

Outcome searchWith(const Arguments& conditions, const std::string& options) {
  return tests::runWith(searchFor(conditions, options));
}

const std::string year = "--from 720-01-01 --for 1 year ";
const std::string ashore = "--lat 21.9N --long 33.9E ";
const astro::Observer shore{0.0, astro::radiansOf(21.9), astro::radiansOf(33.9)};

TEST(SearchCommand, WritesEverySpanOfTheStretch) {
  const Outcome outcome = searchWith({"keep twisted", "moon waxing", "night"}, year + ashore);
  ASSERT_EQ(outcome.status, cli::succeeded) << outcome.err;
  EXPECT_EQ(outcome.err, "");
  const std::vector<std::string> rows = rowsOf(outcome.out);
  ASSERT_GT(rows.size(), 20U);
  EXPECT_TRUE(rows.front().starts_with("Begin ")) << rows.front();
  std::size_t row = 1;
  almanac::search(
      {.condition = almanac::allOf(almanac::readConditions("keep twisted\nmoon waxing\nnight")),
       .range = {719.0 * 360.0 - 0.5, 720.0 * 360.0 - 0.5},
       .place = shore,
       .isLocal = false},
      [&](const almanac::Span& span) {
        const std::string begin = astro::calendarLabel(span.begin) + "  " +
                                  astro::localClockLabel(shore.at(span.begin)) + "  ";
        const std::string end = astro::calendarLabel(span.end) + "  " +
                                astro::localClockLabel(shore.at(span.end)) + "  ";
        EXPECT_LT(row, rows.size());
        EXPECT_TRUE(rows.at(row).starts_with(begin)) << rows[row];
        EXPECT_NE(rows[row].find("  " + end), std::string::npos) << rows[row];
        EXPECT_NE(rows[row].find(cli::lengthText(span.end - span.begin)), std::string::npos);
        ++row;
        return row < rows.size() + 1;
      });
  EXPECT_EQ(row, rows.size());
}

TEST(SearchCommand, ConditionsAreJoinedFromArgumentsAndAFile) {
  const tests::ScratchFolder folder;
  const std::string file = folder / "omens";
  write(file, "# at sea\nmoon waxing\nany of:\n\tnight\n\ttwilight\n");
  const std::string both = searchWith({"keep twisted"}, year + ashore + "-f " + file).out;
  EXPECT_EQ(
      both,
      searchWith({"keep twisted", "moon waxing", "any of (night; twilight)"}, year + ashore).out);
  EXPECT_GT(rowsOf(both).size(), 20U);
  EXPECT_EQ(
      searchWith({"keep twisted\nmoon waxing\nany of:\n  night\n  twilight"}, year + ashore).out,
      both);
}

TEST(SearchCommand, FirstEndsTheSearch) {
  const std::string all = searchWith({"moon full"}, year).out;
  const std::string three = searchWith({"moon full"}, year + "--first 3").out;
  EXPECT_EQ(rowsOf(three).size(), 4U);
  EXPECT_TRUE(all.starts_with(three));
  // The rest of two million years is not looked at.
  EXPECT_EQ(searchWith({"moon full"}, "--from 720-01-01 --for 2000000 years --first 3").status,
            cli::succeeded);
}

/// Runs a line as a person's shell would, with the built command in front of all others.
std::string outputOfShell(const std::string& line, const std::string& home) {
  const std::string folder = tests::programPath().substr(0, tests::programPath().rfind('/'));
  const std::string script = "PATH=" + words::asShellWord(folder).value() +
                             ":$PATH; HOME=" + words::asShellWord(home).value() +
                             "; XDG_DATA_HOME=$HOME/data; export PATH HOME XDG_DATA_HOME; " + line;
  FILE* const pipe = popen(script.c_str(), "r");
  std::string output;
  for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) {
    output += static_cast<char>(c);
  }
  EXPECT_EQ(pclose(pipe), 0) << line;
  return output;
}

std::string commandOf(const std::string& row) {
  return row.substr(row.find("veyruna "));
}

TEST(SearchCommand, ItsLinesDrawTheHoroscopeOfTheMiddle) {
  const tests::ScratchFolder home;
  const std::string horoscope = outputOfShell(
      commandOf(rowsOf(searchWith({"ascending sign Wen", "keep twisted"}, year + ashore).out)[1]),
      home.path());
  EXPECT_NE(horoscope.find("Ascending Sign (Purpose): Wen ("), std::string::npos);
  EXPECT_NE(horoscope.find("Twisted Keep!"), std::string::npos);
  EXPECT_NE(horoscope.find("Lat:"), std::string::npos);
  // Without a place, too.
  const std::string anywhere = outputOfShell(
      commandOf(
          rowsOf(searchWith({"zerathe exceptional"}, "--from 720-01-01 --for 20 years").out).at(1)),
      home.path());
  EXPECT_NE(anywhere.find(">Zerathe<"), std::string::npos);
}

TEST(SearchCommand, ItsLinesNameAnyPlaceAShellCanRead) {
  const tests::ScratchFolder home;
  std::string places = "[";
  const std::vector<std::string> names = {
      "Ebb",    "The \"Ash\", by night", "Côte d'Ebb ☾", "$HOME `id` \\\\ !", "-o", "--bw", "*",
      "a\tb\nc"};
  for (std::size_t i = 0; i < names.size(); ++i) {
    std::string escaped;
    for (const char c : names[i]) {
      escaped += c == '"' ? "\\\"" : c == '\t' ? "\\t" : c == '\n' ? "\\n" : std::string(1, c);
    }
    places += (i == 0 ? "" : ",") + std::string(R"({"id":"00000000-0000-4000-8000-00000000000)") +
              std::to_string(i + 1) + R"(","name":")" + escaped + R"(","latitude":0.)" +
              std::to_string(i + 1) + R"(,"longitude":0.3})";
  }
  std::filesystem::create_directories(home / "data/VeyrunaAstro");
  write(home / "data/VeyrunaAstro/locations.json", places + "]");
  for (std::size_t i = 0; i < names.size(); ++i) {
    Arguments arguments = searchFor({"day"}, "--from 720-01-01 --for 1 day");
    std::string name = names[i];
    for (std::size_t at = name.find("\\\\"); at != std::string::npos; at = name.find("\\\\")) {
      name.erase(at, 1);
    }
    arguments.push_back("--location=" + name);
    const Outcome outcome = tests::run(
        {.arguments = arguments,
         .environment = {"HOME=" + home.path(), "XDG_DATA_HOME=" + home.path() + "/data"}});
    ASSERT_EQ(outcome.status, cli::succeeded) << outcome.err;
    const std::string row = rowsOf(outcome.out).at(1);
    const std::string horoscope = outputOfShell(commandOf(row), home.path());
    const std::string degrees =
        std::to_string(static_cast<int>((static_cast<double>(i) + 1.0) / 10.0 * 180.0 / astro::pi));
    EXPECT_NE(horoscope.find("Lat:"), std::string::npos) << row;
    EXPECT_TRUE(std::regex_search(horoscope, std::regex("Lat: +0*" + degrees + ":"))) << row;
  }
}

TEST(SearchCommand, ExplainsBeforeItAnswers) {
  const Outcome outcome = searchWith({"keep twisted", "moon waxing"}, year + "--explain");
  EXPECT_TRUE(outcome.out.starts_with("Asked:\n  all of these:\n    keep: Twisted Keep!\n"))
      << outcome.out;
  EXPECT_NE(outcome.out.find("Not asked:\n  a horizon"), std::string::npos);
  EXPECT_TRUE(outcome.out.ends_with(searchWith({"keep twisted", "moon waxing"}, year).out));
  // For programs the answer stays one document.
  const Outcome json = searchWith({"keep twisted"}, year + "--explain --format json");
  EXPECT_EQ(json.out, searchWith({"keep twisted"}, year + "--format json").out);
  EXPECT_NE(json.err.find("Not asked:"), std::string::npos);
}

TEST(SearchCommand, ThatNothingIsFoundIsSaidAndNoError) {
  const Outcome outcome = searchWith({"thessil above 80"}, year + "--lat 50N --long 3E");
  EXPECT_EQ(outcome.status, cli::succeeded);
  EXPECT_EQ(rowsOf(outcome.out).size(), 1U);
  EXPECT_NE(outcome.err.find("never holds"), std::string::npos) << outcome.err;
  const Outcome json = searchWith({"day\nnight"}, year + ashore + "--format json");
  EXPECT_EQ(json.status, cli::succeeded);
  EXPECT_NE(json.out.find("\"intervals\":["), std::string::npos);
}

TEST(SearchCommand, GoesToAFileOrEndsWithItsReader) {
  const tests::ScratchFolder folder;
  const std::string file = folder / "nights.txt";
  EXPECT_EQ(searchWith({"night"}, year + ashore + "-o " + file).status, cli::succeeded);
  EXPECT_EQ(tests::fileContent(file), searchWith({"night"}, year + ashore).out);
  tests::Process endless(
      {.arguments = searchFor({"night"}, ashore + "--from 1-1-1 --for 1000000 years")});
  EXPECT_TRUE(endless.firstLineThenClose().starts_with("Begin"));
  EXPECT_EQ(endless.outcome().err, "");
}

TEST(SearchCommand, TellsHowFarItIsOnATerminalOnly) {
  tests::Process slow({.arguments = searchFor({"pallox natal strong", "moon full"},
                                              ashore + "--from 1-1-1 --for 2700000 years "
                                                       "-o /dev/null"),
                       .errorsOnTerminal = true});
  EXPECT_NE(slow.errorsWithin(60'000, " days, ").find(" days, "), std::string::npos);
}

TEST(SearchCommand, UnderlinesTheWordThatIsNotUnderstood) {
  const std::map<std::string, std::string> shown = {
      {"bralu in Wen", "\n  bralu in Wen\n  ^^^^^\n"},
      {"any of (night; moon ful)", "\n  any of (night; moon ful)\n                      ^^^\n"},
      {"ivro above 2° Wén", "\n  ivro above 2° Wén\n                ^^^\n"},
      {"ivro above", "\n  ivro above\n            ^\n"},
      {"ivro\tabove 91", "\n  ivro above 91\n             ^^\n"}};
  for (const auto& [condition, lines] : shown) {
    const Outcome outcome = searchWith({condition}, year + ashore);
    EXPECT_EQ(outcome.status, cli::usageWrong);
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.err.ends_with(lines)) << outcome.err;
  }
  const Outcome nearest = searchWith({"dunmor conjunkt galvi"}, year);
  EXPECT_NE(nearest.err.find("the nearest is \"conjunct\""), std::string::npos) << nearest.err;
  // What would break the terminal's lines is not shown again.
  const Outcome broken = searchWith({"night \x1b[31mred \xff"}, year + ashore);
  EXPECT_EQ(broken.err.find('\x1b'), std::string::npos);
  EXPECT_EQ(broken.err.find('^'), std::string::npos) << broken.err;
}

TEST(SearchCommand, RefusesWhatItCannotUse) {
  const std::map<std::string, std::string> refusals = {
      {"moon full|", "--from DATE"},
      {"moon full|--from 720-01-01", "--to DATE, or --for N UNIT"},
      {"|" + year, "search needs a condition"},
      {" # nothing|" + year, "is empty"},
      {"night|" + year, "\"night\" is different from place to place"},
      {"ascending sign Wen|" + year, "give one with --location, or with --lat and --long"},
      {"hour 4 to 5|" + year + "--local", "\"hour 04:00 to 05:00\" is different"},
      {"moon full|" + year + "--local", "local clocks are those of one place"},
      {"night|" + year + "--location all", "from one place"},
      {"night|" + year + "--location Nowhere", "\"Nowhere\""},
      {"moon full|" + year + "--first 0", "--first: \"0\""},
      {"moon full|" + year + "--first some", "--first: \"some\""},
      {"moon full|" + year + "--format pdf", "\"pdf\""},
      {"moon full|" + year + "--size 100", "--size"},
      {"moon full|" + year + "--hour 3", "--hour is of one moment"},
      {"moon full|" + year + "--kind moon", "belongs behind events"},
      {"moon full|" + year + "-f /dev/null --first 1 --explain=1", "--explain takes no value"},
  };
  for (const auto& [asked, piece] : refusals) {
    const std::size_t bar = asked.find('|');
    const std::string condition = asked.substr(0, bar);
    const Outcome outcome =
        searchWith(condition.empty() ? Arguments() : Arguments{condition}, asked.substr(bar + 1));
    EXPECT_EQ(outcome.status, cli::usageWrong) << asked;
    EXPECT_EQ(outcome.out, "") << asked;
    EXPECT_NE(outcome.err.find(piece), std::string::npos) << asked << ": " << outcome.err;
  }
  const Outcome unquoted = searchWith({"dunmor", "conjunct", "galvi"}, year);
  EXPECT_NE(unquoted.err.find("the words of one condition stand in quotes"), std::string::npos);
  const tests::ScratchFolder folder;
  write(folder / "empty", "# nothing\n");
  write(folder / "wrong", "night\n\nany of:\n  mon full\n");
  EXPECT_NE(searchWith({}, year + "-f " + (folder / "empty")).err.find("holds no condition"),
            std::string::npos);
  const Outcome wrong = searchWith({}, year + ashore + "-f " + (folder / "wrong"));
  EXPECT_NE(wrong.err.find(", line 4: "), std::string::npos) << wrong.err;
  EXPECT_TRUE(wrong.err.ends_with("\n    mon full\n    ^^^\n")) << wrong.err;
}

TEST(SearchCommand, SaysWhyAFileOfConditionsCannotBeRead) {
  const std::map<std::string, std::string> reasons = {{"/nowhere/at/all", "No such file"},
                                                      {"/", "Is a directory"},
                                                      {"/dev/zero", "File too large"}};
  for (const auto& [file, reason] : reasons) {
    const Outcome outcome = searchWith({"moon full"}, year + "-f " + file);
    EXPECT_EQ(outcome.status, cli::writeFailed) << file;
    EXPECT_EQ(outcome.out, "") << file;
    EXPECT_TRUE(outcome.err.starts_with("veyruna: cannot read \"" + file + "\": " + reason))
        << outcome.err;
  }
}

TEST(LengthText, SaysTheLargestUnitsThatMatter) {
  EXPECT_EQ(cli::lengthText(0.0001), "8.6 s");
  EXPECT_EQ(cli::lengthText(59.97 / 86400.0), "1:00 min");
  EXPECT_EQ(cli::lengthText(307.0 / 86400.0), "5:07 min");
  EXPECT_EQ(cli::lengthText(3599.6 / 86400.0), "1:00 h");
  EXPECT_EQ(cli::lengthText(185.0 / 1440.0), "3:05 h");
  EXPECT_EQ(cli::lengthText(1.0 - 1e-6), "1 d 00:00");
  EXPECT_EQ(cli::lengthText(12.0 + 185.0 / 1440.0), "12 d 03:05");
}

}  // namespace
}  // namespace veyruna
