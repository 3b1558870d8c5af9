#pragma once

#include <QGroupBox>

#include "model/astronomy_model.h"

class QLabel;
class QSlider;
class QToolButton;

namespace veyruna::ui {

/// The hour of the day, by slider and in quarter-hour steps, and which time it is.
class TimeSection final : public QGroupBox {
  Q_OBJECT

 public:
  explicit TimeSection(model::AstronomyModel& model, QWidget* parent = nullptr);

 private:
  QToolButton* makeStepButton(Qt::ArrowType arrow, double step);
  void showHour();

  model::AstronomyModel& model_;
  QSlider* slider_;
  QLabel* clock_;
  QToolButton* earlier_;
  QToolButton* later_;
};

}  // namespace veyruna::ui
