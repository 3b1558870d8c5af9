#pragma once

#include <QWidget>

#include "model/astronomy_model.h"

class QLabel;

namespace veyruna::ui {

class CalculateButton;

/// The button that starts the calculation, its progress, what went wrong, and whether the inputs
/// have moved on from what is shown.
class CalculateArea final : public QWidget {
  Q_OBJECT

 public:
  explicit CalculateArea(model::AstronomyModel& model, QWidget* parent = nullptr);

 Q_SIGNALS:
  void calculateRequested();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void fitSmallType();
  void showProgress();
  void showError();
  void showDifference();

  model::AstronomyModel& model_;
  CalculateButton* button_;
  QLabel* error_;
  QLabel* difference_;
};

}  // namespace veyruna::ui
