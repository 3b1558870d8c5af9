// The sidebar and what is painted by hand in it, pixel by pixel.
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QTimer>

#include "tests/ui/golden/looking_window.h"
#include "tests/ui/light_and_dark.h"

namespace veyruna::ui {
namespace {

struct SidebarLook : tests::LookingWindow {
  QWidget& sidebar() { return *shown.find<QScrollArea>("sidebar"); }
};

INSTANTIATE_TEST_SUITE_P(Desktop, SidebarLook, testing::Bool(), tests::lightOrDark);

TEST_P(SidebarLook, WithAManualPlace) {
  compare(pictureOf(sidebar()), "sidebar");
}

TEST_P(SidebarLook, WhereSomethingIsRefused) {
  shown.model.setYear(5'000'000'000);
  shown.model.recalculate();
  shown.model.setHoroscopeBlackAndWhite(true);
  choose("tab2");
  shown.type("dayStepper", QStringLiteral("45"));
  settle();
  compare(pictureOf(sidebar()), "sidebar_refusing");
}

TEST_P(SidebarLook, TheFocusOnEveryKindOfControl) {
  shown.model.setHour(11.5);
  choose("tab4");
  QList<QList<QImage>> rows;
  for (const char* const name :
       {"locationPicker", "latitudeField", "northSouthN", "northSouthS", "mapButton", "dayStepper",
        "hourSlider", "earlierButton", "localTime", "calculateButton", "tab1", "tab4", "showHourly",
        "showMonthly", "setFullMoon"}) {
    auto* const control = shown.find<QWidget>(name);
    control->clearFocus();
    const QImage without = pictureOf(*control);
    rows.append({without, focused(*control)});
  }
  compare(rows, "focus");
}

TEST_P(SidebarLook, CalculateInItsStates) {
  auto* const button = shown.find<QPushButton>("calculateButton");
  button->clearFocus();
  QList<QList<QImage>> rows = {
      {pictureOf(*button)}, {underMouse(*button)}, {pressed(*button)}, {focused(*button)}};
  button->clearFocus();
  shown.model.recalculate();
  rows.append({pictureOf(*button)});
  // As its timer turns it, a spoke at a time, and only while there is something to see.
  auto* const progress = shown.find<QProgressBar>("progress");
  auto* const turning = progress->findChild<QTimer*>();
  EXPECT_TRUE(turning->isActive());
  EXPECT_EQ(turning->interval(), 80);
  QList<QImage> turns;
  for (int spoke = 0; spoke < 9; ++spoke) {
    turns.append(pictureOf(*progress));
    QMetaObject::invokeMethod(turning, "timeout");
  }
  rows.append(turns);
  compare(rows, "calculate");
  shown.tasks.runNext();
  settle();
  EXPECT_FALSE(turning->isActive());
}

TEST_P(SidebarLook, OnADesktopThatTurnsLightOrDark) {
  pictureOf(sidebar());
  pictureOf(*shown.find<QWidget>("tabSelector"));
  QApplication::setPalette(GetParam() ? tests::lightPalette() : tests::darkPalette());
  settle();
  const std::string now = GetParam() ? "_light.png" : "_dark.png";
  EXPECT_TRUE(tests::isGoldenLook(pictureOf(sidebar()), "sidebar" + now));
  EXPECT_TRUE(tests::isGoldenLook(pictureOf(*shown.find<QWidget>("tabSelector")), "tabs" + now));
}

TEST_P(SidebarLook, ANumberAtItsLeastBetweenAndAtItsMost) {
  QList<QList<QImage>> rows;
  auto* const day = shown.find<QWidget>("dayStepper");
  for (const qint64 number : {0, 1, 29, 45}) {
    shown.model.setDayIndex(number);
    settle();
    rows.append({pictureOf(*day)});
  }
  compare(rows, "day");
}

TEST_P(SidebarLook, TheTimeTyped) {
  QTest::keyClick(shown.find<QWidget>("hourSlider"), Qt::Key_F2);
  shown.type("hourField", QStringLiteral("25:00"));
  settle();
  compare(pictureOf(*shown.find<QWidget>("hourField")->parentWidget()->parentWidget()),
          "time_typed");
}

}  // namespace
}  // namespace veyruna::ui
