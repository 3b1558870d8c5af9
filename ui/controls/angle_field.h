#pragma once

#include <QLineEdit>
#include <optional>

namespace veyruna::ui {

/// A number of degrees, typed in the person's own notation. Shows up to three decimals; showing
/// never changes the number, and only what the person types is reported.
class AngleField final : public QLineEdit {
  Q_OBJECT

 public:
  /// Degrees from 0 to `most`.
  explicit AngleField(double most, QWidget* parent = nullptr);

  /// Shows a number of degrees, also one outside the range; reports nothing.
  void show(double degrees);

  /// Takes over what is being typed, where it is a number of the range.
  void commit();

 protected:
  /// Also where what was typed is no number, which the field alone would leave standing.
  void focusOutEvent(QFocusEvent* event) override;

 Q_SIGNALS:
  /// The person typed another number.
  void edited(double degrees);

 private:
  [[nodiscard]] std::optional<double> numberIn(const QString& text) const;

  double most_;
  double degrees_ = 0.0;
};

}  // namespace veyruna::ui
