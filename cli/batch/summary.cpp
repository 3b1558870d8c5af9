#include "cli/batch/summary.h"

#include <QString>
#include <algorithm>
#include <array>

#include "documents/documents.h"
#include "words/listing.h"
#include "words/quoting.h"

namespace veyruna::cli {

namespace {

/// What stands in the columns of one line; the last is as wide as it is.
using Cells = std::array<std::string, 5>;

/// A column grows to this many characters; longer texts move their own line.
constexpr qsizetype widest = 40;

qsizetype widthOf(const std::string& text) {
  return QString::fromStdString(text).size();
}

Cells cellsOf(const BatchRow& row, const RowOutcome& outcome) {
  const bool isUsable = row.problems.empty();
  std::vector<std::string> last = outcome.files;
  if (!outcome.problem.empty()) {
    last.push_back("not written: " + outcome.problem);
  }
  return {std::to_string(row.line), words::asListed(row.name),
          isUsable ? documents::textOf(documents::Document::date, row.sky.observer)
                   : words::asListed(row.date),
          words::asListed(isUsable ? row.sky.place : row.place), words::joined(last)};
}

std::string lineOf(const Cells& cells, const std::array<qsizetype, 4>& widths) {
  std::string line;
  for (std::size_t i = 0; i < widths.size(); ++i) {
    line += QString::fromStdString(cells.at(i)).leftJustified(widths.at(i)).toStdString() + "  ";
  }
  return line + cells.back() + "\n";
}

std::string counted(std::size_t count, const std::string& what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

}  // namespace

std::string summaryText(const std::vector<BatchRow>& rows,
                        const std::vector<RowOutcome>& outcomes) {
  std::vector<Cells> lines = {Cells{"line", "name", "date", "place", "files"}};
  std::size_t files = 0;
  std::size_t whole = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    lines.push_back(cellsOf(rows[i], outcomes[i]));
    files += outcomes[i].files.size();
    whole += outcomes[i].problem.empty() ? 1U : 0U;
  }
  std::array<qsizetype, 4> widths{};
  for (const Cells& cells : lines) {
    for (std::size_t i = 0; i < widths.size(); ++i) {
      widths.at(i) = std::max(widths.at(i), std::min(widthOf(cells.at(i)), widest));
    }
  }
  std::string text;
  for (const Cells& cells : lines) {
    text += lineOf(cells, widths);
  }
  return text + "\n" + counted(whole, "row") + " of " + std::to_string(rows.size()) + " written, " +
         counted(files, "file") + "\n";
}

std::vector<std::string> complaints(const std::vector<BatchRow>& rows,
                                    const std::vector<RowOutcome>& outcomes) {
  const auto withoutRoom = std::ranges::count_if(
      outcomes, [](const RowOutcome& outcome) { return outcome.isDiskFull || outcome.isLeftOut; });
  bool isRoomSaid = false;
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const RowOutcome& outcome = outcomes[i];
    if (outcome.problem.empty() || outcome.isLeftOut || (outcome.isDiskFull && isRoomSaid)) {
      continue;
    }
    lines.push_back("line " + std::to_string(rows[i].line) + ": " + outcome.problem);
    if (outcome.isDiskFull) {
      isRoomSaid = true;
      lines.back() += "; of this row and others after it, " + std::to_string(withoutRoom) +
                      " in all, files are missing";
    }
  }
  return lines;
}

}  // namespace veyruna::cli
