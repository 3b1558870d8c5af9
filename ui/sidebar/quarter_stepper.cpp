#include "ui/sidebar/quarter_stepper.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QToolButton>

#include "ui/controls/named.h"
#include "ui/sidebar/quarter_hours.h"

namespace veyruna::ui {

namespace {

/// Enables a button or not. One that has the focus hands it to its neighbour before it goes grey,
/// or the focus would fall on whatever comes next and the next press of a key with it.
void allow(QToolButton* button, bool isPossible, QToolButton* neighbour) {
  if (!isPossible && button->hasFocus()) {
    neighbour->setEnabled(true);
    neighbour->setFocus(Qt::OtherFocusReason);
  }
  button->setEnabled(isPossible);
}

}  // namespace

QuarterStepper::QuarterStepper(QWidget* parent)
    : QWidget(parent),
      earlier_(makeButton(Qt::DownArrow, "earlierButton", tr("A quarter of an hour earlier"), -1)),
      later_(makeButton(Qt::UpArrow, "laterButton", tr("A quarter of an hour later"), 1)) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins({});
  row->addWidget(earlier_);
  row->addWidget(later_);
  setFocusPolicy(Qt::ClickFocus);  // for the label's key; Tab goes to the buttons
}

void QuarterStepper::show(double hour) {
  const bool canGoEarlier = hour > 0.0;
  const bool canGoLater = hour < lastQuarterHour;
  allow(earlier_, canGoEarlier, later_);
  allow(later_, canGoLater, earlier_);
}

void QuarterStepper::focusInEvent(QFocusEvent* event) {
  (later_->isEnabled() ? later_ : earlier_)->setFocus(event->reason());
}

bool QuarterStepper::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
      if ((key == Qt::Key_Up ? later_ : earlier_)->isEnabled()) {
        Q_EMIT stepped(key == Qt::Key_Up ? 1 : -1);
      }
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

QToolButton* QuarterStepper::makeButton(Qt::ArrowType arrow, const char* name,
                                        const QString& spoken, int quarters) {
  auto* const button = named(new QToolButton, name, spoken);
  button->setToolTip(spoken);
  button->setArrowType(arrow);
  button->setAutoRepeat(true);
  button->setFocusPolicy(Qt::StrongFocus);
  button->installEventFilter(this);
  connect(button, &QToolButton::clicked, this, [this, quarters] { Q_EMIT stepped(quarters); });
  return button;
}

}  // namespace veyruna::ui
