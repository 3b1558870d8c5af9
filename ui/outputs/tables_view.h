#pragma once

#include "ui/outputs/table_pair.h"

class QLabel;

namespace veyruna::ui {

/// Sun and moon by the hour or through the month, and when the moon is next full and new.
class TablesView final : public TablePair {
 public:
  TablesView();

  void showMoons(const QString& nextFullMoon, const QString& nextNewMoon);

 private:
  QLabel* nextFullMoon_;
  QLabel* nextNewMoon_;
};

/// The conjunctions through the day or through the year.
class PositionsView final : public TablePair {
 public:
  PositionsView();
};

}  // namespace veyruna::ui
