#pragma once

#include <string>

#include "cli/page/session.h"

/// The page for browsers, which is built beside the program: one file with everything inside.
namespace veyruna::cli {

/// It with the session in it: of the file that VEYRUNA_PAGE names, else of the one installed with
/// the program, else of the one in the tree that the program was built in. Throws
/// std::runtime_error where there is none, or where it is no such page.
std::string pageFor(const Session& session);

}  // namespace veyruna::cli
