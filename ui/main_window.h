#pragma once

#include <QMainWindow>

#include "export/document_exporter.h"
#include "export/output_tab.h"
#include "model/astronomy_model.h"

class QActionGroup;

namespace veyruna::ui {

class DetailedView;
class SidebarView;
class WindowState;

/// A window on the shared model: inputs on the left, outputs on the right, the tabs in the toolbar.
class MainWindow final : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow(model::AstronomyModel& model, WindowState& state, QWidget* parent = nullptr);

  [[nodiscard]] exports::OutputTab selectedTab() const { return selectedTab_; }
  void selectTab(exports::OutputTab tab);

 Q_SIGNALS:
  void newWindowRequested();
  void aboutRequested();
  void quitRequested();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void makeMenus();
  void makeTabSelector();
  void exportNative();
  void exportPdf();
  void ask(const QString& message, const QString& proposedName, const QString& filter,
           const QString& suffix, const std::function<void(const QString& path)>& save);
  exports::Saved reportTo(const QString& path);

  WindowState& state_;
  exports::DocumentExporter exporter_;
  exports::OutputTab selectedTab_ = exports::OutputTab::starMap;
  SidebarView* sidebar_;
  DetailedView* output_;
  QActionGroup* tabActions_;
};

}  // namespace veyruna::ui
