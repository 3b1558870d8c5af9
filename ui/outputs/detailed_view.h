#pragma once

#include <QWidget>

#include "export/output_tab.h"
#include "model/astronomy_model.h"
#include "model/live_time.h"

class QLabel;
class QStackedWidget;

namespace veyruna::ui {

class TimeBar;

/// The outputs of the last calculation, one tab at a time, under the moment and place they belong
/// to, over the bar that moves time.
class DetailedView final : public QWidget {
  Q_OBJECT

 public:
  DetailedView(model::AstronomyModel& model, model::LiveTime& time, QWidget* parent = nullptr);

  void setTab(exports::OutputTab tab);

  /// Gives the focus to the button that plays time.
  void giveKeysToTime();

  /// Gives the focus to the map, whose tab is in front.
  void focusMap();

 private:
  QLabel* caption_;
  QStackedWidget* tabs_;
  TimeBar* bar_;
};

}  // namespace veyruna::ui
