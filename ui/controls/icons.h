#pragma once

#include <QIcon>
#include <QString>

namespace veyruna::ui {

/// The program's own picture, from 16 to 512 pixels.
QIcon programIcon();

/// The icon of this name in the platform's theme, else one of the program's own set
/// (resources/icons), dark on a light palette and light on a dark one, also when that changes. An
/// empty theme name asks for the own one at once.
QIcon icon(const char* themeName, const char* ownName);

}  // namespace veyruna::ui
