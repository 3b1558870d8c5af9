#pragma once

#include <QGroupBox>

#include "model/astronomy_model.h"

class QLabel;
class QPushButton;
class QStackedLayout;
class QWidget;

namespace veyruna::ui {

class AngleField;
class LocationPicker;
class SegmentedPicker;

/// Where the observer stands: a saved place, or the manual fields.
class LocationSection final : public QGroupBox {
  Q_OBJECT

 public:
  explicit LocationSection(model::AstronomyModel& model, QWidget* parent = nullptr);

  /// Takes over what is being typed.
  void commit();

  /// Where the focus goes when a place has come or gone.
  void focusPicker();

  /// The colour button is there for the horoscope alone.
  void showColorMode(bool isShown);

 Q_SIGNALS:
  void saveRequested();
  void deleteRequested();
  void mapRequested();

 private:
  QWidget* makeManualFields();
  QWidget* makeSavedPlace();
  QWidget* makeButtons();
  void showCities();
  void showPlace();
  void showManualFields();

  model::AstronomyModel& model_;
  LocationPicker* picker_ = nullptr;
  QStackedLayout* place_ = nullptr;
  QWidget* savedPlace_ = nullptr;
  QLabel* coordinates_ = nullptr;
  QWidget* manualFields_ = nullptr;
  AngleField* latitude_ = nullptr;
  AngleField* longitude_ = nullptr;
  SegmentedPicker* northSouth_ = nullptr;
  SegmentedPicker* eastWest_ = nullptr;
  QPushButton* map_ = nullptr;
  QPushButton* colorMode_ = nullptr;
};

}  // namespace veyruna::ui
