#pragma once

#include <string>

#include "cli/typed/guide.h"

/// What shells take to complete commands, options and their values as they are typed: a script
/// each. Names of saved places are asked of the program at that moment.
namespace veyruna::cli {

/// For bash 4 and later; a file of its completions folder, called "veyruna".
std::string bashCompletion(const Guide& guide);

/// For zsh 5; a file of its function path, called "_veyruna".
std::string zshCompletion(const Guide& guide);

/// For fish 3; a file of its completions folder, called "veyruna.fish".
std::string fishCompletion(const Guide& guide);

}  // namespace veyruna::cli
