#pragma once

#include <QMenu>
#include <functional>

#include "model/live_time.h"

namespace veyruna::ui {

/// View: whether time is live, and the keys that move it. What Space does is shown, not taken: it
/// belongs to the control that has the focus first.
class ViewMenu final : public QMenu {
  Q_OBJECT

 public:
  /// `handIn` is called before time moves, for what is still being typed.
  ViewMenu(model::LiveTime& time, std::function<void()> handIn, QWidget* parent);

 private:
  QAction* add(const QString& title, const QKeySequence& keys, std::function<void()> act);

  model::LiveTime& time_;
  std::function<void()> handIn_;
};

}  // namespace veyruna::ui
