#pragma once

#include <QFont>

namespace veyruna::ui {

/// The type of remarks: smaller than what it stands beside.
inline QFont smallType(QFont type) {
  constexpr double share = 0.85;
  if (type.pointSizeF() > 0.0) {
    type.setPointSizeF(type.pointSizeF() * share);
  } else {
    type.setPixelSize(qRound(type.pixelSize() * share));
  }
  return type;
}

}  // namespace veyruna::ui
