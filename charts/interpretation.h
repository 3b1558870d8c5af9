#pragma once

#include <string>

#include "charts/element.h"
#include "charts/mark_recorder.h"
#include "charts/nativity.h"
#include "charts/svg_writer.h"

namespace veyruna::charts {

/// What the panel's row of an element says, from name to strength, with commas between.
std::string elementLine(const Element& element, const Nativity& nativity);

/// The panel to the right of the wheel; its lines are told to `marks`.
void drawInterpretation(SvgWriter& svg, const Nativity& nativity, MarkRecorder& marks);

}  // namespace veyruna::charts
