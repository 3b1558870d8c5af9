#include "ui/sidebar/hour_slider.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

#include "ui/sidebar/quarter_hours.h"

namespace veyruna::ui {

namespace {

constexpr int quartersPerHour = 4;

}  // namespace

HourSlider::HourSlider(QWidget* parent) : StillSlider(parent) {
  setOrientation(Qt::Horizontal);
  setRange(0, lastQuarter);
  setSingleStep(1);
  setPageStep(quartersPerHour);
  connect(this, &QSlider::actionTriggered, this, &HourSlider::onAction);
  connect(this, &QSlider::valueChanged, this,
          [this](int quarter) { Q_EMIT picked(quarter * quarterHour); });
}

void HourSlider::show(double hour) {
  hour_ = hour;
  const QSignalBlocker quiet(this);
  setValue(static_cast<int>(
      std::clamp(std::round(hour / quarterHour), 0.0, static_cast<double>(lastQuarter))));
}

void HourSlider::keyPressEvent(QKeyEvent* event) {
  const QString text = event->text();
  const bool isDigit =
      text.size() == 1 && text.front().isDigit() && (event->modifiers() & ~Qt::KeypadModifier) == 0;
  if (isDigit) {
    Q_EMIT typingBegun(text);
  } else if (event->key() == Qt::Key_F2) {
    Q_EMIT typingBegun(QString());
  } else {
    StillSlider::keyPressEvent(event);
  }
}

void HourSlider::onAction(int action) {
  // A wheel comes as a move without a hand on the handle.
  int quarters = 0;
  if (action == SliderSingleStepAdd || action == SliderSingleStepSub) {
    quarters = action == SliderSingleStepAdd ? singleStep() : -singleStep();
  } else if (action == SliderPageStepAdd || action == SliderPageStepSub) {
    quarters = action == SliderPageStepAdd ? pageStep() : -pageStep();
  } else if (action == SliderMove && !isSliderDown()) {
    quarters = sliderPosition() - value();
  }
  if (quarters != 0) {
    setSliderPosition(quarterAfter(quarters));
  }
  const double there = sliderPosition() * quarterHour;
  const bool isOnItsWay = quarters == 0 || (quarters > 0) == (there > hour_);
  if (sliderPosition() == value() && there != hour_ && isOnItsWay && action != SliderMove) {
    // Nearest already, so that the slider itself sees no change: from 12:10 to 12:15.
    Q_EMIT picked(there);
  }
}

/// So many quarters on from the hour itself, which may lie between two of them; from outside of
/// them the border.
int HourSlider::quarterAfter(int quarters) const {
  const double inside = std::clamp(hour_, 0.0, lastQuarterHour);
  const double here = inside / quarterHour;
  if (inside != hour_) {
    return static_cast<int>(here);
  }
  const double from = quarters > 0 ? std::floor(here) : std::ceil(here);
  return std::clamp(static_cast<int>(from) + quarters, 0, lastQuarter);
}

}  // namespace veyruna::ui
