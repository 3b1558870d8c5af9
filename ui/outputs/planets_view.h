#pragma once

#include <QIcon>
#include <map>

#include "model/body_position.h"
#include "ui/charts/chart_selection.h"
#include "ui/controls/with_placeholder.h"

class QTableWidget;
class QTableWidgetItem;

namespace veyruna::ui {

/// The six bodies as a table, each with a mark in its colour. Every text is shown whole; it scrolls
/// sideways only where the texts themselves have no room. The selected row is the body that is
/// selected in the charts; of several rows it is the one the person came to last.
class PlanetsView final : public WithPlaceholder {
 public:
  /// The selection must outlive the view.
  explicit PlanetsView(ChartSelection& selection, QWidget* parent = nullptr);

  void show(const QList<model::BodyPosition>& positions);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  PlanetsView(QTableWidget* table, ChartSelection& selection, QWidget* parent);
  /// Gives each column the width of its texts and of the room that is left, a function of these two
  /// alone. The last column takes what remains.
  void fitColumns();
  void copySelection() const;
  void selectBodyOfRow();
  void selectRowOfBody();

  QTableWidgetItem& itemAt(int row, int column, Qt::AlignmentFlag side);
  const QIcon& mark(model::BodyColor color);

  QTableWidget* table_;
  std::map<model::BodyColor, QIcon> marks_;
  ChartSelection& selection_;
};

}  // namespace veyruna::ui
