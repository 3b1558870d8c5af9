#pragma once

#include <string_view>
#include <vector>

#include "cli/typed/grammar.h"
#include "documents/forms.h"

namespace veyruna::cli {

/// The forms in which a command is to write, in their order. For one document a single
/// one: what --format says, else what the file's ending says, else its own text, which a table or
/// list is under any other ending, too. For `all` and `batch` those of --format, else every
/// document's own text. Throws UsageError where a document is given a form it cannot have, and
/// where a picture's bytes would go to a terminal.
std::vector<documents::Form> askedForms(const Typed& typed, const documents::Entry& document);
/// The same for what is no document of the table.
std::vector<documents::Form> askedForms(const Typed& typed, documents::Kind kind);

/// Throws UsageError where the file's ending names another form than the only one there is.
void refuseOtherEndings(const Typed& typed, documents::Form only);

/// How many pixels wide a PNG is to be; 0 where that was left open. Throws UsageError, also where
/// none of the forms has pixels.
int askedWidth(const Typed& typed, const std::vector<documents::Form>& forms);

}  // namespace veyruna::cli
