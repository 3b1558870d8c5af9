#include "cli/command_line.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <filesystem>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/invariant.h"
#include "astro/local_time.h"
#include "astro/number_text.h"
#include "cli/arguments.h"
#include "cli/document_writer.h"
#include "cli/errors.h"
#include "cli/grammar.h"
#include "cli/places.h"
#include "cli/progress.h"
#include "cli/quoting.h"
#include "documents/documents.h"
#include "reports/conjunctions.h"
#include "reports/ephemeris.h"

namespace veyruna::cli {

namespace {

using documents::Document;

constexpr std::int64_t mostRows = 100'000'000;

/// The first year, and the last that begins within the engine's range.
constexpr std::int64_t firstYear = 1;
constexpr std::int64_t lastYear = 2'777'778;

double checkedBaseTime(double baseTime, const std::string& what) {
  if (!(std::abs(baseTime) <= astro::baseTimeLimitDays)) {
    throw UsageError(what +
                     " is too far away; moments within 1000000000 days of the epoch are accepted");
  }
  return baseTime;
}

Place placeOf(const Typed& typed) {
  if (!typed.location.empty()) {
    return savedPlace(typed.location);
  }
  return {readLatitude(typed.latitude), readLongitude(typed.longitude)};
}

astro::Observer observerOf(const Typed& typed) {
  const auto [latitude, longitude] = placeOf(typed);
  constexpr double limit = astro::baseTimeLimitDays;
  if (!typed.baseTime.empty()) {
    return {.baseTime = readNumber("--base-time", typed.baseTime, -limit, limit),
            .latitude = latitude,
            .longitude = longitude};
  }
  const astro::CalendarReading reading{
      .year = readWholeNumber("--year", typed.year, firstYear, lastYear),
      .monthIndex = readMonthIndex(typed.month),
      .dayIndex = readWholeNumber("--day", typed.day, 1, astro::daysPerMonth) - 1,
      .hour = readHour(typed.hour)};
  const double baseTime =
      typed.isLocal ? astro::localBaseTime(reading, longitude) : astro::standardBaseTime(reading);
  return {.baseTime = checkedBaseTime(baseTime, "--year: " + inQuotes(typed.year)),
          .latitude = latitude,
          .longitude = longitude};
}

bool goesToStandardOutput(const Typed& typed) {
  return typed.file == "-";
}

DocumentWriter writerOf(const Typed& typed) {
  return goesToStandardOutput(typed) ? DocumentWriter::toStandardOutput()
                                     : DocumentWriter::toFile(typed.file);
}

void writeText(const Typed& typed, const std::string& text) {
  DocumentWriter writer = writerOf(typed);
  writer.write(text);
  writer.finish();
}

/// A table of the person's own length and step, written as it is computed.
void writeTable(const Typed& typed, const astro::Observer& observer) {
  if (typed.rows.empty() || typed.step.empty()) {
    throw UsageError("a table needs --rows N and --step DAYS, such as --rows 24 --step 1/24");
  }
  const reports::TableSize size{.rows = readWholeNumber("--rows", typed.rows, 0, mostRows),
                                .stepDays = readStepDays(typed.step)};
  checkedBaseTime(
      observer.baseTime + static_cast<double>(size.rows) * size.stepDays,
      "the last of " + inQuotes(typed.rows) + " rows at steps of " + inQuotes(typed.step));

  DocumentWriter writer = writerOf(typed);
  Progress progress(size.rows + 1, goesToStandardOutput(typed));
  const reports::TextSink sink = [&](std::string_view piece) {
    writer.write(piece);
    progress.advance();
  };
  if (typed.command == "ephemeris") {
    reports::writeEphemerisTable(observer, size, sink);
  } else {
    reports::writeConjunctionTable(observer.baseTime, size, sink);
  }
  writer.finish();
}

void writeAll(const Typed& typed, const astro::Observer& observer) {
  if (typed.folder.empty() || !goesToStandardOutput(typed)) {
    throw UsageError("all needs --out DIR, and takes no -o");
  }
  std::error_code error;
  std::filesystem::create_directories(typed.folder, error);
  if (error) {
    throw WriteError("cannot make the folder " + inQuotes(typed.folder) + ": " + error.message());
  }
  DocumentWriter list = DocumentWriter::toStandardOutput();
  for (const documents::Entry& document : documents::allDocuments) {
    if (document.fileName.empty()) {
      continue;
    }
    const std::string path = (std::filesystem::path(typed.folder) / document.fileName).string();
    DocumentWriter writer = DocumentWriter::toFile(path);
    writer.write(documents::textOf(document.document, observer));
    writer.finish();
    list.write(path + "\n");
  }
  list.finish();
}

Document documentOf(const Typed& typed) {
  const auto* const found =
      std::ranges::find(documents::allDocuments, typed.command, &documents::Entry::command);
  astro::requireInvariant(found != documents::allDocuments.end(),
                          "every command writes a document");
  return found->document == Document::horoscope && typed.blackAndWhite ? Document::horoscopeOnPaper
                                                                       : found->document;
}

void run(const Grammar& grammar, const Typed& typed) {
  if (typed.command == "help") {
    writeText(typed, grammar.helpText(typed.helpTopic));
    return;
  }
  if (typed.command == "version") {
    writeText(typed, "veyruna " VEYRUNA_VERSION " (build " VEYRUNA_BUILD_NUMBER ")\n");
    return;
  }
  if (typed.command == "locations") {
    writeText(typed, savedPlacesText());
    return;
  }
  const astro::Observer observer = observerOf(typed);
  if (typed.command == "all") {
    writeAll(typed, observer);
  } else if (typed.command == "ephemeris" || typed.command == "conjunctions") {
    writeTable(typed, observer);
  } else if (typed.command == "base-time") {
    writeText(typed, astro::shortestText(observer.baseTime) + "\n");
  } else {
    writeText(typed, documents::textOf(documentOf(typed), observer));
  }
}

int complain(const std::string& message, int status) {
  std::fprintf(stderr, "veyruna: %s\n", message.c_str());
  return status;
}

}  // namespace

int runCommandLine(const std::vector<std::string>& arguments) {
  try {
    Grammar grammar;
    const Typed& typed = grammar.parse(arguments);
    run(grammar, typed);
    return succeeded;
  } catch (const UsageError& error) {
    return complain(error.what(), usageWrong);
  } catch (const std::exception& error) {
    return complain(error.what(), writeFailed);
  }
}

}  // namespace veyruna::cli
