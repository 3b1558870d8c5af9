#pragma once

#include <QString>

namespace veyruna::model {

/// Removes a lock file that nobody holds and nobody will take back: its maker was killed before it
/// wrote who it was. One that is not a second old may still be in the making, and stays.
void removeOwnerlessLock(const QString& path);

}  // namespace veyruna::model
