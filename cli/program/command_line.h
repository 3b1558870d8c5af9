#pragma once

#include <string>
#include <vector>

#include "cli/documents/rendering.h"

namespace veyruna::cli {

/// Exit statuses of the command.
inline constexpr int succeeded = 0;
inline constexpr int writeFailed = 1;
inline constexpr int usageWrong = 2;

/// Does what the arguments (without the program's name) ask for and returns the exit status.
/// Documents go to standard output or a file; one line on standard error says what went wrong.
/// Without a renderer the process becomes the program that has one, where one is needed.
int runCommandLine(const std::vector<std::string>& arguments, const Renderer& renderer = {});

}  // namespace veyruna::cli
