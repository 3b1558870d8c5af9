#include "cli/almanac/calendar_command.h"

#include <optional>
#include <string>

#include "cli/written/asked_forms.h"
#include "cli/written/document_writer.h"
#include "notes/calendarium.h"
#include "notes/note_tools.h"
#include "notes/seasons_stars.h"
#include "words/dates.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::cli {

using notes::NoteTool;
using notes::noteToolWords;

void writeCalendar(const Typed& typed) {
  askedWidth(typed, {});
  const std::optional<NoteTool> tool = notes::noteToolOf(typed.formats);
  if (!tool) {
    if (typed.formats.empty()) {
      throw words::UsageError("calendar needs --format " + noteToolWords() +
                              ": the tool that it is written for");
    }
    words::refuse("--format", typed.formats, noteToolWords() + " for calendar");
  }
  refuseOtherEndings(typed, documents::Form::json);
  const std::int64_t year =
      words::readWholeNumber("--year", typed.year, words::firstYear, words::lastYear);
  const std::string text = *tool == NoteTool::calendarium ? notes::calendariumCalendar(year)
                                                          : notes::seasonsStarsCalendar(year);
  DocumentWriter writer = DocumentWriter::to(typed.file);
  writer.write(text);
  writer.finish();
}

}  // namespace veyruna::cli
