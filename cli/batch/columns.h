#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "cli/batch/csv_records.h"

namespace veyruna::cli {

/// What is read of a table of rows.
enum class Column {
  name,
  date,
  hour,
  local,
  place,
  count  ///< none: how many there are
};

inline constexpr auto columnCount = static_cast<std::size_t>(Column::count);

/// As they stand in the header, in their order.
inline constexpr std::array<std::string_view, columnCount> columnNames = {"name", "date", "hour",
                                                                          "local", "place"};

/// Where the columns stand, by the first record of a table.
class Columns {
 public:
  /// In any order and letter case, among others that are left alone. Throws UsageError where a
  /// column stands there twice, or where a needed one is missing: name, date and, if there is no
  /// other place, place.
  Columns(const CsvRecord& header, bool needsPlace);

  /// The record's text in the column; empty where it has none.
  [[nodiscard]] std::string_view textIn(const CsvRecord& record, Column column) const;

  /// Whether the record has text beyond the header's columns.
  [[nodiscard]] bool isOverfull(const CsvRecord& record) const;

 private:
  [[nodiscard]] const std::optional<std::size_t>& indexOf(Column column) const {
    return indices_.at(static_cast<std::size_t>(column));
  }

  std::array<std::optional<std::size_t>, columnCount> indices_;
  std::size_t width_;
};

}  // namespace veyruna::cli
