// The charts at the keyboard: from mark to mark.
#include <gtest/gtest.h>
#include <queue>
#include <set>

#include "charts/mark_reading.h"
#include "tests/ui/charts/shown_chart.h"
#include "ui/charts/hit_test.h"

namespace veyruna::ui {
namespace {

using charts::ChartMark;
using charts::MarkKind;
using tests::ShownChart;
using tests::Sky;

constexpr std::array directions = {Direction::left, Direction::right, Direction::up,
                                   Direction::down};

class Walk : public testing::TestWithParam<Sky> {};

TEST_P(Walk, TheArrowsReachEveryMarkThatSpeaks) {
  ShownChart shown(GetParam());
  const auto& marks = shown.chart->marks().speaking();
  std::set<const ChartMark*> reached = {marks.front()};
  std::queue<const ChartMark*> next({marks.front()});
  while (!next.empty()) {
    for (const Direction direction : directions) {
      const ChartMark* const neighbour = neighbourOf(marks, *next.front(), direction);
      if (neighbour != nullptr && reached.insert(neighbour).second) {
        next.push(neighbour);
      }
    }
    next.pop();
  }
  for (const ChartMark* const mark : marks) {
    EXPECT_TRUE(reached.contains(mark)) << mark->name << " " << mark->line;
  }
}

TEST_P(Walk, PageDownGoesRoundAllOfThem) {
  ShownChart shown(GetParam());
  shown.press(Qt::Key_Home);
  const std::size_t count = shown.chart->marks().speaking().size();
  std::set<const ChartMark*> reached;
  for (std::size_t i = 0; i < count; ++i) {
    reached.insert(shown.chart->focusedMark());
    EXPECT_EQ(shown.chart->readOutLines().value(0).toStdString(), shown.chart->focusedMark()->name);
    shown.press(Qt::Key_PageDown);
  }
  EXPECT_EQ(reached.size(), count);
  EXPECT_EQ(shown.chart->focusedMark(), shown.chart->marks().speaking().front());
  shown.press(Qt::Key_PageUp);
  EXPECT_EQ(shown.chart->focusedMark(), shown.chart->marks().speaking().back());
}

INSTANTIATE_TEST_SUITE_P(TenCharts, Walk, testing::ValuesIn(tests::tenSkies()));

struct AtTheKeyboard : testing::Test, ShownChart {
  AtTheKeyboard() : ShownChart(tests::tenSkies()[1]) {
    chart->setFocus();
    QCoreApplication::processEvents();
  }

  /// Goes to a mark by Home and Page Down.
  void goTo(const MarkKey& key) {
    press(Qt::Key_Home);
    for (std::size_t i = 0; i < chart->marks().speaking().size(); ++i) {
      if (MarkKey(*chart->focusedMark()) == key) {
        return;
      }
      press(Qt::Key_PageDown);
    }
    throw std::runtime_error("not reached");
  }
};

TEST_F(AtTheKeyboard, TheFirstArrowGoesToWhatIsInTheMiddle) {
  EXPECT_EQ(chart->focusedMark(), nullptr);
  press(Qt::Key_Right);
  ASSERT_NE(chart->focusedMark(), nullptr);
  const QPointF middle = QRectF(chart->rect()).center();
  EXPECT_LT(QLineF(at(anchorOf(*chart->focusedMark())), middle).length(), 60.0);
}

TEST_F(AtTheKeyboard, TheRingIsSeenAndItsMarkIsRead) {
  const QImage before = chart->grab().toImage();
  goTo({MarkKind::body, 2});
  const QImage after = chart->grab().toImage();
  const QRectF ring = chart->placeOf(*chart->focusedMark());
  const double ratio = after.devicePixelRatio();
  const QRect part = QRectF(ring.topLeft() * ratio, ring.size() * ratio).toAlignedRect();
  EXPECT_NE(after.copy(part), before.copy(part));
  EXPECT_EQ(chart->readOutLines().value(0), QStringLiteral("Bralo"));
  EXPECT_FALSE(chart->readOutBox().contains(at(anchorOf(*chart->focusedMark()))));
}

TEST_F(AtTheKeyboard, UpAndDownGoThroughThePanelLineByLine) {
  goTo({MarkKind::panelLine, 0});
  EXPECT_EQ(chart->focusedMark()->name, "Thessil Influence (Character)");
  press(Qt::Key_Down);
  EXPECT_TRUE(chart->focusedMark()->name.starts_with("House: "));
  press(Qt::Key_Down);
  EXPECT_EQ(chart->focusedMark()->name, "Ivroar Influence (Fate)");
  press(Qt::Key_Up);
  EXPECT_TRUE(chart->focusedMark()->name.starts_with("House: "));
}

TEST_F(AtTheKeyboard, ReturnSelectsABodyAndEscapeLetsGo) {
  goTo({MarkKind::body, 3});
  press(Qt::Key_Return);
  EXPECT_EQ(selection.body(), 3U);
  goTo({MarkKind::panelLine, 4});
  press(Qt::Key_Return);
  EXPECT_EQ(selection.body(), 3U) << "a line of the panel is no body";
  press(Qt::Key_Escape);
  EXPECT_EQ(selection.body(), std::nullopt);
  EXPECT_EQ(chart->focusedMark(), nullptr);
}

TEST_F(AtTheKeyboard, WhatTheRingComesToIsBroughtIntoSight) {
  chart->setFraming({16.0, {0.2, 0.5}});
  goTo({MarkKind::panelLine, 10});
  EXPECT_TRUE(QRectF(chart->rect()).contains(at(anchorOf(*chart->focusedMark()))));
  EXPECT_EQ(chart->framing().zoom, 16.0);
}

TEST_F(AtTheKeyboard, TheKeysEnlargeAboutTheRing) {
  goTo({MarkKind::body, 2});
  const QPointF before = at(anchorOf(*chart->focusedMark()));
  press(Qt::Key_Plus);
  press(Qt::Key_Plus);
  EXPECT_LT((at(anchorOf(*chart->focusedMark())) - before).manhattanLength(), 1e-6);
}

TEST_F(AtTheKeyboard, TheRingStaysOnItsMarkWhenTheSkyMoves) {
  goTo({MarkKind::body, 5});
  const QPointF before = at(anchorOf(*chart->focusedMark()));
  look({.baseTime = observer->baseTime + 9000.0, .latitude = 0.2, .longitude = 0.0},
       documents::Document::horoscope);
  ASSERT_NE(chart->focusedMark(), nullptr);
  EXPECT_EQ(chart->focusedMark()->name, "Pallox");
  EXPECT_GT((at(anchorOf(*chart->focusedMark())) - before).manhattanLength(), 5.0);
}

TEST_F(AtTheKeyboard, BeforeTheFirstCalculationTheKeysDoNothing) {
  observer.reset();
  chart->show(QString());
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Home, Qt::Key_PageDown, Qt::Key_Return}) {
    press(key);
    EXPECT_EQ(chart->focusedMark(), nullptr);
  }
}

}  // namespace
}  // namespace veyruna::ui
