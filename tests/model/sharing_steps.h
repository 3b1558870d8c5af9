#pragma once

#include <QString>

/// What the programs that save beside each other do, step by step.
namespace veyruna::tests {

inline QString placeOfStep(const QString& name, int step) {
  return QStringLiteral("%1 %2").arg(name).arg(step);
}

/// Whether the place of that step is removed again.
inline bool isTakenAway(int step) {
  return step % 3 == 0;
}

inline double hourOfStep(int step) {
  return step % 24 + 0.125;
}

}  // namespace veyruna::tests
