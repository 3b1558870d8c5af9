#pragma once

#include <QPainterPath>
#include <QStringView>
#include <optional>

#include "drawing/picture.h"

namespace veyruna::drawing {

/// The outline of a path's data: absolute moves, elliptical arcs without a tilt, and closings.
/// Nothing where anything else stands there.
std::optional<QPainterPath> outlineOf(QStringView data);

/// The circle that path data of two half turns goes round, clockwise; nothing for any other path.
std::optional<Rim> rimOf(QStringView data);

}  // namespace veyruna::drawing
