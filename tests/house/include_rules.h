#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace veyruna::tests {

/// The includes of `source`, a file of the room `room`, that the house does not allow: those that
/// point up to a room above, and in the rooms that compute, those of anything but the standard
/// library and the rooms below. Each as it stands in the file.
std::vector<std::string> forbiddenIncludes(std::string_view room, std::string_view source);

/// The rooms there are rules for.
std::vector<std::string> roomNames();

}  // namespace veyruna::tests
