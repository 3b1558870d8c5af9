// The command's documents: the engine's own, to the byte, and those of tests/reference.
#include <algorithm>
#include <gtest/gtest.h>
#include <map>

#include "astro/calendar.h"
#include "astro/number_text.h"
#include "charts/horoscope.h"
#include "charts/star_map.h"
#include "reports/conjunctions.h"
#include "reports/ephemeris.h"
#include "reports/positions.h"
#include "tests/cli/process.h"
#include "tests/cli/scratch_folder.h"
#include "tests/support/random_sky.h"
#include "tests/support/reference_case.h"

namespace veyruna {
namespace {

using tests::inRadians;
using tests::namesIn;
using tests::run;
using tests::runWith;
using tests::ScratchFolder;
using tests::words;

using Words = std::vector<std::string>;

Words operator+(Words first, const Words& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

/// What a run that succeeds and says nothing else writes.
std::string documentOf(const Words& arguments) {
  const tests::Outcome outcome = runWith(arguments);
  EXPECT_EQ(outcome.status, 0) << testing::PrintToString(arguments);
  EXPECT_EQ(outcome.err, "") << testing::PrintToString(arguments);
  return outcome.out;
}

const Words documentCommands = {"star-map", "horoscope", "hourly",    "monthly",
                                "daily",    "yearly",    "positions", "moment"};

/// The moment and place of a reference case, as a person types them.
Words typed(const tests::ReferenceCase& at) {
  static const std::map<std::string, std::string> options = {
      {"first-start", ""},
      {"evening-local",
       "--year 1243 --month cendo --day 19 --hour 18:15 --local --lat 11.5N "
       "--long 25.3E"},
      {"polar-night", "--year 3 --month 12 --day 30 --hour 23.75 --lat 78.5 --long 120.25W"},
      {"south", "--year 2000 --month 5 --day 6 --hour 0.25 --local --lat -33.125 --long 179.5"}};
  return words(options.at(at.folder));
}

TEST(Command, WritesTheReferenceTables) {
  for (const tests::ReferenceCase& at : tests::referenceCases()) {
    for (const char* const table : {"hourly", "monthly", "daily", "yearly", "positions"}) {
      EXPECT_EQ(documentOf(typed(at) + Words{table}), at.expected(std::string(table) + ".txt"))
          << at.folder << ' ' << table;
    }
    EXPECT_EQ(documentOf(typed(at) + Words{"base-time"}),
              astro::shortestText(at.baseTime()) + "\n");
  }
}

TEST(Command, WritesTheReferenceMoment) {
  for (const tests::ReferenceCase& at : tests::referenceCases()) {
    const std::string moons = at.expected("moons.txt");
    const std::size_t half = moons.find('\n') + 1;
    EXPECT_EQ(documentOf(typed(at) + Words{"moment"}),
              at.expected("label.txt") + "Next full moon: " + moons.substr(0, half) +
                  "Next new moon: " + moons.substr(half));
  }
}

TEST(Command, DrawsTheChartsWithTheProgramsOwnSky) {
  const charts::StarCatalogue& sky = charts::builtInCatalogue();
  for (const tests::ReferenceCase& at : tests::referenceCases()) {
    // Without the texts in the message: they are long.
    EXPECT_TRUE(documentOf(typed(at) + words("star-map")) == charts::starMap(at.observer(), sky));
    EXPECT_TRUE(documentOf(typed(at) + words("horoscope")) ==
                charts::horoscope(false, at.observer(), sky));
    EXPECT_TRUE(documentOf(typed(at) + words("horoscope --bw")) ==
                charts::horoscope(true, at.observer(), sky));
  }
}

/// Accepted forms of one and the same thing.
struct Same {
  const char* arguments;
  const char* plainly;
};

TEST(Command, UnderstandsEveryForm) {
  constexpr Same forms[] = {
      {"moment --year 3 --month Dovri", "--year 3 --month 3 moment"},
      {"--year=3 moment --month=3", "--year 3 --month 3 moment"},
      {"--month DOVRI --year 3 moment", "--year 3 --month 3 moment"},
      {"--year 1 --year 3 --month 3 moment", "--year 3 --month 3 moment"},
      {"moment --hour 9:05", "--hour 09:05 moment"},
      {"moment --hour 24:00", "--day 2 --hour 0 moment"},
      {"moment --long 20.9W --lat 40.5°N", "moment"},
      {"moment --lat -33.5", "--lat 33.5S moment"},
      {"--lat=-33.5 moment", "--lat 33.5S moment"},
      {"positions --local --long -120", "--long 120W --local positions"},
      {"moment --base-time 258840", "moment"},
      {"moment -o -", "moment"},
      {"moment --local --local", "--local moment"},
      {"base-time --base-time -1e9", "--base-time -1000000000 base-time"},
      {"ephemeris --step 1/24 --rows 24", "hourly"},
      {"--day 3 ephemeris --rows 30 --step 1", "monthly --day 3"},
      {"conjunctions --rows=144 --step=1/144", "daily"},
      {"conjunctions --rows 360 --step 1 --lat 5S", "yearly"},
  };
  for (const Same& form : forms) {
    const std::string document = documentOf(words(form.arguments));
    EXPECT_NE(document, "") << form.arguments;
    EXPECT_EQ(document, documentOf(words(form.plainly))) << form.arguments;
  }
}

TEST(Command, ThePlaceAndTheMomentCount) {
  const std::string positions = documentOf({"positions"});
  for (const char* const other : {"--lat 41", "--long 21W", "--year 721", "--month 2", "--day 2",
                                  "--hour 13", "--local", "--base-time 5"}) {
    EXPECT_NE(documentOf(words(other) + Words{"positions"}), positions) << other;
  }
}

TEST(Command, TablesOfOnesOwn) {
  const double t = astro::standardBaseTime({1200, 2, 9, 18.25});
  const Words moment = words("--year 1200 --month Dovri --day 10 --hour 18.25 --lat 60S");
  EXPECT_EQ(documentOf(moment + words("ephemeris --rows 40 --step -2.5")),
            reports::ephemerisTable({t, -inRadians(60.0)}, {40, -2.5}));
  EXPECT_EQ(documentOf(moment + words("conjunctions --rows 40 --step 1/7")),
            reports::conjunctionTable(t, {40, 1.0 / 7.0}));
  EXPECT_EQ(documentOf(moment + words("ephemeris --rows 0 --step 1")),
            reports::ephemerisTable({t, 0.0}, {0, 1.0}));
  EXPECT_EQ(documentOf(moment + words("conjunctions --rows 1 --step 0")),
            reports::conjunctionTable(t, {1, 0.0}));
}

TEST(Command, ABaseTimeNamesItsMomentExactly) {
  for (const char* const typedMoment :
       {"--year 1243 --month 7 --day 19 --hour 18:15 --local", "--hour 18:20", "--base-time -0.1",
        "--year 2777777 --month 12 --day 30 --hour 23:59 --local", "--base-time 1e-7"}) {
    std::string text = documentOf(words(typedMoment) + Words{"base-time"});
    ASSERT_TRUE(text.ends_with('\n'));
    text.pop_back();
    for (const std::string& command : documentCommands) {
      EXPECT_TRUE(documentOf({"--base-time", text, command}) ==
                  documentOf(words(typedMoment) + Words{command}))
          << typedMoment << ' ' << command;
    }
  }
}

TEST(Command, AllWritesNineDocumentsIntoANewFolder) {
  const ScratchFolder scratch;
  const std::string folder = scratch / "campaign/first evening";
  const Words moment = words("--year 3 --month Thaven --local");
  const std::string listed = documentOf(moment + Words{"all", "--out", folder});

  const std::map<std::string, std::string> expected = {
      {"conjunctions-daily.txt", "daily"},
      {"conjunctions-yearly.txt", "yearly"},
      {"ephemeris-hourly.txt", "hourly"},
      {"ephemeris-monthly.txt", "monthly"},
      {"horoscope-black-and-white.svg", "horoscope --bw"},
      {"horoscope.svg", "horoscope"},
      {"moment.txt", "moment"},
      {"positions.txt", "positions"},
      {"star-map.svg", "star-map"}};
  EXPECT_EQ(namesIn(folder).size(), expected.size());
  for (const auto& [name, command] : expected) {
    const std::string path = (folder + "/").append(name);
    EXPECT_TRUE(tests::fileContent(path) == documentOf(moment + words(command))) << name;
    EXPECT_NE(listed.find(path + "\n"), std::string::npos) << listed;
  }
  EXPECT_EQ(std::count(listed.begin(), listed.end(), '\n'), 9);
}

TEST(Help, NamesEveryCommandAndOption) {
  const std::string help = documentOf({"--help"});
  for (const char* const name :
       {"star-map",    "horoscope",    "hourly",    "monthly", "daily",     "yearly",
        "ephemeris",   "conjunctions", "positions", "moment",  "base-time", "all",
        "help",        "--year",       "--month",   "--day",   "--hour",    "--local",
        "--base-time", "--lat",        "--long",    "-o",      "--version"}) {
    EXPECT_NE(help.find(std::string(" ") + name + " "), std::string::npos) << name;
  }
  EXPECT_EQ(help, documentOf({"help"}));
  EXPECT_EQ(help, documentOf({"-h"}));
}

TEST(Help, TheExampleOfEveryCommandRuns) {
  for (const std::string& command :
       documentCommands + words("ephemeris conjunctions base-time all")) {
    const std::string help = documentOf({"help", command});
    EXPECT_EQ(help, documentOf({command, "--help"}));
    const std::string start = "Example:\n  veyruna ";
    const std::size_t at = help.find(start);
    ASSERT_NE(at, std::string::npos) << help;
    const std::size_t from = at + start.size();
    const std::string example = help.substr(from, help.find('\n', from) - from);
    EXPECT_NE((" " + example + " ").find(" " + command + " "), std::string::npos) << help;
    const ScratchFolder scratch;
    const tests::Outcome outcome = run({.arguments = words(example), .folder = scratch.path()});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_NE(outcome.out, "") << command;
  }
}

TEST(Version, IsOneLine) {
  const std::string version = documentOf({"--version"});
  EXPECT_TRUE(version.starts_with("veyruna " VEYRUNA_VERSION " (build ")) << version;
  EXPECT_EQ(version.find(")\n"), version.size() - 2) << version;
  EXPECT_EQ(version, documentOf({"moment", "--version"}));
}

}  // namespace
}  // namespace veyruna
