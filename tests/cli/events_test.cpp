// `veyruna events`: what happens in a stretch of time, from several places.
#include "almanac/events/events.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

#include "almanac/events/event_words.h"
#include "astro/calendar.h"
#include "astro/local_time.h"
#include "cli/program/command_line.h"
#include "tests/cli/process.h"
#include "tests/cli/scratch_folder.h"
#include "tests/support/reference_case.h"

namespace veyruna {
namespace {

using tests::Outcome;
using tests::words;

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

Outcome eventsWith(const std::string& options) {
  return tests::runWith(words("events " + options));
}

std::size_t countOf(const std::string& text, const std::string& piece) {
  std::size_t count = 0;
  for (std::size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1)) {
    ++count;
  }
  return count;
}

TEST(EventsCommand, WritesEveryEventOfTheStretchInItsOrder) {
  const Outcome outcome = eventsWith("--from 720-01-01 --to 721-01-01");
  ASSERT_EQ(outcome.status, cli::succeeded) << outcome.err;
  std::vector<std::string> lines = linesOf(outcome.out);
  ASSERT_FALSE(lines.empty());
  EXPECT_TRUE(lines.front().starts_with("Moment ")) << lines.front();
  lines.erase(lines.begin());
  almanac::EventQuery query{.range = {.from = 719.0 * 360.0 - 0.5, .to = 720.0 * 360.0 - 0.5}};
  for (const almanac::EventKindEntry& entry : almanac::allEventKinds) {
    if (!entry.needsPlace) {
      query.kinds.insert(entry.kind);
    }
  }
  auto line = lines.begin();
  almanac::forEachEvent(query, [&](const almanac::Event& event) {
    ASSERT_NE(line, lines.end());
    EXPECT_TRUE(line->starts_with(astro::calendarLabel(event.baseTime))) << *line;
    EXPECT_NE(line->find(almanac::entryOf(event.kind).word), std::string::npos) << *line;
    EXPECT_TRUE(line->ends_with(almanac::wordsOf(event))) << *line;
    ++line;
  });
  EXPECT_EQ(line, lines.end());
}

TEST(EventsCommand, AStretchIsGivenByItsEndOrItsLength) {
  const std::string whole = eventsWith("--from 720-01-01 --to 720-04-01 --kind moon").out;
  EXPECT_EQ(countOf(whole, "full moon"), 3U) << whole;
  for (const char* const same :
       {"--from 720-01-01 --for 3 months --kind moon", "--kind moon --for=90 days --from=720-1-1",
        "--from @258839.5 --for 0.25 years --kind moon",
        "--from 720-Brenwic-01T00:00 --to 720-03-30T24:00 --kind moon"}) {
    EXPECT_EQ(eventsWith(same).out, whole) << same;
  }
}

TEST(EventsCommand, KindsAreThoseAsked) {
  const std::string year = "--from 720-01-01 --for 1 year --kind ";
  const std::string two = eventsWith(year + "season,eclipse").out;
  EXPECT_EQ(countOf(two, "the sun at"), 4U);
  EXPECT_GT(countOf(two, " eclipse of the "), 0U);
  EXPECT_EQ(linesOf(two).size(), 1U + 4U + countOf(two, " eclipse of the "));
  const std::string planets = eventsWith(year + "conjunction").out;
  const std::string all = eventsWith(year + "conjunction:all").out;
  EXPECT_EQ(countOf(planets, "Ivro"), 0U);
  EXPECT_EQ(countOf(planets, "Thessil"), 0U);
  EXPECT_GT(countOf(all, "Ivro and "), 24U);
  EXPECT_GT(countOf(all, "Thessil and "), 3U);
}

TEST(EventsCommand, APlaceTellsItsClockAndWhetherItIsSeen) {
  const std::string place = "--lat 21.9N --long 33.9E ";
  const Outcome outcome = eventsWith(place + "--from 720-01-01 --for 2 days");
  ASSERT_EQ(outcome.status, cli::succeeded) << outcome.err;
  for (const char* const kind : {"  rise  ", "  set  ", "  culmination  "}) {
    EXPECT_GE(countOf(outcome.out, kind), 10U) << kind;
  }
  EXPECT_EQ(countOf(outcome.out, "Thessil culminates"), 2U);
  for (const std::string& line : linesOf(outcome.out)) {
    if (line.ends_with("Thessil culminates")) {
      EXPECT_NE(line.find("  12:00  "), std::string::npos) << line;
      EXPECT_NE(line.find(" yes "), std::string::npos) << line;
    }
    if (line.ends_with(" rises") || line.ends_with(" sets")) {
      EXPECT_NE(line.find("  0.0°"), std::string::npos) << line;
    }
  }
}

TEST(EventsCommand, AllPlacesAreTheSavedOnes) {
  const tests::ScratchFolder home;
  const std::vector<std::string> environment = {
      "XDG_CONFIG_HOME=" + home.path(), "XDG_DATA_HOME=" + home.path(), "HOME=" + home.path()};
  const auto runAt = [&](const std::string& arguments) {
    return tests::run({.arguments = words(arguments), .environment = environment}).out;
  };
  const std::size_t saved = linesOf(runAt("locations")).size() - 1;  // without Manual
  ASSERT_GT(saved, 5U);
  const std::vector<std::string> lines =
      linesOf(runAt("events --from 720-01-01 --for 1 month --kind moon --location all"));
  EXPECT_EQ(lines.size(), 1 + 2 * saved);
  EXPECT_EQ(std::ranges::count_if(
                lines, [](const std::string& line) { return line.find("Vossenfel") != line.npos; }),
            2);
  // A rising is of one place.
  const std::string rising =
      runAt("events --from 720-01-01 --for 1 day --kind rise --location all");
  EXPECT_EQ(countOf(rising, "Thessil rises"), saved);
}

TEST(EventsCommand, ClocksAreLocalOnRequest) {
  const Outcome outcome = eventsWith(
      "--from 720-03-10T11:59 --for 1 day --local --lat 21.9N --long 33.9E --kind culmination");
  const std::vector<std::string> lines = linesOf(outcome.out);
  ASSERT_GE(lines.size(), 2U) << outcome.err;
  EXPECT_TRUE(lines[1].ends_with("Thessil culminates")) << lines[1];
}

TEST(EventsCommand, GoesToAFileOrEndsWithItsReader) {
  const tests::ScratchFolder folder;
  const std::string file = folder / "year.txt";
  const std::string options = "--from 720-01-01 --for 1 year --kind moon";
  EXPECT_EQ(eventsWith(options + " -o " + file).status, cli::succeeded);
  EXPECT_EQ(tests::fileContent(file), eventsWith(options).out);
  tests::Process endless({.arguments = words("events --from 1-1-1 --for 1000000 years")});
  EXPECT_TRUE(endless.firstLineThenClose().starts_with("Moment"));
  const Outcome outcome = endless.outcome();
  EXPECT_EQ(outcome.err, "");
}

TEST(EventsCommand, RefusesWhatItCannotUse) {
  const std::string from = "--from 720-01-01 ";
  const std::map<std::string, std::string> refusals = {
      {"", "--from DATE"},
      {from, "--to DATE, or --for N UNIT"},
      {from + "--to 721-01-01 --for 1 year", "name two ends"},
      {from + "--to 719-12-30", "\"719-12-30\" is before --from \"720-01-01\""},
      {from + "--to yesterday", "--to: \"yesterday\""},
      {from + "--for 3", "\"3\" is not accepted"},
      {from + "--for 3 weeks", "weeks"},
      {from + "--for 1e9 years", "\"1e9 years\" is too far away"},
      {from + "--for 1 day --kind eclipses", "eclipse, moon, conjunction, conjunction:all"},
      {from + "--for 1 day --kind moon,", "\"moon,\""},
      {from + "--for 1 day --kind moon:all", "\"moon:all\""},
      {from + "--for 1 day --kind set", "a set is seen from a place"},
      {from + "--for 1 day --local", "local clocks are those of one place"},
      {from + "--for 1 day --local --location all", "local clocks are those of one place"},
      {from + "--for 1 day --hour 3", "--hour is of one moment"},
      {from + "--for 1 day --base-time 3", "--base-time is of one moment"},
      {from + "--for 1 day --lat 95", "\"95\""},
      {from + "--for 1 day --location Nowhere", "\"Nowhere\""},
      {from + "--for 1 day moon", "\"moon\" is one word too many"},
      {from + "--for 1 day --size 100", "--size"},
      {from + "--for 1 day --format pdf", "\"pdf\""},
  };
  for (const auto& [options, piece] : refusals) {
    const Outcome outcome = eventsWith(options);
    EXPECT_EQ(outcome.status, cli::usageWrong) << options;
    EXPECT_EQ(outcome.out, "") << options;
    EXPECT_NE(outcome.err.find(piece), std::string::npos) << options << ": " << outcome.err;
  }
  EXPECT_NE(tests::runWith(words("moment --from 720-01-01")).err.find("belongs behind events"),
            std::string::npos);
}

TEST(EventsCommand, NothingIsAnAnswer) {
  const Outcome outcome = eventsWith("--from 720-01-01 --to 720-01-01");
  EXPECT_EQ(outcome.status, cli::succeeded);
  EXPECT_EQ(linesOf(outcome.out).size(), 1U);
}

TEST(EventsCommand, ABodyInTheSouthStandsAtNoWholeTurn) {
  const Outcome outcome =
      eventsWith("--from 121-10-26 --to 121-10-27 --kind sign --lat 40.5N --long 20.9W");
  EXPECT_NE(outcome.out.find("   0.0°  no    sign         Bralo enters Ostrel"), std::string::npos)
      << outcome.out << outcome.err;
}

}  // namespace
}  // namespace veyruna
