// What can be read of the outputs on a light and on a dark desktop.
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableWidget>

#include "tests/ui/light_and_dark.h"

namespace veyruna::ui {
namespace {

struct OutputLooks : tests::LightAndDark {
  /// A part of a control, in points of it, as it is seen.
  static QImage part(QWidget& control, const QRect& area) {
    return control.grab(area).toImage().convertToFormat(QImage::Format_RGB32);
  }
  static void expectReadable(const QImage& text, const std::string& what) {
    EXPECT_GE(tests::bestContrast(text, tests::groundOf(text)), 4.5) << what;
  }
  void expectReadable(const char* label) {
    auto* const found = shown.find<QLabel>(label);
    EXPECT_TRUE(found->isVisible() && !found->text().isEmpty()) << label;
    expectReadable(tests::pictureOf(*found), label);
  }
};

INSTANTIATE_TEST_SUITE_P(Outputs, OutputLooks, testing::Bool(), tests::lightOrDark);

TEST_P(OutputLooks, EveryCellAndHeadingOfThePositionsCanBeRead) {
  shown.calculate();
  shown.press("tab3");
  auto* const table = shown.find<QTableWidget>("positionsTable");
  auto* const headings = table->horizontalHeader();
  int cells = 0;
  for (int column = 0; column < table->columnCount(); ++column) {
    table->scrollToItem(table->item(0, column));
    const QRect section(headings->sectionViewportPosition(column), 0, headings->sectionSize(column),
                        headings->height());
    expectReadable(part(*headings->viewport(), section.adjusted(2, 2, -2, -2)),
                   table->horizontalHeaderItem(column)->text().toStdString());
    for (int row = 0; row < table->rowCount(); ++row) {
      const QTableWidgetItem* const item = table->item(row, column);
      // Beside the coloured mark, which is no text.
      const QRect cell = table->visualItemRect(item).adjusted(
          column == 0 ? table->iconSize().width() + 8 : 2, 2, -2, -2);
      if (item->text().isEmpty() || !table->viewport()->rect().contains(cell)) {
        continue;
      }
      expectReadable(part(*table->viewport(), cell), item->text().toStdString());
      ++cells;
    }
  }
  EXPECT_GT(cells, 4 * table->columnCount());
}

TEST_P(OutputLooks, EveryTableCanBeReadOnAGroundOfTheDesktop) {
  shown.calculate();
  int tables = 0;
  for (const auto& [tab, button] :
       {std::pair("tab4", "showHourly"), std::pair("tab4", "showMonthly"),
        std::pair("tab5", "showDaily"), std::pair("tab5", "showYearly")}) {
    shown.press(tab);
    shown.press(button);
    for (auto* const view : shown.window.findChildren<QPlainTextEdit*>()) {
      if (view->isVisible()) {
        const QImage text = part(*view->viewport(), QRect(0, 0, 300, 100));
        expectReadable(text, button);
        EXPECT_EQ(tests::luminance(tests::groundOf(text)) < 0.2, GetParam()) << button;
        ++tables;
      }
    }
  }
  EXPECT_EQ(tables, 4);
}

TEST_P(OutputLooks, CaptionMoonsAndResultsCanBeRead) {
  shown.calculate();
  expectReadable("caption");
  shown.press("tab4");
  expectReadable("nextFullMoon");
  expectReadable("nextNewMoon");
  shown.press("nativeExportButton");
  shown.find<QFileDialog>("saveDialog")
      ->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
      ->setText(QStringLiteral("/proc/moon.txt"));
  QMetaObject::invokeMethod(shown.find<QFileDialog>("saveDialog"), "accept");
  expectReadable("exportNotice");
  shown.model.setYear(-50);  // as only a file has it
  shown.calculate();
  shown.press("setNewMoon");
  for (auto* const note : shown.window.findChildren<QLabel*>(QStringLiteral("moonNote"))) {
    if (!note->text().isEmpty()) {
      expectReadable(tests::pictureOf(*note), "moonNote");
    }
  }
}

TEST_P(OutputLooks, AChartIsWhitePaperOnEveryDesktop) {
  shown.calculate();
  for (const auto& [tab, name] : {std::pair("tab1", "starMap"), std::pair("tab2", "horoscope")}) {
    shown.press(tab);
    const QImage chart = tests::pictureOf(*shown.find<QWidget>(name));
    for (const int x : {0, chart.width() - 1}) {
      for (const int y : {0, chart.height() - 1}) {
        EXPECT_EQ(chart.pixelColor(x, y), QColor(Qt::white)) << name;
      }
    }
    expectReadable(chart, name);
  }
}

TEST(ChartLooks, AChartIsTheSameOnEveryDesktop) {
  QList<QImage> charts;
  for (const QPalette& palette : {tests::lightPalette(), tests::darkPalette()}) {
    const tests::Look look(palette);
    tests::ShownWindow shown;
    shown.calculate();
    for (const auto& [tab, name] : {std::pair("tab1", "starMap"), std::pair("tab2", "horoscope")}) {
      shown.press(tab);
      charts.append(tests::pictureOf(*shown.find<QWidget>(name)));
    }
  }
  EXPECT_TRUE(charts[0] == charts[2]);
  EXPECT_TRUE(charts[1] == charts[3]);
}

TEST_P(OutputLooks, WhereThereIsNothingYetThatIsSeen) {
  for (const char* const tab : {"tab3", "tab4", "tab5"}) {
    shown.press(tab);
    for (auto* const label : shown.window.findChildren<QLabel*>(QStringLiteral("placeholder"))) {
      if (label->isVisible()) {
        const QImage text = tests::pictureOf(*label);
        EXPECT_GE(tests::bestContrast(text, tests::groundOf(text)), 3.0) << tab;  // secondary
      }
    }
  }
}

}  // namespace
}  // namespace veyruna::ui
