// Any bytes as a table of people: whatever is in it, the reader says row by row what is wrong in
// lines of UTF-8, and what it accepts has its moment, its place and names for files that every file
// system takes, each of them once. Nothing is written.
#include <QString>
#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "astro/angle.h"
#include "cli/batch/row_files.h"
#include "cli/batch/rows.h"
#include "cli/batch/summary.h"
#include "fuzz/target.h"
#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/utf8.h"

using namespace veyruna;
using cli::BatchRow;
using fuzz::promise;

namespace {

cli::Place placeNamed(const std::string& name) {
  if (name != "Ebb") {
    throw words::UsageError("place: " + words::inQuotes(name) + " is not a saved place");
  }
  return cli::placeAt(0.5, -2.0);
}

void expectOneLine(const std::string& message) {
  promise(!message.empty() && words::isUtf8(message), "a message is UTF-8");
  promise(std::ranges::none_of(message, [](char c) { return c >= '\0' && c < ' '; }),
          "a message is one line");
}

void tryNames(const std::vector<std::string>& names, std::set<QString>& taken) {
  constexpr std::string_view refusedBySome = "/\\:*?\"<>|\x7F";
  for (const std::string& name : names) {
    promise(words::isUtf8(name) && name.size() <= 255, "a name fits");
    promise(name.front() != '.' && name.find_first_of(refusedBySome) == std::string::npos &&
                std::ranges::none_of(name, [](char c) { return c >= '\0' && c < ' '; }),
            "a name is taken everywhere");
    promise(taken.insert(QString::fromStdString(name).toCaseFolded()).second,
            "no two files have one name");
  }
}

void tryRow(const BatchRow& row) {
  const astro::Observer& observer = row.sky.observer;
  promise(!row.name.empty(), "a row has its name");
  promise(std::abs(observer.baseTime) <= astro::baseTimeLimitDays, "a row is within reach");
  promise(std::abs(observer.latitude) <= astro::pi / 2 && std::abs(observer.longitude) <= astro::pi,
          "a row is on the globe");
  promise(!row.sky.place.empty(), "its place has words");
}

void tryRows(const std::vector<BatchRow>& rows) {
  cli::RowFileNames rowFileNames({{documents::Document::horoscope, documents::Form::pdf},
                                  {documents::Document::hourly, documents::Form::text}});
  std::set<QString> taken;
  std::vector<cli::RowOutcome> outcomes(rows.size());
  std::int64_t line = 1;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    promise(rows[i].line > line, "rows are in their order, behind the header");
    line = rows[i].line;
    std::ranges::for_each(rows[i].problems, expectOneLine);
    if (rows[i].problems.empty()) {
      tryRow(rows[i]);
      tryNames(rowFileNames.namesOf(rows[i]), taken);
    } else {
      outcomes[i].problem = rows[i].problems.front();
    }
  }
  const std::string summary = cli::summaryText(rows, outcomes);
  promise(words::isUtf8(summary) &&
              std::ranges::count(summary, '\n') == static_cast<std::ptrdiff_t>(rows.size()) + 3,
          "the summary has a line for each row");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  for (const bool hasPlace : {false, true}) {
    cli::RowDefaults defaults;
    if (hasPlace) {
      defaults.place = placeNamed("Ebb");
    }
    try {
      tryRows(cli::readRows(bytes, defaults, placeNamed));
    } catch (const words::UsageError& error) {
      expectOneLine(error.what());
    }
  }
  return 0;
}
