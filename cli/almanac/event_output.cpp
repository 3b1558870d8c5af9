#include "cli/almanac/event_output.h"

#include "cli/almanac/event_table.h"
#include "cli/written/document_writer.h"
#include "cli/written/notation.h"
#include "records/event_record.h"
#include "records/record_writer.h"

namespace veyruna::cli {

namespace {

using almanac::Event;
using records::Lookout;

class TextOutput : public EventOutput {
 public:
  TextOutput(const std::string& file, const almanac::Range& range, const std::vector<Place>& places)
      : table_(range, places), writer_(DocumentWriter::to(file)) {
    writer_.write(table_.header());
  }

  void take(const Event& event) override { writer_.write(table_.lines(event)); }

  void finish() override { writer_.finish(); }

 private:
  EventTable table_;
  DocumentWriter writer_;
};

class RecordOutput : public EventOutput {
 public:
  RecordOutput(const std::string& file, records::Notation notation,
               const std::vector<Place>& places)
      : writer_(DocumentWriter::to(file)),
        records_(records::eventsType(), notation,
                 [this](std::string_view piece) { writer_.write(piece); }) {
    for (const Place& place : places) {
      lookouts_.push_back({place.words, {0.0, place.latitude, place.longitude}});
    }
  }

  void take(const Event& event) override {
    if (lookouts_.empty()) {
      records_.write(records::eventRow(event, std::nullopt));
    } else if (almanac::entryOf(event.kind).needsPlace) {
      records_.write(records::eventRow(event, lookouts_[event.place]));
    } else {
      for (const Lookout& lookout : lookouts_) {
        records_.write(records::eventRow(event, lookout));
      }
    }
  }

  void finish() override {
    records_.finish();
    writer_.finish();
  }

 private:
  std::vector<Lookout> lookouts_;
  DocumentWriter writer_;
  records::RecordWriter records_;
};

}  // namespace

std::unique_ptr<EventOutput> eventOutput(const std::string& file, documents::Form form,
                                         const almanac::Range& range,
                                         const std::vector<Place>& places) {
  if (documents::formEntry(form).isOfValues) {
    return std::make_unique<RecordOutput>(file, notationOf(form), places);
  }
  return std::make_unique<TextOutput>(file, range, places);
}

}  // namespace veyruna::cli
