// What each control of the sidebar changes in the model, and what showing does not.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

#include "tests/model/fakes.h"
#include "ui/controls/angle_field.h"
#include "ui/controls/stepper_field.h"
#include "ui/sidebar/calculate_area.h"
#include "ui/sidebar/date_section.h"
#include "ui/sidebar/location_section.h"
#include "ui/sidebar/time_section.h"

namespace veyruna::ui {
namespace {

using model::manualCityID;
using tests::FakeModel;

template <class Control>
Control* in(QWidget& section, const char* name) {
  auto* const control = section.findChild<Control*>(QString::fromLatin1(name));
  EXPECT_NE(control, nullptr) << name;
  return control;
}

void choose(QComboBox* box, int index) {
  box->setCurrentIndex(index);
  Q_EMIT box->activated(index);
}

struct Sidebar : testing::Test, FakeModel {
  [[nodiscard]] std::size_t storings() const { return settings->groups.size(); }
};

TEST_F(Sidebar, ShowingStoredValuesOutsideTheRangesStoresNothing) {
  model.setYear(3000);
  model.setMonthIndex(14);
  model.setDayIndex(45);
  model.setHour(12.3);
  model.setManualLatDeg(140.123456);
  const std::size_t before = storings();
  DateSection date(model);
  TimeSection time(model);
  LocationSection location(model);
  for (QWidget* const section : {static_cast<QWidget*>(&date), static_cast<QWidget*>(&time),
                                 static_cast<QWidget*>(&location)}) {
    section->show();
    section->hide();
  }
  date.commit();
  location.commit();
  EXPECT_EQ(storings(), before);
  EXPECT_EQ(in<StepperField>(date, "yearStepper")->text(), QStringLiteral("3000"));
  EXPECT_EQ(in<StepperField>(date, "dayStepper")->text(), QStringLiteral("46"));
  EXPECT_EQ(in<QComboBox>(date, "monthPicker")->currentIndex(), -1);
  EXPECT_EQ(in<QLabel>(time, "hourLabel")->text(), QStringLiteral("12:18"));
  EXPECT_EQ(model.hour(), 12.3);
}

TEST_F(Sidebar, TheDateControlsSetTheDate) {
  DateSection date(model);
  choose(in<QComboBox>(date, "monthPicker"), 4);
  in<StepperField>(date, "dayStepper")->stepUp();
  in<StepperField>(date, "yearStepper")->stepDown();
  EXPECT_EQ(model.monthIndex(), 4);
  EXPECT_EQ(model.dayIndex(), 1);
  EXPECT_EQ(model.year(), 719);
  EXPECT_FALSE(model.isCalculating());
}

TEST_F(Sidebar, TheHourMovesByExactlyAQuarter) {
  TimeSection time(model);
  auto* const later = in<QToolButton>(time, "laterButton");
  model.setHour(12.3);
  later->click();
  EXPECT_EQ(model.hour(), 12.3 + 0.25);
  in<QSlider>(time, "hourSlider")->setValue(95);
  EXPECT_EQ(model.hour(), 23.75);
  EXPECT_FALSE(later->isEnabled());
  EXPECT_EQ(in<QLabel>(time, "hourLabel")->text(), QStringLiteral("23:45"));
  in<QToolButton>(time, "earlierButton")->click();
  EXPECT_EQ(model.hour(), 23.5);
}

TEST_F(Sidebar, TheSwitchSetsLocalTime) {
  TimeSection time(model);
  in<QCheckBox>(time, "localTime")->click();
  EXPECT_TRUE(model.useLocalTime());
}

TEST_F(Sidebar, TheManualFieldsSetTheManualPlace) {
  LocationSection location(model);
  auto* const latitude = in<AngleField>(location, "latitudeField");
  latitude->selectAll();
  QTest::keyClicks(latitude, QStringLiteral("12"));
  EXPECT_EQ(model.manualLatDeg(), 40.5);
  location.commit();
  EXPECT_EQ(model.manualLatDeg(), 12.0);
  in<QPushButton>(location, "northSouthS")->click();
  in<QPushButton>(location, "eastWestE")->click();
  EXPECT_FALSE(model.latNorth());
  EXPECT_FALSE(model.longWest());
}

TEST_F(Sidebar, ASavedPlaceHidesTheManualFieldsAndShowsItsCoordinates) {
  LocationSection location(model);
  location.show();
  auto* const picker = in<QComboBox>(location, "locationPicker");
  choose(picker, picker->findText(QStringLiteral("Wendmark")));
  EXPECT_EQ(in<QLabel>(location, "coordinates")->text(), QStringLiteral("40.50° N   20.90° W"));
  EXPECT_FALSE(in<AngleField>(location, "latitudeField")->isVisible());
  EXPECT_TRUE(in<QPushButton>(location, "deleteButton")->isVisible());
  choose(picker, 0);
  EXPECT_EQ(model.selectedCityID(), manualCityID());
  EXPECT_TRUE(in<AngleField>(location, "latitudeField")->isVisible());
}

TEST_F(Sidebar, APlaceThatIsGoneShowsAnEmptyPicker) {
  model.setSelectedCityID(QUuid::createUuid());
  LocationSection location(model);
  EXPECT_EQ(in<QComboBox>(location, "locationPicker")->currentIndex(), -1);
  EXPECT_EQ(in<QLabel>(location, "coordinates")->text(), QStringLiteral("0.00° N   0.00° E"));
}

TEST_F(Sidebar, TheColourButtonNamesTheModeAndIsThereForTheHoroscopeAlone) {
  LocationSection location(model);
  location.show();
  auto* const button = in<QPushButton>(location, "colorModeButton");
  EXPECT_FALSE(button->isVisible());
  location.showColorMode(true);
  EXPECT_TRUE(button->isVisible());
  EXPECT_EQ(button->text().remove(QLatin1Char('&')), QStringLiteral("Color"));
  button->click();
  EXPECT_TRUE(model.horoscopeBlackAndWhite());
  EXPECT_EQ(button->text(), QStringLiteral("&B&&W"));
}

TEST_F(Sidebar, ProgressShowsExactlyWhileItCalculates) {
  CalculateArea area(model);
  area.show();
  auto* const progress = in<QWidget>(area, "progress");
  const QSize size = area.sizeHint();
  EXPECT_FALSE(progress->isVisible());
  model.recalculate();
  EXPECT_TRUE(progress->isVisible());
  EXPECT_EQ(area.sizeHint(), size);
  tasks.runNext();
  tests::turnEventLoop();
  EXPECT_FALSE(progress->isVisible());
}

TEST_F(Sidebar, ALineSaysWhenInputsHaveMovedOn) {
  CalculateArea area(model);
  auto* const line = in<QLabel>(area, "difference");
  calculate();
  EXPECT_TRUE(line->text().isEmpty());
  model.setYear(721);
  EXPECT_FALSE(line->text().isEmpty());
  model.setYear(720);
  EXPECT_TRUE(line->text().isEmpty());
}

TEST_F(Sidebar, WhatCannotBeCalculatedIsSaidUnderTheButton) {
  CalculateArea area(model);
  area.show();
  auto* const error = in<QLabel>(area, "errorMessage");
  EXPECT_FALSE(error->isVisible());
  model.setHour(1e300);
  model.recalculate();
  EXPECT_TRUE(error->isVisible());
  EXPECT_EQ(error->text(), QStringLiteral("This moment is too far away to calculate."));
}

}  // namespace
}  // namespace veyruna::ui
