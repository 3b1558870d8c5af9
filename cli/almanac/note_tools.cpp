#include "cli/almanac/note_tools.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "cli/written/asked_forms.h"
#include "cli/written/document_writer.h"
#include "notes/calendarium.h"
#include "notes/seasons_stars.h"
#include "words/dates.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::cli {

namespace {

struct ToolEntry {
  NoteTool tool;
  std::string_view word;
};
constexpr std::array<ToolEntry, 2> tools = {
    {{NoteTool::calendarium, "calendarium"}, {NoteTool::seasonsStars, "seasons-stars"}}};

}  // namespace

std::optional<NoteTool> noteToolOf(const std::string& form) {
  const auto* const found = std::ranges::find(tools, form, &ToolEntry::word);
  return found == tools.end() ? std::nullopt : std::optional(found->tool);
}

std::string noteToolWords(const std::string& between) {
  std::string words;
  for (const ToolEntry& entry : tools) {
    words.append(words.empty() ? "" : between).append(entry.word);
  }
  return words;
}

void writeCalendar(const Typed& typed) {
  askedWidth(typed, {});
  const std::optional<NoteTool> tool = noteToolOf(typed.formats);
  if (!tool) {
    if (typed.formats.empty()) {
      throw words::UsageError("calendar needs --format " + noteToolWords() +
                              ": the tool that it is written for");
    }
    words::refuse("--format", typed.formats, noteToolWords() + " for calendar");
  }
  const std::int64_t year =
      words::readWholeNumber("--year", typed.year, words::firstYear, words::lastYear);
  const std::string text = *tool == NoteTool::calendarium ? notes::calendariumCalendar(year)
                                                          : notes::seasonsStarsCalendar(year);
  DocumentWriter writer = DocumentWriter::to(typed.file);
  writer.write(text);
  writer.finish();
}

}  // namespace veyruna::cli
