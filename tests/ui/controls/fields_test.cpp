// Showing a value never changes it; only what a person steps or types does.
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QLocale>
#include <QPaintEvent>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>
#include <limits>
#include <tuple>

#include "tests/support/patience.h"
#include "ui/controls/angle_field.h"
#include "ui/controls/stepper_field.h"

namespace veyruna::ui {
namespace {

/// Whether the field wears the edge of what is refused.
bool isMarked(const QWidget& field) {
  return field.findChild<QWidget*>(QStringLiteral("refusedEdge"))->isVisibleTo(&field);
}

struct YearField : testing::Test {
  StepperField field{QStringLiteral("Year"), 1, 2000, 0};
  QSignalSpy edits{&field, &StepperField::edited};
  QSignalSpy notes{&field, &StepperField::noted};

  void type(const QString& text) {
    field.selectAll();
    QTest::keyClicks(&field, text);
    field.commit();
  }
  /// A notch away from the person.
  bool isWheelTaken() {
    QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&field, &wheel);
    return wheel.isAccepted();
  }
  [[nodiscard]] QString shown() const { return field.text(); }
};

TEST_F(YearField, ShowsWhatIsOutsideItsRangeAndReportsNothing) {
  for (const qint64 year : {qint64{3000}, qint64{-5}, std::numeric_limits<qint64>::max()}) {
    field.show(year);
    field.commit();
    EXPECT_EQ(shown(), QString::number(year));
  }
  EXPECT_EQ(edits.count(), 0);
}

TEST_F(YearField, StopsAtItsFirstAndLastYear) {
  field.show(2000);
  field.stepUp();
  EXPECT_EQ(edits.count(), 0);
  field.show(1);
  field.stepDown();
  EXPECT_EQ(edits.count(), 0);
  field.stepUp();
  ASSERT_EQ(edits.count(), 1);
  EXPECT_EQ(edits.at(0).at(0).toLongLong(), 2);
}

TEST_F(YearField, AStepFromOutsideItsRangeLandsOnTheBorder) {
  for (const auto& [stored, key, border] :
       {std::tuple(qint64{3000}, Qt::Key_Down, 2000),
        std::tuple(qint64{3000}, Qt::Key_PageDown, 2000), std::tuple(qint64{-5}, Qt::Key_Up, 1),
        std::tuple(qint64{0}, Qt::Key_PageUp, 1)}) {
    field.show(stored);
    edits.clear();
    QTest::keyClick(&field, key);
    ASSERT_EQ(edits.count(), 1) << stored;
    EXPECT_EQ(edits.at(0).at(0).toLongLong(), border);
  }
}

TEST_F(YearField, WhatAStepLeadsToIsSelectedToBeTypedOver) {
  field.show(720);
  QTest::keyClick(&field, Qt::Key_Up);
  EXPECT_EQ(field.findChild<QLineEdit*>()->selectedText(), QStringLiteral("721"));
  QTest::keyClicks(&field, QStringLiteral("9"));
  EXPECT_EQ(shown(), QStringLiteral("9"));
}

/// The part of a field that was painted.
struct Painted : QObject {
  QRegion part;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      part += static_cast<QPaintEvent*>(event)->region();
    }
    return QObject::eventFilter(watched, event);
  }
};

TEST_F(YearField, ItsArrowsArePaintedAnewWhenItsNumberChanges) {
  field.resize(100, 24);
  field.setVisible(true);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&field, tests::patienceMilliseconds));
  Painted painted;
  field.installEventFilter(&painted);
  const auto arrowsArePainted = [&] {
    QCoreApplication::processEvents();
    return painted.part.contains(QPoint(field.width() - 8, field.height() - 6));
  };
  while (arrowsArePainted()) {  // of its first showing
    painted.part = {};
  }
  field.show(2000);
  EXPECT_TRUE(arrowsArePainted()) << "by showing";
  painted.part = {};
  field.stepDown();
  EXPECT_TRUE(arrowsArePainted()) << "by stepping";
}

TEST_F(YearField, IsTypedWithAndWithoutItsWord) {
  field.show(720);
  type(QStringLiteral("Year 1243"));
  EXPECT_EQ(shown(), QStringLiteral("1243"));
  type(QStringLiteral("7"));
  EXPECT_EQ(shown(), QStringLiteral("7"));
  ASSERT_EQ(edits.count(), 2);
  EXPECT_EQ(edits.at(1).at(0).toLongLong(), 7);
}

TEST_F(YearField, WhatIsNoYearIsMarkedAndNeverAnotherYear) {
  field.show(720);
  for (const char* const text : {"20001", "2001", "0", "-5", "7a", "1 2", "99999999999999999999"}) {
    field.selectAll();
    QTest::keyClicks(&field, QString::fromLatin1(text));
    EXPECT_EQ(shown(), QString::fromLatin1(text));
    EXPECT_EQ(notes.last().at(0).toString(), QStringLiteral("Year 1 to 2000")) << text;
    EXPECT_EQ(field.accessibleDescription(), QStringLiteral("Year 1 to 2000")) << text;
    EXPECT_TRUE(isMarked(field)) << text;
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(shown(), QString::fromLatin1(text)) << "Return leaves it to be mended";
    EXPECT_TRUE(isMarked(field)) << text;
    field.commit();
    EXPECT_EQ(shown(), QStringLiteral("720"));
    EXPECT_EQ(notes.last().at(0).toString(), QStringLiteral("Year 1 to 2000; still 720")) << text;
    EXPECT_FALSE(isMarked(field)) << text;
  }
  EXPECT_EQ(edits.count(), 0);
}

TEST_F(YearField, WhatIsMendedIsNoLongerMarked) {
  field.show(720);
  field.selectAll();
  QTest::keyClicks(&field, QStringLiteral("20001"));
  QTest::keyClick(&field, Qt::Key_Backspace);
  EXPECT_FALSE(isMarked(field));
  EXPECT_TRUE(notes.last().at(0).toString().isEmpty());
  EXPECT_TRUE(field.accessibleDescription().isEmpty());
  QTest::keyClick(&field, Qt::Key_Return);
  ASSERT_EQ(edits.count(), 1);
  EXPECT_EQ(edits.at(0).at(0).toLongLong(), 2000);
}

TEST_F(YearField, WhatMayBecomeAYearIsNotMarkedYet) {
  field.show(720);
  for (const char* const text : {"", "Y", "year", "Year "}) {
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, QString::fromLatin1(text));
    EXPECT_FALSE(isMarked(field)) << text;
    field.commit();
    EXPECT_EQ(shown(), QStringLiteral("720"));
  }
  EXPECT_EQ(edits.count(), 0);
}

TEST_F(YearField, EscapeGivesUpWhatIsTyped) {
  field.show(720);
  for (const char* const text : {"900", "20001"}) {
    field.selectAll();
    QTest::keyClicks(&field, QString::fromLatin1(text));
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_EQ(shown(), QStringLiteral("720"));
    EXPECT_FALSE(isMarked(field));
    field.commit();
  }
  EXPECT_EQ(edits.count(), 0);
}

TEST_F(YearField, WhatIsTypedStaysWhileTheSameYearIsShownAgain) {
  field.show(720);
  field.selectAll();
  QTest::keyClicks(&field, QStringLiteral("90"));
  field.show(720);
  EXPECT_EQ(shown(), QStringLiteral("90"));
  field.show(721);
  EXPECT_EQ(shown(), QStringLiteral("721"));
}

TEST_F(YearField, AWheelWithoutTheFocusChangesNothing) {
  field.show(720);
  EXPECT_FALSE(isWheelTaken());
  EXPECT_EQ(edits.count(), 0);
}

TEST_F(YearField, AWheelWithTheFocusIsAStep) {
  field.show(720);
  field.setVisible(true);
  field.activateWindow();
  field.setFocus();
  ASSERT_TRUE(QTest::qWaitFor([this] { return field.hasFocus(); }, tests::patienceMilliseconds));
  EXPECT_TRUE(isWheelTaken());
  ASSERT_EQ(edits.count(), 1);
  EXPECT_EQ(edits.at(0).at(0).toLongLong(), 721);
}

TEST(DayField, CountsFromOne) {
  StepperField field(QStringLiteral("Day"), 0, 29, 1);
  field.show(29);
  EXPECT_EQ(field.text(), QStringLiteral("30"));
  const QSignalSpy edits(&field, &StepperField::edited);
  field.stepUp();
  EXPECT_EQ(edits.count(), 0);
  field.show(0);
  EXPECT_EQ(field.text(), QStringLiteral("1"));
  field.stepDown();
  EXPECT_EQ(edits.count(), 0);
}

struct LatitudeField : testing::Test {
  AngleField field{QStringLiteral("Latitude"), 90.0, {u'N', u'S'}};
  QSignalSpy edits{&field, &AngleField::edited};
  QSignalSpy turns{&field, &AngleField::turned};
  QSignalSpy notes{&field, &AngleField::noted};

  void type(const QString& text) {
    field.selectAll();
    QTest::keyClicks(&field, text);
    field.commit();
  }
  /// The number as the person's locale writes it.
  static QString local(const char* number) {
    return QString::fromLatin1(number).replace(QLatin1Char('.'), QLocale().decimalPoint());
  }
};

TEST_F(LatitudeField, ShowsThreeDecimalsAndKeepsTheRest) {
  field.show(40.123456);
  field.commit();
  EXPECT_EQ(field.text(), local("40.123"));
  EXPECT_EQ(edits.count(), 0);
}

TEST_F(LatitudeField, ReturnWhereNothingWasTypedChangesNothing) {
  for (const double degrees : {40.123456, 95.5}) {
    field.show(degrees);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_FALSE(isMarked(field)) << degrees;
  }
  EXPECT_EQ(edits.count(), 0);
}

TEST_F(LatitudeField, ShowsWhatIsOutsideItsRange) {
  field.show(95.5);
  field.commit();
  EXPECT_EQ(field.text(), local("95.5"));
  EXPECT_EQ(edits.count(), 0);
}

TEST_F(LatitudeField, TakesWhatAPersonTypesInTheirOwnNotation) {
  field.show(40.5);
  type(local("12.345"));
  ASSERT_EQ(edits.count(), 1);
  EXPECT_EQ(edits.at(0).at(0).toDouble(), 12.345);
}

TEST_F(LatitudeField, TakesACommaAndAPointForTheSame) {
  for (const char* const number : {"8.5", "7,25", ",5"}) {
    edits.clear();
    type(QString::fromLatin1(number));
    ASSERT_EQ(edits.count(), 1) << number;
  }
  EXPECT_EQ(edits.at(0).at(0).toDouble(), 0.5);
  EXPECT_EQ(field.text(), local("0.5"));
}

TEST_F(LatitudeField, TakesBothEndsOfItsRange) {
  type(QStringLiteral("90"));
  type(QStringLiteral("0"));
  ASSERT_EQ(edits.count(), 2);
  EXPECT_EQ(edits.at(0).at(0).toDouble(), 90.0);
  EXPECT_EQ(edits.at(1).at(0).toDouble(), 0.0);
  AngleField longitude(QStringLiteral("Longitude"), 180.0, {u'E', u'W'});
  const QSignalSpy longitudes(&longitude, &AngleField::edited);
  longitude.selectAll();
  QTest::keyClicks(&longitude, QStringLiteral("180"));
  longitude.commit();
  ASSERT_EQ(longitudes.count(), 1);
  EXPECT_EQ(longitudes.at(0).at(0).toDouble(), 180.0);
}

TEST_F(LatitudeField, WhatIsNoLatitudeIsMarkedAndNeverAnotherOne) {
  field.show(1.0);
  const QString range = QStringLiteral("Latitude 0 to 90");
  const QString fine = QStringLiteral("At most three decimals");
  for (const auto& [text, note] :
       {std::pair("91", range), std::pair("90.001", range), std::pair("1e1", range),
        std::pair("1.2.3", range), std::pair("1 2", range), std::pair("+5", range),
        std::pair("x", range), std::pair("abc", range), std::pair("1.2345", fine),
        std::pair("0.0001", fine), std::pair("91.2345", range)}) {
    field.selectAll();
    QTest::keyClicks(&field, QString::fromLatin1(text));
    EXPECT_EQ(field.text(), QString::fromLatin1(text));
    EXPECT_TRUE(isMarked(field)) << text;
    EXPECT_EQ(notes.last().at(0).toString(), note) << text;
    EXPECT_EQ(field.accessibleDescription(), note) << text;
    field.commit();
    EXPECT_EQ(notes.last().at(0).toString(), note + QStringLiteral("; still 1")) << text;
    EXPECT_EQ(field.text(), QStringLiteral("1")) << text;
  }
  EXPECT_EQ(edits.count(), 0);
}

TEST_F(LatitudeField, ALetterOrAMinusTurnsItWhenTheNumberCounts) {
  for (const auto& [text, isNorth] :
       {std::pair("s12", false), std::pair("12n", true), std::pair("-12", false),
        std::pair("12S", false), std::pair("12.0 n", true)}) {
    field.show(1.0);
    turns.clear();
    edits.clear();
    field.selectAll();
    QTest::keyClicks(&field, QString::fromLatin1(text));
    EXPECT_EQ(turns.count(), 0) << text;
    EXPECT_FALSE(isMarked(field)) << text;
    field.commit();
    ASSERT_EQ(turns.count(), 1) << text;
    EXPECT_EQ(turns.at(0).at(0).toBool(), isNorth) << text;
    EXPECT_EQ(field.text(), QStringLiteral("12")) << text;
    ASSERT_EQ(edits.count(), 1) << text;
    EXPECT_EQ(edits.at(0).at(0).toDouble(), 12.0) << text;
  }
}

TEST_F(LatitudeField, TwoDirectionsAreNone) {
  field.show(1.0);
  for (const char* const text : {"s12n", "12ns", "-12s", "--12", "12-"}) {
    field.selectAll();
    QTest::keyClicks(&field, QString::fromLatin1(text));
    EXPECT_TRUE(isMarked(field)) << text;
    field.commit();
    EXPECT_EQ(field.text(), QStringLiteral("1")) << text;
  }
  EXPECT_EQ(turns.count(), 0);
  EXPECT_EQ(edits.count(), 0);
}

TEST_F(LatitudeField, ALetterInTheMiddleOfTheNumberTurnsItToo) {
  field.show(40.5);
  field.setCursorPosition(1);
  QTest::keyClicks(&field, QStringLiteral("s"));
  ASSERT_EQ(turns.count(), 1);
  EXPECT_FALSE(turns.at(0).at(0).toBool());
  EXPECT_EQ(field.text(), local("40.5"));
  EXPECT_FALSE(isMarked(field));
}

TEST_F(LatitudeField, ALetterAloneLeavesTheNumber) {
  field.show(40.123456);
  field.selectAll();
  QTest::keyClicks(&field, QStringLiteral("S"));
  field.commit();
  EXPECT_EQ(turns.count(), 1);
  EXPECT_EQ(edits.count(), 0);
  EXPECT_EQ(field.text(), local("40.123"));
}

TEST_F(LatitudeField, APastedPlaceBringsItsDirection) {
  for (const auto& [text, isNorth] :
       {std::pair(" 20.5° S", false), std::pair("−20.5", false), std::pair("-20.5", false),
        std::pair("N 20,5", true), std::pair("20.5°n ", true)}) {
    turns.clear();
    edits.clear();
    field.show(1.0);
    QApplication::clipboard()->setText(QString::fromUtf8(text));
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_FALSE(isMarked(field)) << text;
    QTest::keyClick(&field, Qt::Key_Return);
    ASSERT_EQ(turns.count(), 1) << text;
    EXPECT_EQ(turns.at(0).at(0).toBool(), isNorth) << text;
    ASSERT_EQ(edits.count(), 1) << text;
    EXPECT_EQ(edits.at(0).at(0).toDouble(), 20.5) << text;
  }
}

}  // namespace
}  // namespace veyruna::ui
