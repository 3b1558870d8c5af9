#include "ui/outputs/time_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>

#include "astro/calendar.h"
#include "model/calculation.h"
#include "ui/controls/icons.h"
#include "ui/controls/named.h"
#include "ui/controls/still_controls.h"

namespace veyruna::ui {

using model::LiveTime;
using model::TimeStep;

namespace {

/// Leaves Space to the window, where it does what the buttons say of it: the program puts the focus
/// on one of them, and whichever has it, Space plays and pauses, and Shift+Space plays backwards.
class PlayButton final : public QToolButton {
 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Space) {
      event->ignore();
    } else {
      QToolButton::keyPressEvent(event);
    }
  }
};

/// "2 a second".
QString speedTitle(double stepsPerSecond) {
  return stepsPerSecond < 1.0 ? TimeBar::tr("½ a second")
                              : TimeBar::tr("%1 a second").arg(stepsPerSecond);
}

}  // namespace

TimeBar::TimeBar(LiveTime& time, QWidget* parent)
    : QWidget(parent),
      time_(time),
      back_(makePlayButton("playBack", Motion::backward)),
      forward_(makePlayButton("play", Motion::forward)),
      begin_(dressed(new QToolButton, "timeBeginning", "beginning", QString())),
      step_(named(new StillComboBox, "timeStep", tr("Step of time"))),
      speed_(named(new StillComboBox, "timeSpeed", tr("Speed of playing"))),
      end_(named(new QLabel, "timeEnd", tr("End of time"))) {
  QToolButton* const stepBack = dressed(new QToolButton, "stepBack", "step_back",
                                        tr("A step back (%1)").arg(QStringLiteral("Alt+←")));
  QToolButton* const stepForward = dressed(new QToolButton, "stepForward", "step_forward",
                                           tr("A step forward (%1)").arg(QStringLiteral("Alt+→")));
  for (QToolButton* const button : {stepBack, stepForward}) {
    button->setAutoRepeat(true);
    connect(button, &QToolButton::clicked, &time_,
            [this, steps = button == stepBack ? -1 : 1] { time_.stepBy(steps); });
  }
  connect(begin_, &QToolButton::clicked, &time_, &LiveTime::goBack);
  begin_->setText(tr("Now"));
  begin_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  end_->setMinimumWidth(1);

  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins({});
  for (QToolButton* const button : {stepBack, back_, forward_, stepForward}) {
    row->addWidget(button);
  }
  row->addSpacing(8);
  addPace(*row);
  row->addWidget(end_, 1);
  row->addWidget(begin_);

  connect(&time_, &LiveTime::motionChanged, this, &TimeBar::showMotion);
  connect(&time_, &LiveTime::paceChanged, this, &TimeBar::showPace);
  connect(&time_, &LiveTime::beginningChanged, this, &TimeBar::showBeginning);
  connect(&time_, &LiveTime::moved, end_, &QLabel::clear);
  connect(&time_, &LiveTime::endReached, end_, [this](bool isLast) {
    end_->setText(isLast ? tr("No later moment can be calculated.")
                         : tr("The calendar has no earlier moment."));
  });
  connect(&time_, &LiveTime::isOnChanged, this, [this] { setVisible(time_.isOn()); });
  if (!time_.isOn()) {
    hide();  // else it comes up with its window; shown by itself it would be one
  }
  showMotion();
  showPace();
  showBeginning();
}

QToolButton* TimeBar::dressed(QToolButton* button, const char* name, const char* iconName,
                              const QString& does) {
  named(button, name, does);
  button->setIcon(icon("", iconName));
  button->setToolTip(does);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::StrongFocus);
  return button;
}

QToolButton* TimeBar::makePlayButton(const char* name, Motion motion) {
  QToolButton* const button = dressed(new PlayButton, name, "play", QString());
  connect(button, &QToolButton::clicked, &time_, [this, motion] {
    if (time_.motion() == motion) {
      time_.pause();
    } else {
      time_.play(motion);
    }
  });
  return button;
}

void TimeBar::addPace(QHBoxLayout& row) {
  for (const model::TimeStepEntry& entry : model::allTimeSteps) {
    step_->addItem(entry.title.toString(), static_cast<int>(entry.step));
  }
  for (const double speed : model::timeSpeeds) {
    speed_->addItem(speedTitle(speed), speed);
  }
  const auto add = [&row](const QString& title, QComboBox* box) {
    auto* const label = new QLabel(title);
    label->setBuddy(box);
    row.addWidget(label);
    row.addWidget(box);
  };
  add(tr("Step"), step_);
  add(tr("Speed"), speed_);
  connect(step_, &QComboBox::activated, &time_, [this](int index) {
    time_.setStep(static_cast<TimeStep>(step_->itemData(index).toInt()));
  });
  connect(speed_, &QComboBox::activated, &time_,
          [this](int index) { time_.setSpeed(speed_->itemData(index).toDouble()); });
}

void TimeBar::takeKeys() {
  forward_->setFocus();
}

void TimeBar::showMotion() {
  struct Face {
    QToolButton* button;
    Motion motion;
    const char* iconName;
    QString does;
  };
  const Face faces[] = {
      {back_, Motion::backward, "play_back", tr("Play backwards (%1)").arg(tr("Shift+Space"))},
      {forward_, Motion::forward, "play", tr("Play (%1)").arg(tr("Space"))}};
  for (const auto& [button, motion, iconName, does] : faces) {
    const bool isPlaying = time_.motion() == motion;
    button->setIcon(icon("", isPlaying ? "pause" : iconName));
    const QString now = isPlaying ? tr("Pause (%1)").arg(tr("Space")) : does;
    button->setToolTip(now);
    button->setAccessibleName(now);
  }
}

void TimeBar::showPace() {
  step_->setCurrentIndex(step_->findData(static_cast<int>(time_.step())));
  speed_->setCurrentIndex(speed_->findData(time_.speed()));
}

void TimeBar::showBeginning() {
  // What was stored may lie where no moment has a name.
  const double beginning = time_.beginning();
  const QString does = model::isMomentWithinReach(beginning)
                           ? tr("Back to where time began to move, %1")
                                 .arg(QString::fromStdString(astro::calendarLabel(beginning)))
                           : tr("Back to where time began to move");
  begin_->setToolTip(does);
  begin_->setAccessibleName(does);
}

}  // namespace veyruna::ui
