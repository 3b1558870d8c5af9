// Every text of the window and its sheets is there.
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>

#include "tests/ui/window/control_window.h"
#include "ui/controls/program.h"

namespace veyruna::ui {
namespace {

using exports::OutputTab;

struct Texts : tests::ControlWindow {};

TEST_F(Texts, EveryTextOfTheWindowAndItsSheetsIsThere) {
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

TEST_F(Texts, WhatTellsSomethingCanBeMarkedAndCopied) {
  for (const char* const name :
       {"caption", "coordinates", "nextFullMoon", "nextNewMoon", "versionLabel", "buildLabel"}) {
    EXPECT_TRUE(find<QLabel>(name)->textInteractionFlags().testFlag(Qt::TextSelectableByMouse))
        << name;
  }
  const QList<QPlainTextEdit*> tables = window.findChildren<QPlainTextEdit*>();
  EXPECT_EQ(tables.size(), 4);
  for (const QPlainTextEdit* const table : tables) {
    EXPECT_TRUE(table->textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
  }
}

TEST_F(Texts, TheLineOfChangedInputsMakesTheSidebarNoWider) {
  calculate();
  const auto* const sidebar = find<QWidget>("sidebar");
  const int width = sidebar->minimumSizeHint().width();
  model.setHour(3.0);
  tests::turnEventLoop();
  EXPECT_FALSE(find<QLabel>("difference")->text().isEmpty());
  EXPECT_EQ(sidebar->minimumSizeHint().width(), width);
}

}  // namespace
}  // namespace veyruna::ui
