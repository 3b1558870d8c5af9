#pragma once

#include <string>
#include <vector>

namespace veyruna::cli {

/// Becomes `veyruna-draw`, the same command with what drawing takes, which stands beside this
/// program; the process, its streams and its folder stay. Returns never: throws std::runtime_error
/// where that program cannot be started.
[[noreturn]] void becomeDrawingProgram(const std::vector<std::string>& arguments);

}  // namespace veyruna::cli
