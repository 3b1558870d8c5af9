#include "ui/application.h"

#include <QApplication>
#include <QTimer>
#include <utility>

#include "ui/about_view.h"
#include "ui/main_window.h"

namespace veyruna::ui {

VeyrunaAstroApp::VeyrunaAstroApp(model::AstronomyModel::Surroundings surroundings,
                                 const QString& statePath)
    : model_(std::move(surroundings)), state_(statePath) {}

MainWindow* VeyrunaAstroApp::openWindow() {
  auto* const window = new MainWindow(model_, state_);
  connect(window, &MainWindow::newWindowRequested, this, &VeyrunaAstroApp::openWindow);
  connect(window, &MainWindow::aboutRequested, this, &VeyrunaAstroApp::openAbout);
  connect(window, &MainWindow::quitRequested, qApp, &QApplication::closeAllWindows);
  window->show();
  model_.recalculate();
  return window;
}

AboutView* VeyrunaAstroApp::openAbout() {
  if (about_ == nullptr) {
    about_ = new AboutView;
    about_->setAttribute(Qt::WA_DeleteOnClose);
  }
  about_->show();
  about_->raise();
  about_->activateWindow();
  return about_;
}

}  // namespace veyruna::ui
