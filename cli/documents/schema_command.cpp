#include "cli/documents/schema_command.h"

#include <algorithm>
#include <string>

#include "cli/written/asked_forms.h"
#include "cli/written/document_writer.h"
#include "records/all_types.h"
#include "records/schema.h"
#include "words/listing.h"
#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::cli {

namespace {

using records::TypeEntry;

/// A line a schema: its name and what is written by it.
std::string schemaList() {
  std::size_t width = 0;
  for (const TypeEntry& entry : records::allTypes) {
    width = std::max(width, entry.name.size());
  }
  std::string list;
  for (const TypeEntry& entry : records::allTypes) {
    list.append(entry.name).append(width + 2 - entry.name.size(), ' ');
    list += entry.type().description + "\n";
  }
  return list;
}

const records::RecordType& typeNamed(const std::string& name) {
  const auto* const found = std::ranges::find(records::allTypes, name, &TypeEntry::name);
  if (found == records::allTypes.end()) {
    throw words::UsageError("schema: " + words::inQuotes(name) + " has none; give one of " +
                            words::joined(records::allTypes, ", ", &TypeEntry::name));
  }
  return found->type();
}

}  // namespace

void writeSchema(const Typed& typed) {
  askedWidth(typed, {});
  const bool isOfLines = typed.formats == "jsonl";
  if (!isOfLines && !typed.formats.empty() && typed.formats != "json") {
    words::refuse("--format", typed.formats, "json or jsonl, the forms that have a schema");
  }
  if (typed.schema.empty() && !typed.formats.empty()) {
    throw words::UsageError("--format " + words::inQuotes(typed.formats) +
                            " is of one schema; veyruna schema lists their names");
  }
  refuseOtherEndings(typed, typed.schema.empty() ? documents::Form::text : documents::Form::json);
  const std::string text = typed.schema.empty() ? schemaList()
                           : isOfLines          ? records::lineSchema(typeNamed(typed.schema))
                                                : records::documentSchema(typeNamed(typed.schema));
  DocumentWriter writer = DocumentWriter::to(typed.file);
  writer.write(text);
  writer.finish();
}

}  // namespace veyruna::cli
