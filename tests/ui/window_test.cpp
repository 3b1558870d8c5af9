#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QSet>
#include <QSlider>
#include <QTemporaryDir>
#include <QToolBar>
#include <gtest/gtest.h>

#include "tests/model/fakes.h"
#include "tests/ui/recording_engine.h"
#include "ui/about_view.h"
#include "ui/application.h"
#include "ui/main_window.h"
#include "ui/product.h"
#include "ui/window_state.h"

namespace veyruna::ui {
namespace {

using exports::OutputTab;

/// A window that is never shown: no web engine starts.
struct Window : testing::Test, tests::FakeModel {
  QTemporaryDir folder;
  WindowState state{folder.filePath(QStringLiteral("window.ini"))};
  MainWindow window{model, tests::recordingEngine(), state};

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

TEST_F(Window, ThePickFromMapButtonShowsTheLocationTab) {
  window.findChild<QAbstractButton*>(QStringLiteral("mapButton"))->click();
  EXPECT_EQ(window.selectedTab(), OutputTab::location);
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

TEST_F(Window, EveryControlHasANameToSpeakAndOneToFind) {
  int controls = 0;
  for (const QWidget* const widget : window.findChildren<QWidget*>()) {
    const bool isControl = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                           qobject_cast<const QComboBox*>(widget) != nullptr ||
                           qobject_cast<const QSlider*>(widget) != nullptr ||
                           qobject_cast<const QAbstractSpinBox*>(widget) != nullptr;
    if (!isControl || widget->objectName().startsWith(QLatin1String("qt_"))) {
      continue;
    }
    // A scroll area, a table and a spin box bring parts of their own.
    if (widget->parentWidget()->inherits("QTableView") || widget->inherits("QTableCornerButton")) {
      continue;
    }
    ++controls;
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->metaObject()->className();
    EXPECT_FALSE(widget->objectName().isEmpty()) << widget->metaObject()->className();
  }
  EXPECT_GT(controls, 20);
}

TEST_F(Window, NoTwoShortcutsAreAlike) {
  QSet<QString> seen;
  for (const QAction* const action : window.findChildren<QAction*>()) {
    if (action->shortcutContext() != Qt::WindowShortcut) {
      continue;
    }
    for (const QKeySequence& keys : action->shortcuts()) {
      EXPECT_FALSE(seen.contains(keys.toString())) << keys.toString().toStdString();
      seen.insert(keys.toString());
    }
  }
  EXPECT_TRUE(seen.contains(QStringLiteral("Ctrl+N")));
  EXPECT_TRUE(seen.contains(QStringLiteral("Ctrl+6")));
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

TEST(About, OpensOnceAndComesForward) {
  const tests::FakeWorld world;
  const QTemporaryDir folder;
  VeyrunaAstroApp program(world.surroundings(), tests::recordingEngine(),
                          folder.filePath(QStringLiteral("window.ini")));
  const AboutView* const about = program.openAbout();
  EXPECT_EQ(program.openAbout(), about);
  EXPECT_EQ(about->width(), 650);
}

TEST(About, ALinkWithoutAnAddressSaysSo) {
  const AboutView about;
  int links = 0;
  for (const QAbstractButton* const button : about.findChildren<QAbstractButton*>()) {
    ++links;
    EXPECT_FALSE(button->toolTip().isEmpty());
  }
  EXPECT_EQ(links, 5);
  EXPECT_FALSE(readProduct().credits.isEmpty());
}

}  // namespace
}  // namespace veyruna::ui
