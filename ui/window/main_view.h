#pragma once

#include <QMainWindow>

#include "export/output_tab.h"
#include "model/astronomy_model.h"
#include "ui/outputs/page_engine.h"

namespace veyruna::ui {

class DetailedView;
class ExportCommands;
class SidebarView;
class TabSelector;
class WindowState;

/// A window on the shared model: inputs on the left, outputs on the right, the tabs in the toolbar.
class MainView final : public QMainWindow {
  Q_OBJECT

 public:
  MainView(model::AstronomyModel& model, const PageEngine& engine, WindowState& state,
           QWidget* parent = nullptr);

  [[nodiscard]] exports::OutputTab selectedTab() const { return selectedTab_; }

  /// Takes over what is being typed and shows the tab.
  void selectTab(exports::OutputTab tab);

 Q_SIGNALS:
  void newWindowRequested();
  void aboutRequested();
  void quitRequested();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void makeMenus();
  void keepOnScreen();

  WindowState& state_;
  TabSelector* tabs_;
  SidebarView* sidebar_;
  DetailedView* output_;
  ExportCommands* exports_;
  exports::OutputTab selectedTab_ = exports::OutputTab::starMap;
};

}  // namespace veyruna::ui
