#pragma once

#include <QKeyEvent>

namespace veyruna::ui {

/// Whether a key was pressed by itself: with Shift at most, which some layouts need for a plus, and
/// on the keypad or not.
inline bool isPlain(const QKeyEvent& key) {
  return (key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
}

}  // namespace veyruna::ui
