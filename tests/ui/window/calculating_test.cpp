// Nothing but Calculate calculates, and it takes over what is being typed.
#include <QDialog>
#include <QLabel>

#include "tests/ui/window/control_window.h"

namespace veyruna::ui {
namespace {

using exports::OutputTab;

struct Calculating : tests::ControlWindow {};

TEST_F(Calculating, CalculateCalculatesOnceHoweverOftenItIsPressed) {
  press("calculateButton");
  press("calculateButton");
  EXPECT_EQ(tasks.count(), 1);
  EXPECT_TRUE(find<QWidget>("progress")->isVisible());
  tasks.runNext();
  tests::turnEventLoop();
  EXPECT_FALSE(find<QWidget>("progress")->isVisible());
  EXPECT_FALSE(model.basicTableHourly().isEmpty());
}

TEST_F(Calculating, TheColourButtonRedrawsTheHoroscopeAlone) {
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

TEST_F(Calculating, TheTabSelectorChangesNoInput) {
  for (const char* const tab : {"tab2", "tab3", "tab4", "tab5", "tab6", "tab1"}) {
    press(tab);
  }
  EXPECT_EQ(window.selectedTab(), OutputTab::starMap);
  EXPECT_TRUE(stored().isEmpty());
  EXPECT_TRUE(isIdle());
}

TEST_F(Calculating, ChangingInputsLeavesTheOutputsUntilCalculateIsPressed) {
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

TEST_F(Calculating, WhatIsBeingTypedCountsBeforeWhatIsPressed) {
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
  find<QDialog>("saveDialog")->reject();
  choose("locationPicker", QStringLiteral("Ebb"));
  type("yearStepper", QStringLiteral("902"));
  press("deleteButton");
  EXPECT_EQ(model.year(), 902);
}

TEST_F(Calculating, NoInputChangesAnOutput) {
  calculate();
  const auto outputs = [this] {
    return QStringList({model.starMapSVG(), model.horoscopeSVG(), model.basicTableHourly(),
                        model.basicTableMonthly(), model.conjunctionDaily(),
                        model.conjunctionYearly(), model.dateLabel(), model.nextFullMoonLabel(),
                        model.nextNewMoonLabel()});
  };
  const QStringList before = outputs();
  type("latitudeField", QStringLiteral("3"));
  press("northSouthS");
  type("longitudeField", QStringLiteral("4"));
  press("eastWestE");
  choose("monthPicker", QStringLiteral("Cendo"));
  QTest::keyClick(find<QWidget>("dayStepper"), Qt::Key_Up);
  QTest::keyClick(find<QWidget>("yearStepper"), Qt::Key_Up);
  press("laterButton");
  press("localTime");
  choose("locationPicker", QStringLiteral("Ebb"));
  EXPECT_TRUE(isIdle());
  EXPECT_EQ(outputs(), before);
}

}  // namespace
}  // namespace veyruna::ui
