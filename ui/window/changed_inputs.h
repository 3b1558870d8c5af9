#pragma once

#include <QString>

#include "model/astronomy_model.h"

namespace veyruna::ui {

/// What a document taken now holds, where its name and heading, which come from the inputs, speak
/// of another moment or place: "It holds 003-01-07, Wendmark; the inputs have changed". Else empty.
QString changedInputsRemark(const model::AstronomyModel& model);

/// A sentence and a remark after it, if there is one.
QString joined(const QString& sentence, const QString& remark);

}  // namespace veyruna::ui
