// Answers on one moment and place.
#include <algorithm>
#include <array>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/clock.h"
#include "astro/local_time.h"
#include "astro/number_text.h"
#include "charts/mark_reading.h"
#include "documents/documents.h"
#include "records/document_records.h"
#include "records/json_text.h"
#include "records/record_writer.h"
#include "web/answers.h"
#include "web/documents_by_name.h"
#include "web/json.h"
#include "words/angles.h"
#include "words/values.h"

namespace veyruna::web {

namespace {

using astro::CalendarReading;
using astro::Observer;
using documents::Entry;

constexpr std::array<std::string_view, 4> skyNames = {"moment", "lat", "long", "local"};
constexpr std::array<std::string_view, 5> namedSkyNames = {"name", "moment", "lat", "long",
                                                           "local"};

const Entry& askedDocument(const Question& question, bool (*isAccepted)(const Entry&)) {
  const std::string accepted = "one of " + documentNames(isAccepted);
  const std::string name = question.required("name", accepted);
  const auto* const found = std::ranges::find(documents::allDocuments, name,
                                              [](const Entry& entry) { return nameOf(entry); });
  if (found == documents::allDocuments.end() || !isAccepted(*found)) {
    words::refuse("name", name, accepted);
  }
  return *found;
}

/// "720-06-12T22:30", "001-01-01T13:00": as the records have it.
std::string dateText(const CalendarReading& reading) {
  std::string text;
  astro::appendPaddedInteger(text, reading.year, 3);
  text += '-';
  astro::appendPaddedInteger(text, reading.monthIndex + 1, 2);
  text += '-';
  astro::appendPaddedInteger(text, reading.dayIndex + 1, 2);
  return text + "T" + astro::clockText(reading.hour);
}

std::string readingJson(const std::optional<CalendarReading>& reading) {
  if (!reading) {
    return "null";
  }
  const auto month = static_cast<std::size_t>(reading->monthIndex);
  return JsonObject()
      .add("date", dateText(*reading))
      .add("year", reading->year)
      .add("month", reading->monthIndex + 1)
      .add("month_name", std::string(astro::monthNames.at(month)))
      .add("day", reading->dayIndex + 1)
      .add("hour", reading->hour)
      .text();
}

/// What the page's address says of it, so that it is opened again.
std::string addressOf(const Observer& sky, const std::optional<CalendarReading>& standard) {
  const std::string moment =
      standard ? dateText(*standard) : "@" + astro::shortestText(sky.baseTime);
  return moment + ";" + words::shortCoordinatesText(sky.latitude, sky.longitude);
}

std::string_view wordOf(charts::MarkKind kind) {
  switch (kind) {
    case charts::MarkKind::body:
      return "body";
    case charts::MarkKind::star:
      return "star";
    case charts::MarkKind::backgroundStar:
      return "background_star";
    case charts::MarkKind::figureName:
      return "figure_name";
    case charts::MarkKind::signBoundary:
      return "sign_boundary";
    case charts::MarkKind::ascendant:
      return "ascendant";
    case charts::MarkKind::chord:
      return "chord";
    case charts::MarkKind::panelLine:
      return "panel_line";
  }
  return "";
}

std::string stretchesJson(const std::vector<charts::Stretch>& stretches) {
  JsonList all;
  for (const charts::Stretch& stretch : stretches) {
    all.addJson(records::jsonTextOf(
        std::vector{stretch.from.x, stretch.from.y, stretch.to.x, stretch.to.y, stretch.radius}));
  }
  return all.text();
}

bool isAny(const Entry& /*document*/) {
  return true;
}

bool hasRecords(const Entry& document) {
  return records::recordTypeOf(document.document) != nullptr;
}

bool hasMarks(const Entry& document) {
  return document.marks != nullptr;
}

}  // namespace

std::string momentAnswer(const Question& question) {
  question.acceptOnly(skyNames);
  const Observer sky = question.sky();
  const std::optional<CalendarReading> standard = astro::calendarReading(sky.baseTime);
  return JsonObject()
      .add("base_time", sky.baseTime)
      .addJson("standard", readingJson(standard))
      .addJson("local", readingJson(astro::localCalendarReading(sky)))
      .add("lat", astro::typedDegreesOf(sky.latitude))
      .add("long", astro::typedDegreesOf(sky.longitude))
      .add("words", words::coordinatesText(sky.latitude, sky.longitude))
      .add("address", addressOf(sky, standard))
      .text();
}

std::string documentAnswer(const Question& question) {
  question.acceptOnly(namedSkyNames);
  const Entry& document = askedDocument(question, isAny);
  return documents::textOf(document.document, question.sky());
}

std::string recordAnswer(const Question& question) {
  question.acceptOnly(namedSkyNames);
  const Entry& document = askedDocument(question, hasRecords);
  std::string text;
  records::writeRecords(document.document, question.sky(), document.size, records::Notation::json,
                        [&text](std::string_view piece) { text += piece; });
  return text;
}

std::string marksAnswer(const Question& question) {
  question.acceptOnly(namedSkyNames);
  const Entry& chart = askedDocument(question, hasMarks);
  const Observer sky = question.sky();
  const charts::ChartMarks marks = documents::marksOf(chart.document, sky);
  JsonList all;
  for (const charts::ChartMark& mark : marks) {
    all.addJson(JsonObject()
                    .add("kind", std::string(wordOf(mark.kind)))
                    .add("name", mark.name)
                    .add("magnitude", mark.magnitude)
                    .addJson("dots", stretchesJson(mark.dots))
                    .addJson("letters", stretchesJson(mark.letters))
                    .add("read_out", charts::readOut(mark, sky))
                    .add("spoken", charts::spoken(mark, sky))
                    .text());
  }
  return JsonObject()
      .add("summary", charts::summary(marks, sky))
      .addJson("marks", all.text())
      .text();
}

}  // namespace veyruna::web
