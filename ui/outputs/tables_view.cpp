#include "ui/outputs/tables_view.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <utility>

#include "ui/controls/field_note.h"
#include "ui/controls/named.h"

namespace veyruna::ui {

using documents::Document;

TablesView::TablesView(SetMoon setMoon)
    : TablePair(exports::OutputTab::sunMoon, tr("No table data")), setMoon_(std::move(setMoon)) {
  auto* const moons = new QWidget;
  auto* const lines = new QFormLayout(moons);
  lines->setContentsMargins({});
  lines->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  fullMoon_ = addMoon(lines, Document::nextFullMoon, "nextFullMoon", "setFullMoon",
                      tr("Set the inputs to the next full moon"));
  newMoon_ = addMoon(lines, Document::nextNewMoon, "nextNewMoon", "setNewMoon",
                     tr("Set the inputs to the next new moon"));
  addFooter(moons);
  showMoons({}, {});
}

TablesView::Moon TablesView::addMoon(QFormLayout* lines, Document moon, const char* name,
                                     const char* buttonName, const QString& does) {
  const QString title = exports::heading(moon);
  auto* const moment = named(new QLabel, name, title);
  moment->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* const set = named(new QPushButton(tr("Set")), buttonName, does);
  set->setToolTip(does);
  auto* const note = named(new FieldNote, "moonNote", tr("Why the moment could not be set"));
  auto* const row = new QHBoxLayout;
  row->addWidget(moment);
  row->addWidget(set);
  row->addWidget(note, 1);
  lines->addRow(title + QLatin1Char(':'), row);
  connect(set, &QPushButton::clicked, this, [this, moon, note] {
    note->say(setMoon_(moon) ? QString()
                             : tr("The inputs have no date for it; years begin with 1."));
  });
  return {moment, set, note};
}

void TablesView::showMoons(const QString& nextFullMoon, const QString& nextNewMoon) {
  showMoon(fullMoon_, nextFullMoon);
  showMoon(newMoon_, nextNewMoon);
}

void TablesView::showMoon(const Moon& moon, const QString& moment) {
  moon.moment->setText(moment);
  moon.set->setEnabled(!moment.isEmpty());
  moon.note->say({});
}

PositionsView::PositionsView()
    : TablePair(exports::OutputTab::positions, tr("No conjunction data")) {}

}  // namespace veyruna::ui
