#include "ui/window/view_menu.h"

#include <QAction>
#include <utility>

namespace veyruna::ui {

using model::LiveTime;
using Motion = LiveTime::Motion;

ViewMenu::ViewMenu(LiveTime& time, std::function<void()> handIn, QWidget* parent)
    : QMenu(tr("Vie&w"), parent), time_(time), handIn_(std::move(handIn)) {
  QAction* const live =
      add(tr("&Live"), Qt::CTRL | Qt::Key_L, [this] { time_.setOn(!time_.isOn()); });
  live->setCheckable(true);
  live->setStatusTip(tr("Calculates every change at once and lets time move"));
  addSeparator();
  QAction* const play = add(QString(), {}, [this] {
    time_.play(time_.motion() == Motion::resting ? Motion::forward : Motion::resting);
  });
  const QList<QAction*> moves = {
      play,
      add(tr("Play &Backwards") + QLatin1Char('\t') + tr("Shift+Space"), {},
          [this] { time_.play(Motion::backward); }),
      add(tr("Step &Forward"), Qt::ALT | Qt::Key_Right, [this] { time_.stepBy(1); }),
      add(tr("Step Bac&k"), Qt::ALT | Qt::Key_Left, [this] { time_.stepBy(-1); }),
      add(tr("&Now"), Qt::ALT | Qt::Key_Home, [this] { time_.goBack(); })};
  const auto show = [this, live, play, moves] {
    live->setChecked(time_.isOn());
    play->setText((time_.motion() == Motion::resting ? tr("&Play") : tr("&Pause")) +
                  QLatin1Char('\t') + tr("Space"));
    for (QAction* const move : moves) {
      move->setEnabled(time_.isOn());
    }
  };
  connect(&time_, &LiveTime::isOnChanged, this, show);
  connect(&time_, &LiveTime::motionChanged, this, show);
  show();
}

QAction* ViewMenu::add(const QString& title, const QKeySequence& keys, std::function<void()> act) {
  QAction* const action = addAction(title, this, [this, act = std::move(act)] {
    handIn_();
    act();
  });
  action->setShortcut(keys);
  return action;
}

}  // namespace veyruna::ui
