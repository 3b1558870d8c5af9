#include "ui/calculate_area.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/named.h"

namespace veyruna::ui {

namespace {

using model::AstronomyModel;

/// A label in small type that keeps its place when it has nothing to say.
QLabel* smallLabel() {
  auto* const label = new QLabel;
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * 0.85);
  label->setFont(font);
  label->setWordWrap(true);
  return label;
}

}  // namespace

CalculateArea::CalculateArea(AstronomyModel& model, QWidget* parent)
    : QWidget(parent), model_(model) {
  auto* const button = named(new QPushButton(tr("&Calculate")), "calculateButton", tr("Calculate"));
  button->setDefault(true);
  button->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Return));
  progress_ = named(new QProgressBar, "progress", tr("Calculating"));
  progress_->setRange(0, 0);
  progress_->setTextVisible(false);
  progress_->setFixedWidth(button->sizeHint().height() * 2);
  QSizePolicy reserved = progress_->sizePolicy();
  reserved.setRetainSizeWhenHidden(true);
  progress_->setSizePolicy(reserved);
  error_ = named(smallLabel(), "errorMessage", tr("Error"));
  error_->setStyleSheet(QStringLiteral("color: #c0392b"));
  difference_ = named(smallLabel(), "difference", tr("State of what is shown"));
  difference_->setEnabled(false);

  auto* const row = new QHBoxLayout;
  row->addWidget(button, 1);
  row->addWidget(progress_);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addLayout(row);
  column->addWidget(error_);
  column->addWidget(difference_);

  connect(button, &QPushButton::clicked, this, &CalculateArea::calculateRequested);
  connect(&model_, &AstronomyModel::isCalculatingChanged, this, &CalculateArea::showProgress);
  connect(&model_, &AstronomyModel::errorMessageChanged, this, &CalculateArea::showError);
  for (const auto signal :
       {&AstronomyModel::citiesChanged, &AstronomyModel::selectedCityIDChanged,
        &AstronomyModel::manualLatDegChanged, &AstronomyModel::manualLongDegChanged,
        &AstronomyModel::latNorthChanged, &AstronomyModel::longWestChanged,
        &AstronomyModel::monthIndexChanged, &AstronomyModel::dayIndexChanged,
        &AstronomyModel::yearChanged, &AstronomyModel::hourChanged,
        &AstronomyModel::useLocalTimeChanged, &AstronomyModel::isCalculatingChanged}) {
    connect(&model_, signal, this, &CalculateArea::showDifference);
  }
  showProgress();
  showError();
  showDifference();
}

void CalculateArea::showProgress() {
  progress_->setVisible(model_.isCalculating());
}

void CalculateArea::showError() {
  error_->setText(model_.errorMessage().value_or(QString()));
  error_->setVisible(model_.errorMessage().has_value());
}

void CalculateArea::showDifference() {
  const bool differs = model_.lastHoroscopeBasetime() &&
                       (*model_.lastHoroscopeBasetime() != model_.baseTime() ||
                        model_.lastHoroscopeLatitude() != model_.effectiveLatitude() ||
                        model_.lastHoroscopeLongitude() != model_.effectiveLongitude());
  difference_->setText(differs ? tr("The inputs have changed since this was calculated.")
                               : QString());
}

}  // namespace veyruna::ui
