#pragma once

#include <string>

namespace veyruna::tests {

/// The path of a file or folder of the source tree, named from its root: "resources/tamsorel.jpg";
/// the root itself for "".
std::string sourcePath(const std::string& name);

}  // namespace veyruna::tests
