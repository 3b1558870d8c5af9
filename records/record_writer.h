#pragma once

#include <string>

#include "records/record.h"
#include "reports/text_sink.h"

namespace veyruna::records {

enum class Notation {
  json,   ///< one document: schema, what holds of all rows, and the rows in one member
  jsonl,  ///< a line a row, each a document of its own with its schema
  csv     ///< RFC 4180 with line feeds: the names of the fields, then a line a row
};

/// Writes rows to a sink, one at a time: memory does not grow with their number. Always UTF-8. In
/// JSON a value that is absent has no member, in CSV it is empty; several texts or numbers in one
/// field of CSV are joined by blanks.
class RecordWriter {
 public:
  /// Writes what comes before the rows. Keeps a reference to the type; `about` are the values of
  /// its fields of that name. A row or type that is not sound is a broken invariant, here and
  /// below.
  RecordWriter(const RecordType& type, Notation notation, reports::TextSink sink, Row about = {});

  void write(const Row& row);

  /// Writes what comes after the rows. Without it the document is not whole.
  void finish();

 private:
  void writeHead();

  const RecordType& type_;
  Notation notation_;
  reports::TextSink sink_;
  Row about_;
  std::string line_;  ///< the row that is being written
  bool isFirst_ = true;
};

}  // namespace veyruna::records
