#pragma once

#include <QDir>
#include <QHash>
#include <QPointer>
#include <functional>

#include "tests/soak/chance.h"
#include "ui/window/application.h"
#include "ui/window/main_view.h"

class QFileDialog;
class QMenu;

namespace veyruna::tests {

/// Somebody who sits before the program and does one legal thing after the other, whatever is
/// there: windows, tabs, every control that can be seen, menus, sheets, dialogs. A control that is
/// new is met, too. What is done goes on while a dialog waits for its answer.
class RandomPerson {
 public:
  /// Exports go into the folder. Each step is told to `tell`.
  RandomPerson(ui::VeyrunaAstroApp& program, const QString& folder, std::uint64_t seed,
               std::function<void(const QString& step)> tell);

  /// Does one thing after the other until `isEnough`, asked before each.
  void useUntil(const std::function<bool()>& isEnough);

  /// Puts everything away but one window of an ordinary size on the star map, time at rest.
  void tidyUp();

  /// How often each control was driven, by its name; 0 for one that was seen and never in reach.
  [[nodiscard]] const QHash<QString, int>& driven() const { return driven_; }

 private:
  [[nodiscard]] QString act();
  [[nodiscard]] static QString leaveDialog();
  QString answerPopup(QWidget& popup);
  QString answerMenu(QMenu& menu);
  QString answerFileDialog(QFileDialog& dialog);
  QString useWindow(QWidget& window);
  QString openMenu(ui::MainView& window);
  QString pressShortcut(ui::MainView& window);
  QString useControl(QWidget& window);
  QString changeWindow(QWidget& window);
  QWidget* someWindow();

  ui::VeyrunaAstroApp& program_;
  QDir folder_;
  Chance chance_;
  std::function<void(const QString& step)> tell_;
  QHash<QString, int> driven_;
};

}  // namespace veyruna::tests
