#pragma once

#include <QString>

namespace veyruna::ui {

/// "18:15": an hour cut to whole minutes, also one out of range.
QString clockText(double hour);

}  // namespace veyruna::ui
