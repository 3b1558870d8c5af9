#pragma once

#include "documents/forms.h"
#include "records/record_writer.h"

namespace veyruna::cli {

/// How records are written in a form for programs; another form is a broken invariant.
records::Notation notationOf(documents::Form form);

}  // namespace veyruna::cli
