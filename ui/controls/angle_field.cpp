#include "ui/controls/angle_field.h"

#include <QKeyEvent>
#include <QLocale>
#include <algorithm>

#include "ui/controls/plain_key.h"
#include "ui/controls/typed_entry.h"

namespace veyruna::ui {

namespace {

constexpr int mostDecimals = 3;
constexpr QChar minusSign(0x2212);  // the typographic one
constexpr QChar degreeSign(0x00b0);

}  // namespace

AngleField::AngleField(const QString& word, double most, Directions directions, QWidget* parent)
    : QLineEdit(parent), word_(word), most_(most), directions_(directions) {
  entry_ = new TypedEntry(*this, *this,
                          {[this](const QString& text) { return read(text); },
                           [this](const QString& text) { return accepted(text); },
                           [this](const QString& text) { take(text); }});
  connect(entry_, &TypedEntry::noted, this, &AngleField::noted);
  setToolTip(tr("Degrees from 0 to %1, with up to three decimals; %2 and %3 say which way.")
                 .arg(most)
                 .arg(directions_.positive)
                 .arg(directions_.negative));
  entry_->show(textOf(degrees_));
}

void AngleField::show(double degrees) {
  if (degrees != degrees_) {
    degrees_ = degrees;
    entry_->show(textOf(degrees));
  }
}

void AngleField::commit() {
  entry_->finish();
}

void AngleField::keyPressEvent(QKeyEvent* event) {
  // Beside a number that nobody is typing it is like the button; else it belongs to what is typed.
  const bool isAlone = !entry_->isTyping() && selectedText() != text();
  if (const auto direction = directionOf(event->text()); direction && isAlone && isPlain(*event)) {
    Q_EMIT turned(*direction);
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

std::optional<bool> AngleField::directionOf(const QString& sign) const {
  const QString upper = sign.toUpper();
  if (upper == directions_.positive) {
    return true;
  }
  if (upper == directions_.negative || sign == QLatin1Char('-') || sign == minusSign) {
    return false;
  }
  return std::nullopt;
}

/// "20.9° W" or "−20.9" in its parts; the number as the locale writes it.
AngleField::Typed AngleField::partsOf(const QString& text) const {
  QString number = text.trimmed();
  std::optional<bool> direction = directionOf(number.left(1));
  if (direction) {
    number = number.mid(1).trimmed();
  } else if (direction = directionOf(number.right(1)); direction && number.back().isLetter()) {
    number = number.chopped(1).trimmed();
  } else {
    direction = std::nullopt;  // a minus behind the number is none
  }
  if (number.endsWith(degreeSign)) {
    number = number.chopped(1).trimmed();
  }
  // Either decimal sign is meant as one, whatever the locale's is.
  const QString point = locale().decimalPoint();
  return {number.replace(QLatin1Char('.'), point).replace(QLatin1Char(','), point), direction};
}

Reading AngleField::read(const QString& text) const {
  const auto [number, direction] = partsOf(text);
  const QString point = locale().decimalPoint();
  if (number.isEmpty() && direction) {
    return Reading::accepted;  // it turns the number in use
  }
  if (number.isEmpty() || number == point) {
    return Reading::unfinished;
  }
  const bool isDigits = std::all_of(number.begin(), number.end(), [&point](QChar character) {
    return character.isDigit() || point.contains(character);
  });
  const qsizetype pointAt = number.indexOf(point);
  const qsizetype decimals = pointAt < 0 ? 0 : number.size() - pointAt - point.size();
  bool isNumber = false;
  const double degrees = locale().toDouble(number, &isNumber);
  return isNumber && isDigits && decimals <= mostDecimals && degrees <= most_ ? Reading::accepted
                                                                              : Reading::refused;
}

QString AngleField::accepted(const QString& text) const {
  const QString number = partsOf(text).number;
  const qsizetype point = number.indexOf(locale().decimalPoint());
  const bool isTooFine =
      point >= 0 && read(number.left(point + 1 + mostDecimals)) == Reading::accepted;
  return isTooFine ? tr("At most three decimals") : tr("%1 0 to %2").arg(word_).arg(most_);
}

QString AngleField::textOf(double degrees) const {
  QLocale plain = locale();
  plain.setNumberOptions(QLocale::OmitGroupSeparator);
  QString text = plain.toString(degrees, 'f', mostDecimals);
  while (text.endsWith(plain.zeroDigit())) {
    text.chop(1);
  }
  if (text.endsWith(plain.decimalPoint())) {
    text.chop(plain.decimalPoint().size());
  }
  return text;
}

void AngleField::take(const QString& text) {
  const auto [number, direction] = partsOf(text);
  const double typed = number.isEmpty() ? degrees_ : locale().toDouble(number);
  const bool changes = typed != degrees_;
  degrees_ = typed;
  entry_->show(textOf(typed));
  if (direction) {
    Q_EMIT turned(*direction);
  }
  if (changes) {
    Q_EMIT edited(typed);
  }
}

}  // namespace veyruna::ui
