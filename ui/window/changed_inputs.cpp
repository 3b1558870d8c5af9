#include "ui/window/changed_inputs.h"

#include <QCoreApplication>

#include "ui/outputs/calculated_place.h"

namespace veyruna::ui {

QString changedInputsRemark(const model::AstronomyModel& model) {
  if (!model.inputsHaveChanged()) {
    return {};
  }
  const QString date = model.dateLabel().section(QLatin1Char(' '), 0, 0);
  return QCoreApplication::translate("ChangedInputs", "It holds %1, %2; the inputs have changed")
      .arg(date, calculatedPlace(model));
}

QString joined(const QString& sentence, const QString& remark) {
  return remark.isEmpty() ? sentence : sentence + QStringLiteral(". ") + remark;
}

}  // namespace veyruna::ui
