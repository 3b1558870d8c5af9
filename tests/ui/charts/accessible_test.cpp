// The charts as a screen reader meets them.
#include <QAccessible>
#include <gtest/gtest.h>

#include "charts/mark_reading.h"
#include "tests/ui/charts/shown_chart.h"

namespace veyruna::ui {
namespace {

using charts::ChartMark;
using charts::MarkKind;
using documents::Document;
using tests::ShownChart;
using tests::Sky;

QStringList childNames(QAccessibleInterface* chart) {
  QStringList names;
  for (int i = 0; i < chart->childCount(); ++i) {
    names.append(chart->child(i)->text(QAccessible::Name));
  }
  return names;
}

class SpeakingCharts : public testing::TestWithParam<Sky> {};

TEST_P(SpeakingCharts, HaveAChildForEachBodyChordNamedStarAndLine) {
  ShownChart shown(GetParam());
  QAccessibleInterface* const chart = QAccessible::queryAccessibleInterface(shown.chart.get());
  ASSERT_NE(chart, nullptr);
  const QStringList names = childNames(chart);
  qsizetype expected = 0;
  for (const ChartMark& mark : shown.chart->marks().all()) {
    if (mark.kind != MarkKind::backgroundStar) {
      const QString name = QString::fromStdString(charts::spoken(mark, GetParam().observer));
      EXPECT_TRUE(names.contains(name)) << name.toStdString();
      EXPECT_TRUE(name.startsWith(QString::fromStdString(mark.name)));
      ++expected;
    }
  }
  EXPECT_EQ(names.size(), expected);
  EXPECT_GT(expected, 50);
}

TEST_P(SpeakingCharts, KnowTheirChildrenBothWays) {
  ShownChart shown(GetParam());
  QAccessibleInterface* const chart = QAccessible::queryAccessibleInterface(shown.chart.get());
  const QRect window(shown.chart->mapToGlobal(QPoint()), shown.chart->size());
  for (int i = 0; i < chart->childCount(); ++i) {
    QAccessibleInterface* const child = chart->child(i);
    ASSERT_TRUE(child->isValid());
    EXPECT_EQ(chart->child(i), child);
    EXPECT_EQ(child->parent(), chart);
    EXPECT_EQ(chart->indexOfChild(child), i);
    EXPECT_TRUE(child->rect().intersects(window)) << child->text(QAccessible::Name).toStdString();
    EXPECT_NE(child->role(), QAccessible::NoRole);
    EXPECT_TRUE(child->state().focusable);
    EXPECT_FALSE(child->state().offscreen);
    EXPECT_FALSE(child->text(QAccessible::Description).isEmpty());
  }
  EXPECT_EQ(chart->child(-1), nullptr);
  EXPECT_EQ(chart->child(chart->childCount()), nullptr);
  EXPECT_EQ(chart->indexOfChild(chart), -1);
}

TEST_P(SpeakingCharts, SumThemselvesUpInThreeSentences) {
  ShownChart shown(GetParam());
  QAccessibleInterface* const chart = QAccessible::queryAccessibleInterface(shown.chart.get());
  const QString text = chart->text(QAccessible::Description);
  EXPECT_TRUE(text.startsWith(QStringLiteral("A chart. "))) << text.toStdString();
  EXPECT_EQ(text.count(QStringLiteral(". ")) + 1, 3) << text.toStdString();
  EXPECT_TRUE(text.endsWith(QLatin1Char('.')));
}

INSTANTIATE_TEST_SUITE_P(TenCharts, SpeakingCharts, testing::ValuesIn(tests::tenSkies()));

struct OneSpeakingChart : testing::Test, ShownChart {
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(chart.get());

  OneSpeakingChart() : ShownChart(tests::tenSkies()[1]) {}

  QAccessibleInterface* childCalled(const char* name) {
    for (int i = 0; i < spoken->childCount(); ++i) {
      if (spoken->child(i)->text(QAccessible::Name).startsWith(QLatin1String(name))) {
        return spoken->child(i);
      }
    }
    throw std::runtime_error(name);
  }
};

TEST_F(OneSpeakingChart, ABodyIsFoundUnderThePointer) {
  const QPoint sun = chart->mapToGlobal(at(mark(MarkKind::body, 0).middle())).toPoint();
  ASSERT_NE(spoken->childAt(sun.x(), sun.y()), nullptr);
  EXPECT_EQ(spoken->childAt(sun.x(), sun.y()), childCalled("Thessil, "));
  EXPECT_EQ(spoken->childAt(-500, -500), nullptr);
}

TEST_F(OneSpeakingChart, ABodyIsSelectedAndFocusedByItsActions) {
  QAccessibleInterface* const galvi = childCalled("Galvi, ");
  EXPECT_FALSE(galvi->state().selected);
  galvi->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(selection.body(), 4U);
  EXPECT_TRUE(galvi->state().selected);
  galvi->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  ASSERT_TRUE(QTest::qWaitFor([this] { return chart->hasFocus(); }));
  EXPECT_TRUE(galvi->state().focused);
  EXPECT_EQ(spoken->focusChild(), galvi);
  EXPECT_EQ(chart->focusedMark()->name, "Galvi");
  QAccessibleInterface* const line = childCalled("Planetary Influences");
  EXPECT_EQ(line->actionInterface()->actionNames(),
            QStringList(QAccessibleActionInterface::setFocusAction()));
}

TEST_F(OneSpeakingChart, WhatAScreenReaderHoldsFollowsTheSky) {
  QAccessibleInterface* const sun = childCalled("Thessil, ");
  const QString before = sun->text(QAccessible::Name);
  look({.baseTime = observer->baseTime + 120.0, .latitude = 0.3, .longitude = 0.0},
       Document::horoscope);
  EXPECT_TRUE(sun->isValid());
  EXPECT_NE(sun->text(QAccessible::Name), before);
  EXPECT_EQ(childCalled("Thessil, "), sun);
}

TEST_F(OneSpeakingChart, WhatIsNotShownAnyMoreIsInvalidAndNothingIsLost) {
  QAccessibleInterface* const sun = childCalled("Thessil, ");
  observer.reset();
  EXPECT_FALSE(sun->isValid());
  EXPECT_TRUE(sun->text(QAccessible::Name).isEmpty());
  EXPECT_TRUE(sun->rect().isEmpty());
  EXPECT_TRUE(sun->state().invalid);
  EXPECT_EQ(spoken->childCount(), 0);
}

TEST_F(OneSpeakingChart, GoesWithItsView) {
  const QAccessible::Id id = QAccessible::uniqueId(childCalled("Thessil, "));
  ASSERT_NE(QAccessible::accessibleInterface(id), nullptr);
  chart.reset();
  EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

}  // namespace
}  // namespace veyruna::ui
