#pragma once

#include "ui/outputs/table_pair.h"

class QFormLayout;
class QLabel;
class QPushButton;

namespace veyruna::ui {

/// Sun and moon by the hour or through the month, and when the moon is next full and new.
class TablesView final : public TablePair {
  Q_OBJECT

 public:
  TablesView();

  /// An empty text is a moment that is not known yet.
  void showMoons(const QString& nextFullMoon, const QString& nextNewMoon);

 Q_SIGNALS:
  /// The person wants that moment in the inputs.
  void fullMoonChosen();
  void newMoonChosen();

 private:
  QPushButton* addMoon(QFormLayout* lines, const QString& title, QLabel* moment,
                       const char* buttonName, const QString& does);

  QLabel* nextFullMoon_;
  QLabel* nextNewMoon_;
  QPushButton* setFullMoon_;
  QPushButton* setNewMoon_;
};

/// The conjunctions through the day or through the year.
class PositionsView final : public TablePair {
 public:
  PositionsView();
};

}  // namespace veyruna::ui
