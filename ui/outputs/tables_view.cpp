#include "ui/outputs/tables_view.h"

#include <QFormLayout>
#include <QLabel>

#include "ui/controls/named.h"

namespace veyruna::ui {

TablesView::TablesView()
    : TablePair({tr("Hourly"), tr("Monthly"), tr("No table data")}),
      nextFullMoon_(named(new QLabel, "nextFullMoon", tr("Next full moon"))),
      nextNewMoon_(named(new QLabel, "nextNewMoon", tr("Next new moon"))) {
  for (QLabel* const label : {nextFullMoon_, nextNewMoon_}) {
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  }
  auto* const moons = new QWidget;
  auto* const lines = new QFormLayout(moons);
  lines->setContentsMargins({});
  lines->addRow(tr("Next full moon:"), nextFullMoon_);
  lines->addRow(tr("Next new moon:"), nextNewMoon_);
  addFooter(moons);
}

void TablesView::showMoons(const QString& nextFullMoon, const QString& nextNewMoon) {
  nextFullMoon_->setText(nextFullMoon);
  nextNewMoon_->setText(nextNewMoon);
}

PositionsView::PositionsView()
    : TablePair({tr("Daily"), tr("Yearly"), tr("No conjunction data")}) {}

}  // namespace veyruna::ui
