#include "cli/batch/csv_records.h"

#include <algorithm>
#include <csv.h>
#include <new>

#include "words/quoting.h"
#include "words/utf8.h"

namespace veyruna::cli {

namespace {

constexpr std::string_view lineBreaks = "\r\n";

/// Its lines without their breaks, all of which the parser is given as LF.
std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(lineBreaks), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(end);
    text.remove_prefix(text.starts_with(lineBreaks) ? 2 : text.empty() ? 0 : 1);
  }
  return lines;
}

char separatorOf(std::string_view text) {
  std::int64_t moreSemicolons = 0;
  bool isQuoted = false;
  bool isBegun = false;
  for (const char character : text) {
    const bool isBreak = lineBreaks.find(character) != std::string_view::npos;
    if (isBreak && isBegun && !isQuoted) {
      break;
    }
    isBegun = isBegun || !isBreak;
    isQuoted = isQuoted != (character == '"');
    moreSemicolons += isQuoted ? 0 : (character == ';' ? 1 : 0) - (character == ',' ? 1 : 0);
  }
  return moreSemicolons > 0 ? ';' : ',';
}

/// The C library's parser for one record, fed line by line.
class Parser {
 public:
  Parser(char separator, CsvRecord& record) : record_(record) {
    csv_init(&parser_, CSV_STRICT | CSV_REPALL_NL);
    csv_set_delim(&parser_, static_cast<unsigned char>(separator));
  }
  Parser(const Parser&) = delete;
  Parser& operator=(const Parser&) = delete;
  ~Parser() { csv_free(&parser_); }

  /// False where the line breaks the rules of quotes.
  bool take(std::string_view line) { return parse(line) && parse("\n"); }

  /// Whether the record ended with the last line.
  [[nodiscard]] bool isAtEnd() const { return isAtEnd_; }

 private:
  bool parse(std::string_view bytes) {
    const std::size_t parsed = csv_parse(&parser_, bytes.data(), bytes.size(), &Parser::endField,
                                         &Parser::endRecord, this);
    if (parsed < bytes.size() && csv_error(&parser_) != CSV_EPARSE) {
      throw std::bad_alloc();
    }
    return parsed == bytes.size();
  }
  static void endField(void* bytes, std::size_t size, void* self) noexcept {
    static_cast<Parser*>(self)->record_.fields.emplace_back(static_cast<const char*>(bytes), size);
  }
  static void endRecord(int /*character*/, void* self) noexcept {
    static_cast<Parser*>(self)->isAtEnd_ = true;
  }

  CsvRecord& record_;
  csv_parser parser_{};
  bool isAtEnd_ = false;
};

/// Reads the record that begins with the line of that index; returns that of the line after it.
std::size_t readRecord(const std::vector<std::string_view>& lines, std::size_t first,
                       char separator, CsvRecord& record) {
  Parser parser(separator, record);
  for (std::size_t i = first; i < lines.size(); ++i) {
    if (!words::isUtf8(lines[i]) && record.problem.empty()) {
      record.problem =
          "line " + std::to_string(i + 1) + " is no UTF-8: " + words::inQuotes(lines[i]);
    }
    if (!parser.take(lines[i])) {
      record.problem =
          "a quote stands within a text; the whole text belongs in quotes, its own quotes doubled";
      return i + 1;
    }
    if (parser.isAtEnd()) {
      return i + 1;
    }
  }
  record.problem = "a quote is opened that nothing closes";
  return first + 1;
}

}  // namespace

std::vector<CsvRecord> csvRecords(std::string_view bytes) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(byteOrderMark)) {
    bytes.remove_prefix(byteOrderMark.size());
  }
  const std::vector<std::string_view> lines = linesOf(bytes);
  const char separator = separatorOf(bytes);
  std::vector<CsvRecord> records;
  for (std::size_t next = 0; next < lines.size();) {
    CsvRecord record;
    record.line = static_cast<std::int64_t>(next) + 1;
    next = readRecord(lines, next, separator, record);
    if (!record.problem.empty() || !std::ranges::all_of(record.fields, &std::string::empty)) {
      records.push_back(std::move(record));
    }
  }
  return records;
}

}  // namespace veyruna::cli
