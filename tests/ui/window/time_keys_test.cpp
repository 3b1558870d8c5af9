// Space, which plays time and pauses it, where the program itself puts the focus.
#include <QAbstractButton>
#include <QTest>
#include <gtest/gtest.h>

#include "tests/support/patience.h"
#include "tests/ui/window/windows.h"

namespace veyruna {
namespace {

using ui::MainView;
using Motion = model::LiveTime::Motion;

struct TimeKeys : tests::Windows {
  MainView* window = program.openWindow();

  TimeKeys() {
    finishCalculations();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window, tests::patienceMilliseconds));
    QTest::keyClick(window, Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(program.time().isOn());
  }
  /// What the key makes of a motion, with the focus on the button of this name.
  Motion pressed(const char* name, Motion before, Qt::KeyboardModifiers modifiers) {
    program.time().play(before);
    auto* const button = window->findChild<QAbstractButton*>(QString::fromLatin1(name));
    button->setFocus();
    EXPECT_EQ(QApplication::focusWidget(), button);
    QTest::keyClick(button, Qt::Key_Space, modifiers);
    return program.time().motion();
  }
};

TEST_F(TimeKeys, TheFocusGoesToTheButtonThatPlays) {
  EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("play"));
}

TEST_F(TimeKeys, OnTheButtonsThatPlayEachDoesWhatTheyAndTheMenuSay) {
  for (const char* const name : {"play", "playBack"}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(pressed(name, Motion::resting, Qt::NoModifier), Motion::forward);
    EXPECT_EQ(pressed(name, Motion::resting, Qt::ShiftModifier), Motion::backward);
    for (const Motion motion : {Motion::forward, Motion::backward}) {
      EXPECT_EQ(pressed(name, motion, Qt::NoModifier), Motion::resting);
      EXPECT_EQ(pressed(name, motion, Qt::ShiftModifier), Motion::resting);
    }
  }
}

TEST_F(TimeKeys, AnyOtherButtonTakesSpaceForItself) {
  EXPECT_EQ(pressed("stepForward", Motion::resting, Qt::NoModifier), Motion::resting);
  EXPECT_EQ(program.model().hour(), 13.0);
}

}  // namespace
}  // namespace veyruna
