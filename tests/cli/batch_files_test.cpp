// The files of a table: which there are, what they are called, and that they are those of the
// single commands.
#include <algorithm>
#include <map>
#include <random>

#include "cli/program/command_line.h"
#include "documents/documents.h"
#include "tests/cli/batch.h"
#include "tests/support/reference_case.h"

namespace veyruna {
namespace {

namespace fs = std::filesystem;
using documents::Entry;
using tests::fileContent;
using tests::has;
using tests::Outcome;
using tests::runWith;
using Names = std::vector<std::string>;

class BatchFiles : public tests::Batch {
 protected:
  /// What the only file of a row of that name is called.
  std::string nameOfOne(const std::string& name, const std::string& place = "Ebb") {
    fs::remove_all(out);
    expectAllWritten(
        batch("name,date,hour,place\n\"" + name + "\",720-06-12,22:30,\"" + place + "\"\n"));
    EXPECT_EQ(written().size(), 1U) << name;
    return written().empty() ? "" : written().front();
  }
};

TEST_F(BatchFiles, AreHoroscopeAndStarMapUnlessOthersAreNamed) {
  const Outcome outcome =
      batch("name,date,hour,local,place\nArla,720-06-12,22:30,yes,11.5N 25.3E\n", {});
  expectAllWritten(outcome);
  const std::string end = " - 11.50°N 25.30°E - 720-06-12 22-30.svg";
  EXPECT_EQ(written(), (Names{"Arla - Horoscope" + end, "Arla - Star Map" + end}));
  const std::string moment = runWith(tests::words("moment --year 720 --month 6 --day 12 --hour "
                                                  "22:30 --local --lat 11.5N --long 25.3E"))
                                 .out;
  EXPECT_EQ(outcome.out,
            "line  name  date                 place             files\n"
            "2     Arla  " +
                moment.substr(0, moment.find('\n')) + "  11.50°N  25.30°E  Arla - Star Map" + end +
                ", Arla - Horoscope" + end + "\n\n1 row of 1 written, 2 files\n");
}

TEST_F(BatchFiles, ThreeHundredRowsAreThoseOfTheSingleCommands) {
  std::mt19937 random(720);
  const auto below = [&random](unsigned limit) { return std::to_string(random() % limit); };
  std::string rows = "name,date,hour,local,place\n";
  std::map<std::string, std::vector<std::string>> commands;
  for (int i = 0; i < 300; ++i) {
    const std::string name = "Row " + std::to_string(i);
    const std::string month = std::to_string(random() % 12 + 1);
    const std::string day = std::to_string(random() % 30 + 1);
    const std::string year = std::to_string(random() % 3000 + 1);
    const std::string hour = below(24) + "." + below(100);
    const std::string latitude = below(89) + "." + below(100) + (random() % 2 == 0 ? "N" : "S");
    const std::string longitude = below(179) + "." + below(100) + (random() % 2 == 0 ? "E" : "W");
    const bool isLocal = random() % 2 == 0;
    rows += name + "," + year + "-" + month + "-" + day + "," + hour + "," +
            (isLocal ? "yes" : "no") + "," + latitude + " " + longitude + "\n";
    commands[name] = {"--year", year, "--month", month,    "--day",  day,
                      "--hour", hour, "--lat",   latitude, "--long", longitude};
    if (isLocal) {
      commands[name].emplace_back("--local");
    }
  }
  const Outcome outcome = batch(rows, {"--documents", "horoscope,moment"});
  expectAllWritten(outcome);
  EXPECT_TRUE(outcome.out.ends_with("\n300 rows of 300 written, 600 files\n"));
  ASSERT_EQ(written().size(), 600U);
  for (const std::string& file : written()) {
    std::vector<std::string> command = commands.at(file.substr(0, file.find(" - ")));
    command.emplace_back(has(file, " - Horoscope - ") ? "horoscope" : "moment");
    ASSERT_TRUE(fileContent(out + "/" + file) == runWith(command).out) << file;
  }
}

TEST_F(BatchFiles, EveryDocumentHasOneOfItsOwn) {
  std::string all;
  std::size_t count = 0;
  for (const Entry& entry : documents::allDocuments) {
    if (!entry.command.empty()) {
      all += (all.empty() ? "" : ",") + std::string(entry.command);
      ++count;
    }
  }
  expectAllWritten(
      batch("name,date,place\nArla,720-06-12,Ebb\n", {"--documents", all + "," + all}));
  EXPECT_EQ(written().size(), count);
  for (const std::string title :
       {"Sun & Moon Hourly", "Positions Yearly", "Planets", "Moment", "Star Map"}) {
    EXPECT_EQ(std::ranges::count_if(written(),
                                    [&title](const std::string& name) {
                                      return name.starts_with("Arla - " + title +
                                                              " - Ebb - 720-06-12 12-00.");
                                    }),
              1)
        << title;
  }
}

/// Without the one line that a PDF made a moment later has differently.
std::string withoutDate(const std::string& pdf) {
  const std::size_t from = pdf.find("/CreationDate");
  return from == std::string::npos ? pdf : pdf.substr(0, from) + pdf.substr(pdf.find('\n', from));
}

TEST_F(BatchFiles, AreDrawnAsTheSingleCommandsDraw) {
  std::string rows = "name,date,place\n";
  for (int i = 0; i < 8; ++i) {
    rows += "Row " + std::to_string(i) + ",72" + std::to_string(i) + "-06-12,Ebb\n";
  }
  expectAllWritten(batch(rows, {"--documents", "star-map,horoscope,hourly", "--format",
                                "pdf,png,html,csv,json", "--size", "300"}));
  ASSERT_EQ(written().size(), 8U * 12U);
  for (const std::string& file : written()) {
    const std::string command = has(file, "Star Map")    ? "star-map"
                                : has(file, "Horoscope") ? "horoscope"
                                                         : "hourly";
    const std::string form = file.substr(file.rfind('.') + 1);
    std::vector<std::string> single = {
        command, "--format", form,         "--year", "72" + file.substr(4, 1), "--month", "6",
        "--day", "12",       "--location", "Ebb"};
    if (form == "png") {
      single.insert(single.end(), {"--size", "300"});
    }
    ASSERT_TRUE(withoutDate(fileContent(out + "/" + file)) == withoutDate(runWith(single).out))
        << file;
  }
}

TEST_F(BatchFiles, HoroscopesMayBeBlackOnWhite) {
  expectAllWritten(batch("name,date,place\nArla,720-01-01,Ebb\n", {"--bw"}));
  const std::string end = " - Ebb - 720-01-01 12-00.svg";
  EXPECT_EQ(written(), (Names{"Arla - Horoscope" + end, "Arla - Star Map" + end}));
  EXPECT_EQ(fileContent(out + "/Arla - Horoscope" + end),
            runWith({"horoscope", "--bw", "--location", "Ebb"}).out);
}

TEST_F(BatchFiles, AreReplacedWhole) {
  const std::string rows = "name,date,place\nArla,720-01-01,Ebb\n";
  expectAllWritten(batch(rows));
  const Names before = written();
  ASSERT_EQ(before.size(), 1U);
  tests::writeFile(out + "/" + before.front(), "old");
  expectAllWritten(batch(rows));
  EXPECT_EQ(written(), before);
  EXPECT_EQ(fileContent(out + "/" + before.front()), runWith({"moment", "--location", "Ebb"}).out);
}

TEST_F(BatchFiles, HaveNamesForEveryFileSystem) {
  const std::string end = " - Moment - Ebb - 720-06-12 22-30.txt";
  const std::vector<std::pair<std::string, std::string>> names = {
      {"Arla", "Arla"},
      {"Ärla Þórsdóttir 北 مرفأ 🐟", "Ärla Þórsdóttir 北 مرفأ 🐟"},
      {"a/b\\\\c:d*e?f<g>h|i", "a-b--c-d-e-f-g-h-i"},
      {"\"\"Bold\"\"", "-Bold-"},
      {"..", "_.."},
      {".hidden", "_.hidden"},
      {"../../etc/passwd", "_..-..-etc-passwd"},
      {"a\tb\x01\x7F\xC2\x85 c\xE2\x80\xA8 d", "a-b--- c- d"},
      {"con", "_con"},
      {"NUL.txt", "_NUL.txt"},
      {"Com1", "_Com1"},
      {"lpt9 .x", "_lpt9 .x"},
      {"Conan", "Conan"},
      {"COM", "COM"},
      {"-rf", "-rf"},
  };
  for (const auto& [name, expected] : names) {
    EXPECT_EQ(nameOfOne(name), expected + end);
  }
}

TEST_F(BatchFiles, HaveNamesOfLengthsThatFileSystemsTake) {
  const std::string end = " - 720-06-12 22-30.txt";
  const std::string middle = " - Moment - ";
  for (const std::string& character :
       {std::string("x"), std::string("ä"), std::string("🐟"), std::string("e\xCC\x81")}) {
    std::string name;
    for (int i = 0; i < 300; ++i) {
      name += character;
    }
    const std::string file = nameOfOne(name);
    EXPECT_LE(file.size(), 255U);
    EXPECT_GT(file.size() + character.size(), 255U);
    EXPECT_TRUE(file.ends_with(middle + "Ebb" + end)) << file;
    const std::string kept = file.substr(0, file.find(middle));
    EXPECT_EQ(kept.size() % character.size(), 0U) << file;
  }
}

TEST_F(BatchFiles, KeepHalfOfALongNameAndHalfOfALongPlace) {
  const std::string place(200, 'p');
  fs::create_directories(scratch / "data/VeyrunaAstro");
  tests::writeFile(scratch / "data/VeyrunaAstro/locations.json",
                   R"([{"id":"0B8A2B6E-3C1D-4E5F-8A9B-0C1D2E3F4A5B","name":")" + place +
                       R"(","latitude":0.5,"longitude":-0.25}])");
  tests::writeFile(table, "name,date,place\n" + std::string(200, 'n') + ",720-06-12," + place +
                              "\nArla,720-06-12," + place + "\n");
  const Outcome outcome = tests::run({.arguments = argumentsWith({"--documents", "moment"}),
                                      .environment = {"XDG_DATA_HOME=" + scratch / "data"}});
  expectAllWritten(outcome);
  const std::string middle = " - Moment - ";
  const std::string end = " - 720-06-12 12-00.txt";
  const std::size_t room = 255 - middle.size() - end.size();
  EXPECT_EQ(written(),
            (Names{"Arla" + middle + place + end,
                   std::string(room - room / 2, 'n') + middle + std::string(room / 2, 'p') + end}));
}

TEST_F(BatchFiles, OfTwoRowsAreNeverOne) {
  const std::string rows =
      "name,date,hour,local,place\n"
      "Arla,720-06-12,20,no,Vossenfel\n"
      "Arla,720-06-12,20,yes,Vossenfel\n"
      "ARLA,720-06-12,20,no,Vossenfel\n"
      "Arla (2),720-06-12,20,no,Vossenfel\n"
      "Arla,720-06-12,20:00,no,vossenfel\n"
      "Arla,720-06-12,21,no,Vossenfel\n"
      "a/b,720-06-12,20,no,Vossenfel\n"
      "a:b,720-06-12,20,no,Vossenfel\n"
      "\xC3\xA4,720-06-12,20,no,Vossenfel\n"
      "A\xCC\x88,720-06-12,20,no,Vossenfel\n";
  const std::string end = " - Moment - Vossenfel - 720-06-12 20-00.txt";
  Names expected = {"Arla" + end,     "Arla (2)" + end,
                    "ARLA (3)" + end, "Arla (2) (2)" + end,
                    "Arla (4)" + end, "Arla - Moment - Vossenfel - 720-06-12 21-00.txt",
                    "a-b" + end,      "a-b (2)" + end,
                    "\xC3\xA4" + end, "A\xCC\x88 (2)" + end};
  std::ranges::sort(expected);
  const std::vector<std::string> noon =
      tests::words("moment --year 720 --month 6 --day 12 --hour 20 --location Vossenfel");
  std::vector<std::string> local = noon;
  local.emplace_back("--local");
  for (int run = 0; run < 5; ++run) {
    fs::remove_all(out);
    expectAllWritten(batch(rows));
    EXPECT_EQ(written(), expected);
    EXPECT_EQ(fileContent(out + "/Arla" + end), runWith(noon).out);
    EXPECT_EQ(fileContent(out + "/Arla (2)" + end), runWith(local).out);
  }
}

}  // namespace
}  // namespace veyruna
