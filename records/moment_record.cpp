#include "astro/local_time.h"
#include "astro/lunar_phases.h"
#include "records/document_records.h"
#include "records/sky_fields.h"
#include "records/tables.h"

namespace veyruna::records {

namespace {

/// A moment with its date and the clock of a place, each name behind a prefix.
std::vector<Field> clockedFields(const std::string& prefix, const std::string& what) {
  return {{prefix + "base_time_days", ValueType::number,
           what + ": days since noon of the first day of the first year"},
          {prefix + "date", ValueType::date,
           what + " in standard time, to the minute; absent before the first midnight", true},
          {prefix + "local_clock", ValueType::text, what + " by local solar time: 14:37"}};
}

Row clockedValues(const astro::Observer& observer) {
  return joined(momentValues(observer.baseTime), {astro::localClockLabel(observer)});
}

}  // namespace

const RecordType& momentType() {
  static const RecordType type = {
      .name = "moment",
      .version = 1,
      .description = "A moment with the next full and new moon",
      .rowsMember = "moments",
      .about = placeFields(),
      .fields = joined(clockedFields("", "The moment"),
                       joined(clockedFields("next_full_moon_", "The next full moon"),
                              clockedFields("next_new_moon_", "The next new moon")))};
  return type;
}

Row aboutMoment(const astro::Observer& observer) {
  return placeValues(observer);
}

void forEachMomentRow(const astro::Observer& observer, const reports::TableSize& /*size*/,
                      const TakeRow& take) {
  const auto next = [&observer](double elongation) {
    return clockedValues(
        observer.at(astro::nextPhase({.start = observer.baseTime, .elongation = elongation})));
  };
  take(joined(clockedValues(observer),
              joined(next(astro::fullMoonElongation), next(astro::newMoonElongation))));
}

}  // namespace veyruna::records
