#pragma once

#include <QLineEdit>
#include <optional>

namespace veyruna::ui {

enum class Reading;
class TypedEntry;

/// The two directions of a coordinate by their letters: 'N' and 'S', 'E' and 'W'.
struct Directions {
  QChar positive;
  QChar negative;
};

/// A number of degrees, typed in the person's own notation. Shows up to three decimals; showing
/// never changes the number, and only what the person types is reported. The direction stands
/// beside the field; its letter typed here, before or behind the number, or a minus before it
/// counts together with the number and is then no longer in the text.
class AngleField final : public QLineEdit {
  Q_OBJECT

 public:
  /// Degrees from 0 to `most`, both included; `word` names them: "Latitude".
  AngleField(const QString& word, double most, Directions directions, QWidget* parent = nullptr);

  /// Shows a number of degrees, also one outside the range; reports nothing. What is being typed
  /// stays while the number is the same.
  void show(double degrees);

  /// Takes over what is being typed, where it is a number of the range.
  void commit();

 Q_SIGNALS:
  /// The person typed another number.
  void edited(double degrees);
  /// The person typed a direction's letter, or a minus for the negative one, with a number that
  /// counts or by itself.
  void turned(bool isPositive);
  /// What the person is to know about what they typed; empty when there is nothing any more.
  void noted(const QString& note);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  struct Typed {
    QString number;
    std::optional<bool> direction;
  };

  [[nodiscard]] std::optional<bool> directionOf(const QString& sign) const;
  [[nodiscard]] Typed partsOf(const QString& text) const;
  [[nodiscard]] Reading read(const QString& text) const;
  [[nodiscard]] QString accepted(const QString& text) const;
  [[nodiscard]] QString textOf(double degrees) const;
  void take(const QString& text);

  QString word_;
  double most_;
  Directions directions_;
  TypedEntry* entry_;
  double degrees_ = 0.0;
};

}  // namespace veyruna::ui
