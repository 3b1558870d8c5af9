// What can be seen of the sidebar on a light and on a dark desktop.
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QtMath>
#include <algorithm>
#include <array>

#include "tests/support/patience.h"
#include "tests/ui/light_and_dark.h"
#include "ui/controls/highlighted_buttons.h"

namespace veyruna::ui {
namespace {

struct Looks : tests::LightAndDark {};

INSTANTIATE_TEST_SUITE_P(Sidebar, Looks, testing::Bool(), tests::lightOrDark);

TEST_P(Looks, TheFocusCanBeSeenOnEveryControl) {
  shown.model.setHour(11.5);
  shown.window.selectTab(exports::OutputTab::horoscope);
  QList<const char*> names = {"locationPicker",
                              "latitudeField",
                              "longitudeField",
                              "northSouthN",
                              "northSouthS",
                              "eastWestE",
                              "saveButton",
                              "mapButton",
                              "colorModeButton",
                              "monthPicker",
                              "dayStepper",
                              "yearStepper",
                              "hourSlider",
                              "earlierButton",
                              "laterButton",
                              "localTime",
                              "calculateButton",
                              "nativeExportButton",
                              "pdfButton",
                              "tab1",
                              "tab2"};
  for (const char* const name : names) {
    auto* const control = shown.find<QWidget>(name);
    control->clearFocus();
    const QImage without = tests::pictureOf(*control);
    // As it comes by key; a caret is no part of it.
    QTest::keyClick(&shown.window, Qt::Key_Tab);
    control->setFocus(Qt::TabFocusReason);
    if (auto* const line = qobject_cast<QLineEdit*>(control)) {
      line->deselect();
    }
    ASSERT_TRUE(control->hasFocus()) << name;
    EXPECT_GE(tests::visibleDifferences(without, tests::pictureOf(*control)), 20) << name;
  }
}

TEST_P(Looks, TheDestructiveButtonIsRedAndReadable) {
  shown.model.setSelectedCityID(shown.model.cities().at(3).id);
  shown.press("deleteButton");
  auto* const sheet = shown.find<QDialog>("deleteSheet");
  auto* const remove = sheet->findChild<QPushButton*>(QStringLiteral("confirmButton"));
  auto* const cancel = sheet->findChild<QPushButton*>(QStringLiteral("cancelButton"));
  for (QPushButton* const focused : {cancel, remove}) {
    focused->setFocus();
    const QImage picture = tests::pictureOf(*remove);
    // Every row's ground, since styles shade a button from top to bottom.
    for (int y = 5; y < picture.height() - 5; ++y) {
      const QColor ground = picture.pixelColor(6, y);
      EXPECT_GT(ground.red(), ground.green() + 80) << y;
      EXPECT_GT(ground.red(), ground.blue() + 80) << y;
      EXPECT_GE(tests::contrast(ground, Qt::white), 4.5) << y << ground.name().toStdString();
    }
    const QRect word = picture.rect().adjusted(8, 6, -8, -6);
    EXPECT_GE(tests::bestContrast(picture.copy(word), tests::groundOf(picture.copy(word))), 4.5);
  }
  const QColor other = tests::groundOf(tests::pictureOf(*cancel));
  EXPECT_LT(std::abs(other.red() - other.green()), 30) << "the other button is not";
}

TEST_P(Looks, TheDestructiveButtonShowsItsFocus) {
  shown.model.setSelectedCityID(shown.model.cities().at(3).id);
  shown.press("deleteButton");
  auto* const sheet = shown.find<QDialog>("deleteSheet");
  ASSERT_TRUE(QTest::qWaitForWindowActive(sheet, tests::patienceMilliseconds));
  auto* const remove = sheet->findChild<QPushButton*>(QStringLiteral("confirmButton"));
  ASSERT_TRUE(QTest::qWaitFor([remove] { return remove->hasFocus(); }, tests::patienceMilliseconds))
      << "from the first";
  const QImage with = tests::pictureOf(*remove);
  sheet->findChild<QPushButton*>(QStringLiteral("cancelButton"))->setFocus();
  EXPECT_GE(tests::visibleDifferences(with, tests::pictureOf(*remove)), 20);
}

TEST_P(Looks, WhatIsRefusedHasARedEdgeAndAReadableLine) {
  for (const char* const name : {"latitudeField", "yearStepper"}) {
    shown.type(name, QStringLiteral("99999"));
    auto* const field = shown.find<QWidget>(name);
    const QImage picture = tests::pictureOf(*field);
    const auto redness = [&picture](QPoint point) {
      const QColor color = picture.pixelColor(point);
      return color.red() - std::max(color.green(), color.blue());
    };
    // On each side, within the first three pixels.
    const QPoint middle(picture.width() / 2, picture.height() / 2);
    const QPoint last(picture.width() - 1, picture.height() - 1);
    std::array<int, 4> reddest{};
    for (int in = 0; in < 3; ++in) {
      reddest[0] = std::max(reddest[0], redness({in, middle.y()}));
      reddest[1] = std::max(reddest[1], redness({last.x() - in, middle.y()}));
      reddest[2] = std::max(reddest[2], redness({middle.x(), in}));
      reddest[3] = std::max(reddest[3], redness({middle.x(), last.y() - in}));
    }
    EXPECT_GT(*std::min_element(reddest.begin(), reddest.end()), 60) << name;
  }
  for (const char* const name : {"locationNote", "dateNote"}) {
    const QImage line = tests::pictureOf(*shown.find<QLabel>(name));
    EXPECT_GE(tests::bestContrast(line, tests::groundOf(line)), 4.5) << name;
  }
  const auto* const note = shown.find<QLabel>("dateNote");
  const QColor ink = note->palette().color(QPalette::WindowText);
  EXPECT_GE(tests::contrast(ink, QApplication::palette().color(QPalette::Window)), 4.5);
}

TEST_P(Looks, WhatGoesWrongIsSaidReadably) {
  const auto canBeRead = [this](const char* name) {
    auto* const label = shown.find<QLabel>(name);
    EXPECT_TRUE(label->isVisible() && !label->text().isEmpty()) << name;
    const QImage line = tests::pictureOf(*label);
    EXPECT_GE(tests::bestContrast(line, tests::groundOf(line)), 4.5) << name;
  };
  shown.calculate();
  shown.model.setYear(5'000'000'000);
  canBeRead("difference");
  shown.press("calculateButton");
  canBeRead("errorMessage");
  auto* const slider = shown.find<QWidget>("hourSlider");
  slider->setFocus();
  QTest::keyClicks(slider, QStringLiteral("7"));
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("7"));
  canBeRead("timeNote");
  shown.press("saveButton");
  QTest::keyClick(shown.find<QLineEdit>("nameField"), Qt::Key_Return);
  canBeRead("saveError");
}

TEST_P(Looks, EveryChosenTabAndSegmentCanBeRead) {
  const QColor text = QApplication::palette().color(QPalette::HighlightedText);
  int chosen = 0;
  for (QAbstractButton* const button : shown.window.findChildren<QAbstractButton*>()) {
    const bool isOneOfAChoice = dynamic_cast<TabButton*>(button) != nullptr ||
                                dynamic_cast<SegmentButton*>(button) != nullptr;
    if (!isOneOfAChoice || !button->isVisible() || !button->isChecked()) {
      continue;
    }
    ++chosen;
    const QImage picture = tests::pictureOf(*button);
    // Every row's ground within the frame, since styles shade a button from top to bottom.
    const int frame = qCeil(4.0 * picture.devicePixelRatio());
    for (int y = frame; y < picture.height() - frame; ++y) {
      const QColor ground = picture.pixelColor(picture.width() - frame, y);
      EXPECT_GE(tests::contrast(ground, text), 4.5)
          << button->text().toStdString() << ' ' << y << ' ' << ground.name().toStdString();
    }
    EXPECT_GE(tests::bestContrast(picture, tests::groundOf(picture)), 4.5);
  }
  EXPECT_GE(chosen, 3);
}

TEST_P(Looks, EveryLabelStandsBesideItsField) {
  int labels = 0;
  for (const QLabel* const label : shown.find<QScrollArea>("sidebar")->findChildren<QLabel*>()) {
    const QWidget* const field = label->buddy();
    if (field != nullptr && field->isVisible()) {
      const QPoint middle = label->mapTo(&shown.window, label->rect().center());
      const QRect room(field->mapTo(&shown.window, QPoint()), field->size());
      EXPECT_LT(std::abs(middle.y() - room.center().y()), room.height() / 2)
          << label->text().toStdString();
      EXPECT_LT(middle.x(), room.left()) << label->text().toStdString();
      ++labels;
    }
  }
  EXPECT_GT(labels, 5);
}

TEST_P(Looks, EveryTextOfTheSidebarCanBeRead) {
  const auto* const sidebar = shown.find<QScrollArea>("sidebar");
  int texts = 0;
  for (QLabel* const label : sidebar->findChildren<QLabel*>()) {
    if (label->isVisible() && !label->text().isEmpty()) {
      const QImage picture = tests::pictureOf(*label);
      EXPECT_GE(tests::bestContrast(picture, tests::groundOf(picture)), 4.5)
          << label->text().toStdString();
      ++texts;
    }
  }
  EXPECT_GT(texts, 10);
}

}  // namespace
}  // namespace veyruna::ui
