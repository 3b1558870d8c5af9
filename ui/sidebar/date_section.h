#pragma once

#include <QGroupBox>

#include "model/astronomy_model.h"

class QComboBox;

namespace veyruna::ui {

class StepperField;

/// The month, the day and the year.
class DateSection final : public QGroupBox {
  Q_OBJECT

 public:
  explicit DateSection(model::AstronomyModel& model, QWidget* parent = nullptr);

  /// Takes over what is being typed.
  void commit();

 private:
  void showMonth();

  model::AstronomyModel& model_;
  QComboBox* month_;
  StepperField* day_;
  StepperField* year_;
};

}  // namespace veyruna::ui
