// Nothing is cut, whatever the tab, the size of the window and the scale of the screen.
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>

#include "tests/ui/shown_window.h"

namespace veyruna::ui {
namespace {

struct Layout : testing::Test, tests::ShownWindow {
  QScrollArea* sidebar = find<QScrollArea>("sidebar");

  Layout() { calculate(); }

  /// Lets every layout answer to what changed, and those around it to that.
  static void settle() {
    for (int turn = 0; turn < 5; ++turn) {
      tests::turnEventLoop();
    }
  }

  void showEverything(const std::function<void()>& look) {
    for (const QUuid& place : {model::manualCityID(), model.cities().at(3).id}) {
      model.setSelectedCityID(place);
      for (const exports::OutputTab tab : exports::outputTabs) {
        window.selectTab(tab);
        settle();
        SCOPED_TRACE(exports::title(tab).toStdString());
        look();
      }
    }
  }

  /// Every text has the room it asks for, inside of what holds it.
  void expectNothingCut() {
    int texts = 0;
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
      const auto* const label = qobject_cast<const QLabel*>(widget);
      const auto* const button = qobject_cast<const QAbstractButton*>(widget);
      const bool isText = (label != nullptr && !label->text().isEmpty()) ||
                          (button != nullptr && !button->text().isEmpty());
      if (!isText || !widget->isVisible() ||
          widget->objectName() == QLatin1String("exportNotice")) {
        continue;
      }
      ++texts;
      QString text = label != nullptr ? label->text() : button->text();
      text.remove(QLatin1Char('&'));
      const int wanted = label != nullptr && label->wordWrap()
                             ? widget->minimumSizeHint().width()
                             : widget->fontMetrics().horizontalAdvance(text);
      EXPECT_GE(widget->width(), wanted) << widget->objectName().toStdString();
      EXPECT_GE(widget->height(), label != nullptr && label->wordWrap()
                                      ? widget->heightForWidth(widget->width())
                                      : widget->fontMetrics().height())
          << widget->objectName().toStdString();
      EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()))
          << widget->objectName().toStdString();
    }
    EXPECT_GT(texts, 20);
    EXPECT_LE(sidebar->widget()->width(), sidebar->viewport()->width());
  }
};

TEST_F(Layout, NothingIsCutAtTheFirstSize) {
  showEverything([this] { expectNothingCut(); });
}

TEST_F(Layout, NothingIsCutOnASmallScreenWhereTheSidebarScrolls) {
  window.resize(1280, 720);
  showEverything([this] { expectNothingCut(); });
  window.resize(window.minimumSizeHint());
  showEverything([this] { expectNothingCut(); });
  window.resize(1280, 400);
  tests::turnEventLoop();
  EXPECT_GT(sidebar->verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(sidebar->horizontalScrollBar()->maximum(), 0);
}

TEST_F(Layout, NothingIsCutInALargerType) {
  const QFont usual = QApplication::font();
  QFont larger = usual;
  larger.setPointSizeF(usual.pointSizeF() * 1.5);
  QApplication::setFont(larger);
  window.resize(window.minimumSizeHint());
  settle();
  showEverything([this] { expectNothingCut(); });
  QApplication::setFont(usual);
}

TEST_F(Layout, NeitherColumnCanBeCollapsed) {
  auto* const columns = window.findChild<QSplitter*>();
  EXPECT_FALSE(columns->childrenCollapsible());
  EXPECT_GE(sidebar->minimumSizeHint().width(), 240);
  columns->setSizes({0, 5000});
  tests::turnEventLoop();
  EXPECT_GE(sidebar->width(), 240);
  columns->setSizes({5000, 0});
  tests::turnEventLoop();
  EXPECT_GT(columns->widget(1)->width(), 0);
}

TEST_F(Layout, TheTabsAreAllThereInTheNarrowestWindow) {
  window.resize(1, 1);
  tests::turnEventLoop();
  for (const char* const tab : {"tab1", "tab2", "tab3", "tab4", "tab5", "tab6"}) {
    const auto* const button = find<QWidget>(tab);
    EXPECT_TRUE(button->isVisible());
    EXPECT_TRUE(window.rect().contains(QRect(button->mapTo(&window, QPoint()), button->size())));
  }
}

TEST_F(Layout, NothingMovesWhileItCalculates) {
  const auto places = [this] {
    QList<QRect> all;
    for (const QWidget* const widget : window.findChildren<QAbstractButton*>()) {
      all.append(QRect(widget->mapTo(&window, QPoint()), widget->size()));
    }
    return all;
  };
  settle();
  const QList<QRect> before = places();
  model.recalculate();
  settle();
  EXPECT_TRUE(find<QWidget>("progress")->isVisible());
  EXPECT_EQ(places(), before);
  tasks.runNext();
  tests::turnEventLoop();
  model.setYear(900);  // the line that says so has its room already
  settle();
  EXPECT_EQ(places(), before);
}

TEST_F(Layout, NothingMovesWhenAPlaceIsChosen) {
  const auto month = [this] { return find<QWidget>("monthPicker")->mapTo(&window, QPoint()); };
  const QPoint before = month();
  model.setSelectedCityID(model.cities().at(3).id);
  tests::turnEventLoop();
  EXPECT_EQ(month(), before);
}

TEST_F(Layout, WidthsAreAtLeastWhatThePersonExpects) {
  EXPECT_GE(find<QWidget>("latitudeField")->width(), 80);
  EXPECT_GE(find<QWidget>("longitudeField")->width(), 80);
  EXPECT_GE(find<QWidget>("hourLabel")->width(), 50);
}

}  // namespace
}  // namespace veyruna::ui
