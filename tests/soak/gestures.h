#pragma once

#include <QString>
#include <QWidget>
#include <optional>

#include "tests/soak/chance.h"

/// What a person's hands do to a control, by mouse, wheel and keys, through its window's events.
namespace veyruna::tests {

/// A point of the widget at which a person meets the widget itself, or a part of it; nothing where
/// it lies outside its window or under something else.
std::optional<QPoint> pointInReach(const QWidget& widget, Chance& chance);

/// Does something to the widget that its kind suggests, at that point of it, and tells what. The
/// widget may be gone afterwards.
QString doSomething(QWidget& widget, QPoint at, Chance& chance);

/// Replaces what a field holds.
void typeOver(QWidget& field, const QString& text);

}  // namespace veyruna::tests
