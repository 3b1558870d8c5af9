#pragma once

#include <QWidget>

#include "model/live_time.h"

class QComboBox;
class QHBoxLayout;
class QLabel;
class QToolButton;

namespace veyruna::ui {

/// Below the picture, while time is live: plays it, steps it, and leads back to where it began.
class TimeBar final : public QWidget {
  Q_OBJECT

 public:
  explicit TimeBar(model::LiveTime& time, QWidget* parent = nullptr);

  /// Gives the focus to the button that plays.
  void takeKeys();

 private:
  using Motion = model::LiveTime::Motion;

  static QToolButton* dressed(QToolButton* button, const char* name, const char* icon,
                              const QString& does);
  QToolButton* makePlayButton(const char* name, Motion motion);
  void addPace(QHBoxLayout& row);
  void showMotion();
  void showPace();
  void showBeginning();

  model::LiveTime& time_;
  QToolButton* back_;
  QToolButton* forward_;
  QToolButton* begin_;
  QComboBox* step_;
  QComboBox* speed_;
  QLabel* end_;
};

}  // namespace veyruna::ui
