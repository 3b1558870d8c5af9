// What each control of the window changes in the model, and that nothing but Calculate calculates.
#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>

#include "tests/support/patience.h"
#include "tests/ui/shown_window.h"
#include "ui/controls/program.h"
#include "ui/map/map_location_picker_view.h"

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

/// The name of what has the focus; the window must have it back from its sheet.
QString focused() {
  EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; },
                              tests::patienceMilliseconds));
  const QWidget* const widget = QApplication::focusWidget();
  return widget == nullptr ? QString() : widget->objectName();
}

TEST_F(Controls, AfterAPlaceWasSavedTheFocusIsOnThePicker) {
  find<QWidget>("saveButton")->setFocus();
  QTest::keyClick(find<QWidget>("saveButton"), Qt::Key_Space);
  QTest::keyClicks(find<QLineEdit>("nameField"), QStringLiteral("Harbour"));
  QTest::keyClick(find<QLineEdit>("nameField"), Qt::Key_Return);
  comeBack();
  EXPECT_EQ(focused(), QStringLiteral("locationPicker"));
  // A hasty second Return or Space deletes nothing.
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(window.findChild<QDialog*>(QStringLiteral("deleteSheet")), nullptr);
  EXPECT_EQ(model.cities().size(), 15);
}

TEST_F(Controls, AfterAPlaceWasDeletedTheFocusIsOnThePicker) {
  model.setSelectedCityID(model.cities().at(2).id);
  find<QWidget>("deleteButton")->setFocus();
  QTest::keyClick(find<QWidget>("deleteButton"), Qt::Key_Space);
  QTest::keyClick(find<QDialog>("deleteSheet"), Qt::Key_Return);
  comeBack();
  EXPECT_EQ(focused(), QStringLiteral("locationPicker"));
}

TEST_F(Controls, AfterASheetThatWasCancelledTheFocusIsWhereItWas) {
  find<QWidget>("saveButton")->setFocus();
  QTest::keyClick(find<QWidget>("saveButton"), Qt::Key_Space);
  QTest::keyClick(find<QDialog>("saveSheet"), Qt::Key_Escape);
  comeBack();
  EXPECT_EQ(focused(), QStringLiteral("saveButton"));
}

TEST_F(Controls, ALetterTypedIntoACoordinateSwitchesItsSegment) {
  type("latitudeField", QStringLiteral("-12"));
  EXPECT_FALSE(model.latNorth());
  EXPECT_TRUE(find<QAbstractButton>("northSouthS")->isChecked());
  EXPECT_EQ(find<QLineEdit>("latitudeField")->text(), QStringLiteral("12"));
  type("longitudeField", QStringLiteral("34e"));
  EXPECT_EQ(model.manualLatDeg(), 12.0);
  EXPECT_FALSE(model.longWest());
  EXPECT_TRUE(find<QAbstractButton>("eastWestE")->isChecked());
  EXPECT_EQ(find<QLineEdit>("longitudeField")->text(), QStringLiteral("34"))
      << "what is being typed stays";
  QTest::keyClicks(find<QWidget>("longitudeField"), QStringLiteral("W"));
  EXPECT_TRUE(model.longWest());
  QTest::keyClick(find<QWidget>("longitudeField"), Qt::Key_Return);
  EXPECT_EQ(model.manualLongDeg(), 34.0);
  QTest::keyClicks(find<QWidget>("latitudeField"), QStringLiteral("n"));
  EXPECT_TRUE(model.latNorth());
}

TEST_F(Controls, TheColourButtonThatGoesHandsItsFocusToTheMapButton) {
  press("tab2");
  find<QWidget>("colorModeButton")->setFocus();
  QTest::keyClick(&window, Qt::Key_1, Qt::ControlModifier);
  EXPECT_EQ(focused(), QStringLiteral("mapButton"));
}

TEST_F(Controls, EveryInputHasAKeyOfItsOwn) {
  for (const auto& [letter, name] :
       {std::pair(Qt::Key_L, "locationPicker"), std::pair(Qt::Key_A, "latitudeField"),
        std::pair(Qt::Key_N, "longitudeField"), std::pair(Qt::Key_M, "monthPicker"),
        std::pair(Qt::Key_Y, "dayStepper"), std::pair(Qt::Key_R, "yearStepper"),
        std::pair(Qt::Key_U, "hourSlider"), std::pair(Qt::Key_E, "laterButton")}) {
    QTest::keyClick(&window, letter, Qt::AltModifier);
    EXPECT_EQ(focused(), QString::fromLatin1(name));
  }
  // What is typed then replaces what stands there.
  QTest::keyClick(&window, Qt::Key_Y, Qt::AltModifier);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("17"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(model.dayIndex(), 16);
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
  find<QDialog>("saveDialog")->reject();
  choose("locationPicker", QStringLiteral("Ebb"));
  type("yearStepper", QStringLiteral("902"));
  press("deleteButton");
  EXPECT_EQ(model.year(), 902);
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

TEST_F(Controls, EveryTextOfTheWindowAndItsSheetsIsThere) {
  window.selectTab(OutputTab::horoscope);
  QStringList texts;
  const auto read = [&texts](const QWidget& widgets) {
    for (const auto* const button : widgets.findChildren<QAbstractButton*>()) {
      texts.append(button->text());
    }
    for (const auto* const label : widgets.findChildren<QLabel*>()) {
      texts.append(label->text());
    }
    for (const auto* const group : widgets.findChildren<QGroupBox*>()) {
      texts.append(group->title());
    }
  };
  read(window);
  press("saveButton");
  read(*find<QDialog>("saveSheet"));
  find<QDialog>("saveSheet")->reject();
  model.setSelectedCityID(model.cities().at(1).id);
  press("deleteButton");
  read(*find<QDialog>("deleteSheet"));
  for (QString& text : texts) {
    text.replace(QStringLiteral("&&"), QStringLiteral("+")).remove(QLatin1Char('&'));
  }
  for (const char* const text : {"Star Map",
                                 "Horoscope",
                                 "Thessil System",
                                 "Sun + Moon",
                                 "Positions",
                                 "Location",
                                 "Latitude",
                                 "Longitude",
                                 "N",
                                 "S",
                                 "E",
                                 "W",
                                 "Save Location…",
                                 "Pick from map…",
                                 "Delete",
                                 "Color",
                                 "Date",
                                 "Month",
                                 "Day",
                                 "Year",
                                 "Time",
                                 "Hour",
                                 "Step (15 min)",
                                 "Use local time",
                                 "Calculate",
                                 "Export options",
                                 "SVG",
                                 "PDF",
                                 "Hourly",
                                 "Monthly",
                                 "Daily",
                                 "Yearly",
                                 "Next full moon:",
                                 "Next new moon:",
                                 "Reset",
                                 "Click to pick · ⌥-scroll to zoom · drag to pan",
                                 "Name",
                                 "Cancel",
                                 "Save"}) {
    EXPECT_TRUE(texts.contains(QString::fromUtf8(text))) << text;
  }
  EXPECT_EQ(find<QLabel>("versionLabel")->text(), QStringLiteral("Version ") + programVersion());
  EXPECT_EQ(find<QLabel>("buildLabel")->text(), QStringLiteral("Build ") + programBuild());
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

TEST_F(Controls, NoInputChangesAnOutput) {
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

TEST_F(Controls, AWheelOverAControlScrollsTheSidebar) {
  window.resize(1000, 420);
  tests::turnEventLoop();
  auto* const sidebar = find<QScrollArea>("sidebar");
  find<QWidget>("calculateButton")->setFocus();
  sidebar->verticalScrollBar()->setValue(0);
  ASSERT_GT(sidebar->verticalScrollBar()->maximum(), 0);
  auto* const month = find<QWidget>("monthPicker");
  const QPointF here = month->mapTo(&window, QPointF(5, 5));
  QWheelEvent wheel(month->mapFrom(&window, here), window.mapToGlobal(here), QPoint(),
                    QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  wheel.ignore();
  // A wheel that is turned goes from the control up to whoever takes it.
  for (QWidget* widget = month; widget != sidebar && !wheel.isAccepted();
       widget = widget->parentWidget()) {
    wheel.ignore();
    QCoreApplication::sendEvent(widget, &wheel);
  }
  EXPECT_GT(sidebar->verticalScrollBar()->value(), 0);
  EXPECT_TRUE(stored().isEmpty());
}

TEST_F(Controls, AnEmptiedFieldGoesBackToWhatIsUsed) {
  auto* const latitude = find<QLineEdit>("latitudeField");
  latitude->setFocus();
  QTest::keyClick(latitude, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(latitude, Qt::Key_Delete);
  EXPECT_TRUE(latitude->text().isEmpty());
  find<QWidget>("yearStepper")->setFocus();
  EXPECT_EQ(latitude->text(), QLocale().toString(40.5));
  EXPECT_TRUE(stored().isEmpty());
}

TEST_F(Controls, APlaceThatIsGoneShowsAnEmptyPicker) {
  model.setSelectedCityID(QUuid::createUuid());
  EXPECT_EQ(find<QComboBox>("locationPicker")->currentIndex(), -1);
  EXPECT_EQ(find<QLabel>("coordinates")->text(), QStringLiteral("0.00° N   0.00° E"));
}

}  // namespace
}  // namespace veyruna::ui
