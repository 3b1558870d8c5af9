#include "ui/sidebar/time_section.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "astro/clock.h"
#include "ui/controls/named.h"
#include "ui/controls/still_controls.h"

namespace veyruna::ui {

namespace {

constexpr double quarterHour = 0.25;
constexpr double lastHour = 23.75;
constexpr int lastPosition = 95;  // quarters of an hour
constexpr int clockWidth = 50;

}  // namespace

TimeSection::TimeSection(model::AstronomyModel& model, QWidget* parent)
    : QGroupBox(tr("Time"), parent), model_(model) {
  slider_ = named(new StillSlider, "hourSlider", tr("Hour"));
  slider_->setOrientation(Qt::Horizontal);
  slider_->setRange(0, lastPosition);
  slider_->setSingleStep(1);
  slider_->setPageStep(4);
  clock_ = named(new QLabel, "hourLabel", tr("Hour chosen"));
  clock_->setMinimumWidth(clockWidth);
  clock_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* const hourLabel = new QLabel(tr("Ho&ur"));
  hourLabel->setBuddy(slider_);
  auto* const hourRow = new QHBoxLayout;
  hourRow->addWidget(hourLabel);
  hourRow->addWidget(slider_, 1);
  hourRow->addWidget(clock_);

  earlier_ = named(makeStepButton(Qt::DownArrow, -quarterHour), "earlierButton",
                   tr("A quarter of an hour earlier"));
  later_ = named(makeStepButton(Qt::UpArrow, quarterHour), "laterButton",
                 tr("A quarter of an hour later"));
  for (QWidget* const button : {earlier_, later_}) {
    button->setToolTip(button->accessibleName());
  }
  auto* const stepRow = new QHBoxLayout;
  stepRow->addWidget(new QLabel(tr("Step (15 min)")), 1);
  stepRow->addWidget(earlier_);
  stepRow->addWidget(later_);

  auto* const localTime =
      named(new QCheckBox(tr("Use local t&ime")), "localTime", tr("Use local time"));

  auto* const column = new QVBoxLayout(this);
  column->addLayout(hourRow);
  column->addLayout(stepRow);
  column->addWidget(localTime);

  connect(slider_, &QSlider::valueChanged, &model_,
          [this](int position) { model_.setHour(position * quarterHour); });
  connect(localTime, &QCheckBox::clicked, &model_, &model::AstronomyModel::setUseLocalTime);
  connect(&model_, &model::AstronomyModel::hourChanged, this, &TimeSection::showHour);
  connect(&model_, &model::AstronomyModel::useLocalTimeChanged, localTime,
          [this, localTime] { localTime->setChecked(model_.useLocalTime()); });
  localTime->setChecked(model_.useLocalTime());
  showHour();
}

QToolButton* TimeSection::makeStepButton(Qt::ArrowType arrow, double step) {
  auto* const button = new QToolButton;
  button->setArrowType(arrow);
  button->setAutoRepeat(true);
  button->setFocusPolicy(Qt::StrongFocus);
  connect(button, &QToolButton::clicked, &model_,
          [this, step] { model_.setHour(std::clamp(model_.hour() + step, 0.0, lastHour)); });
  return button;
}

void TimeSection::showHour() {
  // The slider shows the nearest quarter; the hour itself stays as it is.
  const double position =
      std::clamp(std::round(model_.hour() / quarterHour), 0.0, static_cast<double>(lastPosition));
  const QSignalBlocker quiet(slider_);
  slider_->setValue(static_cast<int>(position));
  clock_->setText(QString::fromStdString(astro::clockText(model_.hour())));
  earlier_->setEnabled(model_.hour() > 0.0);
  later_->setEnabled(model_.hour() < lastHour);
}

}  // namespace veyruna::ui
