#pragma once

#include "model/body_position.h"
#include "ui/controls/with_placeholder.h"

class QTableWidget;

namespace veyruna::ui {

/// The six bodies as a table, each with a mark in its colour.
class PlanetsView final : public WithPlaceholder {
 public:
  explicit PlanetsView(QWidget* parent = nullptr);

  void show(const QList<model::BodyPosition>& positions);

 private:
  PlanetsView(QTableWidget* table, QWidget* parent);
  void copySelection() const;

  QTableWidget* table_;
};

}  // namespace veyruna::ui
