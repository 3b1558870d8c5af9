#include "ui/controls/stepper_field.h"

#include <QFontMetrics>
#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>
#include <algorithm>

#include "ui/controls/alert.h"
#include "ui/controls/typed_entry.h"

namespace veyruna::ui {

StepperField::StepperField(const QString& word, qint64 least, qint64 most, qint64 offset,
                           QWidget* parent)
    : QAbstractSpinBox(parent), word_(word), least_(least), most_(most), offset_(offset) {
  setFocusPolicy(Qt::StrongFocus);  // a wheel turned over it only scrolls
  QString accepted = tr("%1 %2 to %3").arg(word, textOf(least), textOf(most));
  entry_ = new TypedEntry(*this, *lineEdit(),
                          {[this](const QString& text) { return read(text); },
                           [accepted](const QString& /*text*/) { return accepted; },
                           [this](const QString& text) { choose(numberIn(text).value()); }});
  connect(entry_, &TypedEntry::noted, this, &StepperField::noted);
  number_ = least;
  entry_->show(textOf(least));
}

void StepperField::show(qint64 number) {
  if (number != number_) {
    put(number);
  }
}

void StepperField::setValue(qint64 value) {
  choose(std::clamp(value, minimum(), maximum()) - offset_);
}

void StepperField::commit() {
  entry_->finish();
}

void StepperField::stepBy(int steps) {
  commit();
  const qint64 border = std::clamp(number_, least_, most_);
  choose(border != number_ ? border : std::clamp(number_ + steps, least_, most_));
  selectAll();
}

QValidator::State StepperField::validate(QString& /*text*/, int& /*position*/) const {
  return QValidator::Acceptable;  // what is typed is seen to by the entry
}

QSize StepperField::sizeHint() const {
  const int digits = fontMetrics().horizontalAdvance(textOf(most_) + QStringLiteral("00"));
  QStyleOptionSpinBox option;
  initStyleOption(&option);
  const QSize content(digits, lineEdit()->sizeHint().height());
  return style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
}

QAbstractSpinBox::StepEnabled StepperField::stepEnabled() const {
  return (number_ > least_ ? StepDownEnabled : StepNone) |
         (number_ < most_ ? StepUpEnabled : StepNone);
}

void StepperField::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QAbstractSpinBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

qint64 StepperField::shownOf(qint64 number) const {
  // Summed unsigned: a stored number may be the largest there is.
  return static_cast<qint64>(static_cast<quint64>(number) + static_cast<quint64>(offset_));
}

QString StepperField::textOf(qint64 number) const {
  return QString::number(shownOf(number));
}

std::optional<qint64> StepperField::numberIn(const QString& text) const {
  QString digits = text.trimmed();
  if (digits.startsWith(word_, Qt::CaseInsensitive)) {
    digits = digits.mid(word_.size()).trimmed();
  }
  bool isNumber = false;
  const qint64 shown = digits.toLongLong(&isNumber);
  return isNumber && shown >= 0 ? std::optional(shown - offset_) : std::nullopt;
}

Reading StepperField::read(const QString& text) const {
  if (const std::optional<qint64> number = numberIn(text)) {
    return *number >= least_ && *number <= most_ ? Reading::accepted : Reading::refused;
  }
  // Nothing yet, or the word or its beginning, which may be typed in front of the number.
  return word_.startsWith(text.trimmed(), Qt::CaseInsensitive) ? Reading::unfinished
                                                               : Reading::refused;
}

void StepperField::choose(qint64 number) {
  const bool changes = number != number_;
  put(number);
  if (changes) {
    Q_EMIT edited(number);
  }
}

void StepperField::put(qint64 number) {
  const bool changes = number != number_;
  number_ = number;
  entry_->show(textOf(number));
  update();  // which way it can be stepped
  if (changes) {
    tellValue(*this, value());
  }
}

}  // namespace veyruna::ui
