// Showing a value never changes it; only what a person steps or types does.
#include <QLineEdit>
#include <QLocale>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>
#include <limits>

#include "ui/controls/angle_field.h"
#include "ui/controls/stepper_field.h"

namespace veyruna::ui {
namespace {

struct YearField : testing::Test {
  StepperField field{QStringLiteral("Year"), 1, 2000, 0};
  QSignalSpy edits{&field, &StepperField::edited};

  void type(const QString& text) {
    field.selectAll();
    QTest::keyClicks(&field, text);
    field.commit();
  }
  [[nodiscard]] QString shown() const { return field.text(); }
};

TEST_F(YearField, ShowsWhatIsOutsideItsRangeAndReportsNothing) {
  for (const qint64 year : {qint64{3000}, qint64{-5}, std::numeric_limits<qint64>::max()}) {
    field.show(year);
    field.commit();
    EXPECT_EQ(shown(), QStringLiteral("Year %1").arg(year));
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

TEST_F(YearField, StepsFromOutsideIntoItsRange) {
  field.show(3000);
  field.stepDown();
  ASSERT_EQ(edits.count(), 1);
  EXPECT_EQ(edits.at(0).at(0).toLongLong(), 1999);
}

TEST_F(YearField, IsTypedWithAndWithoutItsWord) {
  field.show(720);
  type(QStringLiteral("Year 1243"));
  EXPECT_EQ(shown(), QStringLiteral("Year 1243"));
  type(QStringLiteral("7"));
  EXPECT_EQ(shown(), QStringLiteral("Year 7"));
  ASSERT_EQ(edits.count(), 2);
  EXPECT_EQ(edits.at(1).at(0).toLongLong(), 7);
}

TEST_F(YearField, RefusesWhatIsNoYearWhileItIsTyped) {
  field.show(720);
  type(QStringLiteral("20001"));
  EXPECT_EQ(shown(), QStringLiteral("Year 2000"));
  type(QStringLiteral("0"));
  EXPECT_EQ(shown(), QStringLiteral("Year 2000"));
}

TEST_F(YearField, AWheelWithoutTheFocusChangesNothing) {
  field.show(720);
  QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&field, &wheel);
  EXPECT_FALSE(wheel.isAccepted());
  EXPECT_EQ(edits.count(), 0);
}

TEST(DayField, CountsFromOne) {
  StepperField field(QStringLiteral("Day"), 0, 29, 1);
  field.show(29);
  EXPECT_EQ(field.text(), QStringLiteral("Day 30"));
  const QSignalSpy edits(&field, &StepperField::edited);
  field.stepUp();
  EXPECT_EQ(edits.count(), 0);
  field.show(0);
  EXPECT_EQ(field.text(), QStringLiteral("Day 1"));
  field.stepDown();
  EXPECT_EQ(edits.count(), 0);
}

struct LatitudeField : testing::Test {
  AngleField field{90.0};
  QSignalSpy edits{&field, &AngleField::edited};

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

TEST_F(LatitudeField, RefusesTheRestWhileItIsTyped) {
  field.show(1.0);
  type(QStringLiteral("-"));
  EXPECT_EQ(field.text(), QStringLiteral("1"));
  type(QStringLiteral("91"));
  EXPECT_EQ(field.text(), QStringLiteral("9"));
  type(local("1.23456"));
  EXPECT_EQ(field.text(), local("1.234"));
  type(QStringLiteral("1e1"));
  EXPECT_EQ(field.text(), QStringLiteral("11"));
}

}  // namespace
}  // namespace veyruna::ui
