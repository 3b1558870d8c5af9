// The windows as a group: what opens, what is remembered, what closes.
#include "ui/window/application.h"

#include <QAbstractSpinBox>
#include <QDir>
#include <QScreen>
#include <QTest>

#include "tests/model/disk.h"
#include "tests/support/patience.h"
#include "tests/ui/window/windows.h"
#include "ui/window/about_view.h"

namespace veyruna::ui {
namespace {

using Application = tests::Windows;

TEST_F(Application, EachWindowCalculatesWhenItOpensAndNotWhenItComesBack) {
  MainView* const window = program.openWindow();
  EXPECT_EQ(tasks.count(), 1);
  finishCalculations();
  window->showMinimized();
  window->showNormal();
  window->hide();
  window->show();
  EXPECT_EQ(tasks.count(), 0);
  trigger(*window, "New Window");
  EXPECT_EQ(windows().size(), 2);
  EXPECT_EQ(tasks.count(), 1);
}

TEST_F(Application, AnotherWindowStandsBesideTheFirstOnTheSameModel) {
  MainView* const first = program.openWindow();
  finishCalculations();
  first->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(first, tests::patienceMilliseconds));
  trigger(*first, "New Window");
  QList<MainView*> both = windows();
  both.removeOne(first);
  ASSERT_EQ(both.size(), 1);
  EXPECT_NE(both[0]->pos(), first->pos());
  program.model().setYear(901);
  for (const MainView* const window : windows()) {
    EXPECT_EQ(window->findChild<QAbstractSpinBox*>(QStringLiteral("yearStepper"))->text(),
              QStringLiteral("901"));
  }
  // Each has its own tab.
  first->selectTab(exports::OutputTab::positions);
  EXPECT_EQ(both[0]->selectedTab(), exports::OutputTab::starMap);
}

TEST_F(Application, AnotherWindowIsAsLargeAndALittleFurtherDown) {
  MainView* const first = program.openWindow();
  first->setGeometry(60, 70, 640, 500);
  first->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(first, tests::patienceMilliseconds));
  const MainView* const second = program.openWindow();
  EXPECT_EQ(second->frameGeometry().topLeft(), first->frameGeometry().topLeft() + QPoint(24, 24));
  EXPECT_EQ(second->size(), first->size());
}

TEST_F(Application, AnotherWindowGoesToTheCornerWhereTooLittleOfItWouldBeSeen) {
  MainView* const first = program.openWindow();
  const QRect room = first->screen()->availableGeometry();
  // A corner of 300 by 100 points is to be in sight.
  for (const auto& [corner, isSeen] :
       {std::pair(QPoint(300, 100), true), std::pair(QPoint(299, 100), false),
        std::pair(QPoint(300, 99), false)}) {
    first->resize(640, 500);
    first->move(room.bottomRight() + QPoint(1, 1) - corner - QPoint(24, 24));
    first->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(first, tests::patienceMilliseconds));
    const MainView* const second = program.openWindow();
    const QPoint beside = first->frameGeometry().topLeft() + QPoint(24, 24);
    EXPECT_EQ(second->frameGeometry().topLeft(), isSeen ? beside : room.topLeft()) << corner.x();
  }
}

TEST_F(Application, CloseClosesOneWindowAndQuitAllOfThem) {
  MainView* const first = program.openWindow();
  MainView* const second = program.openWindow();
  program.openAbout();
  trigger(*first, "Close");
  EXPECT_EQ(windows(), QList<MainView*>({second}));
  trigger(*second, "Quit");
  EXPECT_EQ(windows(), QList<MainView*>());
  for (const QWidget* const widget : QApplication::topLevelWidgets()) {
    EXPECT_FALSE(widget->isVisible()) << widget->metaObject()->className();
  }
}

TEST_F(Application, AStateFileThatCannotBeReadIsKeptAside) {
  const QString path = folder.filePath(QStringLiteral("window.ini"));
  tests::writeBytes(path, "\x01\x02 no state at all\n[[[");
  {
    WindowState state(path);
    EXPECT_FALSE(state.placement());
    state.setExportFolder(folder.path());
  }
  const QStringList kept =
      QDir(folder.path()).entryList({QStringLiteral("*unreadable*")}, QDir::Files);
  EXPECT_EQ(kept.size(), 1);
  EXPECT_EQ(WindowState(path).exportFolder(), folder.path());
}

TEST_F(Application, AStateThatIsNonsenseIsAFirstStart) {
  QDir(folder.path()).mkpath(QStringLiteral("sub"));
  tests::writeBytes(statePath,
                    "[General]\nframe=@Rect(0 0 -4 2000000000)\nsize=nonsense\nisMaximized=maybe\n"
                    "sidebarWidth=-7\nexportFolder=/nowhere/at/all\n");
  VeyrunaAstroApp again(surroundings(), statePath);
  const MainView* const window = again.openWindow();
  EXPECT_GE(window->width(), window->minimumSizeHint().width());
  EXPECT_NE(again.state().exportFolder(), QStringLiteral("/nowhere/at/all"));
}

}  // namespace
}  // namespace veyruna::ui
