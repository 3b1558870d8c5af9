// What is wrong with a table, a row or a folder: said by line and column, and no other row suffers.
#include <csignal>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <thread>

#include "cli/program/command_line.h"
#include "tests/cli/batch.h"
#include "tests/support/reference_case.h"

namespace veyruna {
namespace {

namespace fs = std::filesystem;
using tests::fileContent;
using tests::has;
using tests::Outcome;
using tests::run;
using tests::writeFile;
using Names = std::vector<std::string>;

std::size_t timesIn(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

struct BadRow {
  std::string row;
  std::string problem;   ///< how what is told of it begins
  std::string accepted;  ///< a piece of what is accepted
};

class BatchTrouble : public tests::Batch {
 protected:
  /// The whole table is refused: with status 2, in one line that names it, and nothing is written.
  void expectRefused(const Outcome& outcome, const std::string& quoted,
                     const std::string& accepted) const {
    EXPECT_EQ(outcome.status, cli::usageWrong);
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.err.starts_with("veyruna: ")) << outcome.err;
    EXPECT_EQ(timesIn(outcome.err, "\n"), 1U) << outcome.err;
    EXPECT_TRUE(has(outcome.err, quoted) && has(outcome.err, accepted)) << outcome.err;
    EXPECT_FALSE(fs::exists(out));
  }

  /// The second of three rows is bad: it is told where and why, and the others are written.
  void expectBadRow(const BadRow& bad) {
    const auto& [row, problem, accepted] = bad;
    SCOPED_TRACE(row);
    fs::remove_all(out);
    const Outcome outcome =
        batch("name,date,hour,local,place\nArla,720-1-1,,,Ebb\n" + row + "\nCleo,720-1-1,,,Ebb\n");
    EXPECT_EQ(outcome.status, cli::writeFailed);
    const std::string start = "veyruna: \"" + table + "\", line 3: ";
    ASSERT_TRUE(outcome.err.starts_with(start)) << outcome.err;
    EXPECT_TRUE(outcome.err.substr(start.size()).starts_with(problem)) << outcome.err;
    EXPECT_TRUE(has(outcome.err, accepted)) << outcome.err;
    EXPECT_TRUE(outcome.err.ends_with("\nveyruna: not every row could be written\n"))
        << outcome.err;
    EXPECT_TRUE(has(outcome.out, "\n3 ") && has(outcome.out, "not written: " + problem))
        << outcome.out;
    EXPECT_TRUE(outcome.out.ends_with("\n2 rows of 3 written, 2 files\n")) << outcome.out;
    EXPECT_EQ(written(), (Names{"Arla - Moment - Ebb - 720-01-01 12-00.txt",
                                "Cleo - Moment - Ebb - 720-01-01 12-00.txt"}));
  }
};

TEST_F(BatchTrouble, ATableNeedsItsColumns) {
  expectRefused(batch(""), "is empty", "name, date, hour, local, place");
  expectRefused(batch("\n\r\n ,,\n"), "is empty", "name, date, hour, local, place");
  expectRefused(batch("date,place\n1-1-1,Ebb\n"), "\"name\" is missing", "\"date\", \"place\"");
  expectRefused(batch("name;day;place\n"), "\"date\" is missing", "\"name\", \"day\", \"place\"");
  expectRefused(batch("name,date,plaec\n"), "\"place\" is missing",
                "\"plaec\", known are name, date");
  expectRefused(batch("Name,date,place,NAME\n"), "\"name\" twice", "\"NAME\"");
  expectRefused(batch("name,d\xE4te,place\n"), "line 1", "no UTF-8: \"name,d\\xe4te,place\"");
  expectRefused(batch("\xFF\xFEn"), "line 1", "no UTF-8: \"\\xff\\xfen\"");
  expectRefused(batch("\nna\"me,date\n"), "line 2", "its own quotes doubled");
}

TEST_F(BatchTrouble, ABadRowIsToldByLineAndColumn) {
  expectBadRow({",720-1-1,,,Ebb", "name: \"\"", "after which the files are called"});
  expectBadRow({"\" \",720-1-1,,,Ebb", "name: \"\"", "after which the files are called"});
  for (const std::string date :
       {"", "720", "720-13-1", "720-1-31", "720-0-1", "0-1-1", "-5-1-1", "720-Brenwick-1",
        "720/1/1", "720-1-1-1", "2777779-1-1", "99999999999999999999-1-1", "1.1.720"}) {
    expectBadRow({"Bram," + date + ",,,Ebb", "date: \"" + date + "\" is not accepted",
                  "such as 720-06-12 or 720-Cendo-12"});
  }
  expectBadRow({"Bram,2777778-12-1,,,Ebb", "date: \"2777778-12-1\" is too far away",
                "within 1000000000 days"});
  for (const std::string hour : {"25", "24:01", "-1", "noon", "1e9", "nan"}) {
    expectBadRow({"Bram,720-1-1," + hour + ",,Ebb", "hour: \"" + hour + "\"", "from 0 to 24"});
  }
  for (const std::string local : {"maybe", "2", "yess", "-"}) {
    expectBadRow(
        {"Bram,720-1-1,," + local + ",Ebb", "local: \"" + local + "\"", "yes, true, 1 or x"});
  }
  for (const std::string place :
       {"", "91N 20W", "40 181", "40.5", "40.5N", "40.5N 20.9N", "40 20 3", "nan nan", "-"}) {
    const bool isNumber = place.empty() || place.front() < 'A';
    expectBadRow({"Bram,720-1-1,,," + place, "place: \"" + place + "\"",
                  isNumber ? "at most 90 degrees" : "40.5N 20.9W"});
  }
  expectBadRow({"Bram,720-1-1,,,Ebbb", "place: \"Ebbb\"", "known are Manual, "});
}

TEST_F(BatchTrouble, ARowCanBeBadAsAWhole) {
  expectBadRow({"Br\xE4m,720-1-1,,,Ebb", "line 3 is no UTF-8", "\"Br\\xe4m,720-1-1,,,Ebb\""});
  expectBadRow({"Bram \"the Bold\",720-1-1,,,Ebb", "a quote stands", "its own quotes doubled"});
  expectBadRow({"\"Bram\" the Bold,720-1-1,,,Ebb", "a quote stands", "its own quotes doubled"});
  expectBadRow({"\"Bram,720-1-1,,,Ebb", "a quote is opened", "that nothing closes"});
  expectBadRow({"Bram,720-1-1,,,40.5,-20.9", "it has more columns", "belongs in quotes"});
}

TEST_F(BatchTrouble, AllThatIsWrongWithARowIsSaid) {
  const Outcome outcome = batch("name,date,hour,local,place\n,1-1-32,99,?,Nowhere\n");
  EXPECT_EQ(outcome.status, cli::writeFailed);
  for (const std::string column : {"name", "date", "hour", "local", "place"}) {
    EXPECT_EQ(timesIn(outcome.err, column + ": \""), 1U) << outcome.err;
    EXPECT_EQ(timesIn(outcome.out, column + ": \""), 1U) << outcome.out;
  }
  EXPECT_TRUE(outcome.out.ends_with("\n0 rows of 1 written, 0 files\n")) << outcome.out;
  EXPECT_FALSE(fs::exists(out)) << "nothing is made for bad rows alone";
}

TEST_F(BatchTrouble, ATableThatCannotBeReadIsReported) {
  for (const std::string name : {"missing.csv", "."}) {
    const Outcome outcome = run({.arguments = {"batch", scratch / name, "--out", out}});
    EXPECT_EQ(outcome.status, cli::writeFailed);
    EXPECT_TRUE(has(outcome.err, "cannot read \"" + scratch / name + "\": ")) << outcome.err;
    EXPECT_FALSE(fs::exists(out));
  }
}

TEST_F(BatchTrouble, WhatMakesNoSenseIsRefused) {
  const std::string rows = "name,date,place\nA,720-1-1,Ebb\n";
  expectRefused(batch(rows, {"--documents", "horoscop"}), "\"horoscop\"", "star-map, horoscope");
  expectRefused(batch(rows, {"--documents", "horoscope,"}), "\"horoscope,\"", "with commas");
  expectRefused(batch(rows, {"--documents", "all"}), "\"all\"", "moment");
  expectRefused(batch(rows, {"--format", "doc"}), "\"doc\"", "svg, txt, html, pdf, png, ");
  expectRefused(batch(rows, {"--documents", "star-map,hourly", "--format", "svg"}), "\"svg\"",
                "also one of txt, html, pdf");
  expectRefused(batch(rows, {"--size", "100"}), "\"100\"", "--format png");
  expectRefused(batch(rows, {"-o", "x"}), "--out DIR", "no -o");
  expectRefused(batch(rows, {"--hour", "25"}), "--hour: \"25\"", "18:15");
  expectRefused(batch(rows, {"--location", "Ebbb"}), "--location: \"Ebbb\"", "known are");
  for (const std::string option : {"--base-time", "--year", "--month", "--day"}) {
    expectRefused(batch(rows, {option, "1"}), option, "the date of each row");
  }
  expectRefused(run({.arguments = {"batch", table}}), "--out DIR", "people.csv");
  expectRefused(run({.arguments = {"batch", "--out", out}}), "--out DIR", "people.csv");
}

TEST_F(BatchTrouble, AFolderThatTakesNothingIsReportedOnce) {
  const std::string rows = "name,date,place\nA,720-1-1,Ebb\nB,720-1-1,Ebb\n";
  writeFile(out, "no folder");
  const Outcome noFolder = batch(rows);
  EXPECT_EQ(noFolder.status, cli::writeFailed);
  EXPECT_EQ(timesIn(noFolder.err, "\n"), 1U) << noFolder.err;
  EXPECT_TRUE(has(noFolder.err, "folder \"" + out + "\": ")) << noFolder.err;
  fs::remove(out);
  fs::create_directory(out);
  ASSERT_EQ(chmod(out.c_str(), 0555), 0);
  const Outcome closed =
      run({.arguments = argumentsWith({"--documents", "moment"}), .asNobody = true});
  EXPECT_EQ(closed.status, cli::writeFailed);
  EXPECT_EQ(closed.err,
            "veyruna: cannot write into the folder \"" + out + "\": Permission denied\n");
  EXPECT_EQ(written(), Names());
  fs::permissions(out, fs::perms{0755});
}

TEST_F(BatchTrouble, ARowThatCannotBeWrittenStopsNoOther) {
  const std::string taken = "B - Moment - Ebb - 720-01-01 12-00.txt";
  fs::create_directories(out + "/" + taken);
  const Outcome outcome = batch("name,date,place\nA,720-1-1,Ebb\nB,720-1-1,Ebb\nC,720-1-1,Ebb\n");
  EXPECT_EQ(outcome.status, cli::writeFailed);
  EXPECT_TRUE(
      has(outcome.err, "line 3: cannot write \"" + out + "/" + taken + "\": Is a directory"))
      << outcome.err;
  EXPECT_TRUE(has(outcome.out, "\n2 rows of 3 written, 2 files\n")) << outcome.out;
  EXPECT_EQ(written().size(), 3U);
}

TEST_F(BatchTrouble, AFullDiskIsSaidOnce) {
  fs::create_directory(out);
  if (unshare(CLONE_NEWNS) != 0 ||
      mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
      mount("none", out.c_str(), "tmpfs", 0, "size=400k") != 0) {
    GTEST_SKIP() << "a small tmpfs cannot be mounted here";
  }
  std::string rows = "name,date,place\n";
  for (int i = 0; i < 40; ++i) {
    rows += "Row " + std::to_string(i) + ",720-1-1,Ebb\n";
  }
  const Outcome outcome = batch(rows, {"--documents", "horoscope"});
  const Names names = written();
  const std::string horoscope = tests::runWith({"horoscope", "--location", "Ebb"}).out;
  for (const std::string& name : names) {
    EXPECT_TRUE(fileContent(out + "/" + name) == horoscope) << name;
  }
  umount2(out.c_str(), MNT_DETACH);
  EXPECT_EQ(outcome.status, cli::writeFailed);
  EXPECT_EQ(timesIn(outcome.err, "No space left on device"), 1U) << outcome.err;
  EXPECT_EQ(timesIn(outcome.err, "\n"), 2U) << outcome.err;
  EXPECT_TRUE(has(outcome.out, "not written: the disk is full\n")) << outcome.out;
  EXPECT_GT(names.size(), 0U);
  EXPECT_LT(names.size(), 40U);
  EXPECT_TRUE(has(outcome.out, " of 40 written, " + std::to_string(names.size()) + " file"))
      << outcome.out;
}

TEST_F(BatchTrouble, AClosedPipeEndsItQuietlyAndAFullOneIsReported) {
  writeFile(table, "name,date,place\nA,720-1-1,Ebb\n");
  const Outcome full = run({.arguments = argumentsWith({}), .standardOutput = "/dev/full"});
  EXPECT_EQ(full.status, cli::writeFailed);
  EXPECT_EQ(full.err, "veyruna: cannot write standard output: No space left on device\n");
  EXPECT_EQ(written().size(), 2U);
  // Far more than a pipe holds.
  std::string rows = "name,date,place\n";
  for (int i = 0; i < 500; ++i) {
    rows += std::to_string(i) + std::string(200, 'x') + ",720-1-1,Ebb\n";
  }
  writeFile(table, rows);
  tests::Process process({.arguments = argumentsWith({"--documents", "moment"})});
  EXPECT_TRUE(process.firstLineThenClose().starts_with("line  name"));
  const Outcome closed = process.outcome();
  EXPECT_EQ(closed.signal, SIGPIPE);
  EXPECT_EQ(closed.err, "");
}

TEST_F(BatchTrouble, KilledHalfWayItLeavesWholeFiles) {
  std::string rows = "name,date,place\n";
  for (int i = 0; i < 20000; ++i) {
    rows += "Row " + std::to_string(i) + ",720-1-1,Ebb\n";
  }
  writeFile(table, rows);
  const std::string horoscope = tests::runWith({"horoscope", "--location", "Ebb"}).out;
  for (const std::size_t enough : {1U, 20U, 50U}) {
    fs::remove_all(out);
    tests::Process process({.arguments = argumentsWith({"--documents", "horoscope"})});
    while (written().size() < enough) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    process.kill(SIGKILL);
    EXPECT_EQ(process.outcome().signal, SIGKILL);
    EXPECT_LT(written().size(), 20000U);
    for (const std::string& name : written()) {
      ASSERT_TRUE(fileContent(out + "/" + name) == horoscope) << name;
    }
  }
}

TEST_F(BatchTrouble, ALongOneShowsHowFarItIs) {
  std::string rows = "name,date,place\n";
  for (int i = 0; i < 20000; ++i) {
    rows += "Row " + std::to_string(i) + ",720-1-1,Ebb\n";
  }
  writeFile(table, rows);
  tests::Process process({.arguments = argumentsWith({"--documents", "yearly,daily,horoscope"}),
                          .errorsOnTerminal = true});
  EXPECT_TRUE(has(process.errorsWithin(60'000, " of 20000 rows, "), " of 20000 rows, "));
  process.kill(SIGKILL);
  EXPECT_EQ(process.outcome().signal, SIGKILL) << "the table was too short to tell";
}

}  // namespace
}  // namespace veyruna
