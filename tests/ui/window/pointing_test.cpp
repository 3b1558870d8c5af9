// The charts in the window: one selection for all that shows the bodies, and saving by their menu.
#include <QAction>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QTableWidget>

#include "tests/ui/shown_window.h"
#include "ui/charts/chart_view.h"

namespace veyruna::ui {
namespace {

using charts::MarkKind;

struct ChartsInTheWindow : testing::Test, tests::ShownWindow {
  ChartView* starMap = find<ChartView>("starMap");
  ChartView* horoscope = find<ChartView>("horoscope");
  QTableWidget* list = find<QTableWidget>("positionsTable");

  ChartsInTheWindow() { calculate(); }

  [[nodiscard]] QList<int> selectedRows() const {
    QList<int> rows;
    for (const QModelIndex& index : list->selectionModel()->selectedRows()) {
      rows.append(index.row());
    }
    return rows;
  }

  void clickBody(ChartView* chart, std::size_t body) {
    const charts::ChartMark* const mark = chart->marks().find({MarkKind::body, body});
    ASSERT_NE(mark, nullptr);
    const charts::PagePoint at = mark->middle();
    QTest::mouseClick(chart, Qt::LeftButton, {},
                      chart->chartToView().map(QPointF(at.x, at.y)).toPoint());
  }

  /// Whether the chart looks otherwise while the body is selected than when it is let go.
  bool marksIt(ChartView* chart) {
    const QImage with = chart->grab().toImage();
    const auto body = starMap->selection().body();
    const_cast<ChartSelection&>(chart->selection()).setBody(std::nullopt);
    const QImage without = chart->grab().toImage();
    const_cast<ChartSelection&>(chart->selection()).setBody(body);
    return with != without;
  }
};

TEST_F(ChartsInTheWindow, AClickOnAChartSelectsTheBodyEverywhere) {
  press("tab2");
  clickBody(horoscope, 3);
  EXPECT_EQ(selectedRows(), QList<int>{3});
  EXPECT_EQ(starMap->selection().body(), 3U);
  EXPECT_TRUE(marksIt(horoscope));
}

TEST_F(ChartsInTheWindow, ARowOfTheListMarksItsBodyOnTheCharts) {
  press("tab3");
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                    list->visualItemRect(list->item(5, 0)).center());
  EXPECT_EQ(horoscope->selection().body(), 5U);
  EXPECT_EQ(selectedRows(), QList<int>{5});
  press("tab2");
  EXPECT_TRUE(marksIt(horoscope));
  QTest::keyClick(horoscope, Qt::Key_Escape);
  EXPECT_EQ(selectedRows(), QList<int>{});
}

TEST_F(ChartsInTheWindow, ByTheKeysOfTheListTheLastRowCounts) {
  press("tab3");
  list->setFocus();
  list->selectRow(1);
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(starMap->selection().body(), 2U);
  QTest::keyClick(list, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(selectedRows().size(), 2) << "several rows are selected to be copied";
  EXPECT_EQ(starMap->selection().body(), 3U);
  QTest::keyClick(list, Qt::Key_Escape);
  EXPECT_EQ(selectedRows(), QList<int>{});
  EXPECT_EQ(starMap->selection().body(), std::nullopt);
}

TEST_F(ChartsInTheWindow, TheSelectionSurvivesACalculation) {
  press("tab2");
  clickBody(horoscope, 4);
  model.setYear(901);
  calculate();
  EXPECT_EQ(horoscope->selection().body(), 4U);
  EXPECT_EQ(selectedRows(), QList<int>{4});
  EXPECT_TRUE(marksIt(horoscope));
}

TEST_F(ChartsInTheWindow, AnotherWindowHasASelectionOfItsOwn) {
  MainView other(model, time, state);
  press("tab2");
  clickBody(horoscope, 4);
  EXPECT_EQ(other.findChild<ChartView*>(QStringLiteral("horoscope"))->selection().body(),
            std::nullopt);
}

TEST_F(ChartsInTheWindow, TheReadOutHasTheFiguresOfTheList) {
  press("tab2");
  for (int row = 0; row < list->rowCount(); ++row) {
    const charts::ChartMark* const mark =
        horoscope->marks().find({MarkKind::body, static_cast<std::size_t>(row)});
    if (mark == nullptr) {
      continue;
    }
    horoscope->setFocus();
    horoscope->focusMark(MarkKey(*mark));
    const QStringList lines = horoscope->readOutLines();
    ASSERT_EQ(lines.size(), 5);
    const auto cell = [&](int column) { return list->item(row, column)->text().trimmed(); };
    EXPECT_EQ(lines[0], cell(0));
    EXPECT_EQ(lines[1], QStringLiteral("Altitude: ") + cell(3));
    EXPECT_EQ(lines[2], QStringLiteral("Azimuth: ") + cell(2));
    EXPECT_EQ(lines[3], QStringLiteral("Ec. Longitude: ") + cell(4));
    EXPECT_EQ(lines[4], QStringLiteral("Sign: ") + cell(5));
  }
}

TEST_F(ChartsInTheWindow, TheMenuSavesAChartAsPng) {
  press("tab2");
  Q_EMIT horoscope->pngRequested();
  auto* const dialog = find<QFileDialog>("saveDialog");
  const QString path = folder.filePath(QStringLiteral("wheel.png"));
  dialog->selectFile(path);
  QMetaObject::invokeMethod(dialog, "accept");
  ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(path); }, tests::patienceMilliseconds));
  const QImage saved(path);
  EXPECT_EQ(saved.size(), QSize(1440, 760));
  EXPECT_EQ(saved.pixelColor(3, 3), QColor(Qt::white));
}

TEST_F(ChartsInTheWindow, TheMenuAsksForAFileOfEachForm) {
  press("tab2");
  ChartView& chart = *horoscope;
  for (const auto& [requested, suffix] :
       {std::pair(&ChartView::svgRequested, ".svg"), std::pair(&ChartView::pdfRequested, ".pdf"),
        std::pair(&ChartView::pngRequested, ".png")}) {
    Q_EMIT(chart.*requested)();
    auto* const dialog = find<QFileDialog>("saveDialog");
    const QString name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
    EXPECT_TRUE(name.startsWith(QStringLiteral("Horoscope - "))) << name.toStdString();
    EXPECT_TRUE(name.endsWith(QLatin1String(suffix))) << name.toStdString();
    dialog->reject();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

}  // namespace
}  // namespace veyruna::ui
