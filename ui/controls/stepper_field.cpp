#include "ui/controls/stepper_field.h"

#include <QFontMetrics>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>
#include <algorithm>
#include <optional>

namespace veyruna::ui {

StepperField::StepperField(const QString& word, qint64 least, qint64 most, qint64 offset,
                           QWidget* parent)
    : QAbstractSpinBox(parent), word_(word), least_(least), most_(most), offset_(offset) {
  setFocusPolicy(Qt::StrongFocus);  // a wheel turned over it only scrolls
  connect(this, &QAbstractSpinBox::editingFinished, this, &StepperField::commit);
  show(least);
}

void StepperField::show(qint64 number) {
  number_ = number;
  const QSignalBlocker quiet(lineEdit());
  lineEdit()->setText(textOf(number));
  lineEdit()->setModified(false);
  update();
}

void StepperField::commit() {
  if (!lineEdit()->isModified()) {
    return;
  }
  const std::optional<qint64> typed = numberIn(lineEdit()->text());
  if (typed && *typed >= least_ && *typed <= most_) {
    choose(*typed);
  } else {
    show(number_);
  }
}

void StepperField::stepBy(int steps) {
  commit();
  choose(std::clamp(std::clamp(number_, least_, most_) + steps, least_, most_));
  selectAll();
}

QValidator::State StepperField::validate(QString& text, int& /*position*/) const {
  const std::optional<qint64> typed = numberIn(text);
  if (typed && *typed >= least_ && *typed <= most_) {
    return QValidator::Acceptable;
  }
  // What may still become a number: the word alone, part of it, or fewer digits.
  static const QRegularExpression begun(QStringLiteral("^\\s*\\p{L}*\\s*\\d*\\s*$"));
  const bool tooLarge = typed && *typed > most_;
  return begun.match(text).hasMatch() && !tooLarge ? QValidator::Intermediate : QValidator::Invalid;
}

void StepperField::fixup(QString& text) const {
  text = textOf(number_);
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

QString StepperField::textOf(qint64 number) const {
  // Summed unsigned: a stored number may be the largest there is.
  const auto shown = static_cast<quint64>(number) + static_cast<quint64>(offset_);
  return word_ + QLatin1Char(' ') + QString::number(static_cast<qint64>(shown));
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

void StepperField::choose(qint64 number) {
  const bool changes = number != number_;
  show(number);
  if (changes) {
    Q_EMIT edited(number);
  }
}

}  // namespace veyruna::ui
