// The hour, by slider, by steps and typed.
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QToolButton>

#include "tests/ui/shown_window.h"

namespace veyruna::ui {
namespace {

struct Clock : testing::Test, tests::ShownWindow {
  QSlider* slider = find<QSlider>("hourSlider");
  QLineEdit* field = find<QLineEdit>("hourField");
  QLabel* label = find<QLabel>("hourLabel");

  [[nodiscard]] bool isOpen() const { return field->isVisible() && !label->isVisible(); }
  void key(QWidget* widget, int which, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(widget, static_cast<Qt::Key>(which), modifiers);
  }
};

TEST_F(Clock, DigitsTypedOnTheSliderAreTheTime) {
  slider->setFocus();
  QTest::keyClick(slider, '0');
  ASSERT_TRUE(isOpen());
  EXPECT_EQ(field->text(), QStringLiteral("0"));
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("3:40"));
  EXPECT_EQ(model.hour(), 12.0);
  key(field, Qt::Key_Return);
  EXPECT_FALSE(isOpen());
  EXPECT_TRUE(slider->hasFocus());
  EXPECT_EQ(label->text(), QStringLiteral("03:40"));
  EXPECT_EQ(slider->value(), 15) << "the nearest quarter, 03:45";
  // The smallest number whose minutes are 40: the one before it reads 03:39.
  EXPECT_EQ(std::trunc((model.hour() - 3.0) * 60.0), 40.0);
  EXPECT_EQ(std::trunc((std::nextafter(model.hour(), 0.0) - 3.0) * 60.0), 39.0);
  calculate();
  EXPECT_EQ(model.dateLabel(), QStringLiteral("720-01-01 03:40 OST"));
}

TEST_F(Clock, F2AndADoubleClickOpenTheTimeThatStands) {
  slider->setFocus();
  key(slider, Qt::Key_F2);
  ASSERT_TRUE(isOpen());
  EXPECT_EQ(field->selectedText(), QStringLiteral("12:00"));
  key(field, Qt::Key_Escape);
  EXPECT_FALSE(isOpen());
  EXPECT_TRUE(slider->hasFocus());
  QTest::mouseDClick(label, Qt::LeftButton);
  ASSERT_TRUE(isOpen());
  EXPECT_TRUE(field->hasFocus());
  EXPECT_EQ(field->selectedText(), QStringLiteral("12:00"));
  key(field, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_FALSE(isOpen());
  EXPECT_TRUE(settings->groups.empty()) << "nothing was typed";
}

TEST(ClockAtMidnight, IsShownWhenTheWindowOpens) {
  tests::FakeWorld world;
  world.settings->values.insert(QStringLiteral("AstronomyModel.hour"), 0.0);
  model::AstronomyModel model(world.surroundings());
  const QTemporaryDir folder;
  WindowState state(folder.filePath(QStringLiteral("window.ini")));
  model::LiveTime time(model, world.store);
  const MainView window(model, time, state);
  EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("hourLabel"))->text(),
            QStringLiteral("00:00"));
}

TEST_F(Clock, FollowsTheHourToMidnightAndBack) {
  for (const auto& [hour, text] : {std::pair(3.5, "03:30"), std::pair(0.0, "00:00"),
                                   std::pair(12.0, "12:00"), std::pair(0.0, "00:00")}) {
    model.setHour(hour);
    EXPECT_EQ(label->text(), QString::fromLatin1(text));
    EXPECT_EQ(field->text(), QString::fromLatin1(text));
  }
}

TEST_F(Clock, WhatIsTypedStaysWhileTheHourIsTheSame) {
  key(slider, Qt::Key_F2);
  QTest::keyClicks(field, QStringLiteral("3:4"));
  Q_EMIT model.hourChanged();
  EXPECT_EQ(field->text(), QStringLiteral("3:4"));
}

TEST_F(Clock, EscapeGivesUpWhatIsTyped) {
  QTest::mouseDClick(label, Qt::LeftButton);
  QTest::keyClicks(field, QStringLiteral("3:40"));
  key(field, Qt::Key_Escape);
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(label->text(), QStringLiteral("12:00"));
  EXPECT_TRUE(settings->groups.empty());
}

TEST_F(Clock, TabTakesTheTimeOverAndGoesOn) {
  QTest::mouseDClick(label, Qt::LeftButton);
  QTest::keyClicks(field, QStringLiteral("23:59"));
  key(field, Qt::Key_Tab);
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(label->text(), QStringLiteral("23:59"));
  EXPECT_EQ(QApplication::focusWidget(), find<QWidget>("earlierButton"));
}

TEST_F(Clock, TheTimeIsAlsoGivenInHours) {
  for (const auto& [text, hour] : {std::pair("3.5", 3.5), std::pair("7,25", 7.25),
                                   std::pair("0", 0.0), std::pair("23", 23.0)}) {
    key(slider, Qt::Key_F2);
    QTest::keyClicks(field, QString::fromLatin1(text));
    key(field, Qt::Key_Return);
    EXPECT_EQ(model.hour(), hour) << text;
    EXPECT_FALSE(isOpen()) << text;
  }
}

TEST_F(Clock, WhatIsNoTimeIsRefusedWithTheRange) {
  auto* const note = find<QLabel>("timeNote");
  for (const char* const text : {"24:00", "24", "12:60", "-1", "noon", "1e1", "3:4x", "0340"}) {
    key(slider, Qt::Key_F2);
    QTest::keyClicks(field, QString::fromLatin1(text));
    EXPECT_EQ(note->text(), QStringLiteral("Hour 0:00 to 23:59")) << text;
    key(field, Qt::Key_Return);
    EXPECT_TRUE(isOpen()) << text;
    EXPECT_EQ(field->text(), QString::fromLatin1(text));
    key(field, Qt::Key_Tab);
    EXPECT_FALSE(isOpen()) << text;
    EXPECT_EQ(label->text(), QStringLiteral("12:00"));
    EXPECT_EQ(note->text(), QStringLiteral("Hour 0:00 to 23:59; still 12:00")) << text;
  }
  EXPECT_TRUE(settings->groups.empty());
}

TEST_F(Clock, ATimeHalfTypedIsNotRefusedUntilItIsLeft) {
  auto* const note = find<QLabel>("timeNote");
  key(slider, Qt::Key_F2);
  for (const char digit : std::string("03:40")) {
    QTest::keyClick(field, digit);
    EXPECT_TRUE(note->text().isEmpty()) << field->text().toStdString();
  }
  key(field, Qt::Key_Backspace);
  EXPECT_TRUE(note->text().isEmpty());
  key(field, Qt::Key_Tab);
  EXPECT_EQ(model.hour(), 12.0);
  EXPECT_EQ(note->text(), QStringLiteral("Hour 0:00 to 23:59; still 12:00"));
}

TEST_F(Clock, NothingMovesWhenItOpens) {
  const auto places = [this] {
    QList<QRect> all;
    for (const QWidget* const widget : window.findChildren<QAbstractButton*>()) {
      all.append(QRect(widget->mapTo(&window, QPoint()), widget->size()));
    }
    all.append(slider->geometry());
    return all;
  };
  const QList<QRect> before = places();
  key(slider, Qt::Key_F2);
  QTest::keyClicks(field, QStringLiteral("99:99"));
  tests::turnEventLoop();
  EXPECT_EQ(places(), before);
  EXPECT_GE(field->width(), field->fontMetrics().horizontalAdvance(QStringLiteral("00:00")) + 4);
}

TEST_F(Clock, AKeyLeadsFromBetweenTheQuartersToTheNextOfThem) {
  struct Case {
    double hour;
    Qt::Key key;
    double then;
  };
  for (const Case& c : {Case{12.1, Qt::Key_Right, 12.25}, Case{12.1, Qt::Key_Left, 12.0},
                        Case{12.2, Qt::Key_Right, 12.25}, Case{12.2, Qt::Key_Left, 12.0},
                        Case{12.0, Qt::Key_Right, 12.25}, Case{12.0, Qt::Key_Left, 11.75},
                        Case{12.1, Qt::Key_PageUp, 13.0}, Case{12.1, Qt::Key_PageDown, 11.25},
                        Case{23.7, Qt::Key_Right, 23.75}, Case{0.1, Qt::Key_Left, 0.0},
                        Case{12.2, Qt::Key_Home, 0.0}, Case{30.0, Qt::Key_End, 23.75}}) {
    model.setHour(c.hour);
    key(slider, c.key);
    EXPECT_EQ(model.hour(), c.then) << c.hour << " " << c.key;
  }
}

TEST_F(Clock, AHandOnTheHandleLeadsToTheQuarterUnderIt) {
  for (const int quarter : {46, 50, 49, 47}) {
    model.setHour(12.1);
    slider->setSliderDown(true);
    slider->setSliderPosition(quarter);
    slider->setSliderDown(false);
    EXPECT_EQ(slider->value(), quarter);
    EXPECT_EQ(model.hour(), quarter * 0.25);
  }
}

TEST_F(Clock, AStepFromOutsideTheQuartersLandsOnTheirBorder) {
  for (const double hour : {23.99, 30.0}) {
    model.setHour(hour);
    EXPECT_FALSE(find<QToolButton>("laterButton")->isEnabled());
    press("earlierButton");
    EXPECT_EQ(model.hour(), 23.75);
    model.setHour(hour);
    key(slider, Qt::Key_Left);
    EXPECT_EQ(model.hour(), 23.75);
    model.setHour(hour);
    key(slider, Qt::Key_Right);
    EXPECT_EQ(model.hour(), hour) << "no way up from here";
  }
  model.setHour(-2.0);
  EXPECT_FALSE(find<QToolButton>("earlierButton")->isEnabled());
  press("laterButton");
  EXPECT_EQ(model.hour(), 0.0);
  model.setHour(-2.0);
  key(slider, Qt::Key_Right);
  EXPECT_EQ(model.hour(), 0.0);
  model.setHour(-2.0);
  key(slider, Qt::Key_Left);
  EXPECT_EQ(model.hour(), -2.0);
}

TEST_F(Clock, AWheelOverTheFocusedSliderMovesByQuarters) {
  slider->setFocus();
  model.setHour(12.1);
  QWheelEvent wheel(QPointF(5, 5), slider->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, 120),
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(slider, &wheel);
  EXPECT_GT(model.hour(), 12.1);
  EXPECT_EQ(model.hour() * 4.0, std::round(model.hour() * 4.0));
}

TEST_F(Clock, TheArrowsAreReachedByTheirLabelAndStepByKey) {
  QTest::keyClick(&window, Qt::Key_E, Qt::AltModifier);
  ASSERT_EQ(QApplication::focusWidget(), find<QWidget>("laterButton"));
  EXPECT_EQ(model.hour(), 12.0) << "the label's key does not step";
  key(QApplication::focusWidget(), Qt::Key_Up);
  EXPECT_EQ(model.hour(), 12.25);
  key(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_EQ(model.hour(), 12.0);
}

TEST_F(Clock, AnArrowThatGoesGreyHandsTheFocusToTheOther) {
  model.setHour(23.5);
  auto* const later = find<QToolButton>("laterButton");
  later->setFocus();
  key(later, Qt::Key_Space);
  EXPECT_EQ(model.hour(), 23.75);
  EXPECT_EQ(QApplication::focusWidget(), find<QWidget>("earlierButton"));
  EXPECT_FALSE(model.useLocalTime());
}

TEST_F(Clock, TheTimeBeingTypedCountsBeforeAStep) {
  key(slider, Qt::Key_F2);
  QTest::keyClicks(field, QStringLiteral("3:40"));
  press("laterButton");
  EXPECT_EQ(label->text(), QStringLiteral("03:55"));
}

}  // namespace
}  // namespace veyruna::ui
