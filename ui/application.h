#pragma once

#include <QObject>
#include <QPointer>

#include "model/astronomy_model.h"
#include "ui/page_engine.h"
#include "ui/window_state.h"

namespace veyruna::ui {

class AboutView;
class MainWindow;

/// The program: one model, any number of windows on it, one About window.
class VeyrunaAstroApp final : public QObject {
  Q_OBJECT

 public:
  VeyrunaAstroApp(model::AstronomyModel::Surroundings surroundings, PageEngine engine,
                  const QString& statePath);

  /// Opens another window on the model and calculates for it.
  MainWindow* openWindow();

  /// Opens the About window, or brings it forward.
  AboutView* openAbout();

  [[nodiscard]] model::AstronomyModel& model() { return model_; }

 private:
  model::AstronomyModel model_;
  PageEngine engine_;
  WindowState state_;
  QPointer<AboutView> about_;
};

}  // namespace veyruna::ui
