#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>

#include "model/astronomy_model.h"
#include "model/time_step.h"
#include "model/unhurried_store.h"

namespace veyruna::model {

/// Time that moves. While it is on, every change of a moment or place is calculated at once, and
/// time can be stepped and played, in base time: over midnight, months and years, to the ends of
/// what can be calculated. While it moves, only what is seen is calculated, for the very moment it
/// has come to; frames that come too late are left out. When it rests, everything is calculated,
/// for the whole minute that the inputs name. While it is off, the model is left alone.
class LiveTime final : public QObject {
  Q_OBJECT

 public:
  enum class Motion { resting, forward, backward };
  Q_ENUM(Motion)

  using Document = documents::Document;
  using Clock = std::function<std::chrono::nanoseconds()>;

  /// The model and the store it stores its inputs in. The clock need only go evenly.
  LiveTime(
      AstronomyModel& model, std::shared_ptr<UnhurriedStore> store,
      Clock clock = [] { return std::chrono::steady_clock::now().time_since_epoch(); });

  [[nodiscard]] bool isOn() const { return isOn_; }
  void setOn(bool isOn);

  /// What a viewer shows. Time that moves calculates what any viewer shows, and a new one's at
  /// once. A viewer that has gone shows nothing.
  void setSeen(const QObject* viewer, const QList<Document>& documents);

  // What follows does nothing while it is off, but for the step and the speed.

  [[nodiscard]] Motion motion() const { return motion_; }
  void play(Motion motion);
  /// Lets time rest where it is: what is seen belongs to the inputs when this returns, and
  /// everything will be calculated.
  void pause();

  [[nodiscard]] TimeStep step() const { return step_; }
  void setStep(TimeStep step);
  /// How many steps a second are played.
  [[nodiscard]] double speed() const { return speed_; }
  /// Above 0, finite; anything else is a broken invariant.
  void setSpeed(double stepsPerSecond);

  /// Goes so many steps, back where negative, as far as there are moments.
  void stepBy(int steps);

  /// Back to the moment that the inputs last had from anywhere else.
  void goBack();
  [[nodiscard]] double beginning() const { return beginning_; }

 Q_SIGNALS:
  void isOnChanged();
  void motionChanged();
  void paceChanged();  ///< step or speed
  void beginningChanged();
  void moved();
  void endReached(bool isLast);  ///< no further moment can be calculated, or no earlier one

 private:
  void advance();
  void beginPlaying();
  void moveBy(double steps, double from);
  void moveTo(double baseTime);
  void onMomentChanged();
  void onPlaceChanged();
  void setBeginning();
  void showSoon();
  void show();
  void rest();
  void doWhatIsDue();
  [[nodiscard]] QList<Document> seen() const;

  AstronomyModel& model_;
  std::shared_ptr<UnhurriedStore> store_;
  Clock clock_;
  QHash<const QObject*, QList<Document>> seen_;
  QTimer frames_;
  QTimer soon_;     ///< several changes at once make one frame
  QTimer resting_;  ///< how long nothing has to move until everything is calculated
  bool isOn_ = false;
  Motion motion_ = Motion::resting;
  TimeStep step_ = TimeStep::hour;
  double speed_ = 1.0;
  double now_ = 0.0;         ///< days; the inputs name it to the minute
  double beginning_ = 0.0;   ///< days
  double playedFrom_ = 0.0;  ///< days
  std::chrono::nanoseconds playedSince_{};
  bool isMoving_ = false;  ///< the inputs' changes are ours
  /// What waits for the end of a calculation.
  enum class Due { nothing, frame, rest } due_ = Due::nothing;
};

}  // namespace veyruna::model
