// Every tab: its button, icon, view and page of the manual, and that the view shows its documents.
#include <QFileInfo>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSet>
#include <QStackedWidget>
#include <QTableWidget>
#include <algorithm>
#include <gtest/gtest.h>

#include "tests/ui/shown_window.h"
#include "ui/charts/svg_view.h"
#include "ui/outputs/detailed_view.h"
#include "ui/outputs/tab_views.h"
#include "ui/window/manual.h"

namespace veyruna::ui {
namespace {

using exports::TabEntry;

struct EveryTab : testing::Test, tests::ShownWindow {
  /// The view of the tab in front.
  QWidget* shownView() {
    return window.findChild<DetailedView*>()->findChild<QStackedWidget*>()->currentWidget();
  }

  /// Presses the button of the tab.
  void open(const TabEntry& tab) {
    press(qPrintable(QStringLiteral("tab%1").arg(static_cast<int>(tab.tab) + 1)));
    ASSERT_EQ(window.selectedTab(), tab.tab);
  }

  /// Whether the view holds the document: as its chart, as a text, or cell by cell.
  bool shows(const QWidget* view, documents::Document document) {
    const QString text = model.text(document);
    if (documents::entryOf(document).kind == documents::Kind::chart) {
      return looksLike(view, text);
    }
    const auto texts = view->findChildren<QPlainTextEdit*>();
    const auto tables = view->findChildren<QTableWidget*>();
    return std::ranges::any_of(texts,
                               [&](const auto* shown) { return shown->toPlainText() == text; }) ||
           std::ranges::any_of(tables, [&](const auto* table) {
             return table->rowCount() == text.count(QLatin1Char('\n')) - headerLines &&
                    holdsCells(*table, text);
           });
  }

 private:
  static constexpr int headerLines = 2;  ///< of the positions' text

  /// Whether the view, or a part of it, is that chart to the pixel.
  static bool looksLike(const QWidget* view, const QString& svg) {
    const auto* const chart = qobject_cast<const SVGView*>(view);
    if (chart == nullptr) {
      return false;
    }
    SVGView other{QStringLiteral("Other")};
    other.resize(chart->size());
    other.show(svg);
    return other.grab().toImage() == const_cast<SVGView*>(chart)->grab().toImage();
  }

  /// Whether each row has what its line of the text says, and nothing else but the kind of body,
  /// which is not written.
  static bool holdsCells(const QTableWidget& table, const QString& text) {
    constexpr int kindColumn = 1;
    for (int row = 0; row < table.rowCount(); ++row) {
      QString cells;
      for (int column = 0; column < table.columnCount(); ++column) {
        cells += column == kindColumn ? QString() : table.item(row, column)->text();
      }
      const QString line = text.section(QLatin1Char('\n'), headerLines + row, headerLines + row);
      if (cells.remove(QLatin1Char(' ')) != QString(line).remove(QLatin1Char(' '))) {
        return false;
      }
    }
    return true;
  }
};

TEST_F(EveryTab, HasAButtonAndAViewOfItsOwn) {
  QSet<QWidget*> views;
  for (const TabEntry& tab : exports::allTabs) {
    SCOPED_TRACE(tab.title.toString().toStdString());
    open(tab);
    ASSERT_NE(shownView(), nullptr);
    views.insert(shownView());
  }
  EXPECT_EQ(views.size(), static_cast<qsizetype>(exports::outputTabCount));
  EXPECT_EQ(window.findChild<DetailedView*>()->findChild<QStackedWidget*>()->count(),
            static_cast<int>(exports::outputTabCount));
}

TEST_F(EveryTab, ShowsTheDocumentsItSaves) {
  calculate();
  for (const TabEntry& tab : exports::allTabs) {
    open(tab);
    for (const exports::TabSection& section : tab.sections) {
      EXPECT_TRUE(shows(shownView(), section.document))
          << tab.title.toString().toStdString() << ": "
          << documents::entryOf(section.document).heading;
    }
  }
}

TEST_F(EveryTab, FollowsTheNextCalculation) {
  calculate();
  model.setYear(1243);
  model.setMonthIndex(6);
  model.setManualLatDeg(11.5);
  calculate();
  for (const TabEntry& tab : exports::allTabs) {
    open(tab);
    for (const exports::TabSection& section : tab.sections) {
      EXPECT_TRUE(shows(shownView(), section.document))
          << documents::entryOf(section.document).heading;
    }
  }
}

TEST_F(EveryTab, ShowsAtOnceInAnotherWindowWhatIsCalculatedAlready) {
  calculate();
  MainView other(model, time, state);
  other.setAttribute(Qt::WA_DeleteOnClose, false);
  other.show();
  const auto* const views = other.findChild<DetailedView*>()->findChild<QStackedWidget*>();
  for (const TabEntry& tab : exports::allTabs) {
    other.selectTab(tab.tab);
    tests::turnEventLoop();
    for (const exports::TabSection& section : tab.sections) {
      EXPECT_TRUE(shows(views->currentWidget(), section.document))
          << documents::entryOf(section.document).heading;
    }
  }
  for (const char* const name : {"starMap", "horoscope"}) {
    const auto* const chart = other.findChild<QWidget*>(QString::fromLatin1(name));
    EXPECT_FALSE(chart->accessibleDescription().isEmpty()) << name;
  }
  for (const char* const name : {"caption", "nextFullMoon", "nextNewMoon"}) {
    const auto* const label = other.findChild<QLabel*>(QString::fromLatin1(name));
    EXPECT_FALSE(label->text().isEmpty()) << name;
    EXPECT_EQ(label->text(), find<QLabel>(name)->text());
  }
}

TEST_F(EveryTab, ItsButtonSaysItsKey) {
  for (const TabEntry& tab : exports::allTabs) {
    const int number = static_cast<int>(tab.tab) + 1;
    const auto* const button =
        find<QAbstractButton>(qPrintable(QStringLiteral("tab%1").arg(number)));
    EXPECT_EQ(button->toolTip(),
              QStringLiteral("%1 (Ctrl+%2)").arg(tab.title.toString()).arg(number));
  }
}

TEST_F(EveryTab, TheButtonsStandInTheMiddle) {
  window.resize(1600, 700);
  tests::turnEventLoop();
  const auto edge = [this](const char* name, QPoint point) {
    return find<QWidget>(name)->mapTo(&window, point).x();
  };
  const int left = edge("tab1", {});
  const auto* const last = find<QWidget>("tab6");
  const int right = window.width() - edge("tab6", {last->width(), 0});
  EXPECT_GT(left, 50);
  EXPECT_NEAR(left, right, 20);
}

TEST(EveryTabsLook, HasItsIconInEverySizeAndInk) {
  QSet<QString> icons;
  for (const TabView& view : tabViews) {
    icons.insert(QLatin1String(view.icon));
    for (const char* const ink : {"light", "dark"}) {
      for (const int size : {16, 24, 32, 48, 64}) {
        const QString file = QStringLiteral(":/icons/%1/%2_%3.png")
                                 .arg(QLatin1String(ink), QLatin1String(view.icon))
                                 .arg(size);
        EXPECT_TRUE(QFileInfo::exists(file)) << file.toStdString();
      }
    }
  }
  EXPECT_EQ(icons.size(), static_cast<qsizetype>(exports::outputTabCount));
}

TEST(EveryTabsLook, IsExplainedInTheManual) {
  for (const TabEntry& tab : exports::allTabs) {
    EXPECT_TRUE(QFileInfo::exists(manualChapter(tab.tab).toLocalFile()))
        << viewOf(tab.tab).manualPage;
  }
}

}  // namespace
}  // namespace veyruna::ui
