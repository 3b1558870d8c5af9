#include "ui/controls/angle_field.h"

#include <QFocusEvent>
#include <QLocale>
#include <QToolTip>
#include <QValidator>

namespace veyruna::ui {

namespace {

constexpr int mostDecimals = 3;

/// Refuses while it is typed what can become no number of the range.
class DegreesValidator final : public QValidator {
 public:
  DegreesValidator(double most, QObject* parent) : QValidator(parent), most_(most) {}

  State validate(QString& text, int& /*position*/) const override {
    // Either decimal sign is meant as one, whatever the locale's is.
    const QString point = locale().decimalPoint();
    text.replace(QLatin1Char('.'), point).replace(QLatin1Char(','), point);
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty()) {
      return Intermediate;
    }
    const qsizetype at = trimmed.indexOf(point);
    if (at >= 0 && trimmed.size() - at - point.size() > mostDecimals) {
      return Invalid;
    }
    if (trimmed == point) {
      return Intermediate;
    }
    bool isNumber = false;
    const double degrees = locale().toDouble(trimmed, &isNumber);
    const bool isPlain = !trimmed.contains(QLatin1Char('e'), Qt::CaseInsensitive) &&
                         !trimmed.startsWith(QLatin1Char('-')) &&
                         !trimmed.startsWith(QLatin1Char('+'));
    return isNumber && isPlain && degrees >= 0.0 && degrees <= most_ ? Acceptable : Invalid;
  }

 private:
  double most_;
};

}  // namespace

AngleField::AngleField(double most, QWidget* parent) : QLineEdit(parent), most_(most) {
  auto* const validator = new DegreesValidator(most, this);
  QLocale plain = locale();
  plain.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
  validator->setLocale(plain);
  setValidator(validator);
  connect(this, &QLineEdit::editingFinished, this, &AngleField::commit);
  setToolTip(
      tr("Degrees from 0 to %1, with up to three decimals; the letters beside it say which way.")
          .arg(most));
  connect(this, &QLineEdit::inputRejected, this,
          [this] { QToolTip::showText(mapToGlobal(QPoint(0, height())), toolTip(), this); });
}

void AngleField::show(double degrees) {
  degrees_ = degrees;
  QLocale plain = locale();
  plain.setNumberOptions(QLocale::OmitGroupSeparator);
  QString text = plain.toString(degrees, 'f', mostDecimals);
  while (text.endsWith(plain.zeroDigit())) {
    text.chop(1);
  }
  if (text.endsWith(plain.decimalPoint())) {
    text.chop(plain.decimalPoint().size());
  }
  setText(text);
  setCursorPosition(0);
  setModified(false);
}

void AngleField::commit() {
  if (!isModified()) {
    return;
  }
  const std::optional<double> typed = numberIn(text());
  const bool changes = typed && *typed != degrees_;
  show(typed.value_or(degrees_));
  if (changes) {
    Q_EMIT edited(*typed);
  }
}

void AngleField::focusOutEvent(QFocusEvent* event) {
  commit();
  QLineEdit::focusOutEvent(event);
}

std::optional<double> AngleField::numberIn(const QString& text) const {
  bool isNumber = false;
  const double degrees = validator()->locale().toDouble(text.trimmed(), &isNumber);
  return isNumber && degrees >= 0.0 && degrees <= most_ ? std::optional(degrees) : std::nullopt;
}

}  // namespace veyruna::ui
