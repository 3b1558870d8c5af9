#include "records/record_writer.h"

#include <utility>

#include "astro/number_text.h"
#include "records/json_text.h"
#include "words/utf8.h"

namespace veyruna::records {

namespace {

/// A field of CSV: in quotes where a comma, a quote or the end of a line would be misread, or a
/// blank at an edge be taken for none of it.
void appendCsvText(std::string& out, std::string_view text) {
  const std::string valid = words::validUtf8(text);
  const auto isBlank = [](char character) { return character == ' ' || character == '\t'; };
  const bool hasBlankEdge = !valid.empty() && (isBlank(valid.front()) || isBlank(valid.back()));
  if (!hasBlankEdge && valid.find_first_of(",\"\r\n") == std::string::npos) {
    out += valid;
    return;
  }
  out += '"';
  for (const char character : valid) {
    out += character;
    if (character == '"') {
      out += '"';
    }
  }
  out += '"';
}

/// Appends a value as CSV has it.
struct CsvAppender {
  std::string& out;

  void operator()(std::monostate /*nothing*/) const {}
  void operator()(bool holds) const { out += holds ? "true" : "false"; }
  void operator()(std::int64_t number) const { astro::appendInteger(out, number); }
  void operator()(double number) const { out += astro::shortestText(number); }
  void operator()(const std::vector<double>& numbers) const {
    std::string_view gap;
    for (const double number : numbers) {
      out += gap;
      out += astro::shortestText(number);
      gap = " ";
    }
  }
  void operator()(const std::string& text) const { appendCsvText(out, text); }
  void operator()(const std::vector<std::string>& texts) const {
    std::string joined;
    std::string_view gap;
    for (const std::string& text : texts) {
      joined.append(gap).append(text);
      gap = " ";
    }
    appendCsvText(out, joined);
  }
};

void appendColumns(std::string& line, const Row& values) {
  for (const Value& value : values) {
    std::visit(CsvAppender{line}, value);
    line += ',';
  }
}

}  // namespace

RecordWriter::RecordWriter(const RecordType& type, Notation notation, reports::TextSink sink,
                           Row about)
    : type_(type), notation_(notation), sink_(std::move(sink)), about_(std::move(about)) {
  requireSoundType(type_);
  requireRowOf(type_.about, about_);
  writeHead();
}

void RecordWriter::writeHead() {
  if (notation_ == Notation::json) {
    std::string head = "{\n\"schema\":" + schemaMemberOf(type_);
    appendMembers(head, type_.about, about_);
    sink_(head + ",\n\"" + type_.rowsMember + "\":[");
  } else if (notation_ == Notation::csv) {
    std::string names;
    for (const std::vector<Field>* const fields : {&type_.about, &type_.fields}) {
      for (const Field& field : *fields) {
        names += (names.empty() ? "" : ",") + field.name;
      }
    }
    sink_(names + "\n");
  }
}

void RecordWriter::write(const Row& row) {
  requireRowOf(type_.fields, row);
  line_.clear();
  switch (notation_) {
    case Notation::json:
      line_ += isFirst_ ? "\n{" : ",\n{";
      appendMembers(line_, type_.fields, row);
      line_ += '}';
      break;
    case Notation::jsonl:
      line_ += "{\"schema\":" + schemaMemberOf(type_);
      appendMembers(line_, type_.about, about_);
      appendMembers(line_, type_.fields, row);
      line_ += "}\n";
      break;
    case Notation::csv:
      appendColumns(line_, about_);
      appendColumns(line_, row);
      line_.back() = '\n';
      break;
  }
  isFirst_ = false;
  sink_(line_);
}

void RecordWriter::finish() {
  if (notation_ == Notation::json) {
    sink_(isFirst_ ? "]\n}\n" : "\n]\n}\n");
  }
}

}  // namespace veyruna::records
