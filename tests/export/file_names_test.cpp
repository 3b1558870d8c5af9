// The names files are first offered under.
#include "export/file_names.h"

#include <gtest/gtest.h>
#include <limits>

#include "tests/model/fakes.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using exports::inputPlaceText;
using exports::proposedFileName;
using tests::FakeModel;

/// A first start, moved to the example of 720-03-15 06:30, 45° N 12.5° W.
class FileNames : public testing::Test {
 protected:
  FileNames() {
    world.model.setManualLatDeg(45.0);
    world.model.setManualLongDeg(12.5);
    world.model.setMonthIndex(2);
    world.model.setDayIndex(14);
    world.model.setHour(6.5);
  }
  void selectPlaceCalled(const QString& name) {
    const auto added = world.model.addCity(name);
    ASSERT_TRUE(std::holds_alternative<QUuid>(added));
    world.model.setSelectedCityID(std::get<QUuid>(added));
  }
  [[nodiscard]] QString name() const {
    return proposedFileName(world.model, u"Sun & Moon", u"pdf");
  }

  FakeModel world;
};

TEST_F(FileNames, HoldPlaceAndMoment) {
  EXPECT_EQ(name(), u"Sun & Moon - 45.00°N 12.50°W - 720-03-15 06-30.pdf"_s);
}

TEST_F(FileNames, FollowTheInputsNotTheLastCalculation) {
  world.calculate();
  world.model.setYear(7);
  world.model.setDayIndex(0);
  EXPECT_EQ(name(), u"Sun & Moon - 45.00°N 12.50°W - 007-03-01 06-30.pdf"_s);
}

TEST_F(FileNames, CutMinutes) {
  world.model.setHour(23.999);
  EXPECT_EQ(name(), u"Sun & Moon - 45.00°N 12.50°W - 720-03-15 23-59.pdf"_s);
  world.model.setHour(0.0);
  EXPECT_TRUE(name().endsWith(u" 00-00.pdf"_s));
  world.model.setHour(12.3);  // 18 minutes less a rounding
  EXPECT_TRUE(name().endsWith(u" 12-18.pdf"_s) || name().endsWith(u" 12-17.pdf"_s));
  EXPECT_EQ(name().endsWith(u" 12-18.pdf"_s), static_cast<int>((12.3 - 12.0) * 60.0) == 18);
}

TEST_F(FileNames, TakeLettersFromTheFlagsAlone) {
  world.model.setManualLatDeg(0.0);
  world.model.setManualLongDeg(0.0);
  EXPECT_EQ(inputPlaceText(world.model, u"  "), u"0.00°N  0.00°W"_s);
  world.model.setLatNorth(false);
  world.model.setLongWest(false);
  EXPECT_EQ(inputPlaceText(world.model, u"  "), u"0.00°S  0.00°E"_s);
}

TEST_F(FileNames, RoundDegreesToTwoDecimals) {
  world.model.setManualLatDeg(40.123456);
  world.model.setManualLongDeg(179.996);
  EXPECT_EQ(inputPlaceText(world.model, u" "), u"40.12°N 180.00°W"_s);
}

TEST_F(FileNames, HoldTheNameOfASavedPlace) {
  selectPlaceCalled(u"Fish & <Chips> \"Quay\" 🐟 مرفأ"_s);
  EXPECT_EQ(name(), u"Sun & Moon - Fish & <Chips> \"Quay\" 🐟 مرفأ - 720-03-15 06-30.pdf"_s);
}

TEST_F(FileNames, CallAPlaceThatIsGoneManual) {
  world.model.setSelectedCityID(QUuid::createUuid());
  EXPECT_EQ(name(), u"Sun & Moon - Manual - 720-03-15 06-30.pdf"_s);
}

TEST_F(FileNames, HoldNoSeparatorsOrControlCharacters) {
  selectPlaceCalled(u"North/South\u0001\nEast\u007fWest\u0085\\:."_s);
  EXPECT_EQ(name(), u"Sun & Moon - North-South--East-West-\\:. - 720-03-15 06-30.pdf"_s);
  EXPECT_EQ(inputPlaceText(world.model, u" "), u"North/South\u0001\nEast\u007fWest\u0085\\:."_s);
}

TEST_F(FileNames, ShortenThePlaceToWhatAFileSystemTakes) {
  const QString end = u" - 720-03-15 06-30.pdf"_s;
  const qsizetype room = 255 - u"Sun & Moon - "_s.size() - end.size();
  selectPlaceCalled(QString(room, u'x'));
  EXPECT_EQ(name().size(), 255);
  selectPlaceCalled(QString(room + 1, u'x'));
  EXPECT_EQ(name(), u"Sun & Moon - "_s + QString(room, u'x') + end);
  selectPlaceCalled(QString(300, u'y'));
  EXPECT_EQ(name(), u"Sun & Moon - "_s + QString(room, u'y') + end);
}

/// Names of a character of so many bytes that is repeated until it is far too long.
class LongNames : public FileNames, public testing::WithParamInterface<QString> {};

TEST_P(LongNames, LoseWholeCharacters) {
  const QString character = GetParam();
  for (const QString& first : {u""_s, u"a"_s, u"ab"_s, u"abc"_s}) {
    selectPlaceCalled(first + character.repeated(300));
    const QString proposed = name();
    const qsizetype bytes = proposed.toUtf8().size();
    EXPECT_LE(bytes, 255);
    EXPECT_GT(bytes + character.toUtf8().size(), 255);
    QString place = proposed.mid(u"Sun & Moon - "_s.size() + first.size());
    place.chop(u" - 720-03-15 06-30.pdf"_s.size());
    EXPECT_EQ(place, character.repeated(place.size() / character.size()));
    EXPECT_EQ(QString::fromUtf8(proposed.toUtf8()), proposed);
    world.model.deleteCity(world.model.selectedCityID());
  }
}

INSTANTIATE_TEST_SUITE_P(Characters, LongNames,
                         testing::Values(u"é"_s, u"e\u0301"_s, u"語"_s, u"🌘"_s, u"م"_s,
                                         u"👩‍🚀"_s, u"🇳🇴"_s));

TEST_F(FileNames, TakeWhateverIsStored) {
  constexpr qint64 most = std::numeric_limits<qint64>::max();
  constexpr qint64 least = std::numeric_limits<qint64>::min();
  for (const qint64 whole : {most, most - 1, least, least + 1, qint64{-1}, qint64{0}}) {
    for (const double number :
         {1e308, -1e308, 9.3e18, -9.3e18, 1e-300, -1e-300, -0.25, -0.0,
          std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
      world.model.setYear(whole);
      world.model.setMonthIndex(whole);
      world.model.setDayIndex(whole);
      world.model.setHour(number);
      world.model.setManualLatDeg(number);
      world.model.setManualLongDeg(number);
      EXPECT_LE(name().toUtf8().size(), 255) << name().toStdString();
      EXPECT_TRUE(name().startsWith(u"Sun & Moon - "_s));
      EXPECT_TRUE(name().endsWith(u".pdf"_s));
    }
  }
}

TEST_F(FileNames, WriteUnusualInputsAsTheyAre) {
  world.model.setYear(-5);
  world.model.setMonthIndex(-1);
  world.model.setDayIndex(98);
  world.model.setHour(30.25);
  EXPECT_TRUE(name().endsWith(u" - -05-00-99 30-15.pdf"_s)) << name().toStdString();
  world.model.setHour(-0.25);
  EXPECT_TRUE(name().endsWith(u" - -05-00-99 00-45.pdf"_s)) << name().toStdString();
  world.model.setHour(1e308);
  EXPECT_TRUE(name().endsWith(u" 9000000000000000000-00.pdf"_s)) << name().toStdString();
  world.model.setMonthIndex(std::numeric_limits<qint64>::max());
  EXPECT_TRUE(name().contains(u"-05-9223372036854775807-99 "_s)) << name().toStdString();
}

}  // namespace
}  // namespace veyruna
