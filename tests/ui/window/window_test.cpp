#include <QAbstractButton>
#include <QAction>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QToolBar>
#include <gtest/gtest.h>

#include "tests/model/fakes.h"
#include "ui/window/main_view.h"
#include "ui/window/window_state.h"

namespace veyruna::ui {
namespace {

using exports::OutputTab;

/// A window that is never shown.
struct Window : testing::Test, tests::FakeModel {
  QTemporaryDir folder;
  WindowState state{folder.filePath(QStringLiteral("window.ini"))};
  model::LiveTime time{model, store};
  MainView window{model, time, state};

  [[nodiscard]] QString nativeExportText() const {
    return window.findChild<QAbstractButton*>(QStringLiteral("nativeExportButton"))
        ->text()
        .remove(QLatin1Char('&'));
  }
  void SetUp() override { window.setAttribute(Qt::WA_DeleteOnClose, false); }
};

TEST_F(Window, HasItsTitleAndBeginsWithTheStarMap) {
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Veyrunan Astrologer"));
  EXPECT_EQ(window.selectedTab(), OutputTab::starMap);
}

TEST_F(Window, TheExportButtonIsNamedForTheTab) {
  for (const OutputTab tab : exports::outputTabs) {
    window.selectTab(tab);
    EXPECT_EQ(nativeExportText(),
              exports::isChart(tab) ? QStringLiteral("SVG") : QStringLiteral("TXT"));
  }
}

TEST_F(Window, OnTheLocationTabTheExportsDoNothing) {
  window.selectTab(OutputTab::location);
  for (const char* const name : {"nativeExportButton", "pdfButton"}) {
    auto* const button = window.findChild<QAbstractButton*>(QString::fromLatin1(name));
    EXPECT_TRUE(button->isEnabled());
    button->click();
  }
  EXPECT_EQ(window.findChild<QObject*>(QStringLiteral("saveDialog")), nullptr);
}

TEST_F(Window, TheTabSelectorCannotBeHiddenOrMoved) {
  const auto* const bar = window.findChild<QToolBar*>(QStringLiteral("tabSelector"));
  EXPECT_FALSE(bar->isMovable());
  EXPECT_FALSE(bar->isFloatable());
  EXPECT_FALSE(bar->toggleViewAction()->isEnabled());
  EXPECT_GE(window.minimumSizeHint().width(), bar->sizeHint().width());
}

TEST_F(Window, TheHelpMenuHoldsItsTwoLinksAlone) {
  const QMenu* const help = window.menuBar()->actions().constLast()->menu();
  QStringList titles;
  for (const QAction* const action : help->actions()) {
    titles.append(action->text().remove(QLatin1Char('&')));
  }
  EXPECT_EQ(titles, QStringList({QStringLiteral("Veyruna Astro Help"),
                                 QStringLiteral("Developer Website")}));
}

}  // namespace
}  // namespace veyruna::ui
