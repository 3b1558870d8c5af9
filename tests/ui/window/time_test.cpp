// Time that moves, through the window: the menu, the keys, the bar, and what follows it.
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

#include "documents/documents.h"
#include "tests/support/patience.h"
#include "tests/ui/window/windows.h"
#include "ui/outputs/tab_views.h"

namespace veyruna {
namespace {

using documents::Document;
using exports::OutputTab;
using model::TimeStep;
using ui::MainView;
using Motion = model::LiveTime::Motion;

struct TimeInWindow : tests::Windows {
  MainView* window = program.openWindow();

  TimeInWindow() {
    finishCalculations();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window, tests::patienceMilliseconds));
  }
  template <class Control>
  Control* find(const char* name) const {
    auto* const control = window->findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) {
      throw std::runtime_error(name);
    }
    return control;
  }
  void click(const char* name) const {
    auto* const button = find<QAbstractButton>(name);
    ASSERT_TRUE(button->isVisible() && button->isEnabled()) << name;
    QTest::mouseClick(button, Qt::LeftButton);
  }
  void turnOn() {
    QTest::keyClick(window, Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(program.time().isOn());
  }
  static bool waitFor(const std::function<bool()>& comes) {
    return QTest::qWaitFor(comes, tests::patienceMilliseconds);
  }
  void letEverythingBeCalculated() {
    EXPECT_TRUE(waitFor([this] { return tasks.count() > 0; }));
    finishCalculations();
  }
  [[nodiscard]] QString caption() const { return find<QLabel>("caption")->text(); }
  [[nodiscard]] bool isPlaying() { return program.time().motion() != Motion::resting; }
};

TEST_F(TimeInWindow, StandsStillUntilItIsTurnedOn) {
  EXPECT_FALSE(find<QWidget>("timeBar")->isVisible());
  EXPECT_FALSE(entry(*window, QStringLiteral("Live"))->isChecked());
  for (const char* const title : {"Step Forward", "Step Back", "Now"}) {
    EXPECT_FALSE(entry(*window, QString::fromLatin1(title))->isEnabled()) << title;
  }
  find<QSlider>("hourSlider")->setFocus();
  QTest::keyClick(window->focusWidget(), Qt::Key_Right);
  QTest::keyClick(window, Qt::Key_Space);
  tests::turnEventLoop();
  EXPECT_EQ(tasks.count(), 0U);
  EXPECT_TRUE(caption().startsWith(QStringLiteral("720-01-01 12:00 OST")))
      << caption().toStdString();
  EXPECT_NE(find<QLabel>("difference")->text(), QString());
}

TEST_F(TimeInWindow, IsTurnedOnAndOffByMenuAndKeyAndRemembered) {
  turnOn();
  EXPECT_TRUE(find<QWidget>("timeBar")->isVisible());
  EXPECT_TRUE(entry(*window, QStringLiteral("Live"))->isChecked());
  trigger(*window, "Live");
  EXPECT_FALSE(find<QWidget>("timeBar")->isVisible());
  trigger(*window, "Live");
  {
    ui::VeyrunaAstroApp next{surroundings(), statePath};
    EXPECT_TRUE(next.time().isOn());
  }
  QTest::keyClick(window, Qt::Key_L, Qt::ControlModifier);
  ui::VeyrunaAstroApp next{surroundings(), statePath};
  EXPECT_FALSE(next.time().isOn());
}

TEST_F(TimeInWindow, EveryChangeInTheSidebarIsDrawnAtOnce) {
  turnOn();
  find<QSlider>("hourSlider")->setFocus();
  QTest::keyClick(window->focusWidget(), Qt::Key_Right);
  tests::turnEventLoop();
  EXPECT_TRUE(caption().startsWith(QStringLiteral("720-01-01 12:15 OST")))
      << caption().toStdString();
  EXPECT_EQ(find<QLabel>("difference")->text(), QString());
  letEverythingBeCalculated();

  auto* const year = find<QWidget>("yearStepper");
  year->setFocus();
  QTest::keyClick(year, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(year, QStringLiteral("1234"));
  QTest::keyClick(year, Qt::Key_Return);
  tests::turnEventLoop();
  EXPECT_TRUE(caption().startsWith(QStringLiteral("1234-01-01 12:15 OST")));
}

TEST_F(TimeInWindow, TheBarStepsAndPlaysAndTheSidebarFollows) {
  turnOn();
  click("stepForward");
  EXPECT_EQ(program.model().hour(), 13.0);
  EXPECT_TRUE(caption().startsWith(QStringLiteral("720-01-01 13:00 OST")));
  click("stepBack");
  click("stepBack");
  EXPECT_EQ(find<QSlider>("hourSlider")->value(), 11 * 4);
  click("timeBeginning");
  EXPECT_EQ(program.model().hour(), 12.0);

  click("play");
  EXPECT_EQ(program.time().motion(), Motion::forward);
  EXPECT_TRUE(waitFor([&] { return program.model().hour() > 12.0; }));
  click("playBack");
  EXPECT_EQ(program.time().motion(), Motion::backward);
  const double turned = program.model().baseTime();
  EXPECT_TRUE(waitFor([&] { return program.model().baseTime() < turned; }));
  click("playBack");
  EXPECT_FALSE(isPlaying());
  letEverythingBeCalculated();
  EXPECT_EQ(program.model().starMapSVG(), QString::fromStdString(documents::textOf(
                                              Document::starMap, program.model().observer())));
}

TEST_F(TimeInWindow, TheButtonsSayWhatTheyDoNow) {
  turnOn();
  EXPECT_EQ(find<QToolButton>("play")->accessibleName(), QStringLiteral("Play (Space)"));
  click("play");
  EXPECT_EQ(find<QToolButton>("play")->accessibleName(), QStringLiteral("Pause (Space)"));
  EXPECT_EQ(find<QToolButton>("playBack")->accessibleName(),
            QStringLiteral("Play backwards (Shift+Space)"));
  click("playBack");
  EXPECT_EQ(find<QToolButton>("play")->accessibleName(), QStringLiteral("Play (Space)"));
  EXPECT_EQ(find<QToolButton>("playBack")->toolTip(), QStringLiteral("Pause (Space)"));
  EXPECT_TRUE(find<QToolButton>("timeBeginning")
                  ->toolTip()
                  .endsWith(QStringLiteral("720-01-01 12:00 OST")));
}

TEST_F(TimeInWindow, StepAndSpeedAreChosenAndRemembered) {
  turnOn();
  const auto choose = [this](const char* name, const QString& text) {
    auto* const box = find<QComboBox>(name);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Home);
    while (box->currentText() != text && box->currentIndex() + 1 < box->count()) {
      QTest::keyClick(box, Qt::Key_Down);
    }
    EXPECT_EQ(box->currentText(), text);
  };
  choose("timeStep", QStringLiteral("Same stars"));
  choose("timeSpeed", QStringLiteral("8 a second"));
  EXPECT_EQ(program.time().step(), TimeStep::sameStars);
  EXPECT_EQ(program.time().speed(), 8.0);
  ui::VeyrunaAstroApp next{surroundings(), statePath};
  EXPECT_EQ(next.time().step(), TimeStep::sameStars);
  EXPECT_EQ(next.time().speed(), 8.0);
}

TEST_F(TimeInWindow, APaceThatNobodyOffersIsForgotten) {
  program.state().setPace(TimeStep::month, 1e300);
  ui::VeyrunaAstroApp next{surroundings(), statePath};
  EXPECT_EQ(next.time().step(), TimeStep::month);
  EXPECT_EQ(next.time().speed(), 1.0);
}

TEST_F(TimeInWindow, SpacePlaysWhereverNothingElseTakesIt) {
  turnOn();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);  // the bar has the keys
  EXPECT_EQ(program.time().motion(), Motion::forward);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  EXPECT_FALSE(isPlaying());

  find<QSlider>("hourSlider")->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space, Qt::ShiftModifier);
  EXPECT_EQ(program.time().motion(), Motion::backward);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  EXPECT_FALSE(isPlaying());

  find<QWidget>("localTime")->setFocus();  // a switch turns by it
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  EXPECT_TRUE(program.model().useLocalTime());
  EXPECT_FALSE(isPlaying());
}

TEST_F(TimeInWindow, SpacePlaysInAWindowThatOpensWhileItIsOn) {
  turnOn();
  trigger(*window, "New Window");
  finishCalculations();
  MainView* const other = windows().at(windows().indexOf(window) == 0 ? 1 : 0);
  other->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(other, tests::patienceMilliseconds));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  EXPECT_TRUE(isPlaying());
}

TEST_F(TimeInWindow, TheMenuSteps) {
  turnOn();
  QTest::keyClick(window, Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(program.model().hour(), 13.0);
  QTest::keyClick(window, Qt::Key_Left, Qt::AltModifier);
  QTest::keyClick(window, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(program.model().hour(), 11.0);
  QTest::keyClick(window, Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(program.model().hour(), 12.0);
  trigger(*window, "Play Backwards\tShift+Space");
  EXPECT_EQ(program.time().motion(), Motion::backward);
  trigger(*window, "Pause\tSpace");
  EXPECT_FALSE(isPlaying());
  trigger(*window, "Play\tSpace");
  EXPECT_EQ(program.time().motion(), Motion::forward);
}

TEST_F(TimeInWindow, WhatIsTypedCountsBeforeTimeMoves) {
  turnOn();
  auto* const year = find<QWidget>("yearStepper");
  year->setFocus();
  QTest::keyClick(year, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(year, QStringLiteral("900"));
  QTest::keyClick(year, Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(program.model().year(), 900);
  EXPECT_EQ(program.model().hour(), 13.0);
}

TEST_F(TimeInWindow, TimeRestsWhileAFieldIsTypedIn) {
  turnOn();
  click("play");
  EXPECT_TRUE(isPlaying());
  find<QWidget>("yearStepper")->setFocus();
  EXPECT_FALSE(isPlaying());
  // And where it is set going from there, the keys go to the bar.
  trigger(*window, "Play\tSpace");
  EXPECT_TRUE(isPlaying());
  EXPECT_TRUE(find<QWidget>("timeBar")->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(TimeInWindow, EveryTabShowsTheMomentWhenItComesToTheFront) {
  turnOn();
  click("stepForward");  // the others are calculated when it has rested
  for (const OutputTab tab : exports::outputTabs) {
    window->selectTab(tab);
    for (const Document document : ui::documentsSeenIn(tab)) {
      EXPECT_EQ(program.model().text(document),
                QString::fromStdString(documents::textOf(document, program.model().observer())))
          << documents::entryOf(document).heading;
    }
  }
}

TEST_F(TimeInWindow, TheEndIsSaidUntilTimeMoves) {
  turnOn();
  program.model().setYear(1);
  program.model().setHour(0.0);
  tests::turnEventLoop();
  click("stepBack");
  EXPECT_EQ(find<QLabel>("timeEnd")->text(), QStringLiteral("The calendar has no earlier moment."));
  click("stepForward");
  EXPECT_EQ(find<QLabel>("timeEnd")->text(), QString());
}

TEST_F(TimeInWindow, TwoWindowsShareOneTime) {
  turnOn();
  trigger(*window, "New Window");
  finishCalculations();
  MainView* const other = windows().at(windows().indexOf(window) == 0 ? 1 : 0);
  other->selectTab(OutputTab::planets);
  click("stepForward");
  EXPECT_EQ(
      program.model().text(Document::positions),
      QString::fromStdString(documents::textOf(Document::positions, program.model().observer())));
  EXPECT_TRUE(other->findChild<QWidget*>(QStringLiteral("timeBar"))->isVisible());
  other->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  click("stepForward");
  EXPECT_EQ(program.model().hour(), 14.0);
}

TEST_F(TimeInWindow, WhatIsSavedBelongsToItsMinute) {
  turnOn();
  program.time().setStep(TimeStep::sameStars);
  click("stepForward");
  EXPECT_NE(program.model().lastHoroscopeBasetime(), program.model().baseTime());
  trigger(*window, "Save as SVG…");
  EXPECT_EQ(program.model().lastHoroscopeBasetime(), program.model().baseTime());
  EXPECT_EQ(program.model().starMapSVG(), QString::fromStdString(documents::textOf(
                                              Document::starMap, program.model().observer())));
}

}  // namespace
}  // namespace veyruna
