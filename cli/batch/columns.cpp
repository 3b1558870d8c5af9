#include "cli/batch/columns.h"

#include <algorithm>

#include "words/listing.h"
#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::cli {

namespace {

std::string listed(const std::vector<std::string>& names) {
  return words::joined(names, ", ", words::inQuotes);
}

}  // namespace

Columns::Columns(const CsvRecord& header, bool needsPlace) : width_(header.fields.size()) {
  for (std::size_t i = 0; i < header.fields.size(); ++i) {
    const auto* const name = std::ranges::find_if(columnNames, [&](std::string_view known) {
      return words::equalIgnoringCase(known, header.fields[i]);
    });
    if (name == columnNames.end()) {
      continue;
    }
    std::optional<std::size_t>& index =
        indices_.at(static_cast<std::size_t>(name - columnNames.begin()));
    if (index) {
      throw words::UsageError("the header has the column " + words::inQuotes(*name) +
                              " twice: " + listed(header.fields));
    }
    index = i;
  }
  for (const Column column : {Column::name, Column::date, Column::place}) {
    if (!indexOf(column) && (column != Column::place || needsPlace)) {
      throw words::UsageError("the column " +
                              words::inQuotes(columnNames.at(static_cast<std::size_t>(column))) +
                              " is missing; the header has " + listed(header.fields) +
                              ", known are " + words::joined(columnNames));
    }
  }
}

std::string_view Columns::textIn(const CsvRecord& record, Column column) const {
  const std::optional<std::size_t>& index = indexOf(column);
  return index && *index < record.fields.size() ? std::string_view(record.fields[*index])
                                                : std::string_view();
}

bool Columns::isOverfull(const CsvRecord& record) const {
  const std::size_t width = std::min(width_, record.fields.size());
  return std::any_of(record.fields.begin() + static_cast<std::ptrdiff_t>(width),
                     record.fields.end(), [](const std::string& field) { return !field.empty(); });
}

}  // namespace veyruna::cli
