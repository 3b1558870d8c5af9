#pragma once

#include "model/astronomy_model.h"
#include "ui/controls/still_controls.h"

namespace veyruna::ui {

/// The list of saved places. Whenever it is opened, by hand or by key, it first takes in what other
/// windows and programs have saved and deleted.
class LocationPicker final : public StillComboBox {
  Q_OBJECT

 public:
  explicit LocationPicker(model::AstronomyModel& model) : model_(model) {}

  void showPopup() override {
    model_.refreshCities();
    StillComboBox::showPopup();
  }

 private:
  model::AstronomyModel& model_;
};

}  // namespace veyruna::ui
