#pragma once

#include <QMainWindow>

#include "export/output_tab.h"
#include "model/astronomy_model.h"
#include "model/live_time.h"
#include "ui/window/placement.h"

class QSplitter;

namespace veyruna::ui {

class DetailedView;
class ExportCommands;
class ExportNotice;
class PrintCommand;
class SidebarView;
class TabSelector;
class WindowState;

/// A window on the shared model: inputs on the left, outputs on the right, the tabs in the toolbar.
class MainView final : public QMainWindow {
  Q_OBJECT

 public:
  MainView(model::AstronomyModel& model, model::LiveTime& time, WindowState& state,
           QWidget* parent = nullptr);

  [[nodiscard]] exports::OutputTab selectedTab() const { return selectedTab_; }

  /// Takes over what is being typed and shows the tab.
  void selectTab(exports::OutputTab tab);

  /// Where the window stands now, as far as the window manager tells.
  [[nodiscard]] const Placement& placement() const { return placement_; }

  /// Lets a window that has not been shown yet open there, or where it can be reached.
  void openAt(const Placement& placement);

 Q_SIGNALS:
  void newWindowRequested();
  void aboutRequested();
  void quitRequested();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void makeColumns();
  void makeMenus();
  void notePlacement();
  /// The tab in front, and time at rest: what is saved belongs to the minute that its name says.
  exports::OutputTab settledTab();
  /// Time rests while a field of the sidebar is typed in: no value overtakes what is typed.
  void keepTypingFromRunningAway();

  model::LiveTime& time_;
  WindowState& state_;
  TabSelector* tabs_;
  SidebarView* sidebar_;
  DetailedView* output_;
  QSplitter* columns_;
  ExportNotice* notice_;
  ExportCommands* exports_ = nullptr;
  PrintCommand* print_ = nullptr;
  QAction* saveNative_ = nullptr;
  QAction* savePdf_ = nullptr;
  QAction* saveHtml_ = nullptr;
  QAction* printAction_ = nullptr;
  Placement placement_;
  exports::OutputTab selectedTab_ = exports::OutputTab::starMap;
};

}  // namespace veyruna::ui
