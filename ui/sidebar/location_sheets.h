#pragma once

#include <QDialog>

#include "model/astronomy_model.h"

class QLabel;
class QLineEdit;

namespace veyruna::ui {

/// Asks for the name under which the manual fields' place is saved.
class SaveLocationSheet final : public QDialog {
  Q_OBJECT

 public:
  explicit SaveLocationSheet(model::AstronomyModel& model, QWidget* parent);

 private:
  void save();

  model::AstronomyModel& model_;
  QLineEdit* name_;
  QLabel* error_;
};

/// Asks whether the selected place is to be deleted.
class DeleteLocationSheet final : public QDialog {
  Q_OBJECT

 public:
  explicit DeleteLocationSheet(model::AstronomyModel& model, QWidget* parent);

 protected:
  /// Return deletes, whatever has the focus.
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void remove();

  model::AstronomyModel& model_;
  QUuid id_;
};

}  // namespace veyruna::ui
