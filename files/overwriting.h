#pragma once

#include <string>

#include "files/descriptor.h"

namespace veyruna::files {

/// Writes what `source` holds over the file at `target`, which is there and stays the same file:
/// for a folder in which nothing can be replaced. The room is had before the first byte is changed,
/// so that a full disk leaves the old file. Throws the reason.
void overwrite(const std::string& target, const Descriptor& source);

}  // namespace veyruna::files
