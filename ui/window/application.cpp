#include "ui/window/application.h"

#include <QApplication>
#include <QScreen>
#include <utility>

#include "ui/controls/icons.h"
#include "ui/window/about_view.h"
#include "ui/window/main_view.h"
#include "ui/window/product.h"

namespace veyruna::ui {

namespace {

constexpr int cascade = 24;              // from one window to the next, to the right and down
constexpr QSize leastInSight(300, 100);  // as much of a new window is on the screen at least

}  // namespace

VeyrunaAstroApp::VeyrunaAstroApp(model::AstronomyModel::Surroundings surroundings,
                                 const QString& statePath)
    : store_(std::make_shared<model::UnhurriedStore>(std::exchange(surroundings.settings, {}))),
      model_({store_, std::move(surroundings.locationsPath), std::move(surroundings.newId),
              std::move(surroundings.executor)}),
      time_(model_, store_),
      state_(statePath) {
  QApplication::setApplicationName(product().name);
  QApplication::setDesktopFileName(QStringLiteral("org.veyruna.astro"));
  QApplication::setWindowIcon(programIcon());
  rememberTime();
}

/// Whether time is live, and its pace, as they were in the last window.
void VeyrunaAstroApp::rememberTime() {
  if (const auto step = state_.timeStep()) {
    time_.setStep(*step);
  }
  if (const auto speed = state_.timeSpeed()) {
    time_.setSpeed(*speed);
  }
  time_.setOn(state_.isLive());
  connect(&time_, &model::LiveTime::isOnChanged, this, [this] { state_.setLive(time_.isOn()); });
  connect(&time_, &model::LiveTime::paceChanged, this,
          [this] { state_.setPace(time_.step(), time_.speed()); });
}

VeyrunaAstroApp::~VeyrunaAstroApp() {
  for (const QPointer<MainView>& window : windows_) {
    delete window;
  }
  delete about_;
}

MainView* VeyrunaAstroApp::openWindow() {
  auto* const window = new MainView(model_, time_, state_);
  windows_.removeAll(nullptr);
  windows_.append(window);
  connect(window, &MainView::newWindowRequested, this, &VeyrunaAstroApp::openWindow);
  connect(window, &MainView::aboutRequested, this, &VeyrunaAstroApp::openAbout);
  connect(window, &MainView::quitRequested, qApp, &QApplication::closeAllWindows);
  // Beside the window it was opened from, not on top of it.
  if (const auto* const other = qobject_cast<const MainView*>(QApplication::activeWindow())) {
    Placement beside = other->placement();
    beside.frame.translate(cascade, cascade);
    const QRect room = other->screen()->availableGeometry();
    if (!room.contains(QRect(beside.frame.topLeft(), leastInSight))) {
      beside.frame.moveTo(room.topLeft());
    }
    window->openAt(beside);
  }
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
