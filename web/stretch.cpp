#include "web/stretch.h"

#include <utility>

#include "words/angles.h"
#include "words/dates.h"
#include "words/usage_error.h"

namespace veyruna::web {

using almanac::Range;
using records::Lookout;

std::optional<Lookout> askedLookout(const Question& question) {
  if (!question.text("lat") && !question.text("long")) {
    return std::nullopt;
  }
  const astro::Observer place = question.place();
  return Lookout{
      question.text("place_name").value_or(words::coordinatesText(place.latitude, place.longitude)),
      place};
}

Range askedRange(const Question& question, const std::optional<Lookout>& lookout) {
  const bool isLocal = question.isSo("local");
  if (isLocal && !lookout) {
    throw words::UsageError("local: local clocks are those of a place; " +
                            std::string(placeIsGivenBy));
  }
  const std::optional<double> longitude =
      isLocal ? std::optional(lookout->place.longitude) : std::nullopt;
  const double from = question.moment("from", longitude);
  const words::TypedStretch typed{.from = question.text("from").value_or(""),
                                  .to = question.text("to"),
                                  .length = question.text("for")};
  if (typed.length.has_value() == typed.to.has_value()) {
    throw words::UsageError("give either to, a moment, or for, a length such as \"3 months\"");
  }
  return {from, words::readEnd("", typed, from, longitude)};
}

Rows::Rows(const records::RecordType& type)
    : writer_(type, records::Notation::json,
              [this](std::string_view piece) { text_.append(piece); }) {}

bool Rows::write(const records::Row& row) {
  const bool hasRoom = ++count_ <= most;
  if (hasRoom) {
    writer_.write(row);
  }
  return hasRoom;
}

std::string Rows::finish() {
  if (count_ > most) {
    throw words::UsageError("there are more than " + std::to_string(most) +
                            "; ask for a shorter stretch of time, or for fewer kinds");
  }
  writer_.finish();
  return std::move(text_);
}

}  // namespace veyruna::web
