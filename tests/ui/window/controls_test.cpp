// What each control of the window changes in the model.
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QSlider>

#include "tests/ui/window/control_window.h"
#include "ui/map/map_location_picker_view.h"

namespace veyruna::ui {
namespace {

using exports::OutputTab;

struct Controls : tests::ControlWindow {};

const QString placeKey = QStringLiteral("AstronomyModel.selectedCityID");
const QString momentKey = QStringLiteral("AstronomyModel.monthIndex");

TEST_F(Controls, TheLocationPickerSelectsAPlace) {
  choose("locationPicker", QStringLiteral("Ebb"));
  EXPECT_EQ(find<QLabel>("coordinates")->text(), QStringLiteral("13.40° N   8.80° E"));
  EXPECT_TRUE(stored().contains(placeKey));
  EXPECT_TRUE(isIdle());
}

TEST_F(Controls, TheManualFieldsAndLettersSetTheManualPlace) {
  type("latitudeField", QStringLiteral("12"));
  QTest::keyClick(find<QWidget>("latitudeField"), Qt::Key_Return);
  EXPECT_EQ(model.manualLatDeg(), 12.0);
  type("longitudeField", QStringLiteral("7"));
  QTest::keyClick(find<QWidget>("longitudeField"), Qt::Key_Tab);
  EXPECT_EQ(model.manualLongDeg(), 7.0);
  press("northSouthS");
  press("eastWestE");
  EXPECT_FALSE(model.latNorth());
  EXPECT_FALSE(model.longWest());
  EXPECT_EQ(stored(), QStringList({placeKey, placeKey, placeKey, placeKey}));
  EXPECT_TRUE(isIdle());
}

TEST_F(Controls, EachLetterTurnsItsCoordinateItsWay) {
  for (int round = 0; round < 2; ++round) {
    press("eastWestE");
    EXPECT_FALSE(model.longWest());
    press("eastWestW");
    EXPECT_TRUE(model.longWest());
    press("northSouthS");
    EXPECT_FALSE(model.latNorth());
    press("northSouthN");
    EXPECT_TRUE(model.latNorth());
  }
}

TEST_F(Controls, ACoordinateThatIsRefusedOrGivenUpTurnsNothing) {
  for (const auto& [name, text] :
       {std::pair("latitudeField", "140.5S"), std::pair("latitudeField", "s140.5"),
        std::pair("latitudeField", "-140.5"), std::pair("longitudeField", "333e")}) {
    for (const Qt::Key end : {Qt::Key_Tab, Qt::Key_Escape}) {
      type(name, QString::fromLatin1(text));
      QTest::keyClick(find<QWidget>(name), end);
      EXPECT_TRUE(model.latNorth()) << text;
      EXPECT_TRUE(model.longWest()) << text;
    }
  }
  type("longitudeField", QStringLiteral("33e"));
  QTest::keyClick(find<QWidget>("longitudeField"), Qt::Key_Escape);
  EXPECT_EQ(find<QLineEdit>("longitudeField")->text(), QLocale().toString(20.9));
  EXPECT_TRUE(find<QAbstractButton>("northSouthN")->isChecked());
  EXPECT_TRUE(find<QAbstractButton>("eastWestW")->isChecked());
  EXPECT_TRUE(stored().isEmpty());
}

TEST_F(Controls, ACoordinateThatCountsTurnsItsWay) {
  type("latitudeField", QStringLiteral("12.5s"));
  QTest::keyClick(find<QWidget>("latitudeField"), Qt::Key_Tab);
  EXPECT_EQ(model.manualLatDeg(), 12.5);
  EXPECT_FALSE(model.latNorth());
  type("longitudeField", QStringLiteral("E33"));
  QTest::keyClick(&window, Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(model.manualLongDeg(), 33.0);
  EXPECT_FALSE(model.longWest());
  EXPECT_TRUE(model.isCalculating());
}

TEST_F(Controls, WhatOneCoordinateAcceptsIsNoLongerSaidWhenTheOtherIsTyped) {
  type("latitudeField", QStringLiteral("140"));
  QTest::keyClick(find<QWidget>("latitudeField"), Qt::Key_Tab);
  const QString note = find<QLabel>("locationNote")->text();
  EXPECT_TRUE(note.startsWith(QStringLiteral("Latitude 0 to 90; still 40")))
      << qUtf8Printable(note);
  type("longitudeField", QStringLiteral("33"));
  EXPECT_EQ(find<QLabel>("locationNote")->text(), QString());
}

TEST_F(Controls, TheDateControlsSetTheDate) {
  choose("monthPicker", QStringLiteral("Cendo"));
  stored();
  QTest::keyClick(find<QWidget>("dayStepper"), Qt::Key_Up);
  QTest::keyClick(find<QWidget>("yearStepper"), Qt::Key_Down);
  EXPECT_EQ(model.monthIndex(), 6);
  EXPECT_EQ(model.dayIndex(), 1);
  EXPECT_EQ(model.year(), 719);
  EXPECT_EQ(stored(), QStringList({momentKey, momentKey}));
  EXPECT_TRUE(isIdle());
}

TEST_F(Controls, TheTimeControlsSetTheTime) {
  auto* const slider = find<QSlider>("hourSlider");
  QTest::keyClick(slider, Qt::Key_End);
  EXPECT_EQ(model.hour(), 23.75);
  EXPECT_EQ(find<QLabel>("hourLabel")->text(), QStringLiteral("23:45"));
  press("earlierButton");
  EXPECT_EQ(model.hour(), 23.5);
  press("laterButton");
  EXPECT_EQ(model.hour(), 23.75);
  QTest::keyClick(find<QWidget>("localTime"), Qt::Key_Space);
  EXPECT_TRUE(model.useLocalTime());
  EXPECT_EQ(stored(), QStringList({momentKey, momentKey, momentKey, momentKey}));
  EXPECT_TRUE(isIdle());
}

TEST_F(Controls, PickFromMapShowsTheLocationTab) {
  press("mapButton");
  EXPECT_EQ(window.selectedTab(), OutputTab::location);
  EXPECT_TRUE(find<QAbstractButton>("tab6")->isChecked());
  EXPECT_TRUE(stored().isEmpty());
}

TEST_F(Controls, SavingAPlaceAddsAndSelectsIt) {
  press("saveButton");
  auto* const sheet = find<QDialog>("saveSheet");
  EXPECT_EQ(sheet->windowModality(), Qt::WindowModal);
  QTest::keyClicks(sheet->findChild<QLineEdit*>(QStringLiteral("nameField")),
                   QStringLiteral("Harbour"));
  QTest::keyClick(sheet, Qt::Key_Return);
  EXPECT_EQ(model.cities().size(), 15);
  EXPECT_EQ(find<QComboBox>("locationPicker")->currentText(), QStringLiteral("Harbour"));
  EXPECT_EQ(stored(), QStringList({placeKey}));
}

TEST_F(Controls, DeletingAPlaceFallsBackToManual) {
  model.setManualLatDeg(33.25);
  choose("locationPicker", QStringLiteral("Ebb"));
  press("deleteButton");
  QTest::keyClick(find<QDialog>("deleteSheet"), Qt::Key_Return);
  EXPECT_EQ(model.cities().size(), 13);
  EXPECT_EQ(find<QComboBox>("locationPicker")->currentText(), QStringLiteral("Manual"));
  EXPECT_EQ(model.manualLatDeg(), 33.25);
  EXPECT_TRUE(find<QWidget>("latitudeField")->isVisible());
}

TEST_F(Controls, ALetterTypedIntoACoordinateSwitchesItsSegment) {
  type("latitudeField", QStringLiteral("-12"));
  EXPECT_TRUE(model.latNorth()) << "nothing counts yet";
  type("longitudeField", QStringLiteral("34e"));
  EXPECT_EQ(model.manualLatDeg(), 12.0);
  EXPECT_FALSE(model.latNorth());
  EXPECT_TRUE(find<QAbstractButton>("northSouthS")->isChecked());
  EXPECT_EQ(find<QLineEdit>("latitudeField")->text(), QStringLiteral("12"));
  EXPECT_EQ(find<QLineEdit>("longitudeField")->text(), QStringLiteral("34e"))
      << "what is being typed stays";
  QTest::keyClick(find<QWidget>("longitudeField"), Qt::Key_Return);
  EXPECT_EQ(model.manualLongDeg(), 34.0);
  EXPECT_FALSE(model.longWest());
  EXPECT_TRUE(find<QAbstractButton>("eastWestE")->isChecked());
  QTest::keyClicks(find<QWidget>("longitudeField"), QStringLiteral("W"));
  EXPECT_TRUE(model.longWest()) << "by itself it is like the button";
  QTest::keyClicks(find<QWidget>("latitudeField"), QStringLiteral("n"));
  EXPECT_TRUE(model.latNorth());
}

TEST_F(Controls, AClickOnTheMapBecomesTheManualPlace) {
  choose("locationPicker", QStringLiteral("Ebb"));
  press("mapButton");
  auto* const picker = find<MapLocationPickerView>("locationTab");
  auto* const area = find<QWidget>("mapArea");
  tests::turnEventLoop();
  stored();
  const QPoint point(area->width() / 2, area->height() / 2);
  const auto place = placeAt(point, picker->mapLayout());
  ASSERT_TRUE(place);
  QTest::mouseClick(area, Qt::LeftButton, {}, point);
  EXPECT_EQ(window.selectedTab(), OutputTab::location);
  EXPECT_EQ(find<QComboBox>("locationPicker")->currentText(), QStringLiteral("Manual"));
  EXPECT_NEAR(model.manualLatDeg(), place->latitude * 180.0 / astro::pi, 0.0005);
  EXPECT_NEAR(model.manualLongDeg(), std::abs(place->longitude) * 180.0 / astro::pi, 0.0005);
  EXPECT_TRUE(model.latNorth());
  EXPECT_EQ(model.longWest(), place->longitude < 0.0);
  EXPECT_EQ(find<QLineEdit>("latitudeField")->text(),
            QLocale().toString(model.manualLatDeg(), 'g', 5));
  EXPECT_TRUE(stored().contains(placeKey));
  EXPECT_TRUE(isIdle());
}

TEST_F(Controls, ChoosingManualShowsTheFieldsWithTheirRememberedValues) {
  type("latitudeField", QStringLiteral("33"));
  choose("locationPicker", QStringLiteral("Ebb"));
  EXPECT_FALSE(find<QWidget>("latitudeField")->isVisible());
  EXPECT_TRUE(find<QWidget>("deleteButton")->isVisible());
  choose("locationPicker", QStringLiteral("Manual"));
  EXPECT_TRUE(find<QWidget>("latitudeField")->isVisible());
  EXPECT_EQ(find<QLineEdit>("latitudeField")->text(), QStringLiteral("33"));
}

}  // namespace
}  // namespace veyruna::ui
