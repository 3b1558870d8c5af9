#pragma once

#include <string>

namespace veyruna::cli {

/// Makes the folder that files are to go into, where it is missing, with those around it. Throws a
/// WriteError that names it where that fails, or where it takes nothing new: before anything is
/// calculated.
void makeFolder(const std::string& folder);

}  // namespace veyruna::cli
