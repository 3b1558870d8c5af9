#include "documents/documents.h"

#include <algorithm>

#include "astro/calendar.h"
#include "astro/invariant.h"
#include "astro/local_time.h"
#include "astro/lunar_phases.h"
#include "astro/vector_registers.h"
#include "charts/horoscope.h"
#include "charts/star_map.h"
#include "reports/conjunctions.h"
#include "reports/ephemeris.h"
#include "reports/positions.h"

namespace veyruna::documents {

namespace {

using astro::Observer;
using reports::TableSize;

std::string starMap(const Observer& observer, const TableSize& /*size*/) {
  return charts::starMap(observer, charts::builtInCatalogue());
}

std::string horoscope(const Observer& observer, const TableSize& /*size*/) {
  return charts::horoscope(false, observer, charts::builtInCatalogue());
}

std::string horoscopeOnPaper(const Observer& observer, const TableSize& /*size*/) {
  return charts::horoscope(true, observer, charts::builtInCatalogue());
}

charts::ChartMarks starMapMarks(const Observer& observer) {
  charts::ChartMarks marks;
  charts::starMap(observer, charts::builtInCatalogue(), &marks);
  return marks;
}

charts::ChartMarks horoscopeMarks(const Observer& observer) {
  charts::ChartMarks marks;
  charts::horoscope(false, observer, charts::builtInCatalogue(), &marks);
  return marks;
}

std::string ephemeris(const Observer& observer, const TableSize& size) {
  return reports::ephemerisTable(observer, size);
}

std::string conjunctions(const Observer& observer, const TableSize& size) {
  return reports::conjunctionTable(observer.baseTime, size);
}

std::string positions(const Observer& observer, const TableSize& /*size*/) {
  return reports::positionsTableText(reports::positionRows(observer));
}

std::string date(const Observer& observer, const TableSize& /*size*/) {
  return astro::calendarLabel(observer.baseTime);
}

std::string nextMoon(const Observer& observer, double elongation) {
  return astro::calendarLabelWithLocalClock(
      observer.at(astro::nextPhase({.start = observer.baseTime, .elongation = elongation})));
}

std::string nextFullMoon(const Observer& observer, const TableSize& /*size*/) {
  return nextMoon(observer, astro::fullMoonElongation);
}

std::string nextNewMoon(const Observer& observer, const TableSize& /*size*/) {
  return nextMoon(observer, astro::newMoonElongation);
}

std::string moment(const Observer& observer, const TableSize& /*size*/) {
  std::string text = textOf(Document::date, observer) + "\n";
  for (const Document moon : {Document::nextFullMoon, Document::nextNewMoon}) {
    text += std::string(entryOf(moon).heading) + ": " + textOf(moon, observer) + "\n";
  }
  return text;
}

constexpr TableSize none;

}  // namespace

// A table's size stands beside its summary, which says it in words.
constexpr std::array<Entry, documentCount> allDocuments = {{
    {Document::starMap, "star-map", "star-map.svg", "Star Map", "Star Map",
     "The sky above the place, as SVG", Kind::chart, none, starMap, 0, starMapMarks},
    {Document::horoscope, "horoscope", "horoscope.svg", "Horoscope", "Horoscope",
     "The horoscope with its interpretation, as SVG", Kind::chart, none, horoscope, 0,
     horoscopeMarks, true},
    {Document::horoscopeOnPaper, "", "horoscope-black-and-white.svg", "Horoscope",
     "Horoscope, black on white", "The horoscope black on white, as SVG", Kind::chart, none,
     horoscopeOnPaper, 0, horoscopeMarks},
    {Document::hourly, "hourly", "ephemeris-hourly.txt", "Sun & Moon", "Hourly",
     "Moon and sun for 24 hours", Kind::table, TableSize{24, 1.0 / 24.0}, ephemeris, 1},
    {Document::monthly, "monthly", "ephemeris-monthly.txt", "Sun & Moon", "Monthly",
     "Moon and sun for 30 days", Kind::table, TableSize{30, 1.0}, ephemeris, 1},
    {Document::daily, "daily", "conjunctions-daily.txt", "Positions", "Daily",
     "All bodies every ten minutes of a day", Kind::table, TableSize{144, 1.0 / 144.0},
     conjunctions, 2},
    {Document::yearly, "yearly", "conjunctions-yearly.txt", "Positions", "Yearly",
     "All bodies every day of a year", Kind::table, TableSize{360, 1.0}, conjunctions, 2},
    {Document::positions, "positions", "positions.txt", "Planets", "Positions",
     "Where every body stands", Kind::list, none, positions, 2},
    {Document::date, "", "", "", "Date", "The moment as a date", Kind::label, none, date},
    {Document::nextFullMoon, "", "", "", "Next full moon", "When the moon is full next",
     Kind::label, none, nextFullMoon},
    {Document::nextNewMoon, "", "", "", "Next new moon", "When the moon is new next", Kind::label,
     none, nextNewMoon},
    {Document::moment, "moment", "moment.txt", "Moment", "Moment",
     "The date with the next full and new moon", Kind::list, none, moment},
}};

namespace {

constexpr bool everyDocumentHasItsRowInOrder() {
  for (std::size_t i = 0; i < allDocuments.size(); ++i) {
    if (allDocuments[i].document != static_cast<Document>(i)) {
      return false;
    }
  }
  return true;
}
static_assert(everyDocumentHasItsRowInOrder());

constexpr bool isComplete(const Entry& entry) {
  const bool isTable = entry.kind == Kind::table;
  const bool isLabel = entry.kind == Kind::label;
  return !entry.heading.empty() && !entry.summary.empty() && entry.write != nullptr &&
         (entry.size.rows > 0) == isTable && (entry.size.stepDays > 0.0) == isTable &&
         (entry.marks != nullptr) == (entry.kind == Kind::chart) &&
         entry.fileName.empty() == isLabel && entry.fileTitle.empty() == isLabel &&
         (!isLabel || entry.command.empty());
}
static_assert(std::ranges::all_of(allDocuments, isComplete), "something of a document is not said");

/// Whether no text but the empty one is said of two documents.
constexpr bool isSaidOnce(std::string_view Entry::*field) {
  for (const Entry& entry : allDocuments) {
    if (!(entry.*field).empty() && std::ranges::count(allDocuments, entry.*field, field) > 1) {
      return false;
    }
  }
  return true;
}
static_assert(isSaidOnce(&Entry::command), "two documents have one command word");
static_assert(isSaidOnce(&Entry::fileName), "two documents have one file name");
static_assert(isSaidOnce(&Entry::heading), "two documents have one heading");

}  // namespace

const Entry& entryOf(Document document) {
  const auto row = static_cast<std::size_t>(document);
  astro::requireInvariant(row < allDocuments.size(), "a document has its row", row);
  return allDocuments[row];
}

std::string textOf(Document document, const Observer& observer) {
  astro::releaseUpperRegisters();
  const Entry& entry = entryOf(document);
  return entry.write(observer, entry.size);
}

charts::ChartMarks marksOf(Document document, const Observer& observer) {
  astro::releaseUpperRegisters();
  const Entry& entry = entryOf(document);
  return entry.marks == nullptr ? charts::ChartMarks() : entry.marks(observer);
}

}  // namespace veyruna::documents
