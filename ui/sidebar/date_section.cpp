#include "ui/sidebar/date_section.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/controls/field_note.h"
#include "ui/controls/named.h"
#include "ui/controls/stepper_field.h"
#include "ui/controls/still_controls.h"

namespace veyruna::ui {

DateSection::DateSection(model::AstronomyModel& model, QWidget* parent)
    : QGroupBox(tr("Date"), parent), model_(model) {
  month_ = named(new StillComboBox, "monthPicker", tr("Month"));
  month_->addItems(model_.months());
  month_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  day_ = named(new StepperField(tr("Day"), 0, 29, 1), "dayStepper", tr("Day of the month"));
  year_ = named(new StepperField(tr("Year"), 1, 2000, 0), "yearStepper", tr("Year"));
  auto* const note = named(new FieldNote, "dateNote", tr("What the date accepts"));

  auto* const rows = new QGridLayout;
  rows->setColumnStretch(1, 1);
  const auto addRow = [rows](const QString& title, QWidget* field) {
    auto* const label = new QLabel(title);
    label->setBuddy(field);
    const int row = rows->count() / 2;
    rows->addWidget(label, row, 0);
    rows->addWidget(field, row, 1);
  };
  addRow(tr("&Month"), month_);
  addRow(tr("Da&y"), day_);
  addRow(tr("Yea&r"), year_);

  auto* const column = new QVBoxLayout(this);
  column->addLayout(rows);
  addAtFoot(*column, note);

  connect(month_, &QComboBox::activated, &model_, &model::AstronomyModel::setMonthIndex);
  connect(day_, &StepperField::edited, &model_, &model::AstronomyModel::setDayIndex);
  connect(year_, &StepperField::edited, &model_, &model::AstronomyModel::setYear);
  connect(day_, &StepperField::noted, note, &FieldNote::say);
  connect(year_, &StepperField::noted, note, &FieldNote::say);
  connect(&model_, &model::AstronomyModel::monthIndexChanged, this, &DateSection::showMonth);
  connect(&model_, &model::AstronomyModel::dayIndexChanged, this,
          [this] { day_->show(model_.dayIndex()); });
  connect(&model_, &model::AstronomyModel::yearChanged, this,
          [this] { year_->show(model_.year()); });
  showMonth();
  day_->show(model_.dayIndex());
  year_->show(model_.year());
}

void DateSection::commit() {
  day_->commit();
  year_->commit();
}

void DateSection::showMonth() {
  const qint64 index = model_.monthIndex();
  const bool isNamed = index >= 0 && index < month_->count();
  // A stored month that has no name is shown by its number and stays as it is.
  month_->setPlaceholderText(tr("Month %1").arg(static_cast<double>(index) + 1.0, 0, 'f', 0));
  month_->setCurrentIndex(isNamed ? static_cast<int>(index) : -1);
}

}  // namespace veyruna::ui
