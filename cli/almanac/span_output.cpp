#include "cli/almanac/span_output.h"

#include "cli/almanac/horoscope_command.h"
#include "cli/almanac/span_table.h"
#include "cli/written/document_writer.h"
#include "cli/written/notation.h"
#include "records/record_writer.h"
#include "records/search_record.h"

namespace veyruna::cli {

namespace {

class SpansAsText : public SpanOutput {
 public:
  SpansAsText(const Typed& typed, const almanac::Range& range, const std::optional<Place>& place,
              const std::string& explanation)
      : table_(range, place), command_(typed, place), writer_(DocumentWriter::to(typed.file)) {
    writer_.write(explanation);
    writer_.write(table_.header());
  }

  void take(const almanac::Span& span) override {
    writer_.write(table_.line(span, command_.of(span)));
  }

  void finish() override { writer_.finish(); }

 private:
  SpanTable table_;
  HoroscopeCommand command_;
  DocumentWriter writer_;
};

class SpansAsRecords : public SpanOutput {
 public:
  SpansAsRecords(const Typed& typed, records::Notation notation, const std::optional<Place>& place)
      : command_(typed, place),
        writer_(DocumentWriter::to(typed.file)),
        records_(records::searchType(), notation,
                 [this](std::string_view piece) { writer_.write(piece); }) {
    if (place) {
      lookout_ = {place->words, {0.0, place->latitude, place->longitude}};
    }
  }

  void take(const almanac::Span& span) override {
    records_.write(records::searchRow(span, lookout_, command_.of(span)));
  }

  void finish() override {
    records_.finish();
    writer_.finish();
  }

 private:
  HoroscopeCommand command_;
  std::optional<records::Lookout> lookout_;
  DocumentWriter writer_;
  records::RecordWriter records_;
};

}  // namespace

std::unique_ptr<SpanOutput> spanOutput(const Typed& typed, documents::Form form,
                                       const almanac::Query& query,
                                       const std::optional<Place>& place,
                                       const std::string& explanation) {
  if (documents::formEntry(form).isOfValues) {
    return std::make_unique<SpansAsRecords>(typed, notationOf(form), place);
  }
  return std::make_unique<SpansAsText>(typed, query.range, place, explanation);
}

}  // namespace veyruna::cli
