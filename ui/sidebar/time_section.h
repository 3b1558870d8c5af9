#pragma once

#include <QGroupBox>

#include "model/astronomy_model.h"

namespace veyruna::ui {

class HourClock;
class HourSlider;
class QuarterStepper;

/// The hour of the day, by slider, in quarter-hour steps or typed, and which time it is.
class TimeSection final : public QGroupBox {
  Q_OBJECT

 public:
  explicit TimeSection(model::AstronomyModel& model, QWidget* parent = nullptr);

  /// Takes over what is being typed.
  void commit();

 private:
  void showHour();

  model::AstronomyModel& model_;
  HourSlider* slider_;
  HourClock* clock_;
  QuarterStepper* stepper_;
};

}  // namespace veyruna::ui
