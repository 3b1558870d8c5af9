#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "astro/observer.h"
#include "charts/chart_mark.h"
#include "reports/table_size.h"

/// All that is written of one moment and place, a row each in one table. Whoever lists documents
/// walks it: the command, the model, the exports.
namespace veyruna::documents {

/// A document, in the order in which they are calculated and written.
enum class Document {
  starMap,
  horoscope,
  horoscopeOnPaper,  ///< black on white
  hourly,
  monthly,
  daily,
  yearly,
  positions,
  date,
  nextFullMoon,
  nextNewMoon,
  moment,
  count  ///< none: how many there are
};

inline constexpr auto documentCount = static_cast<std::size_t>(Document::count);

enum class Kind {
  chart,  ///< SVG
  table,  ///< a line a moment, under a header
  list,   ///< lines of one moment
  label,  ///< one line without its line feed; no file of its own
  log     ///< lines of many moments or places, which no document is: text, or for programs
};

/// What is said of a document.
struct Entry {
  Document document = Document::count;
  std::string_view command = {};    ///< its word on the command line; empty for one without
  std::string_view fileName = {};   ///< in a folder of all documents; empty for a label
  std::string_view fileTitle = {};  ///< in a name with a place and moment; likewise
  std::string_view heading = {};    ///< over it where several stand together
  std::string_view summary = {};    ///< one line of help
  Kind kind = Kind::label;
  reports::TableSize size = {};  ///< of a table; of anything else, nothing
  std::string (*write)(const astro::Observer& observer, const reports::TableSize& size) = nullptr;
  int columnHeadingLines = 0;  ///< how many of its first lines head its columns
  charts::ChartMarks (*marks)(const astro::Observer& observer) = nullptr;  ///< of a chart
  bool isRead = false;  ///< of a chart: whether what it says can be had as values, too
};

/// Every document, in their order.
extern const std::array<Entry, documentCount> allDocuments;

/// `Document::count` is a broken invariant, here and below.
const Entry& entryOf(Document document);

/// The document of that moment and place, whole, in UTF-8. Safe from any thread.
std::string textOf(Document document, const astro::Observer& observer);

/// What that chart shows where; nothing of what is no chart. Safe from any thread.
charts::ChartMarks marksOf(Document document, const astro::Observer& observer);

}  // namespace veyruna::documents
