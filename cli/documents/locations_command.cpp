#include "cli/documents/locations_command.h"

#include "cli/typed/places.h"
#include "cli/written/asked_forms.h"
#include "cli/written/document_writer.h"
#include "cli/written/notation.h"
#include "records/all_types.h"

namespace veyruna::cli {

void writeLocations(const Typed& typed) {
  const std::vector<documents::Form> forms = askedForms(typed, documents::Kind::log);
  askedWidth(typed, forms);
  if (!documents::formEntry(forms.front()).isOfValues) {
    const std::string text = savedPlacesText();
    DocumentWriter writer = DocumentWriter::to(typed.file);
    writer.write(text);
    writer.finish();
    return;
  }
  const std::vector<records::Row> rows = savedPlacesRows();
  DocumentWriter writer = DocumentWriter::to(typed.file);
  records::RecordWriter records(records::locationsType(), notationOf(forms.front()),
                                [&writer](std::string_view piece) { writer.write(piece); });
  for (const records::Row& row : rows) {
    records.write(row);
  }
  records.finish();
  writer.finish();
}

}  // namespace veyruna::cli
