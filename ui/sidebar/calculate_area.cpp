#include "ui/sidebar/calculate_area.h"

#include <QEvent>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

#include "model/input_signals.h"
#include "ui/controls/alert.h"
#include "ui/controls/named.h"
#include "ui/controls/small_type.h"
#include "ui/controls/warning_label.h"
#include "ui/sidebar/calculate_button.h"

namespace veyruna::ui {

using model::AstronomyModel;

CalculateArea::CalculateArea(AstronomyModel& model, QWidget* parent)
    : QWidget(parent),
      model_(model),
      button_(named(new CalculateButton, "calculateButton", tr("Calculate"))) {
  // Beside the mnemonic, which is a button's one shortcut.
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* const shortcut = new QShortcut(QKeySequence(Qt::CTRL | key), this);
    connect(shortcut, &QShortcut::activated, button_, &QPushButton::click);
  }
  button_->setToolTip(QKeySequence(Qt::CTRL | Qt::Key_Return).toString(QKeySequence::NativeText));
  error_ = named(new WarningLabel, "errorMessage", tr("Error"));
  difference_ = named(new QLabel, "difference", tr("State of what is shown"));
  difference_->setAlignment(Qt::AlignTop);
  difference_->setWordWrap(true);
  fitSmallType();

  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(button_);
  column->addWidget(error_);
  column->addWidget(difference_);

  connect(button_, &QPushButton::clicked, this, &CalculateArea::calculateRequested);
  connect(&model_, &AstronomyModel::isCalculatingChanged, this, &CalculateArea::showProgress);
  connect(&model_, &AstronomyModel::errorMessageChanged, this, &CalculateArea::showError);
  for (const auto signal : model::placeSignals) {
    connect(&model_, signal, this, &CalculateArea::showDifference);
  }
  for (const auto signal : model::momentSignals) {
    connect(&model_, signal, this, &CalculateArea::showDifference);
  }
  connect(&model_, &AstronomyModel::published, this, &CalculateArea::showDifference);
  showProgress();
  showError();
  showDifference();
}

void CalculateArea::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) {
    fitSmallType();
  }
}

void CalculateArea::fitSmallType() {
  const QFont type = smallType(font());
  error_->setFont(type);
  difference_->setFont(type);
  // Room for two lines, at all times.
  difference_->setMinimumHeight(2 * QFontMetrics(type).lineSpacing() + type.pointSize() / 2);
}

void CalculateArea::showProgress() {
  button_->showProgress(model_.isCalculating());
}

void CalculateArea::showError() {
  error_->setText(model_.errorMessage().value_or(QString()));
  error_->setVisible(model_.errorMessage().has_value());
  alert(*error_);
}

void CalculateArea::showDifference() {
  difference_->setText(model_.inputsHaveChanged()
                           ? tr("The inputs have changed since this was calculated.")
                           : QString());
}

}  // namespace veyruna::ui
