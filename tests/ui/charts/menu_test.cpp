// What can be done with a chart: its menu, and what is copied.
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include "drawing/svg_reader.h"
#include "tests/support/patience.h"
#include "tests/ui/charts/shown_chart.h"

namespace veyruna::ui {
namespace {

using tests::ShownChart;

struct ChartMenu : testing::Test, ShownChart {
  ChartMenu() : ShownChart(tests::tenSkies()[1]) { QApplication::clipboard()->clear(); }

  /// Opens the menu as the second button of the mouse or the menu key does.
  QMenu* open(QContextMenuEvent::Reason reason) {
    QContextMenuEvent event(reason, {100, 100}, chart->mapToGlobal(QPoint(100, 100)));
    QCoreApplication::sendEvent(chart.get(), &event);
    QMenu* menu = nullptr;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
          menu = chart->findChild<QMenu*>(QStringLiteral("chartMenu"));
          return menu != nullptr && menu->isVisible();
        },
        tests::patienceMilliseconds));
    if (menu == nullptr) {
      throw std::runtime_error("no menu");
    }
    return menu;
  }

  void choose(const char* title, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse) {
    QMenu* const menu = open(reason);
    for (QAction* const action : menu->actions()) {
      if (action->text().remove(QLatin1Char('&')) == QString::fromUtf8(title)) {
        EXPECT_TRUE(action->isEnabled());
        menu->setActiveAction(action);
        QTest::keyClick(menu, Qt::Key_Return);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return;
      }
    }
    throw std::runtime_error(title);
  }
};

TEST_F(ChartMenu, ThePictureIsCopiedAsDrawingAndAsBitmap) {
  choose("Copy Picture");
  const QMimeData* const copied = QApplication::clipboard()->mimeData();
  EXPECT_EQ(copied->data(QStringLiteral("image/svg+xml")), chart->svg().toUtf8());
  EXPECT_NO_THROW(drawing::readSvg(copied->data(QStringLiteral("image/svg+xml"))));
  const auto bitmap = qvariant_cast<QImage>(copied->imageData());
  EXPECT_EQ(bitmap.size(), QSize(2880, 1520));
  EXPECT_EQ(bitmap.pixelColor(5, 5), QColor(Qt::white));
  EXPECT_EQ(bitmap.pixelColor(4 * 190 + 9, 4 * 25), QColor(0x72, 0x7c, 0xbb));
}

TEST_F(ChartMenu, TheKeyForCopyingCopiesThePictureHoweverItIsLookedAt) {
  chart->setFraming({8.0, {0.3, 0.3}});
  QTest::keyClick(chart.get(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->mimeData()->data(QStringLiteral("image/svg+xml")),
            chart->svg().toUtf8());
  EXPECT_EQ(qvariant_cast<QImage>(QApplication::clipboard()->mimeData()->imageData()).size(),
            QSize(2880, 1520));
}

TEST_F(ChartMenu, TheDescriptionIsCopiedAsText) {
  choose("Copy Description", QContextMenuEvent::Keyboard);
  EXPECT_EQ(QApplication::clipboard()->text(), chart->description());
  EXPECT_TRUE(chart->description().contains(QStringLiteral("Thessil")));
}

TEST_F(ChartMenu, SavingIsAskedForByItsForm) {
  QSignalSpy svg(chart.get(), &ChartView::svgRequested);
  QSignalSpy pdf(chart.get(), &ChartView::pdfRequested);
  QSignalSpy png(chart.get(), &ChartView::pngRequested);
  choose("Save as SVG…");
  EXPECT_EQ(svg.count(), 1);
  choose("Save as PDF…");
  EXPECT_EQ(pdf.count(), 1);
  choose("Save as PNG…");
  EXPECT_EQ(png.count(), 1);
  EXPECT_EQ(svg.count() + pdf.count(), 2);
}

TEST_F(ChartMenu, BeforeTheFirstCalculationThereIsNothingToCopyOrSave) {
  chart->show(QString());
  for (const QAction* const action : open(QContextMenuEvent::Mouse)->actions()) {
    EXPECT_TRUE(action->isSeparator() || !action->isEnabled()) << action->text().toStdString();
  }
  QApplication::clipboard()->setText(QStringLiteral("Before"));
  chart->copyPicture();
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Before"));
}

}  // namespace
}  // namespace veyruna::ui
