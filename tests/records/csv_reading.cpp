#include "tests/records/csv_reading.h"

#include <csv.h>
#include <gtest/gtest.h>

namespace veyruna::tests {

namespace {

struct Lines {
  std::vector<std::vector<std::string>> whole;
  std::vector<std::string> fields;
};

void takeField(void* text, std::size_t length, void* lines) {
  static_cast<Lines*>(lines)->fields.emplace_back(static_cast<const char*>(text), length);
}

void takeEnd(int /*character*/, void* lines) {
  auto* const all = static_cast<Lines*>(lines);
  all->whole.push_back(std::move(all->fields));
  all->fields.clear();
}

}  // namespace

std::vector<std::vector<std::string>> csvLines(const std::string& text) {
  Lines lines;
  csv_parser parser{};
  csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI);
  const std::size_t read = csv_parse(&parser, text.data(), text.size(), takeField, takeEnd, &lines);
  EXPECT_EQ(read, text.size()) << csv_strerror(csv_error(&parser));
  EXPECT_EQ(csv_fini(&parser, takeField, takeEnd, &lines), 0);
  csv_free(&parser);
  return lines.whole;
}

}  // namespace veyruna::tests
