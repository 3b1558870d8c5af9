// What each control of the window changes in the model, and that nothing but Calculate calculates.
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

#include "tests/ui/shown_window.h"

namespace veyruna::ui {
namespace {

using exports::OutputTab;

struct Controls : testing::Test, tests::ShownWindow {
  /// The groups of preferences that were stored since the last call, by their first keys.
  QStringList stored() {
    QStringList keys;
    for (const auto& group : settings->groups) {
      keys.append(group.front().first);
    }
    settings->groups.clear();
    return keys;
  }
  /// Nothing is being calculated and nothing waits to be.
  [[nodiscard]] bool isIdle() const { return !model.isCalculating() && tasks.count() == 0; }
};

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

TEST_F(Controls, CalculateCalculatesOnceHoweverOftenItIsPressed) {
  press("calculateButton");
  press("calculateButton");
  EXPECT_EQ(tasks.count(), 1);
  EXPECT_TRUE(find<QWidget>("progress")->isVisible());
  tasks.runNext();
  tests::turnEventLoop();
  EXPECT_FALSE(find<QWidget>("progress")->isVisible());
  EXPECT_FALSE(model.basicTableHourly().isEmpty());
}

TEST_F(Controls, TheColourButtonRedrawsTheHoroscopeAlone) {
  calculate();
  EXPECT_FALSE(find<QWidget>("colorModeButton")->isVisible());
  press("tab2");
  const QString starMap = model.starMapSVG();
  const QString horoscope = model.horoscopeSVG();
  press("colorModeButton");
  EXPECT_TRUE(model.horoscopeBlackAndWhite());
  EXPECT_EQ(find<QAbstractButton>("colorModeButton")->text(), QStringLiteral("&B&&W"));
  while (tasks.count() > 0) {
    tasks.runNext();
  }
  tests::turnEventLoop();
  EXPECT_NE(model.horoscopeSVG(), horoscope);
  EXPECT_EQ(model.starMapSVG(), starMap);
  press("tab1");
  EXPECT_FALSE(find<QWidget>("colorModeButton")->isVisible());
}

TEST_F(Controls, TheTabSelectorChangesNoInput) {
  for (const char* const tab : {"tab2", "tab3", "tab4", "tab5", "tab6", "tab1"}) {
    press(tab);
  }
  EXPECT_EQ(window.selectedTab(), OutputTab::starMap);
  EXPECT_TRUE(stored().isEmpty());
  EXPECT_TRUE(isIdle());
}

TEST_F(Controls, ChangingInputsLeavesTheOutputsUntilCalculateIsPressed) {
  calculate();
  const QString table = model.basicTableHourly();
  type("yearStepper", QStringLiteral("Year 900"));
  press("tab4");
  EXPECT_EQ(model.year(), 900);
  EXPECT_EQ(model.basicTableHourly(), table);
  EXPECT_FALSE(find<QLabel>("difference")->text().isEmpty());
  press("calculateButton");
  tasks.runNext();
  tests::turnEventLoop();
  EXPECT_NE(model.basicTableHourly(), table);
  EXPECT_TRUE(find<QLabel>("difference")->text().isEmpty());
}

TEST_F(Controls, WhatIsBeingTypedCountsBeforeWhatIsPressed) {
  type("yearStepper", QStringLiteral("900"));
  EXPECT_EQ(model.year(), 720);
  QTest::keyClick(&window, Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(model.year(), 900);
  EXPECT_TRUE(model.isCalculating());
  type("latitudeField", QStringLiteral("3"));
  QTest::keyClick(&window, Qt::Key_5, Qt::ControlModifier);
  EXPECT_EQ(model.manualLatDeg(), 3.0);
  type("dayStepper", QStringLiteral("30"));
  press("saveButton");
  EXPECT_EQ(model.dayIndex(), 29);
  find<QDialog>("saveSheet")->reject();
  type("yearStepper", QStringLiteral("901"));
  press("pdfButton");
  EXPECT_EQ(model.year(), 901);
}

TEST_F(Controls, StoredValuesOutsideTheirRangesAreShownAndStayStored) {
  model.setYear(3000);
  model.setDayIndex(45);
  model.setHour(12.3);
  model.setManualLatDeg(40.123456);
  stored();
  for (const char* const tab : {"tab2", "tab6", "tab1"}) {
    press(tab);
  }
  find<QWidget>("hourSlider")->setFocus();
  find<QWidget>("latitudeField")->setFocus();
  find<QWidget>("yearStepper")->setFocus();
  press("calculateButton");
  EXPECT_TRUE(stored().isEmpty());
  EXPECT_EQ(model.year(), 3000);
  EXPECT_EQ(model.hour(), 12.3);
  EXPECT_EQ(model.manualLatDeg(), 40.123456);
  tasks.runNext();
  tests::turnEventLoop();
  EXPECT_TRUE(model.dateLabel().startsWith(QStringLiteral("3000-02-16 12:18")))
      << model.dateLabel().toStdString();
}

TEST_F(Controls, AWheelOverAControlWithoutFocusChangesNothing) {
  find<QWidget>("calculateButton")->setFocus();
  for (const char* const name :
       {"locationPicker", "monthPicker", "dayStepper", "yearStepper", "hourSlider"}) {
    auto* const control = find<QWidget>(name);
    QWheelEvent wheel(QPointF(5, 5), control->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(control, &wheel);
    EXPECT_FALSE(control->hasFocus());
  }
  EXPECT_TRUE(stored().isEmpty());
}

TEST_F(Controls, APlaceThatIsGoneShowsAnEmptyPicker) {
  model.setSelectedCityID(QUuid::createUuid());
  EXPECT_EQ(find<QComboBox>("locationPicker")->currentIndex(), -1);
  EXPECT_EQ(find<QLabel>("coordinates")->text(), QStringLiteral("0.00° N   0.00° E"));
}

}  // namespace
}  // namespace veyruna::ui
