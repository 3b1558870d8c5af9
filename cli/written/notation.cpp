#include "cli/written/notation.h"

#include "astro/invariant.h"

namespace veyruna::cli {

records::Notation notationOf(documents::Form form) {
  switch (form) {
    case documents::Form::json:
      return records::Notation::json;
    case documents::Form::jsonl:
      return records::Notation::jsonl;
    case documents::Form::csv:
      return records::Notation::csv;
    case documents::Form::svg:
    case documents::Form::text:
    case documents::Form::html:
    case documents::Form::pdf:
    case documents::Form::png:
    case documents::Form::count:
      break;
  }
  astro::stopOnBrokenInvariant("records are written in a form for programs");
}

}  // namespace veyruna::cli
