// Where everything of the window stands, how it is called and what it answers to, line by line.
#include <QMenuBar>
#include <QScrollArea>
#include <QSplitter>

#include "tests/support/golden.h"
#include "tests/ui/golden/layout_text.h"
#include "tests/ui/golden/plain_window.h"

namespace veyruna::ui {
namespace {

struct WindowLayout : tests::PlainWindow {
  static void compare(const char* name, const QWidget& part) {
    EXPECT_TRUE(tests::isGolden(std::string("ui/layouts/") + name, tests::layoutText(part)));
  }
  QWidget& sidebar() { return *shown.find<QScrollArea>("sidebar"); }
  /// What stands beside the sidebar.
  QWidget& outputs() { return *shown.window.findChild<QSplitter*>()->widget(1); }
};

TEST_F(WindowLayout, AtItsFirstSize) {
  compare("window.txt", shown.window);
}

TEST_F(WindowLayout, OnASmallScreen) {
  tests::ShownWindow small;
  settle();
  compare("window_on_a_small_screen.txt", small.window);
}

TEST_F(WindowLayout, AsSmallAsItGetsWithTimeThatRuns) {
  shown.time.setOn(true);
  shown.model.setSelectedCityID(shown.model.cities().at(3).id);
  resize({1, 1});
  compare("window_at_its_smallest.txt", shown.window);
}

TEST_F(WindowLayout, InALargerType) {
  QFont larger = QApplication::font();
  larger.setPointSizeF(13.5);
  QApplication::setFont(larger);
  shown.type("dayStepper", QStringLiteral("45"));
  choose("tab4");
  compare("window_in_a_larger_type.txt", shown.window);
}

TEST_F(WindowLayout, BeforeTheFirstCalculation) {
  tests::ShownWindow fresh;
  fresh.window.resize(900, 600);
  for (const char* const tab : {"tab1", "tab3", "tab4", "tab5"}) {
    fresh.press(tab);
    settle();
    compare((std::string(tab) + "_empty.txt").c_str(),
            *fresh.window.findChild<QSplitter*>()->widget(1));
  }
}

TEST_F(WindowLayout, EveryTabInFront) {
  for (const char* const tab : {"tab1", "tab2", "tab3", "tab4", "tab5", "tab6"}) {
    choose(tab);
    compare((std::string(tab) + ".txt").c_str(), outputs());
  }
}

TEST_F(WindowLayout, PositionsWhereTheColumnsHaveLittleRoom) {
  choose("tab3");
  resize({750, 600});
  compare("tab3_narrow.txt", outputs());
}

TEST_F(WindowLayout, TheSidebarWithTheHoroscopeAndASavedPlace) {
  shown.model.setSelectedCityID(shown.model.cities().at(3).id);
  choose("tab2");
  compare("sidebar_of_a_saved_place.txt", sidebar());
}

TEST_F(WindowLayout, TheSidebarWhereSomethingIsRefused) {
  shown.model.setYear(5'000'000'000);
  shown.model.recalculate();
  shown.type("latitudeField", QStringLiteral("95"));
  shown.type("dayStepper", QStringLiteral("45"));
  QTest::keyClick(shown.find<QWidget>("hourSlider"), Qt::Key_F2);
  shown.type("hourField", QStringLiteral("25:00"));
  settle();
  compare("sidebar_refusing.txt", sidebar());
}

TEST_F(WindowLayout, TheSidebarOnADesktopThatTurnsDark) {
  shown.type("dayStepper", QStringLiteral("45"));
  QApplication::setPalette(tests::darkPalette());
  settle();
  compare("sidebar_turned_dark.txt", sidebar());
}

TEST_F(WindowLayout, TheSidebarWhileItCalculates) {
  shown.model.setHour(3.5);
  shown.press("calculateButton");
  settle();
  compare("sidebar_calculating.txt", sidebar());
}

TEST_F(WindowLayout, TheMenus) {
  const std::string resting = tests::menuText(*shown.window.menuBar());
  EXPECT_TRUE(tests::isGolden("ui/layouts/menus.txt", resting));
  shown.time.setOn(true);
  shown.time.play(model::LiveTime::Motion::forward);
  choose("tab6");
  EXPECT_TRUE(tests::isGolden("ui/layouts/menus_while_time_runs.txt",
                              tests::menuText(*shown.window.menuBar())));
}

TEST_F(WindowLayout, TheOrderOfTab) {
  shown.time.setOn(true);
  choose("tab4");
  EXPECT_TRUE(tests::isGolden("ui/layouts/tab_order.txt", tests::tabOrderText(shown.window)));
}

}  // namespace
}  // namespace veyruna::ui
