#include "ui/outputs/tables_view.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

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
  setFullMoon_ = addMoon(lines, tr("Next full moon:"), nextFullMoon_, "setFullMoon",
                         tr("Set the inputs to the next full moon"));
  setNewMoon_ = addMoon(lines, tr("Next new moon:"), nextNewMoon_, "setNewMoon",
                        tr("Set the inputs to the next new moon"));
  addFooter(moons);
  showMoons({}, {});
  connect(setFullMoon_, &QPushButton::clicked, this, &TablesView::fullMoonChosen);
  connect(setNewMoon_, &QPushButton::clicked, this, &TablesView::newMoonChosen);
}

QPushButton* TablesView::addMoon(QFormLayout* lines, const QString& title, QLabel* moment,
                                 const char* buttonName, const QString& does) {
  auto* const button = named(new QPushButton(tr("Set")), buttonName, does);
  button->setToolTip(does);
  auto* const row = new QHBoxLayout;
  row->addWidget(moment);
  row->addWidget(button);
  row->addStretch();
  lines->addRow(title, row);
  return button;
}

void TablesView::showMoons(const QString& nextFullMoon, const QString& nextNewMoon) {
  nextFullMoon_->setText(nextFullMoon);
  nextNewMoon_->setText(nextNewMoon);
  setFullMoon_->setEnabled(!nextFullMoon.isEmpty());
  setNewMoon_->setEnabled(!nextNewMoon.isEmpty());
}

PositionsView::PositionsView()
    : TablePair({tr("Daily"), tr("Yearly"), tr("No conjunction data")}) {}

}  // namespace veyruna::ui
