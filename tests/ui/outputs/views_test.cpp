// The outputs as the window shows them.
#include <QClipboard>
#include <QDialog>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTableWidget>
#include <set>

#include "tests/support/source_path.h"
#include "tests/ui/alerts.h"
#include "tests/ui/shown_window.h"

namespace veyruna::ui {
namespace {

struct Views : testing::Test, tests::ShownWindow {
  /// The table's text that can be seen now.
  QPlainTextEdit* table() {
    for (auto* const view : window.findChildren<QPlainTextEdit*>()) {
      if (view->isVisible()) {
        return view;
      }
    }
    throw std::runtime_error("no table is shown");
  }
  /// What a column's cells ask for, with mark and margins.
  static int textWidth(const QAbstractItemView* cells, int column) {
    return cells->sizeHintForColumn(column);
  }
  /// How many columns on the left are empty.
  static int leftOf(const QImage& mark) {
    int column = 0;
    while (column < mark.width() && mark.pixelColor(column, mark.height() / 2).alpha() < 64) {
      ++column;
    }
    return column;
  }
  QStringList placeholders() {
    QStringList texts;
    for (const auto* const label : window.findChildren<QLabel*>(QStringLiteral("placeholder"))) {
      if (label->isVisible()) {
        EXPECT_EQ(label->alignment(), Qt::AlignCenter);
        texts.append(label->text());
      }
    }
    return texts;
  }
};

/// All that a file holds; none where there is no such file.
QByteArray bytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST_F(Views, ProgramCarriesTheMapWithIt) {
  const QByteArray map =
      bytesOf(QString::fromStdString(tests::sourcePath("resources/tamsorel.jpg")));
  ASSERT_FALSE(map.isEmpty());
  EXPECT_EQ(bytesOf(QStringLiteral(":/tamsorel.jpg")), map);
}

TEST_F(Views, WithoutACalculationTheViewsSayThatThereIsNothing) {
  press("tab3");
  EXPECT_EQ(placeholders(), QStringList(QStringLiteral("No Positions")));
  press("tab4");
  EXPECT_EQ(placeholders(), QStringList(QStringLiteral("No table data")));
  press("showMonthly");
  EXPECT_EQ(placeholders(), QStringList(QStringLiteral("No table data")));
  press("tab5");
  EXPECT_EQ(placeholders(), QStringList(QStringLiteral("No conjunction data")));
  calculate();
  EXPECT_EQ(placeholders(), QStringList());
}

TEST_F(Views, TheTablesShowTheirTexts) {
  calculate();
  press("tab4");
  EXPECT_EQ(table()->toPlainText(), model.basicTableHourly());
  press("showMonthly");
  EXPECT_EQ(table()->toPlainText(), model.basicTableMonthly());
  EXPECT_EQ(find<QLabel>("nextFullMoon")->text(), model.nextFullMoonLabel());
  EXPECT_EQ(find<QLabel>("nextNewMoon")->text(), model.nextNewMoonLabel());
  press("tab5");
  EXPECT_EQ(table()->toPlainText(), model.conjunctionDaily());
  press("showYearly");
  EXPECT_EQ(table()->toPlainText(), model.conjunctionYearly());
  EXPECT_GE(table()->blockCount(), 360);
}

TEST_F(Views, SetPutsTheNextMoonsIntoTheInputsAndCalculatesNothing) {
  press("tab4");
  EXPECT_FALSE(find<QWidget>("setFullMoon")->isEnabled());
  EXPECT_FALSE(find<QWidget>("setNewMoon")->isEnabled());
  calculate();
  const QString table = model.basicTableHourly();
  const double fullMoon = model.nextFullMoonBaseTime().value();
  const double newMoon = model.nextNewMoonBaseTime().value();
  constexpr double minute = 1.0 / 1440.0;
  for (const bool isLocal : {false, true}) {
    model.setUseLocalTime(isLocal);
    press("setFullMoon");
    EXPECT_NEAR(model.baseTime(), fullMoon, minute);
    press("setNewMoon");
    EXPECT_NEAR(model.baseTime(), newMoon, minute);
  }
  EXPECT_FALSE(model.isCalculating());
  EXPECT_EQ(tasks.count(), 0U);
  EXPECT_EQ(model.basicTableHourly(), table);
}

TEST_F(Views, AMoonThatTheInputsHaveNoDateForIsRefusedWithTheReason) {
  const tests::Alerts alerts;
  const auto notes = [this] {
    QStringList texts;
    for (const auto* const note : window.findChildren<QLabel*>(QStringLiteral("moonNote"))) {
      texts.append(note->text());
    }
    return texts.join(QLatin1Char('|'));
  };
  model.setYear(-50);  // as only a file has it
  calculate();
  press("tab4");
  const int height = find<QWidget>("setNewMoon")->mapTo(&window, QPoint()).y();
  const double before = model.baseTime();
  press("setNewMoon");
  EXPECT_EQ(model.baseTime(), before);
  const QString why = QStringLiteral("The inputs have no date for it; years begin with 1.");
  EXPECT_EQ(notes(), QLatin1Char('|') + why);
  EXPECT_EQ(tests::Alerts::heard(), QStringList(why));
  tests::turnEventLoop();
  EXPECT_EQ(find<QWidget>("setNewMoon")->mapTo(&window, QPoint()).y(), height) << "nothing moves";
  model.setYear(720);
  calculate();
  EXPECT_EQ(notes(), QStringLiteral("|")) << "it was said of another moment";
  press("setNewMoon");
  EXPECT_NE(model.baseTime(), before);
  EXPECT_EQ(notes(), QStringLiteral("|"));
}

TEST_F(Views, ATableIsReadOnlyUnwrappedAndScrollsBothWays) {
  calculate();
  press("tab5");
  window.resize(window.minimumSizeHint());
  tests::turnEventLoop();
  EXPECT_TRUE(table()->isReadOnly());
  EXPECT_EQ(table()->lineWrapMode(), QPlainTextEdit::NoWrap);
  EXPECT_GT(table()->verticalScrollBar()->maximum(), 0);
  EXPECT_GT(table()->horizontalScrollBar()->maximum(), 0);
  table()->selectAll();
  table()->copy();
  EXPECT_EQ(QApplication::clipboard()->text(), model.conjunctionDaily());
}

TEST_F(Views, TheChoiceOfTableAndTheScrollPositionStay) {
  calculate();
  press("tab5");
  press("showYearly");
  table()->verticalScrollBar()->setValue(100);
  press("tab1");
  press("tab5");
  EXPECT_EQ(table()->toPlainText(), model.conjunctionYearly());
  EXPECT_EQ(table()->verticalScrollBar()->value(), 100);
  // One compares the same lines of two years.
  model.setYear(721);
  calculate();
  EXPECT_EQ(table()->toPlainText(), model.conjunctionYearly());
  EXPECT_EQ(table()->verticalScrollBar()->value(), 100);
}

TEST_F(Views, ThePositionsAreATableOfTheBodiesInTheirOrder) {
  calculate();
  press("tab3");
  const auto* const positions = find<QTableWidget>("positionsTable");
  QStringList titles;
  for (int column = 0; column < positions->columnCount(); ++column) {
    titles.append(positions->horizontalHeaderItem(column)->text());
    for (int row = 0; row < positions->rowCount(); ++row) {
      const int wanted =
          positions->fontMetrics().horizontalAdvance(positions->item(row, column)->text());
      EXPECT_GT(positions->columnWidth(column), wanted);
    }
  }
  EXPECT_EQ(titles.join(QLatin1Char('|')),
            QStringLiteral("Body|Type|Azimuth|Altitude|Ec. Longitude|Sign"));
  ASSERT_EQ(positions->rowCount(), model.positions().size());
  for (int row = 0; row < positions->rowCount(); ++row) {
    EXPECT_EQ(positions->item(row, 0)->text(), model.positions()[row].name);
    EXPECT_EQ(positions->item(row, 5)->text(), model.positions()[row].sign);
  }
}

TEST_F(Views, TheTableOfPositionsKeepsItsWidthsHoweverOftenItIsCalculated) {
  calculate();
  press("tab3");
  auto* const positions = find<QTableWidget>("positionsTable");
  const auto texts = [positions](int column) {
    return std::max(textWidth(positions, column),
                    positions->horizontalHeader()->sectionSizeHint(column));
  };
  for (const int width : {window.minimumSizeHint().width(), 900, 1180, 1600}) {
    SCOPED_TRACE(width);
    window.resize(width, 700);
    tests::turnEventLoop();
    QList<int> first;
    for (int calculation = 0; calculation < 20; ++calculation) {
      calculate();
      QList<int> widths;
      int needed = 0;
      for (int column = 0; column < positions->columnCount(); ++column) {
        widths.append(positions->columnWidth(column));
        needed += texts(column);
        EXPECT_GE(positions->columnWidth(column), texts(column));
      }
      const int lacking = std::max(0, needed - positions->viewport()->width());
      EXPECT_EQ(positions->horizontalScrollBar()->maximum(), lacking);
      EXPECT_EQ(positions->horizontalScrollBar()->isVisible(), lacking > 0);
      EXPECT_TRUE(lacking == 0 || width < 900);
      first = first.isEmpty() ? widths : first;
      EXPECT_EQ(widths, first);
    }
  }
}

TEST_F(Views, TheTableOfPositionsSpreadsWithItsWindow) {
  calculate();
  press("tab3");
  const auto* const positions = find<QTableWidget>("positionsTable");
  window.resize(window.minimumSizeHint());
  tests::turnEventLoop();
  const int narrow = positions->columnWidth(0);
  window.resize(1600, 700);
  tests::turnEventLoop();
  EXPECT_GT(positions->columnWidth(0), narrow);
}

TEST_F(Views, WhereTheTextsHaveNoRoomTheTableScrollsAndCutsNone) {
  calculate();
  press("tab3");
  auto* const positions = find<QTableWidget>("positionsTable");
  QFont large = positions->font();
  large.setPointSizeF(large.pointSizeF() * 2.0);
  positions->setFont(large);
  positions->horizontalHeader()->setFont(large);
  window.resize(window.minimumSizeHint());
  tests::turnEventLoop();
  calculate();
  EXPECT_GT(positions->horizontalScrollBar()->maximum(), 0);
  for (int column = 0; column < positions->columnCount(); ++column) {
    EXPECT_GE(positions->columnWidth(column), textWidth(positions, column));
  }
  window.resize(2400, 700);
  tests::turnEventLoop();
  EXPECT_EQ(positions->horizontalScrollBar()->maximum(), 0);
}

TEST_F(Views, EveryMarkCanBeSeenOnLightAndOnDark) {
  calculate();
  press("tab3");
  const auto* const positions = find<QTableWidget>("positionsTable");
  for (int row = 0; row < positions->rowCount(); ++row) {
    const QIcon icon = positions->item(row, 0)->icon();
    ASSERT_FALSE(icon.isNull());
    const QImage mark = icon.pixmap(32, 32).toImage();
    EXPECT_EQ(leftOf(mark), leftOf(mark.mirrored(true, false))) << "in the middle of its room";
    for (const QColor& ground : {QColor(Qt::white), QColor(0x20, 0x20, 0x20)}) {
      int farthest = 0;
      for (int x = 0; x < mark.width(); ++x) {
        const QColor here = mark.pixelColor(x, mark.height() / 2);
        if (here.alpha() > 200) {
          farthest = std::max({farthest, std::abs(here.red() - ground.red()),
                               std::abs(here.green() - ground.green()),
                               std::abs(here.blue() - ground.blue())});
        }
      }
      EXPECT_GT(farthest, 90) << model.positions()[row].name.toStdString();
    }
  }
}

TEST_F(Views, ThePositionsAreCopiedAsText) {
  calculate();
  press("tab3");
  auto* const positions = find<QTableWidget>("positionsTable");
  positions->setFocus();
  positions->selectAll();
  QTest::keyClick(positions, Qt::Key_C, Qt::ControlModifier);
  const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
  ASSERT_EQ(lines.size(), model.positions().size());
  const auto& first = model.positions().constFirst();
  EXPECT_EQ(lines.constFirst(), QStringList({first.name, first.bodyType, first.azimuth,
                                             first.altitude, first.ecLong, first.sign})
                                    .join(QLatin1Char('\t')));
}

TEST_F(Views, TheKeysOfThePositionsAreKeysOfNothingElse) {
  calculate();
  press("tab3");
  auto* const positions = find<QTableWidget>("positionsTable");
  positions->selectRow(2);
  QApplication::clipboard()->setText(QStringLiteral("as before"));
  auto* const slider = find<QWidget>("hourSlider");
  slider->setFocus();
  QTest::keyClick(slider, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("as before"));
  QTest::keyClick(slider, Qt::Key_Escape);
  EXPECT_TRUE(positions->selectionModel()->isRowSelected(2));
  positions->clearSelection();
  positions->setFocus();
  QTest::keyClick(positions, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("as before")) << "nothing to copy";
}

TEST_F(Views, TheChartsAreThoseOfTheCalculation) {
  const auto colors = [this](const char* name) {
    std::set<QRgb> found;
    const QImage chart = find<QWidget>(name)->grab().toImage();
    for (int y = 0; y < chart.height(); y += 3) {
      for (int x = 0; x < chart.width(); x += 3) {
        found.insert(chart.pixel(x, y));
      }
    }
    return found.size();
  };
  EXPECT_EQ(colors("starMap"), 1U);  // empty paper
  calculate();
  EXPECT_GT(colors("starMap"), 20U);
  press("tab2");
  EXPECT_GT(colors("horoscope"), 20U);
  const QImage before = find<QWidget>("horoscope")->grab().toImage();
  press("colorModeButton");
  EXPECT_NE(find<QWidget>("horoscope")->grab().toImage(), before);
  model.setHour(3.0);
  calculate();
  EXPECT_NE(find<QWidget>("horoscope")->grab().toImage(), before);
}

TEST_F(Views, APlaceIsNamedAsItIsCalledNotAsMarkup) {
  const QString name = QStringLiteral("<h1>Big</h1>") + QString(300, QLatin1Char('W'));
  model.setManualLatDeg(12.25);
  model.setSelectedCityID(std::get<QUuid>(model.addCity(name)));
  const int width = window.minimumSizeHint().width();
  calculate();
  tests::turnEventLoop();
  const auto* const caption = find<QLabel>("caption");
  EXPECT_EQ(caption->textFormat(), Qt::PlainText);
  EXPECT_TRUE(caption->text().contains(name.left(40) + QStringLiteral("…   12.25° N")));
  EXPECT_EQ(window.minimumSizeHint().width(), width);
  press("deleteButton");
  EXPECT_LT(find<QDialog>("deleteSheet")->width(), 700);
}

TEST_F(Views, TheCaptionAndTheChartsSayWhatIsShown) {
  calculate();
  EXPECT_EQ(find<QLabel>("caption")->text(),
            model.dateLabel() + QStringLiteral("   Wendmark   40.50° N   20.90° W"));
  QTest::qWait(50);
  const auto* const chart = find<QWidget>("starMap");
  EXPECT_EQ(chart->accessibleName(), QStringLiteral("Star map"));
  EXPECT_TRUE(chart->accessibleDescription().contains(model.dateLabel()));
  model.setYear(900);
  EXPECT_FALSE(find<QLabel>("caption")->text().contains(QStringLiteral("900-")));
}

}  // namespace
}  // namespace veyruna::ui
