#pragma once

#include <QFont>
#include <functional>

namespace veyruna::ui {

/// Whether all characters of the font, as it is really drawn, are of one width.
bool isFixedPitch(const QFont& font);

/// The font for tables and the map's read-out: `wanted`, the one the platform names for it, where
/// that is of fixed pitch; else "monospace", else the first family on the system that is, in the
/// size of `wanted`. Only where there is none at all, `wanted`. `isFixed` is what tells, a seam for
/// tests.
QFont fixedPitchFont(const QFont& wanted,
                     const std::function<bool(const QFont&)>& isFixed = &isFixedPitch);

}  // namespace veyruna::ui
