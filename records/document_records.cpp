#include "records/document_records.h"

#include "astro/invariant.h"
#include "records/tables.h"

namespace veyruna::records {

namespace {

using documents::Document;

/// How one document becomes records.
struct Recorded {
  const RecordType& (*type)() = nullptr;
  Row (*about)(const astro::Observer& observer) = nullptr;
  void (*write)(const astro::Observer& observer, const reports::TableSize& size,
                const TakeRow& take) = nullptr;
};

Recorded recordedOf(Document document) {
  switch (document) {
    case Document::hourly:
    case Document::monthly:
      return {ephemerisType, aboutEphemeris, forEachEphemerisRow};
    case Document::daily:
    case Document::yearly:
      return {conjunctionsType, aboutConjunctions, forEachConjunctionsRow};
    case Document::positions:
      return {positionsType, aboutPositions, forEachPositionsRow};
    case Document::moment:
      return {momentType, aboutMoment, forEachMomentRow};
    case Document::horoscope:
      return {interpretationType, aboutInterpretation, forEachInterpretationRow};
    case Document::starMap:
    case Document::horoscopeOnPaper:
    case Document::date:
    case Document::nextFullMoon:
    case Document::nextNewMoon:
    case Document::count:
      break;
  }
  return {};
}

}  // namespace

const RecordType* recordTypeOf(Document document) {
  const Recorded recorded = recordedOf(document);
  return recorded.type == nullptr ? nullptr : &recorded.type();
}

void writeRecords(Document document, const astro::Observer& observer,
                  const reports::TableSize& size, Notation notation,
                  const reports::TextSink& sink) {
  const Recorded recorded = recordedOf(document);
  astro::requireInvariant(recorded.type != nullptr, "a document that is recorded has its type");
  RecordWriter writer(recorded.type(), notation, sink, recorded.about(observer));
  recorded.write(observer, size, [&writer](const Row& row) { writer.write(row); });
  writer.finish();
}

}  // namespace veyruna::records
