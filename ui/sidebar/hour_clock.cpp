#include "ui/sidebar/hour_clock.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStackedLayout>
#include <algorithm>
#include <optional>

#include "astro/clock.h"
#include "ui/controls/named.h"
#include "ui/controls/typed_entry.h"

namespace veyruna::ui {

namespace {

constexpr int clockWidth = 50;
constexpr double hoursPerDay = 24.0;  // midnight, which is an hour of the next day

QString clockText(double hour) {
  return QString::fromStdString(astro::clockText(hour));
}

/// The hour of the day that is meant; with either decimal sign, whatever the locale's is.
std::optional<double> hourIn(QString text) {
  static const QRegularExpression otherNotations(QStringLiteral("[^0-9:.]"));
  text = text.trimmed().replace(QLatin1Char(','), QLatin1Char('.'));
  if (text.contains(otherNotations)) {
    return std::nullopt;
  }
  const std::optional<double> hour = astro::hourFromText(text.toStdString());
  return hour && *hour < hoursPerDay ? hour : std::nullopt;
}

Reading read(const QString& text) {
  if (hourIn(text)) {
    return Reading::accepted;
  }
  static const QRegularExpression begun(
      QStringLiteral("^\\s*(?:(?:[01]?\\d|2[0-3]):[0-5]?|[.,]?)$"));
  return begun.match(text).hasMatch() ? Reading::unfinished : Reading::refused;
}

}  // namespace

HourClock::HourClock(QWidget* parent)
    : QWidget(parent),
      stack_(new QStackedLayout(this)),
      label_(named(new QLabel, "hourLabel", tr("Hour chosen"))),
      field_(named(new QLineEdit, "hourField", tr("Hour, typed"))) {
  label_->setMinimumWidth(clockWidth);
  label_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  label_->setToolTip(tr("Double-click or press F2 to type the time"));
  label_->installEventFilter(this);
  field_->setAlignment(Qt::AlignRight);
  field_->setToolTip(tr("A time from 0:00 to 23:59, or hours such as 3.5"));
  stack_->setContentsMargins({});
  stack_->addWidget(label_);
  stack_->addWidget(field_);
  fitWidth();
  field_->installEventFilter(this);  // before the entry, which is to look at each event first
  entry_ = new TypedEntry(*field_, *field_,
                          {read, [](const QString& /*text*/) { return tr("Hour 0:00 to 23:59"); },
                           [this](const QString& text) { take(text); }});
  connect(entry_, &TypedEntry::noted, this, &HourClock::noted);
  label_->setText(clockText(hour_));
  entry_->show(clockText(hour_));
}

void HourClock::show(double hour) {
  if (hour != hour_) {
    hour_ = hour;
    label_->setText(clockText(hour));
    entry_->show(clockText(hour));
  }
}

void HourClock::open(const QString& text) {
  stack_->setCurrentWidget(field_);
  field_->setFocus(Qt::OtherFocusReason);
  field_->selectAll();
  if (!text.isEmpty()) {
    field_->insert(text);  // in place of what is selected, as if it were typed here
    Q_EMIT field_->textEdited(field_->text());
  }
}

void HourClock::commit() {
  entry_->finish();
}

void HourClock::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) {
    fitWidth();
  }
}

/// As wide as the time asks, open or not.
void HourClock::fitWidth() {
  constexpr int frameAndCaret = 16;
  const int text = fontMetrics().horizontalAdvance(QStringLiteral("00:00"));
  setFixedWidth(std::max(clockWidth, text + frameAndCaret));
}

void HourClock::close() {
  stack_->setCurrentWidget(label_);
}

void HourClock::take(const QString& text) {
  const double typed = hourIn(text).value();
  const bool changes = typed != hour_;
  hour_ = typed;
  label_->setText(clockText(typed));
  entry_->show(clockText(typed));
  if (changes) {
    Q_EMIT edited(typed);
  }
}

bool HourClock::eventFilter(QObject* watched, QEvent* event) {
  if (watched == label_ && event->type() == QEvent::MouseButtonDblClick) {
    open();
    return true;
  }
  // The entry has looked at the event before: what still is being typed was refused.
  if (watched == field_ && event->type() == QEvent::FocusOut) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) {
      close();
    }
  }
  if (watched == field_ && event->type() == QEvent::KeyPress && !entry_->isTyping()) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape) {
      Q_EMIT ended();
      close();
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace veyruna::ui
