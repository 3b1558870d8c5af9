#include "charts/nativity.h"
#include "charts/reading.h"
#include "records/document_records.h"
#include "records/sky_fields.h"
#include "records/tables.h"

namespace veyruna::records {

namespace {

std::vector<std::string> headings() {
  std::vector<std::string> all;
  all.reserve(charts::readingBlocks.size());
  for (const charts::ReadingBlockEntry& entry : charts::readingBlocks) {
    all.emplace_back(entry.heading);
  }
  return all;
}

/// The text, or nothing where it is empty.
Value textOrNothing(std::string_view text) {
  return text.empty() ? Value() : Value(std::string(text));
}

}  // namespace

const RecordType& interpretationType() {
  static const RecordType type = {
      .name = "interpretation",
      .version = 1,
      .description = "What the horoscope says, line by line as the panel beside the wheel does",
      .rowsMember = "lines",
      .about = joined(joined(momentFields(), placeFields()),
                      {{"keep", ValueType::text, "What is said of the keep"}}),
      .fields = {
          {"heading", ValueType::text, "Under which heading it stands", false, headings()},
          {"subject", ValueType::text, "What it says something of: House, Bralo (Inspiration)"},
          {"code", ValueType::text, "Of an element: its two planets", true},
          {"body_part", ValueType::text, "Of an element", true},
          {"sign", ValueType::text, "A sign with its meaning", true},
          {"verdict", ValueType::text, "What is said of it", true},
          {"color", ValueType::text, "That marks it on the wheel, by its name in SVG", true}}};
  return type;
}

Row aboutInterpretation(const astro::Observer& observer) {
  return joined(joined(momentValues(observer.baseTime), placeValues(observer)),
                Row{std::string(charts::keepVerdictOf(charts::nativityOf(observer)))});
}

void forEachInterpretationRow(const astro::Observer& observer, const reports::TableSize& /*size*/,
                              const TakeRow& take) {
  for (const charts::ReadingLine& line : charts::readingOf(charts::nativityOf(observer))) {
    const auto& block = charts::readingBlocks[static_cast<std::size_t>(line.block)];
    take({std::string(block.heading), line.subject, textOrNothing(line.code),
          textOrNothing(line.bodyPart), textOrNothing(line.sign), textOrNothing(line.verdict),
          textOrNothing(line.color)});
  }
}

}  // namespace veyruna::records
