#pragma once

#include <QWidget>

#include "export/output_tab.h"
#include "model/astronomy_model.h"

class QLabel;
class QStackedWidget;

namespace veyruna::ui {

/// The outputs of the last calculation, one tab at a time, under the moment and place they belong
/// to.
class DetailedView final : public QWidget {
  Q_OBJECT

 public:
  explicit DetailedView(model::AstronomyModel& model, QWidget* parent = nullptr);

  void setTab(exports::OutputTab tab);

  /// Gives the focus to the map, whose tab is in front.
  void focusMap();

 private:
  QLabel* caption_;
  QStackedWidget* tabs_;
};

}  // namespace veyruna::ui
