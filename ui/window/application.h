#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

#include "model/astronomy_model.h"
#include "model/live_time.h"
#include "ui/window/window_state.h"

namespace veyruna::ui {

class AboutView;
class MainView;

/// The program: one model, any number of windows on it, one About window. Tells the desktop what it
/// is called, which of its entries it is, and its picture.
class VeyrunaAstroApp final : public QObject {
  Q_OBJECT

 public:
  VeyrunaAstroApp(model::AstronomyModel::Surroundings surroundings, const QString& statePath);
  /// Deletes the windows that are still open: none outlives the model.
  ~VeyrunaAstroApp() override;
  VeyrunaAstroApp(const VeyrunaAstroApp&) = delete;
  VeyrunaAstroApp& operator=(const VeyrunaAstroApp&) = delete;

  /// Opens another window on the model and calculates for it.
  MainView* openWindow();

  /// Opens the About window, or brings it forward.
  AboutView* openAbout();

  [[nodiscard]] model::AstronomyModel& model() { return model_; }
  [[nodiscard]] model::LiveTime& time() { return time_; }
  [[nodiscard]] WindowState& state() { return state_; }

 private:
  void rememberTime();

  std::shared_ptr<model::UnhurriedStore> store_;
  model::AstronomyModel model_;
  model::LiveTime time_;
  WindowState state_;
  QList<QPointer<MainView>> windows_;
  QPointer<AboutView> about_;
};

}  // namespace veyruna::ui
