#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace veyruna::cli {

/// One record of a table with separated values: a line, or several where quotes hold line breaks.
struct CsvRecord {
  std::int64_t line = 1;  ///< of the file, from 1: where it begins
  std::vector<std::string> fields;
  std::string problem;  ///< why it cannot be read; empty for one that can
};

/// The records of a file in UTF-8 with or without a byte-order mark. Fields are separated by commas
/// or by semicolons, of whichever the first line has more outside quotes; lines end in LF, CRLF or
/// CR. A field that holds either, or a quote, stands in quotes, the quote doubled; blanks around a
/// field are dropped. Records without any text are left out. Any bytes are taken: a record that
/// cannot be read has its problem, and the next line begins another.
std::vector<CsvRecord> csvRecords(std::string_view bytes);

}  // namespace veyruna::cli
