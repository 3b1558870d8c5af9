#pragma once

#include <QMimeData>
#include <QString>
#include <memory>

#include "drawing/picture.h"

namespace veyruna::ui {

/// A chart for other programs: as SVG for those that draw, and as a bitmap on white for the rest,
/// the whole of it at four pixels a unit, however it is looked at.
std::unique_ptr<QMimeData> copyOf(const QString& svg, const drawing::Picture& picture);

}  // namespace veyruna::ui
