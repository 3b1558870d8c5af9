#pragma once

#include <functional>

#include "ui/outputs/table_pair.h"

class QFormLayout;
class QLabel;
class QPushButton;

namespace veyruna::ui {

class FieldNote;

/// Sun and moon by the hour or through the month, and when the moon is next full and new.
class TablesView final : public TablePair {
  Q_OBJECT

 public:
  /// Puts the moment of `moon`, one of the two labels, into the inputs; false where they have no
  /// date for it, and then they stay as they are.
  using SetMoon = std::function<bool(documents::Document moon)>;

  explicit TablesView(SetMoon setMoon);

  /// An empty text is a moment that is not known yet.
  void showMoons(const QString& nextFullMoon, const QString& nextNewMoon);

 private:
  /// A line below the table.
  struct Moon {
    QLabel* moment = nullptr;
    QPushButton* set = nullptr;
    FieldNote* note = nullptr;  ///< why it could not be set
  };

  Moon addMoon(QFormLayout* lines, documents::Document moon, const char* name,
               const char* buttonName, const QString& does);
  static void showMoon(const Moon& moon, const QString& moment);

  SetMoon setMoon_;
  Moon fullMoon_;
  Moon newMoon_;
};

/// The conjunctions through the day or through the year.
class PositionsView final : public TablePair {
 public:
  PositionsView();
};

}  // namespace veyruna::ui
