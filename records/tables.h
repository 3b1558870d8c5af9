#pragma once

#include <functional>

#include "astro/observer.h"
#include "records/record.h"
#include "reports/table_size.h"

/// The rows of each document that has records, and what holds of all of them.
namespace veyruna::records {

using TakeRow = std::function<void(const Row&)>;

Row aboutEphemeris(const astro::Observer& observer);
void forEachEphemerisRow(const astro::Observer& observer, const reports::TableSize& size,
                         const TakeRow& take);

Row aboutConjunctions(const astro::Observer& observer);
void forEachConjunctionsRow(const astro::Observer& observer, const reports::TableSize& size,
                            const TakeRow& take);

Row aboutPositions(const astro::Observer& observer);
void forEachPositionsRow(const astro::Observer& observer, const reports::TableSize& size,
                         const TakeRow& take);

Row aboutInterpretation(const astro::Observer& observer);
void forEachInterpretationRow(const astro::Observer& observer, const reports::TableSize& size,
                              const TakeRow& take);

Row aboutMoment(const astro::Observer& observer);
void forEachMomentRow(const astro::Observer& observer, const reports::TableSize& size,
                      const TakeRow& take);

}  // namespace veyruna::records
