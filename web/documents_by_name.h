#pragma once

#include <string>

#include "documents/documents.h"

namespace veyruna::web {

/// What a script calls a document: its word on the command line, or its heading as one where it has
/// none: "next-full-moon".
std::string nameOf(const documents::Entry& document);

/// The names of those that are accepted, with commas between.
std::string documentNames(bool (*isAccepted)(const documents::Entry&));

}  // namespace veyruna::web
