#include "cli/almanac/span_output.h"

#include "cli/almanac/span_table.h"
#include "cli/written/document_writer.h"
#include "cli/written/notation.h"
#include "records/record_writer.h"
#include "records/search_record.h"
#include "words/horoscope_command.h"
#include "words/quoting.h"

namespace veyruna::cli {

namespace {

/// The options that name the place as it was typed; nothing where none was.
std::string placeOptionsOf(const Typed& typed, const std::optional<Place>& place) {
  if (!place) {
    return "";
  }
  const std::optional<std::string> name = words::asShellWord(typed.location);
  if (typed.location.empty() || !name) {
    return words::placeOptions(place->latitude, place->longitude);
  }
  return (typed.location.starts_with('-') ? " --location=" : " --location ") + *name;
}

class SpansAsText : public SpanOutput {
 public:
  SpansAsText(const Typed& typed, const almanac::Range& range, const std::optional<Place>& place,
              const std::string& explanation)
      : table_(range, place),
        placeOptions_(placeOptionsOf(typed, place)),
        writer_(DocumentWriter::to(typed.file)) {
    writer_.write(explanation);
    writer_.write(table_.header());
  }

  void take(const almanac::Span& span) override {
    writer_.write(table_.line(span, words::horoscopeCommand(span, placeOptions_)));
  }

  void finish() override { writer_.finish(); }

 private:
  SpanTable table_;
  std::string placeOptions_;
  DocumentWriter writer_;
};

class SpansAsRecords : public SpanOutput {
 public:
  SpansAsRecords(const Typed& typed, records::Notation notation, const std::optional<Place>& place)
      : placeOptions_(placeOptionsOf(typed, place)),
        writer_(DocumentWriter::to(typed.file)),
        records_(records::searchType(), notation,
                 [this](std::string_view piece) { writer_.write(piece); }) {
    if (place) {
      lookout_ = {place->words, {0.0, place->latitude, place->longitude}};
    }
  }

  void take(const almanac::Span& span) override {
    records_.write(
        records::searchRow(span, lookout_, words::horoscopeCommand(span, placeOptions_)));
  }

  void finish() override {
    records_.finish();
    writer_.finish();
  }

 private:
  std::string placeOptions_;
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
