#include "ui/sidebar/time_section.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/controls/field_note.h"
#include "ui/controls/named.h"
#include "ui/sidebar/hour_clock.h"
#include "ui/sidebar/hour_slider.h"
#include "ui/sidebar/quarter_hours.h"
#include "ui/sidebar/quarter_stepper.h"

namespace veyruna::ui {

using model::AstronomyModel;

TimeSection::TimeSection(AstronomyModel& model, QWidget* parent)
    : QGroupBox(tr("Time"), parent),
      model_(model),
      slider_(named(new HourSlider, "hourSlider", tr("Hour"))),
      clock_(new HourClock),
      stepper_(named(new QuarterStepper, "quarterStepper", tr("Step of a quarter of an hour"))) {
  slider_->setAccessibleDescription(tr("Type a time such as 03:40, or press F2"));
  auto* const hourLabel = new QLabel(tr("Ho&ur"));
  hourLabel->setBuddy(slider_);
  auto* const hourRow = new QHBoxLayout;
  hourRow->addWidget(hourLabel);
  hourRow->addWidget(slider_, 1);
  hourRow->addWidget(clock_);

  auto* const stepLabel = new QLabel(tr("St&ep (15 min)"));
  stepLabel->setBuddy(stepper_);
  auto* const stepRow = new QHBoxLayout;
  stepRow->addWidget(stepLabel, 1);
  stepRow->addWidget(stepper_);

  auto* const localTime =
      named(new QCheckBox(tr("Use local t&ime")), "localTime", tr("Use local time"));
  auto* const note = named(new FieldNote, "timeNote", tr("What the time accepts"));

  auto* const column = new QVBoxLayout(this);
  column->addLayout(hourRow);
  column->addLayout(stepRow);
  column->addWidget(localTime);
  addAtFoot(*column, note);

  connect(slider_, &HourSlider::picked, &model_, &AstronomyModel::setHour);
  connect(slider_, &HourSlider::typingBegun, clock_, &HourClock::open);
  connect(clock_, &HourClock::edited, &model_, &AstronomyModel::setHour);
  connect(clock_, &HourClock::ended, this, [this] { slider_->setFocus(); });
  connect(clock_, &HourClock::noted, note, &FieldNote::say);
  connect(stepper_, &QuarterStepper::stepped, &model_, [this](int quarters) {
    clock_->commit();
    model_.setHour(hourAfter(model_.hour(), quarters));
  });
  connect(localTime, &QCheckBox::clicked, &model_, &AstronomyModel::setUseLocalTime);
  connect(&model_, &AstronomyModel::hourChanged, this, &TimeSection::showHour);
  connect(&model_, &AstronomyModel::useLocalTimeChanged, localTime,
          [this, localTime] { localTime->setChecked(model_.useLocalTime()); });
  localTime->setChecked(model_.useLocalTime());
  showHour();
}

void TimeSection::commit() {
  clock_->commit();
}

void TimeSection::showHour() {
  slider_->show(model_.hour());
  clock_->show(model_.hour());
  stepper_->show(model_.hour());
}

}  // namespace veyruna::ui
