// Pointing at everything that ten charts show, near and far.
#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <set>

#include "charts/mark_reading.h"
#include "tests/ui/charts/shown_chart.h"
#include "ui/charts/hit_test.h"

namespace veyruna::ui {
namespace {

using charts::ChartMark;
using charts::MarkKind;
using charts::PagePoint;
using documents::Document;
using tests::ShownChart;
using tests::Sky;

QStringList linesOf(const ChartMark& mark, const astro::Observer& observer) {
  QStringList lines;
  for (const std::string& line : charts::readOut(mark, observer)) {
    lines.append(QString::fromStdString(line));
  }
  return lines;
}

/// Distance in points of the screen and magnitude, of the dot or of the letters, whichever is less;
/// infinite out of reach.
double sumOf(const ChartMark& mark, PagePoint at, double pointsPerUnit) {
  double least = std::numeric_limits<double>::infinity();
  const double ofLetters =
      mark.kind == MarkKind::panelLine ? mark.magnitude : std::max(mark.magnitude, 6.5);
  for (const auto& [parts, magnitude] :
       {std::pair(&mark.dots, mark.magnitude), std::pair(&mark.letters, ofLetters)}) {
    for (const charts::Stretch& part : *parts) {
      const double distance = part.distanceTo(at) * pointsPerUnit;
      if (distance <= 25.0) {
        least = std::min(least, distance + magnitude);
      }
    }
  }
  return least;
}

class Pointing : public testing::TestWithParam<Sky> {};

TEST_P(Pointing, FindsEveryMarkOrOneThatGoesBeforeIt) {
  ShownChart shown(GetParam());
  const charts::ChartMarks marks = shown.chart->marks().all();
  ASSERT_GT(marks.size(), 200U);
  for (const double zoom : {1.0, 4.0, 16.0}) {
    std::size_t under = 0;
    for (const ChartMark& mark : marks) {
      const PagePoint middle = mark.middle();
      shown.chart->setFraming({zoom, {0.5, 0.5}});
      shown.bringIntoSight(middle);
      const QPointF position = shown.at(middle);
      ASSERT_TRUE(QRectF(shown.chart->rect()).adjusted(-1, -1, 1, 1).contains(position))
          << mark.name;
      const double pointsPerUnit = shown.chart->chartToView().m11();
      const auto best = std::ranges::min_element(
          marks, {}, [&](const ChartMark& each) { return sumOf(each, middle, pointsPerUnit); });
      const QRectF inside = QRectF(shown.chart->rect()).adjusted(0, 0, -0.01, -0.01);
      shown.pointAt({std::clamp(position.x(), 0.0, inside.right()),
                     std::clamp(position.y(), 0.0, inside.bottom())});
      EXPECT_EQ(shown.chart->readOutLines(), linesOf(*best, GetParam().observer))
          << mark.name << " at zoom " << zoom;
      if (MarkKey(*best) != MarkKey(mark)) {
        EXPECT_LE(sumOf(*best, middle, pointsPerUnit), sumOf(mark, middle, pointsPerUnit));
        ++under;
        if (zoom == 16.0) {
          std::printf("  %s, under %s\n", mark.name.c_str(), best->name.c_str());
        }
      }
    }
    std::printf("%zu of %zu marks lie under another at zoom %.0f\n", under, marks.size(), zoom);
    EXPECT_LT(under, marks.size() / 2);
  }
}

INSTANTIATE_TEST_SUITE_P(TenCharts, Pointing, testing::ValuesIn(tests::tenSkies()));

struct PointingAtBodies : testing::Test, ShownChart {
  PointingAtBodies() : ShownChart(tests::tenSkies()[1]) {}
};

TEST_F(PointingAtBodies, TheReadOutComesWithThePointerAndLeavesWithIt) {
  const QImage alone = chart->grab().toImage();
  EXPECT_TRUE(chart->readOutLines().isEmpty());
  const QPointF position = at(mark(MarkKind::body, 0).middle());
  pointAt(position);
  ASSERT_EQ(chart->readOutLines().value(0), QStringLiteral("Thessil"));
  EXPECT_FALSE(chart->readOutBox().contains(position));
  EXPECT_TRUE(QRectF(chart->rect()).contains(chart->readOutBox()));
  const QImage told = chart->grab().toImage();
  const double ratio = told.devicePixelRatio();
  const QRect box =
      QRectF(chart->readOutBox().topLeft() * ratio, chart->readOutBox().size() * ratio)
          .toAlignedRect();
  EXPECT_NE(told.copy(box), alone.copy(box));
  leave();
  EXPECT_TRUE(chart->readOutLines().isEmpty());
  EXPECT_EQ(chart->grab().toImage(), alone);
}

TEST_F(PointingAtBodies, UnderAPointerThatRestsTheReadOutFollowsTheSky) {
  pointAt(at(mark(MarkKind::panelLine, 1).letters.front().middle()));
  const QStringList before = chart->readOutLines();
  ASSERT_TRUE(before.constFirst().startsWith(QStringLiteral("House: ")));
  look({.baseTime = observer->baseTime + 90.0, .latitude = 0.0, .longitude = 0.0},
       Document::horoscope);
  chart->grab();  // as the screen is painted
  EXPECT_TRUE(chart->readOutLines().value(0).startsWith(QStringLiteral("House: ")));
  EXPECT_NE(chart->readOutLines(), before);
}

TEST_F(PointingAtBodies, WhereNothingIsNothingIsTold) {
  pointAt(at({374.0, 25.0}));
  EXPECT_TRUE(chart->readOutLines().isEmpty());
}

TEST_F(PointingAtBodies, BeforeTheFirstCalculationNothingIsTold) {
  observer.reset();
  chart->show(QString());
  pointAt({300.0, 300.0});
  EXPECT_TRUE(chart->readOutLines().isEmpty());
  EXPECT_EQ(chart->description(), QStringLiteral("A chart"));
}

TEST_F(PointingAtBodies, WhileTheChartIsDraggedNothingIsTold) {
  chart->setFraming({4.0, {0.3, 0.5}});
  QTest::mousePress(chart.get(), Qt::LeftButton, {}, {200, 200});
  QMouseEvent drag(QEvent::MouseMove, QPointF(240, 240), chart->mapToGlobal(QPointF(240, 240)),
                   Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(chart.get(), &drag);
  EXPECT_TRUE(chart->readOutLines().isEmpty());
  QTest::mouseRelease(chart.get(), Qt::LeftButton, {}, {240, 240});
}

TEST_F(PointingAtBodies, AClickSelectsABodyAndNothingElse) {
  QTest::mouseClick(chart.get(), Qt::LeftButton, {},
                    at(mark(MarkKind::body, 4).middle()).toPoint());
  EXPECT_EQ(selection.body(), 4U);
  QTest::mouseClick(chart.get(), Qt::LeftButton, {}, at({374.0, 25.0}).toPoint());
  EXPECT_EQ(selection.body(), 4U) << "beside everything";
  QTest::mouseClick(chart.get(), Qt::RightButton, {},
                    at(mark(MarkKind::body, 0).middle()).toPoint());
  EXPECT_EQ(selection.body(), 4U);
  press(Qt::Key_Escape);
  EXPECT_EQ(selection.body(), std::nullopt);
}

TEST_F(PointingAtBodies, TheSelectedBodyIsRingedWhereverItGoes) {
  const auto isRinged = [this](std::size_t body) {
    const QRectF place = chart->placeOf(mark(MarkKind::body, body));
    QImage image = chart->grab().toImage();
    const double ratio = image.devicePixelRatio();
    const QPointF edge(place.center().x() * ratio, (place.top()) * ratio);
    int seen = 0;
    for (int dx = -2; dx <= 2; ++dx) {
      for (int dy = -3; dy <= 3; ++dy) {
        const QPoint pixel = edge.toPoint() + QPoint(dx, dy);
        seen += image.rect().contains(pixel) && image.pixelColor(pixel) == QColor(0xc2, 0x18, 0x5b);
      }
    }
    return seen > 0;
  };
  EXPECT_FALSE(isRinged(4));
  selection.setBody(4);
  EXPECT_TRUE(isRinged(4));
  EXPECT_FALSE(isRinged(5));
  look({.baseTime = observer->baseTime + 3000.0, .latitude = 0.5, .longitude = 0.1},
       Document::horoscope);
  EXPECT_TRUE(isRinged(4));
  EXPECT_EQ(selection.body(), 4U);
  selection.setBody(std::nullopt);
  EXPECT_FALSE(isRinged(4));
}

}  // namespace
}  // namespace veyruna::ui
