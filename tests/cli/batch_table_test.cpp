// A table of people as spreadsheets and people write it: what is read of it.
#include <algorithm>

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
using tests::runWith;
using tests::writeFile;
using Names = std::vector<std::string>;

/// What the single command is given, and what the table's is besides the table.
struct AsTyped {
  std::string command;
  std::string besides = {};
};

class BatchTable : public tests::Batch {
 protected:
  /// A run over the table writes one document, which is that of the command.
  void expectOne(const std::string& content, const AsTyped& typed) const {
    SCOPED_TRACE(content);
    fs::remove_all(out);
    std::vector<std::string> all = {"--documents", "positions"};
    const std::vector<std::string> more = tests::words(typed.besides);
    all.insert(all.end(), more.begin(), more.end());
    expectAllWritten(batch(content, all));
    ASSERT_EQ(written().size(), 1U);
    std::vector<std::string> single = tests::words(typed.command);
    single.emplace_back("positions");
    EXPECT_EQ(fileContent(out + "/" + written().front()), runWith(single).out);
  }
};

const AsTyped birth = {"--year 698 --month 3 --day 4 --hour 3:40 --local --lat 21.9N --long 33.9E"};

TEST_F(BatchTable, ColumnsStandInAnyOrderAndLetterCase) {
  expectOne("name,date,hour,local,place\nArla,698-3-4,3:40,yes,21.9N 33.9E\n", birth);
  expectOne("place,local,hour,date,name\n21.9N 33.9E,yes,3:40,698-3-4,Arla\n", birth);
  expectOne("Hour,PLACE,Name,lOcAl,DATE\n3:40,21.9N 33.9E,Arla,yes,698-3-4\n", birth);
  expectOne("\"date\", hour ,\tname,place,local\n698-3-4,3:40,Arla,21.9N 33.9E,yes\n", birth);
}

TEST_F(BatchTable, OtherColumnsAreLeftAlone) {
  expectOne(
      "player,name,,date,hour,notes,local,place,names\nMo,Arla,?,698-3-4,3:40,\"a, b\",yes,21.9N "
      "33.9E,x\n",
      birth);
}

TEST_F(BatchTable, IsWrittenAsSpreadsheetsWriteIt) {
  const std::string header = "name;date;hour;local;place";
  const std::string row = "Arla;698-3-4;3:40;yes;21.9N, 33.9E";
  expectOne(header + "\n" + row, birth);
  expectOne("\xEF\xBB\xBF" + header + "\r\n" + row + "\r\n", birth);
  expectOne(header + "\r" + row + "\r", birth);
  expectOne("\n\r\n" + header + "\n\n\n" + row + ";;;\n;;;;\n ; ;\n\n", birth);
  expectOne(
      "\xEF\xBB\xBF\"name\",\"date\",\"hour\",\"local\",\"place\"\r\n"
      "\"Arla\",\"698-3-4\",\"3:40\",\"yes\",\"21.9N, 33.9E\"\r\n",
      birth);
  // The other separator, quoted, counts for nothing.
  const std::string notes = "\"old; new; lost; found; kept; sold; given\"";
  expectOne(notes + ",name,date,hour,local,place\n,Arla,698-3-4,3:40,yes,21.9N 33.9E\n", birth);
}

TEST_F(BatchTable, AQuotedFieldHoldsAnything) {
  const Outcome outcome = batch(
      "name,date,place\n\"Arla, the \"\"Bold\"\";\nof Ebb\",720-06-12,Ebb\nBram,720-6-31,Ebb\n");
  EXPECT_EQ(outcome.status, cli::writeFailed);
  EXPECT_EQ(written(), Names{"Arla, the -Bold-;-of Ebb - Moment - Ebb - 720-06-12 12-00.txt"});
  EXPECT_TRUE(has(outcome.err, "line 4: date: \"720-6-31\"")) << outcome.err;
  EXPECT_TRUE(
      has(outcome.out, "\n2     \"Arla, the \\\"Bold\\\";\\x0aof Ebb\"  720-06-12 12:00 OST  Ebb"))
      << outcome.out;
}

TEST_F(BatchTable, DatesAreWrittenInAnyWay) {
  for (const std::string date : {"720-06-12", "720-6-12", "0720-Ulvenhar-12", "720-ulvenhar-12"}) {
    expectOne("name,date,place\nA," + date + ",Ebb\n",
              {"--year 720 --month 6 --day 12 --location Ebb"});
  }
}

TEST_F(BatchTable, HoursAreThoseOfTheCommand) {
  for (const std::string hour : {"18.25", "18:15", "0", "24", "7:05"}) {
    expectOne("name,date,place,hour\nA,720-6-12,Ebb," + hour + "\n",
              {"--year 720 --month 6 --day 12 --location Ebb --hour " + hour});
  }
}

TEST_F(BatchTable, AnHourIsLocalWhereTheRowSaysSo) {
  const std::string command = "--year 720 --month 6 --day 12 --hour 20 --location Vossenfel";
  for (const std::string yes : {"yes", "Yes", "true", "TRUE", "1", "x", "X"}) {
    expectOne("name,date,hour,local,place\nA,720-6-12,20," + yes + ",Vossenfel\n",
              {command + " --local"});
  }
  for (const std::string no : {"no", "No", "false", "FALSE", "0", ""}) {
    expectOne("name,date,hour,local,place\nA,720-6-12,20," + no + ",Vossenfel\n", {command});
  }
}

TEST_F(BatchTable, APlaceIsCoordinatesOrASavedName) {
  for (const std::string place :
       {"40.5N 20.9W", "40.5, -20.9", "40.5 -20.9", "+40.5,−20.9", "40.50°N  20.90°W",
        "40.5 N 20.9 W", "40.5 N, 20.9 W", " 40.5n ,20.9w "}) {
    expectOne("name;date;place\nA;720-1-1;" + place + "\n", {"--lat 40.5 --long -20.9"});
  }
  expectOne("name;date;place\nA;720-1-1;-12.5 0\n", {"--lat -12.5 --long 0"});
  for (const std::string place : {"Ebb", "ebb", " EBB "}) {
    expectOne("name;date;place\nA;720-1-1;" + place + "\n", {"--location Ebb"});
  }
  expectOne("name;date;place\nA;720-1-1;manual\n", {"--location Manual"});
}

TEST_F(BatchTable, WhatARowLeavesOpenTheCommandLineSays) {
  const std::string day = "--year 720 --month 6 --day 12";
  expectOne("name,date,place\nA,720-6-12,Ebb\n", {day + " --location Ebb"});
  expectOne("name,date,hour,local,place\nA,720-6-12,,,Ebb\n",
            {day + " --hour 7:05 --local --location Ebb", "--hour 7:05 --local"});
  expectOne("name,date,hour,local,place\nA,720-6-12,20,no,Vossenfel\n",
            {day + " --hour 20 --location Vossenfel", "--hour 7:05 --local --location Ebb"});
  expectOne("name,date\nA,720-6-12\n", {day + " --location Ebb", "--location Ebb"});
  expectOne("name,date,place\nA,720-6-12,\n", {day + " --lat 5 --long 20.9W", "--lat 5"});
}

TEST_F(BatchTable, ComesThroughStandardInputToo) {
  writeFile(table, "name,date,place\nA,720-6-12,Ebb\n");
  const Outcome outcome = run(
      {.arguments = {"batch", "-", "--out", out, "--documents", "moment"}, .standardInput = table});
  expectAllWritten(outcome);
  EXPECT_EQ(written(), Names{"A - Moment - Ebb - 720-06-12 12-00.txt"});
  const Outcome drawn =
      run({.arguments = {"batch", "-", "--out", out, "--documents", "moment", "--format", "pdf"},
           .standardInput = table});
  expectAllWritten(drawn);
  EXPECT_EQ(written().size(), 2U);
  const Outcome empty = runWith({"batch", "-", "--out", out});
  EXPECT_EQ(empty.status, cli::usageWrong);
  EXPECT_TRUE(has(empty.err, "standard input: it is empty")) << empty.err;
}

TEST_F(BatchTable, AHeaderAloneIsNoRow) {
  for (const std::string end : {"", "\n", "\r\n\r\n", "\n,,\n"}) {
    const Outcome outcome = batch("name,date,place" + end);
    expectAllWritten(outcome);
    EXPECT_EQ(outcome.out, "line  name  date  place  files\n\n0 rows of 0 written, 0 files\n");
    EXPECT_EQ(written(), Names());
  }
}

}  // namespace
}  // namespace veyruna
