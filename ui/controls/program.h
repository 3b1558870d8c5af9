#pragma once

#include <QString>

/// What the program is called and which build it is, from the one place that says so: the build.
namespace veyruna::ui {

QString programVersion();
QString programBuild();

}  // namespace veyruna::ui
