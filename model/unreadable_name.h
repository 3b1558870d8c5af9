#pragma once

#include <QString>

namespace veyruna::model {

/// A free name beside `path` for what could not be read: "locations.unreadable.json", then
/// "locations.unreadable-2.json" and so on.
QString unreadableName(const QString& path);

}  // namespace veyruna::model
