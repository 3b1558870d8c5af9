#pragma once

#include <QIcon>

namespace veyruna::ui {

enum class Magnifier { plus, minus };

/// The theme's icon for zooming in or out; where it has none, a drawn magnifying glass in the
/// palette's text colour, sharp at every size.
QIcon magnifierIcon(Magnifier sign);

}  // namespace veyruna::ui
