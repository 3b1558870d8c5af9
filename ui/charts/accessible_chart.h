#pragma once

#include "ui/charts/shown_marks.h"

class QAccessibleInterface;

namespace veyruna::ui {

class ChartView;

/// Lets screen readers meet every chart view as a picture whose speaking marks are its children. To
/// be called before the first view is shown; again it does nothing.
void makeChartsAccessible();

/// The mark as a screen reader meets it; null for one that does not speak or is not shown.
QAccessibleInterface* accessibleMark(ChartView& chart, const MarkKey& key);

/// Tells a screen reader, if there is one, that the arrow keys have come to a mark.
void tellOfFocus(ChartView& chart, const MarkKey& key);

}  // namespace veyruna::ui
