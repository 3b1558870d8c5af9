#include "cli/batch/rows.h"

#include <QString>
#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "astro/clock.h"
#include "astro/local_time.h"
#include "cli/batch/columns.h"
#include "words/dates.h"
#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::cli {

namespace {

constexpr std::string_view acceptedDate =
    "a year from 1, a month as a number or name and a day from 1 to 30, such as 720-06-12 or "
    "720-Cendo-12";

/// Without blanks at either end, of whatever script.
std::string trimmed(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
      .trimmed()
      .toStdString();
}

/// What stands for yes and for no, besides nothing.
constexpr std::array<std::string_view, 4> yeses = {"yes", "true", "1", "x"};
constexpr std::array<std::string_view, 3> noes = {"no", "false", "0"};

bool isOneOf(std::span<const std::string_view> words, std::string_view text) {
  return std::ranges::any_of(
      words, [text](std::string_view word) { return words::equalIgnoringCase(word, text); });
}

void readName(BatchRow& row) {
  if (row.name.empty()) {
    words::refuse("name", row.name, "one, after which the files are called");
  }
}

void readDate(BatchRow& row) {
  const std::optional<astro::CalendarReading> day = words::dayOf(row.date);
  if (!day) {
    words::refuse("date", row.date, acceptedDate);
  }
  const double hour = row.reading.hour;
  row.reading = *day;
  row.reading.hour = hour;
}

double hourIn(std::string_view text, const RowDefaults& defaults) {
  const std::optional<double> hour = text.empty() ? defaults.hour : astro::hourFromText(text);
  if (!hour) {
    words::refuse("hour", text, words::acceptedHour);
  }
  return *hour;
}

bool isLocalIn(std::string_view text, const RowDefaults& defaults) {
  if (text.empty()) {
    return defaults.isLocal;
  }
  const bool isYes = isOneOf(yeses, text);
  if (!isYes && !isOneOf(noes, text)) {
    words::refuse("local", text,
                  "yes, true, 1 or x where the hour is local time, else no, false, 0 or nothing");
  }
  return isYes;
}

double baseTimeOf(const BatchRow& row, bool isLocal) {
  return words::checkedBaseTime(isLocal
                                    ? astro::localBaseTime(row.reading, row.sky.observer.longitude)
                                    : astro::standardBaseTime(row.reading),
                                "date: " + words::inQuotes(row.date));
}

/// Does a part of reading a row, and notes why it cannot be done.
template <class Part>
void noting(BatchRow& row, Part part) {
  try {
    part();
  } catch (const words::UsageError& error) {
    row.problems.emplace_back(error.what());
  }
}

/// Reads what the columns hold, all of them even where one cannot be used.
void readColumns(BatchRow& row, const CsvRecord& record, const Columns& columns,
                 const RowDefaults& defaults, RowPlaces& places) {
  bool isLocal = false;
  noting(row, [&] { readName(row); });
  noting(row, [&] { row.reading.hour = hourIn(columns.textIn(record, Column::hour), defaults); });
  noting(row, [&] { readDate(row); });
  noting(row, [&] { isLocal = isLocalIn(columns.textIn(record, Column::local), defaults); });
  noting(row, [&] {
    const Place& place = places.of(row.place);
    row.sky.observer.latitude = place.latitude;
    row.sky.observer.longitude = place.longitude;
    row.sky.place = place.words;
  });
  if (row.problems.empty()) {
    noting(row, [&] { row.sky.observer.baseTime = baseTimeOf(row, isLocal); });
  }
}

}  // namespace

std::vector<BatchRow> readRows(std::string_view bytes, const RowDefaults& defaults,
                               const PlaceFinder& placeNamed) {
  const std::vector<CsvRecord> records = csvRecords(bytes);
  if (records.empty()) {
    throw words::UsageError(
        "it is empty; its first line is to name the columns, such as name, date, hour, local, "
        "place");
  }
  if (!records.front().problem.empty()) {
    throw words::UsageError("line " + std::to_string(records.front().line) + ": " +
                            records.front().problem);
  }
  const Columns columns(records.front(), !defaults.place);
  RowPlaces places(defaults.place, placeNamed);
  std::vector<BatchRow> rows;
  rows.reserve(records.size() - 1);
  for (const CsvRecord& record : std::span(records).subspan(1)) {
    BatchRow& row = rows.emplace_back();
    row.line = record.line;
    row.name = trimmed(columns.textIn(record, Column::name));
    row.date = columns.textIn(record, Column::date);
    row.place = columns.textIn(record, Column::place);
    if (!record.problem.empty()) {
      row.problems.push_back(record.problem);
    } else if (columns.isOverfull(record)) {
      row.problems.emplace_back(
          "it has more columns than the header; a text that holds the separator belongs in quotes");
    } else {
      readColumns(row, record, columns, defaults, places);
    }
  }
  return rows;
}

}  // namespace veyruna::cli
