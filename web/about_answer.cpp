// What there is to ask for.
#include "almanac/events/event.h"
#include "astro/calendar.h"
#include "documents/documents.h"
#include "documents/first_places.h"
#include "web/answers.h"
#include "web/documents_by_name.h"
#include "web/json.h"

namespace veyruna::web {

namespace {

std::string_view wordOf(documents::Kind kind) {
  switch (kind) {
    case documents::Kind::chart:
      return "chart";
    case documents::Kind::table:
      return "table";
    case documents::Kind::list:
      return "list";
    case documents::Kind::label:
      return "label";
    case documents::Kind::log:
      return "log";
  }
  return "";
}

records::Value textValue(std::string_view text) {
  return std::string(text);
}

std::string documentsJson() {
  JsonList all;
  for (const documents::Entry& entry : documents::allDocuments) {
    all.addJson(JsonObject()
                    .add("document", nameOf(entry))
                    .add("heading", textValue(entry.heading))
                    .add("summary", textValue(entry.summary))
                    .add("kind", textValue(wordOf(entry.kind)))
                    .add("fileName", textValue(entry.fileName))
                    .add("fileTitle", textValue(entry.fileTitle))
                    .add("columnHeadingLines", std::int64_t{entry.columnHeadingLines})
                    .text());
  }
  return all.text();
}

std::string placesJson() {
  JsonList all;
  for (const documents::FirstPlace& place : documents::firstPlaces) {
    all.addJson(JsonObject()
                    .add("name", textValue(place.name))
                    .add("lat", place.latitudeDegrees)
                    .add("long", place.longitudeDegrees)
                    .text());
  }
  return all.text();
}

std::string eventKindsJson() {
  JsonList all;
  for (const almanac::EventKindEntry& entry : almanac::allEventKinds) {
    all.addJson(JsonObject()
                    .add("kind", textValue(entry.word))
                    .add("summary", textValue(entry.summary))
                    .add("needsPlace", entry.needsPlace)
                    .text());
  }
  return all.text();
}

}  // namespace

std::string aboutAnswer(const Question& question) {
  question.acceptOnly({});
  return JsonObject()
      .add("version", textValue(VEYRUNA_VERSION))
      .addJson("documents", documentsJson())
      .addJson("places", placesJson())
      .add("months", std::vector<std::string>(astro::monthNames.begin(), astro::monthNames.end()))
      .addJson("eventKinds", eventKindsJson())
      .text();
}

}  // namespace veyruna::web
