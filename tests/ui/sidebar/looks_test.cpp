// What can be seen of the sidebar on a light and on a dark desktop.
#include "tests/ui/looks.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <algorithm>
#include <array>
#include <map>

#include "tests/support/patience.h"
#include "tests/ui/shown_window.h"

namespace veyruna::ui {
namespace {

struct Looks : testing::TestWithParam<bool> {
  const tests::Look look{GetParam() ? tests::darkPalette() : tests::lightPalette()};
  tests::ShownWindow shown;

  static QImage pictureOf(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
  }

  /// How many pixels differ so that it can be seen.
  static int visibleDifferences(const QImage& a, const QImage& b) {
    EXPECT_EQ(a.size(), b.size());
    int differing = 0;
    for (int y = 0; y < a.height(); ++y) {
      for (int x = 0; x < a.width(); ++x) {
        differing += tests::contrast(a.pixelColor(x, y), b.pixelColor(x, y)) > 1.5 ? 1 : 0;
      }
    }
    return differing;
  }

  /// The colour of most of the picture's pixels.
  static QColor groundOf(const QImage& picture) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        ++counts[picture.pixel(x, y)];
      }
    }
    return QColor(std::max_element(counts.begin(), counts.end(), [](const auto& a, const auto& b) {
                    return a.second < b.second;
                  })->first);
  }

  /// The best contrast of any pixel against this colour.
  static double bestContrast(const QImage& picture, const QColor& ground) {
    double best = 1.0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        best = std::max(best, tests::contrast(picture.pixelColor(x, y), ground));
      }
    }
    return best;
  }
};

INSTANTIATE_TEST_SUITE_P(Sidebar, Looks, testing::Bool(), [](const auto& look) {
  return std::string(look.param ? "Dark" : "Light");
});

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
    const QImage without = pictureOf(*control);
    // As it comes by key; a caret is no part of it.
    QTest::keyClick(&shown.window, Qt::Key_Tab);
    control->setFocus(Qt::TabFocusReason);
    if (auto* const line = qobject_cast<QLineEdit*>(control)) {
      line->deselect();
    }
    ASSERT_TRUE(control->hasFocus()) << name;
    EXPECT_GE(visibleDifferences(without, pictureOf(*control)), 20) << name;
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
    const QImage picture = pictureOf(*remove);
    // Every row's ground, since styles shade a button from top to bottom.
    for (int y = 5; y < picture.height() - 5; ++y) {
      const QColor ground = picture.pixelColor(6, y);
      EXPECT_GT(ground.red(), ground.green() + 80) << y;
      EXPECT_GT(ground.red(), ground.blue() + 80) << y;
      EXPECT_GE(tests::contrast(ground, Qt::white), 4.5) << y << ground.name().toStdString();
    }
    const QRect word = picture.rect().adjusted(8, 6, -8, -6);
    EXPECT_GE(bestContrast(picture.copy(word), groundOf(picture.copy(word))), 4.5);
  }
  const QColor other = groundOf(pictureOf(*cancel));
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
  const QImage with = pictureOf(*remove);
  sheet->findChild<QPushButton*>(QStringLiteral("cancelButton"))->setFocus();
  EXPECT_GE(visibleDifferences(with, pictureOf(*remove)), 20);
}

TEST_P(Looks, WhatIsRefusedHasARedEdgeAndAReadableLine) {
  for (const char* const name : {"latitudeField", "yearStepper"}) {
    shown.type(name, QStringLiteral("99999"));
    auto* const field = shown.find<QWidget>(name);
    const QImage picture = pictureOf(*field);
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
  auto* const note = shown.find<QLabel>("dateNote");
  const QImage line = pictureOf(*note);
  EXPECT_GE(bestContrast(line, groundOf(line)), 4.5);
  const QColor ink = note->palette().color(QPalette::WindowText);
  EXPECT_GE(tests::contrast(ink, QApplication::palette().color(QPalette::Window)), 4.5);
}

TEST_P(Looks, TheProgressStandsBesideTheWordAndIsSeen) {
  auto* const button = shown.find<QPushButton>("calculateButton");
  const QImage before = pictureOf(*button);
  shown.press("calculateButton");
  shown.find<QWidget>("calculateButton")->clearFocus();
  auto* const progress = shown.find<QWidget>("progress");
  ASSERT_TRUE(progress->isVisible());
  const double pixels = button->devicePixelRatioF();  // of the pictures
  const QRect place = progress->geometry();
  const auto inPixels = [pixels](const QRect& part) {
    return QRectF(QPointF(part.topLeft()) * pixels, QSizeF(part.size()) * pixels).toRect();
  };
  const QRect room = inPixels(place);
  const QImage during = pictureOf(*button);
  EXPECT_GE(visibleDifferences(before.copy(room), during.copy(room)), 10);
  // Beside the word: nothing of the button's own was drawn there, and the word ends close by.
  const QColor ground = before.pixelColor(room.center());
  EXPECT_LT(bestContrast(before.copy(room), ground), 1.3) << "over the word";
  const QRect close = inPixels({place.left() - 12, place.top(), 12, place.height()});
  EXPECT_GT(bestContrast(before.copy(close), ground), 3.0) << "far from the word";
  EXPECT_LE(place.height(), button->fontMetrics().height());
  EXPECT_TRUE(button->rect().contains(place));
}

TEST_P(Looks, EveryTextOfTheSidebarCanBeRead) {
  const auto* const sidebar = shown.find<QScrollArea>("sidebar");
  int texts = 0;
  for (QLabel* const label : sidebar->findChildren<QLabel*>()) {
    if (label->isVisible() && !label->text().isEmpty()) {
      const QImage picture = pictureOf(*label);
      EXPECT_GE(bestContrast(picture, groundOf(picture)), 4.5) << label->text().toStdString();
      ++texts;
    }
  }
  EXPECT_GT(texts, 10);
}

}  // namespace
}  // namespace veyruna::ui
