#pragma once

#include "astro/observer.h"
#include "documents/documents.h"
#include "records/record.h"
#include "records/record_writer.h"
#include "reports/table_size.h"
#include "reports/text_sink.h"

/// The documents that are made of values, as records: the same numbers before they were rounded for
/// the text.
namespace veyruna::records {

const RecordType& positionsType();
const RecordType& ephemerisType();
const RecordType& conjunctionsType();
const RecordType& momentType();
const RecordType& interpretationType();

/// The type of a document's records; nothing where the document is a chart or a label.
const RecordType* recordTypeOf(documents::Document document);

/// Writes a document as records; a table with rows and step of one's own. One that has no records
/// is a broken invariant.
void writeRecords(documents::Document document, const astro::Observer& observer,
                  const reports::TableSize& size, Notation notation, const reports::TextSink& sink);

}  // namespace veyruna::records
