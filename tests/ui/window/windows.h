#pragma once

#include <QApplication>
#include <QMenuBar>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "tests/model/fakes.h"
#include "ui/window/application.h"
#include "ui/window/main_view.h"

namespace veyruna::tests {

/// The program with its windows, over a model whose calculations wait.
struct Windows : testing::Test, FakeWorld {
  QTemporaryDir folder;
  QString statePath = folder.filePath(QStringLiteral("sub/window.ini"));
  ui::VeyrunaAstroApp program{surroundings(), statePath};

  ~Windows() override {
    QApplication::closeAllWindows();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  static QList<ui::MainView*> windows() {
    QList<ui::MainView*> open;
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      if (auto* const window = qobject_cast<ui::MainView*>(widget); window && window->isVisible()) {
        open.append(window);
      }
    }
    return open;
  }
  /// The entry of this title in the window's menus; without one the test has failed.
  static QAction* entry(const ui::MainView& window, const QString& title) {
    for (const QAction* const menu : window.menuBar()->actions()) {
      for (QAction* const action : menu->menu()->actions()) {
        if (action->text().remove(QLatin1Char('&')) == title) {
          return action;
        }
      }
    }
    throw std::runtime_error(title.toStdString());
  }
  static void trigger(const ui::MainView& window, const char* title) {
    entry(window, QString::fromUtf8(title))->trigger();
  }
  void finishCalculations() {
    while (tasks.count() > 0) {
      tasks.runNext();
    }
    turnEventLoop();
  }
};

}  // namespace veyruna::tests
