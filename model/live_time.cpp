#include "model/live_time.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "astro/calendar.h"
#include "astro/invariant.h"
#include "model/input_signals.h"

namespace veyruna::model {

namespace {

constexpr std::chrono::milliseconds betweenFrames(16);
/// Longer than between two turns of a wheel or of a held key.
constexpr std::chrono::milliseconds untilItRests(200);

}  // namespace

LiveTime::LiveTime(AstronomyModel& model, std::shared_ptr<UnhurriedStore> store, Clock clock)
    : model_(model), store_(std::move(store)), clock_(std::move(clock)) {
  frames_.setTimerType(Qt::PreciseTimer);
  frames_.setInterval(betweenFrames);
  soon_.setSingleShot(true);
  resting_.setSingleShot(true);
  resting_.setInterval(untilItRests);
  connect(&frames_, &QTimer::timeout, this, &LiveTime::advance);
  connect(&soon_, &QTimer::timeout, this, &LiveTime::show);
  connect(&resting_, &QTimer::timeout, this, &LiveTime::rest);
  for (const auto changed : momentSignals) {
    connect(&model_, changed, this, &LiveTime::onMomentChanged);
  }
  for (const auto changed : placeSignals) {
    connect(&model_, changed, this, &LiveTime::onPlaceChanged);
  }
  connect(&model_, &AstronomyModel::isCalculatingChanged, this, [this] {
    if (!model_.isCalculating()) {
      doWhatIsDue();
    }
  });
}

void LiveTime::setOn(bool isOn) {
  if (isOn == isOn_) {
    return;
  }
  if (!isOn) {
    pause();
  }
  isOn_ = isOn;
  Q_EMIT isOnChanged();
  if (isOn_) {
    setBeginning();
    if (!model_.lastHoroscopeBasetime() || model_.inputsHaveChanged()) {
      show();
    }
  }
}

void LiveTime::setSeen(const QObject* viewer, const QList<Document>& documents) {
  if (!seen_.contains(viewer)) {
    connect(viewer, &QObject::destroyed, this, [this, viewer] { seen_.remove(viewer); });
  }
  seen_.insert(viewer, documents);
  if (motion_ != Motion::resting || resting_.isActive() || due_ != Due::nothing) {
    show();  // the new one's are those of an earlier rest
  }
}

void LiveTime::play(Motion motion) {
  if (!isOn_ || motion == motion_) {
    return;
  }
  motion_ = motion;
  Q_EMIT motionChanged();
  if (motion_ == Motion::resting) {
    frames_.stop();
    rest();
  } else {
    resting_.stop();
    beginPlaying();
  }
}

void LiveTime::pause() {
  const bool waits = soon_.isActive() || resting_.isActive();
  if (motion_ != Motion::resting) {
    play(Motion::resting);
  } else if (isOn_ && waits) {
    rest();
  }
}

/// From here and now on: where the pace or the moment changes, what was played before is done.
void LiveTime::beginPlaying() {
  if (motion_ != Motion::resting) {
    store_->hold();
    playedFrom_ = now_;
    playedSince_ = clock_();
    frames_.start();
  }
}

void LiveTime::setStep(TimeStep step) {
  if (step != step_) {
    step_ = entryOf(step).step;
    beginPlaying();
    Q_EMIT paceChanged();
  }
}

void LiveTime::setSpeed(double stepsPerSecond) {
  astro::requireInvariant(stepsPerSecond > 0.0 && std::isfinite(stepsPerSecond),
                          "time is played at a speed", stepsPerSecond);
  if (stepsPerSecond != speed_) {
    speed_ = stepsPerSecond;
    beginPlaying();
    Q_EMIT paceChanged();
  }
}

void LiveTime::advance() {
  const std::chrono::duration<double> played = clock_() - playedSince_;
  const double steps = (motion_ == Motion::backward ? -1.0 : 1.0) * played.count() * speed_;
  moveBy(entryOf(step_).flows ? steps : std::trunc(steps), playedFrom_);
}

void LiveTime::stepBy(int steps) {
  if (isOn_) {
    moveBy(steps, now_);
    beginPlaying();
  }
}

void LiveTime::goBack() {
  if (isOn_) {
    moveTo(beginning_);
    pause();
  }
}

void LiveTime::moveBy(double steps, double from) {
  const TimeStepEntry& entry = entryOf(step_);
  const double room =
      ((steps < 0.0 ? astro::firstMidnight : astro::baseTimeLimitDays) - from) / entry.days;
  const bool isTooFar = std::abs(steps) > std::abs(room) || room * steps < 0.0;
  const bool flows = motion_ != Motion::resting && entry.flows;
  const double possible = room * steps < 0.0 ? 0.0 : flows ? room : std::trunc(room);
  moveTo(from + (isTooFar ? possible : steps) * entry.days);
  if (isTooFar) {
    pause();
    Q_EMIT endReached(steps > 0.0);
  }
}

void LiveTime::moveTo(double baseTime) {
  if (baseTime == now_) {
    return;
  }
  now_ = baseTime;
  store_->hold();
  isMoving_ = true;
  const bool isNamed = model_.setMoment(baseTime);
  isMoving_ = false;
  if (isNamed) {
    show();
  }
  Q_EMIT moved();
}

void LiveTime::onMomentChanged() {
  if (isOn_ && !isMoving_) {
    setBeginning();
    showSoon();
  }
}

void LiveTime::onPlaceChanged() {
  if (isOn_) {
    if (model_.useLocalTime()) {
      now_ = model_.baseTime();  // the same hour of the day there is another moment
    }
    showSoon();
  }
}

void LiveTime::setBeginning() {
  now_ = model_.baseTime();
  beginning_ = now_;
  Q_EMIT beginningChanged();
}

/// The inputs change one by one.
void LiveTime::showSoon() {
  store_->hold();
  beginPlaying();
  soon_.start(0);
}

void LiveTime::show() {
  soon_.stop();
  if (model_.isCalculating()) {
    due_ = std::max(due_, Due::frame);
    return;
  }
  model_.calculateNow(now_, seen());
  if (motion_ == Motion::resting) {
    resting_.start();
  }
}

void LiveTime::rest() {
  soon_.stop();
  resting_.stop();
  store_->letGo();
  if (model_.isCalculating()) {
    due_ = Due::rest;
    return;
  }
  // What is seen belongs to the inputs at once: it may be about to be saved.
  model_.calculateNow(model_.baseTime(), seen());
  model_.recalculate();
}

void LiveTime::doWhatIsDue() {
  switch (std::exchange(due_, Due::nothing)) {
    case Due::nothing:
      break;
    case Due::frame:
      show();
      break;
    case Due::rest:
      rest();
      break;
  }
}

QList<documents::Document> LiveTime::seen() const {
  QList<Document> all = {Document::date};  // over every view
  for (const QList<Document>& documents : seen_) {
    for (const Document document : documents) {
      if (!all.contains(document)) {
        all.append(document);
      }
    }
  }
  return all;
}

}  // namespace veyruna::model
