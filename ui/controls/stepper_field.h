#pragma once

#include <QAbstractSpinBox>
#include <optional>

namespace veyruna::ui {

enum class Reading;
class TypedEntry;

/// A whole number that is stepped or typed; its word stands beside it: "Day" 30, "Year" 720.
/// Shows any number it is given, also one outside its range, and never changes it by showing it;
/// only what the person steps or types is kept in the range and reported.
class StepperField final : public QAbstractSpinBox {
  Q_OBJECT
  // What a screen reader reads and sets, by the names it knows; in the numbers that are shown.
  Q_PROPERTY(qint64 value READ value WRITE setValue)
  Q_PROPERTY(qint64 minimum READ minimum CONSTANT)
  Q_PROPERTY(qint64 maximum READ maximum CONSTANT)
  Q_PROPERTY(int stepSize READ stepSize CONSTANT)

 public:
  /// `offset` is added for showing: a day counted from 0 is shown from 1. The range is of the
  /// number itself, both ends included.
  StepperField(const QString& word, qint64 least, qint64 most, qint64 offset,
               QWidget* parent = nullptr);

  /// Shows a number; reports nothing. What is being typed stays while the number is the same.
  void show(qint64 number);

  /// Takes over what is being typed, where it is a number of the range.
  void commit();

  [[nodiscard]] qint64 value() const { return shownOf(number_); }
  [[nodiscard]] qint64 minimum() const { return shownOf(least_); }
  [[nodiscard]] qint64 maximum() const { return shownOf(most_); }
  [[nodiscard]] static int stepSize() { return 1; }
  /// The person chose the value, or the border that is nearest to it.
  void setValue(qint64 value);

  /// From a number outside the range a step leads to the border, however far it goes.
  void stepBy(int steps) override;
  QValidator::State validate(QString& text, int& position) const override;
  [[nodiscard]] QSize sizeHint() const override;

 Q_SIGNALS:
  /// The person chose another number.
  void edited(qint64 number);
  /// What the person is to know about what they typed; empty when there is nothing any more.
  void noted(const QString& note);

 protected:
  [[nodiscard]] StepEnabled stepEnabled() const override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  [[nodiscard]] qint64 shownOf(qint64 number) const;
  [[nodiscard]] QString textOf(qint64 number) const;
  [[nodiscard]] std::optional<qint64> numberIn(const QString& text) const;
  [[nodiscard]] Reading read(const QString& text) const;
  void choose(qint64 number);
  void put(qint64 number);

  QString word_;
  qint64 least_;
  qint64 most_;
  qint64 offset_;
  TypedEntry* entry_;
  qint64 number_ = 0;
};

}  // namespace veyruna::ui
