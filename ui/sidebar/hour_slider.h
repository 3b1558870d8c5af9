#pragma once

#include "ui/controls/still_controls.h"

namespace veyruna::ui {

/// The hour of the day in quarters. Shows the quarter nearest to any hour and never changes it by
/// showing it. A key leads from the hour itself to the quarter before or behind it; a digit or F2
/// begins to type the time instead.
class HourSlider final : public StillSlider {
  Q_OBJECT

 public:
  explicit HourSlider(QWidget* parent = nullptr);

  /// Shows an hour, also one outside the day; reports nothing.
  void show(double hour);

 Q_SIGNALS:
  /// The person chose a quarter.
  void picked(double hour);
  /// The person began to type a time with this digit, or with none.
  void typingBegun(const QString& digit);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void onAction(int action);
  [[nodiscard]] int quarterAfter(int quarters) const;

  double hour_ = 0.0;
};

}  // namespace veyruna::ui
