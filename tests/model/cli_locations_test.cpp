// The command reads the same places and preferences as the program with windows, and writes
// neither.
#include <gtest/gtest.h>

#include "cli/program/command_line.h"
#include "model/locations_text.h"
#include "tests/cli/process.h"
#include "tests/model/disk.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using tests::bytesIn;
using tests::Outcome;
using tests::writeBytes;

const char* const firstPlaces =
    "Manual      40.50°N   20.90°W\n"
    "Dravenne    23.30°N   26.70°E\n"
    "Ebb         13.40°N    8.80°E\n"
    "Hestmoor    44.40°N   12.20°W\n"
    "Istene      27.40°N    3.30°E\n"
    "Kessa       21.00°N    5.10°E\n"
    "Morvay      37.70°N   16.40°W\n"
    "Paldrick    34.50°N   11.10°E\n"
    "Quarrelund  21.90°N   33.90°E\n"
    "Sarrow      31.00°N   16.30°W\n"
    "Solvane     32.10°N    4.70°W\n"
    "Ulmet       24.40°N   19.70°W\n"
    "Vossenfel   11.50°N   25.30°E\n"
    "Wendmark    40.50°N   20.90°W\n";

/// A person whose home is a folder of the test.
class CommandPlaces : public testing::Test {
 protected:
  CommandPlaces() {
    QDir().mkpath(home / u"data/VeyrunaAstro"_s);
    QDir().mkpath(home / u"config/VeyrunaAstro"_s);
  }

  [[nodiscard]] tests::Invocation invocation(const std::vector<std::string>& arguments) const {
    const std::string folder = home.path().toStdString();
    return {.arguments = arguments,
            .environment = {"HOME=" + folder, "XDG_DATA_HOME=" + folder + "/data",
                            "XDG_CONFIG_HOME=" + folder + "/config"}};
  }
  [[nodiscard]] Outcome run(const std::vector<std::string>& arguments) const {
    return tests::run(invocation(arguments));
  }
  void expectSame(const std::vector<std::string>& one,
                  const std::vector<std::string>& other) const {
    const Outcome outcome = run(one);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.out, run(other).out) << one.back();
  }
  void keepTwo() const {
    writeBytes(places, model::locationsText({{QUuid::createUuid(), u"Côte d'Ebb"_s, 0.5, -0.25},
                                             {QUuid::createUuid(), u"Ash"_s, -0.001, 2.0}}));
  }
  /// Every file below home with its bytes.
  [[nodiscard]] std::vector<std::pair<QString, QByteArray>> everything() const {
    std::vector<std::pair<QString, QByteArray>> all;
    for (const QString& name : {u"data"_s, u"config"_s}) {
      for (const QString& file : tests::Folder::namesIn(home / name + u"/VeyrunaAstro"_s)) {
        const QString path = home / name + u"/VeyrunaAstro/"_s + file;
        all.emplace_back(path, bytesIn(path));
      }
    }
    return all;
  }

  tests::Folder home;
  QString places = home / u"data/VeyrunaAstro/locations.json"_s;
  QString preferences = home / u"config/VeyrunaAstro/VeyrunaAstro.conf"_s;
};

TEST_F(CommandPlaces, WithoutAFileAreThoseOfAFirstStart) {
  EXPECT_EQ(run({"locations"}).out, firstPlaces);
  expectSame({"--location", "Vossenfel", "positions"},
             {"--lat", "11.5N", "--long", "25.3E", "positions"});
  EXPECT_TRUE(everything().empty());
}

TEST_F(CommandPlaces, NoFolderIsMade) {
  QDir(home / u"data"_s).removeRecursively();
  QDir(home / u"config"_s).removeRecursively();
  EXPECT_EQ(run({"locations"}).out, firstPlaces);
  EXPECT_EQ(run({"--location", "Ebb", "moment"}).status, 0);
  EXPECT_EQ(home.names(), QStringList());
}

TEST_F(CommandPlaces, AreThoseOfTheFileInOrder) {
  keepTwo();
  const auto before = everything();
  EXPECT_EQ(run({"locations"}).out,
            "Manual      40.50°N   20.90°W\n"
            "Ash          0.06°S  114.59°E\n"
            "Côte d'Ebb  28.65°N   14.32°W\n");
  EXPECT_EQ(everything(), before);
}

TEST_F(CommandPlaces, AnEmptyListIsEmpty) {
  writeBytes(places, "[]");
  EXPECT_EQ(run({"locations"}).out, "Manual  40.50°N   20.90°W\n");
}

TEST_F(CommandPlaces, AreFoundInAnyLetterCase) {
  keepTwo();
  const auto before = everything();
  const Outcome exact = run({"--location", "Côte d'Ebb", "--year", "3", "positions"});
  EXPECT_EQ(exact.status, 0) << exact.err;
  for (const char* const name : {"CÔTE D'EBB", "côte d'ebb", "  cÔTE D'Ebb "}) {
    EXPECT_EQ(run({"--location", name, "--year", "3", "positions"}).out, exact.out) << name;
  }
  EXPECT_NE(run({"--location", "ash", "--year", "3", "positions"}).out, exact.out);
  EXPECT_EQ(everything(), before);
}

TEST_F(CommandPlaces, AnUnknownNameListsTheKnownOnes) {
  keepTwo();
  for (const char* const name : {"Cote d'Ebb", "Wendmark", "As"}) {
    const Outcome outcome = run({"--location", name, "moment"});
    EXPECT_EQ(outcome.status, cli::usageWrong);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "veyruna: --location: \"" + std::string(name) +
                               "\" is not a saved place; known are Manual, Ash, Côte d'Ebb\n");
  }
}

TEST_F(CommandPlaces, ANameWithControlCharactersStaysOnItsLineInQuotes) {
  writeBytes(places,
             model::locationsText({{QUuid::createUuid(), u"Two\nlines"_s, 0.5, -0.25},
                                   {QUuid::createUuid(), u"\u001b[31m\"Red\""_s, 0.0, 2000.0},
                                   {QUuid::createUuid(), u"Say \"Ash\""_s, -0.001, 2.0}}));
  EXPECT_EQ(run({"locations"}).out,
            "Manual             40.50°N   20.90°W\n"
            "\"\\x1b[31m\\\"Red\\\"\"  not on the globe\n"
            "Say \"Ash\"           0.06°S  114.59°E\n"
            "\"Two\\x0alines\"     28.65°N   14.32°W\n");
  EXPECT_EQ(run({"--location", "Wendmark", "moment"}).err,
            "veyruna: --location: \"Wendmark\" is not a saved place; known are Manual, "
            "\"\\x1b[31m\\\"Red\\\"\", Say \"Ash\", \"Two\\x0alines\"\n");
}

TEST_F(CommandPlaces, ManualIsTheStoredManualFields) {
  writeBytes(preferences,
             "[General]\nAstronomyModel.latNorth=false\nAstronomyModel.longWest=0\n"
             "AstronomyModel.manualLatDeg=33.25\nAstronomyModel.manualLongDeg=179.5\n"
             "AstronomyModel.selectedCityID=0A1B2C3D-4E5F-6789-ABCD-EF0123456789\n");
  const auto before = everything();
  expectSame({"--location", "manual", "positions"},
             {"--lat", "33.25S", "--long", "179.5E", "positions"});
  EXPECT_TRUE(run({"locations"}).out.starts_with("Manual      33.25°S  179.50°E\n"));
  EXPECT_EQ(everything(), before);
}

TEST_F(CommandPlaces, ManualWithoutPreferencesIsTheFirstPlace) {
  expectSame({"--location", "MANUAL", "positions"},
             {"--lat", "40.5N", "--long", "20.9W", "positions"});
}

TEST_F(CommandPlaces, AFileThatIsNoListIsAnErrorAndStays) {
  for (const char* const bytes : {"garbage", "", "{}", "[{\"name\": \"Ebb\"}]"}) {
    writeBytes(places, bytes);
    const auto before = everything();
    for (const auto& arguments :
         std::vector<std::vector<std::string>>{{"locations"}, {"--location", "Ebb", "moment"}}) {
      const Outcome outcome = run(arguments);
      EXPECT_EQ(outcome.status, cli::writeFailed);
      EXPECT_EQ(outcome.out, "");
      EXPECT_EQ(outcome.err,
                "veyruna: cannot read the saved places in \"" + places.toStdString() + "\"\n");
    }
    EXPECT_EQ(everything(), before);
  }
  // A command that asks for no saved place is none the worse for it.
  EXPECT_EQ(run({"moment"}).status, 0);
}

/// What an administrator or another program of the house stored is not this person's.
TEST_F(CommandPlaces, OnlyThePersonsOwnPreferencesCount) {
  const QByteArray others = "[General]\nAstronomyModel.manualLatDeg=10\n";
  QDir().mkpath(home / u"system/VeyrunaAstro"_s);
  writeBytes(home / u"system/VeyrunaAstro/VeyrunaAstro.conf"_s, others);
  writeBytes(home / u"system/VeyrunaAstro.conf"_s, others);
  writeBytes(home / u"config/VeyrunaAstro.conf"_s, others);
  auto locations = invocation({"locations"});
  locations.environment.push_back("XDG_CONFIG_DIRS=" + home.path().toStdString() + "/system");
  EXPECT_EQ(tests::run(locations).out, firstPlaces);
}

/// "Manual" stands in the preferences, not in the list of places.
TEST_F(CommandPlaces, ManualNeedsNoList) {
  writeBytes(preferences, "[General]\nAstronomyModel.manualLatDeg=33.25\n");
  for (const char* const bytes : {"garbage", "", "{}"}) {
    writeBytes(places, bytes);
    for (const char* const name : {"Manual", " mANUAL "}) {
      expectSame({"--location", name, "positions"},
                 {"--lat", "33.25N", "--long", "20.9W", "positions"});
    }
    EXPECT_EQ(bytesIn(places), QByteArray(bytes));
  }
}

TEST_F(CommandPlaces, AFileThatMayNotBeReadIsAnErrorAndStays) {
  keepTwo();
  const QByteArray bytes = bytesIn(places);
  tests::setMode(places, 0);
  auto asNobody = invocation({"locations"});
  asNobody.asNobody = true;
  const Outcome outcome = tests::run(asNobody);
  EXPECT_EQ(outcome.status, cli::writeFailed);
  EXPECT_EQ(outcome.out, "");
  EXPECT_NE(outcome.err.find("cannot read"), std::string::npos);
  tests::setMode(places, 0600);
  EXPECT_EQ(bytesIn(places), bytes);
}

/// Whatever finite number a person writes into the files, the command ends in good order.
TEST_F(CommandPlaces, HugeNumbersAreRefusedOrListed) {
  writeBytes(preferences, "[General]\nAstronomyModel.manualLatDeg=1.7e308\n");
  const Outcome outcome = run({"--location", "Manual", "moment"});
  EXPECT_EQ(outcome.status, cli::usageWrong) << outcome.err;
  EXPECT_NE(outcome.err.find("globe"), std::string::npos);
  const Outcome manual = run({"locations"});
  EXPECT_EQ(manual.signal, 0) << manual.err;
  EXPECT_EQ(manual.status, 0) << manual.err;
  EXPECT_NE(manual.out.find("Wendmark    40.50°N"), std::string::npos);

  writeBytes(preferences, "");
  writeBytes(places, model::locationsText({{QUuid::createUuid(), u"Far"_s, 1.7e308, -1.7e308}}));
  EXPECT_EQ(run({"--location", "far", "moment"}).status, cli::usageWrong);
  const Outcome far = run({"locations"});
  EXPECT_EQ(far.signal, 0) << far.err;
  EXPECT_EQ(far.status, 0) << far.err;
}

}  // namespace
}  // namespace veyruna
