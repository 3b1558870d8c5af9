#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QStackedLayout;

namespace veyruna::ui {

class TypedEntry;

/// The hour as a clock shows it, "03:40". A double click opens a field in its place, in which the
/// time is typed: as "3:40" or in hours, "3.5".
class HourClock final : public QWidget {
  Q_OBJECT

 public:
  explicit HourClock(QWidget* parent = nullptr);

  /// Shows an hour, also one outside the day; reports nothing. What is being typed stays while the
  /// hour is the same.
  void show(double hour);

  /// Opens the field with a text in place of the time, or with the time itself.
  void open(const QString& text = QString());

  /// Takes over what is being typed, where it is a time of the day.
  void commit();

 Q_SIGNALS:
  /// The person typed another time, in hours.
  void edited(double hour);
  /// What the person is to know about what they typed; empty when there is nothing any more.
  void noted(const QString& note);
  /// Return or Escape ended the typing.
  void ended();

 protected:
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void fitWidth();
  void close();
  void take(const QString& text);

  QStackedLayout* stack_;
  QLabel* label_;
  QLineEdit* field_;
  TypedEntry* entry_;
  double hour_ = 0.0;
};

}  // namespace veyruna::ui
