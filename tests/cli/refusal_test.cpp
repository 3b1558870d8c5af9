// What the command cannot use, it refuses in one line that quotes it.
#include <algorithm>
#include <gtest/gtest.h>

#include "cli/program/command_line.h"
#include "tests/cli/process.h"

namespace veyruna {
namespace {

struct Refusal {
  std::vector<std::string> arguments;
  std::string quoted;    ///< what the message repeats
  std::string accepted;  ///< a piece of what it says is accepted
};

void expectRefused(const Refusal& refusal) {
  SCOPED_TRACE(testing::PrintToString(refusal.arguments));
  const tests::Outcome outcome = tests::runWith(refusal.arguments);
  EXPECT_EQ(outcome.status, cli::usageWrong);
  EXPECT_EQ(outcome.out, "");
  EXPECT_TRUE(outcome.err.starts_with("veyruna: ")) << outcome.err;
  EXPECT_TRUE(outcome.err.ends_with('\n')) << outcome.err;
  EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
  EXPECT_NE(outcome.err.find(refusal.quoted), std::string::npos) << outcome.err;
  EXPECT_NE(outcome.err.find(refusal.accepted), std::string::npos) << outcome.err;
}

TEST(Refusal, Moments) {
  const std::string years = "from 1 to 2777778";
  const std::string base = "from -1000000000 to 1000000000";
  const std::vector<Refusal> refusals = {
      {{"--month", "13", "moment"}, "\"13\"", "Dovri"},
      {{"moment", "--month", "Brenwick"}, "\"Brenwick\"", "Brenwic "},
      {{"moment", "--month="}, "--month", "missing"},
      {{"--year", "0", "moment"}, "\"0\"", years},
      {{"--year", "-720", "moment"}, "\"-720\"", years},
      {{"--year", "2777779", "moment"}, "\"2777779\"", years},
      {{"--year", "2777778", "--month", "12", "moment"}, "\"2777778\"", "within 1000000000 days"},
      {{"--year", "99999999999999999999", "moment"}, "\"99999999999999999999\"", years},
      {{"--year", "720.5", "moment"}, "\"720.5\"", years},
      {{"--year", "７２０", "moment"}, "\"７２０\"", years},
      {{"--day", "0", "moment"}, "\"0\"", "from 1 to 30"},
      {{"--day", "31", "moment"}, "\"31\"", "from 1 to 30"},
      {{"--day", "first", "moment"}, "\"first\"", "from 1 to 30"},
      {{"--hour", "24:01", "moment"}, "\"24:01\"", "from 0 to 24"},
      {{"--hour", "6pm", "moment"}, "\"6pm\"", "18:15"},
      {{"--hour", "18,25", "moment"}, "\"18,25\"", "18.25"},
      {{"--hour", "nan", "moment"}, "\"nan\"", "from 0 to 24"},
      {{"--hour", "7\n8", "moment"}, "\"7\\x0a8\"", "from 0 to 24"},
      {{"--base-time", "1000000000.5", "moment"}, "\"1000000000.5\"", base},
      {{"--base-time", "-1e10", "moment"}, "\"-1e10\"", base},
      {{"--base-time", "inf", "moment"}, "\"inf\"", base},
      {{"--base-time", "-nan", "moment"}, "\"-nan\"", base},
      {{"--base-time", "1e999", "moment"}, "\"1e999\"", base},
      {{"--base-time", "5", "--year", "3", "moment"}, "\"5\"", "--year"},
      {{"--local", "moment", "--base-time", "5"}, "\"5\"", "--local"},
      {{"moment", "--year"}, "--year", "missing"},
  };
  std::for_each(refusals.begin(), refusals.end(), expectRefused);
}

TEST(Refusal, Places) {
  const std::vector<Refusal> refusals = {
      {{"--lat", "91", "moment"}, "\"91\"", "-90 to 90"},
      {{"--lat", "abc", "moment"}, "\"abc\"", "40.5N"},
      {{"--lat", "nan", "moment"}, "\"nan\"", "-90 to 90"},
      {{"--lat", "-5S", "moment"}, "\"-5S\"", "N or S"},
      {{"--lat", "5W", "moment"}, "\"5W\"", "N or S"},
      {{"--lat", "a b", "moment"}, "\"a b\"", "N or S"},
      {{"--long", "180.1", "moment"}, "\"180.1\"", "-180 to 180"},
      {{"--long", "20.9N", "moment"}, "\"20.9N\"", "E or W"},
      {{"--long", "-inf", "moment"}, "\"-inf\"", "20.9W"},
      {{"base-time", "--lat", "91"}, "\"91\"", "-90 to 90"},
  };
  std::for_each(refusals.begin(), refusals.end(), expectRefused);
}

TEST(Refusal, Tables) {
  const std::string rows = "from 0 to 100000000";
  const std::vector<Refusal> refusals = {
      {{"ephemeris", "--rows", "-3", "--step", "1"}, "\"-3\"", rows},
      {{"ephemeris", "--rows", "100000001", "--step", "0"}, "\"100000001\"", rows},
      {{"ephemeris", "--rows", "1e3", "--step", "1"}, "\"1e3\"", rows},
      {{"conjunctions", "--rows", "many", "--step", "1"}, "\"many\"", rows},
      {{"conjunctions", "--rows", "3", "--step", "1/0"}, "\"1/0\"", "1/24"},
      {{"conjunctions", "--rows", "3", "--step", "nan"}, "\"nan\"", "1/24"},
      {{"conjunctions", "--rows", "3", "--step", "1 day"}, "\"1 day\"", "0.5"},
      {{"ephemeris", "--rows", "3", "--step", "1e9"}, "\"1e9\"", "within 1000000000 days"},
      {{"ephemeris", "--rows", "3", "--step", "-999999999"}, "\"-999999999\"", "1000000000 days"},
      {{"ephemeris", "--rows", "3"}, "--step", "--rows 24 --step 1/24"},
      {{"conjunctions", "--step", "1"}, "--rows", "--rows 24 --step 1/24"},
      {{"moment", "--rows", "3"}, "\"--rows\"", "ephemeris or conjunctions"},
  };
  std::for_each(refusals.begin(), refusals.end(), expectRefused);
}

TEST(Refusal, NamesTheWordThatIsSpeltMostAlike) {
  const std::vector<Refusal> refusals = {
      {{"positons"}, "\"positons\"", "schema, help; the nearest is \"positions\"\n"},
      {{"Events"}, "\"Events\"", "; the nearest is \"events\"\n"},
      {{"help", "calender"}, "help: \"calender\"", "; the nearest is \"calendar\"\n"},
      {{"--yaer", "720", "moment"}, "\"--yaer\"", "; the nearest is \"--year\"\n"},
      {{"events", "--kinds=moon"}, "\"--kinds\"", "; the nearest is \"--kind\"\n"},
      {{"--knid", "moon"}, "\"--knid\"", "; the nearest is \"--kind\"\n"},
      {{"sunrise"}, "\"sunrise\"", "schema, help\n"},
      {{"--colour", "moment"}, "\"--colour\"", "and veyruna help moment list them\n"},
      {{"--colour"}, "\"--colour\"", "veyruna --help lists them\n"},
      // An option of another command is no help behind this one.
      {{"moment", "--knid=moon"}, "\"--knid\"", "list them\n"},
  };
  std::for_each(refusals.begin(), refusals.end(), expectRefused);
}

TEST(Refusal, OfALengthQuotesItsUnit) {
  const std::string accepted = "\"3 months\" or \"10 years\"";
  const std::vector<Refusal> refusals = {
      {{"events", "--from", "720-01-01", "--for", "3", "weeks"}, "--for: \"3 weeks\"", accepted},
      {{"events", "--from", "720-01-01", "--for=1", "Year"}, "--for: \"1 Year\"", accepted},
      {{"search", "--from", "720-01-01", "--for", "10", "yeras", "moon full"},
       "--for: \"10 yeras\"",
       accepted},
      {{"events", "--from", "720-01-01", "--for", "3", "--kind=moon"}, "--for: \"3\"", accepted},
  };
  std::for_each(refusals.begin(), refusals.end(), expectRefused);
}

TEST(Refusal, OfWhatTheCommandDoesNotRead) {
  const std::vector<Refusal> refusals = {
      {{"calendar", "--base-time", "3"}, "--base-time is", "calendar takes --year alone"},
      {{"calendar", "--year", "3", "--lat", "4"}, "--lat is", "calendar takes --year alone"},
      {{"locations", "--year", "abc"}, "--year is", "locations takes none"},
      {{"schema", "--long", "foo"}, "--long is", "schema takes none"},
      {{"help", "--local", "moment"}, "--local is", "help takes none"},
      {{"schema", "-o", "names.json"}, "\"names.json\"", "ends in .txt for schema"},
      {{"schema", "events", "-o", "s.pdf"}, "\"s.pdf\"", "ends in .json for schema"},
      {{"calendar", "--format", "calendarium", "-o", "c.txt"}, "\"c.txt\"", ".json for calendar"},
      {{"moment", "-f", "x"}, "\"-f\"", "belongs behind search"},
      {{"moment", "--format", "xml"}, "\"xml\"", "for moment"},
      {{"moment", "--format", "svg,txt"}, "\"svg,txt\"", "for moment"},
      {{"ephemeris", "--rows="}, "--rows", "veyruna help ephemeris says"},
      {{"all", "--out", "x", "--size", "100"}, "\"100\"", "name one with --format png"},
      {{"events", "--from", "720-01-01", "--for", "1 day", "--out", "d"},
       "\"d\"",
       "belongs to --format calendarium\n"},
  };
  std::for_each(refusals.begin(), refusals.end(), expectRefused);
}

TEST(Refusal, Words) {
  const std::vector<Refusal> refusals = {
      {{}, "command", "star-map, horoscope"},
      {{""}, "\"\"", "star-map, horoscope"},
      {{"starmap"}, "\"starmap\"", "star-map, horoscope"},
      {{"Moment"}, "\"Moment\"", "star-map, horoscope"},
      {{"two words"}, "\"two words\"", "star-map, horoscope"},
      {{"help", "sunrise"}, "\"sunrise\"", "star-map, horoscope"},
      {{"moment", "positions"}, "\"positions\"", "moment"},
      {{"moment", "720"}, "\"720\"", "moment"},
      {{"moment", "--bw"}, "\"--bw\"", "behind horoscope"},
      {{"--yaer", "720", "moment"}, "\"--yaer\"", "--help"},
      {{"-x", "moment"}, "\"-x\"", "--help"},
      {{"moment", "--out", "folder"}, "\"--out\"", "behind events or all"},
      {{"all"}, "--out", "DIR"},
      {{"all", "--out", "folder", "-o", "file"}, "-o", "--out DIR"},
      {{"moment", "-o"}, "-o", "missing"},
      {{"moment", "-o", ""}, "-o", "missing"},
      {{"horoscope", "-o", "--bw"}, "\"--bw\"", "-o=--bw"},
      {{"horoscope", "-o", "-h"}, "\"-h\"", "-o: a value is missing"},
      {{"moment", "--out", "--rows=3"}, "\"--rows=3\"", "--out: a value is missing"},
      {{"--lat", "--long", "5", "moment"}, "\"--long\"", "--lat: a value is missing"},
      {{"moment", "--help=me"}, "\"--help=me\"", "takes no value"},
      {{"moment", "-h=me"}, "\"-h=me\"", "takes no value"},
      {{"moment", "-o", "--year=\n"}, "\"-o=--year=\\x0a\"", "missing"},
      {{"moment", "--local=perhaps"}, "\"--local=perhaps\"", "takes no value"},
  };
  std::for_each(refusals.begin(), refusals.end(), expectRefused);
}

}  // namespace
}  // namespace veyruna
