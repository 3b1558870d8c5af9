#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace veyruna::notes {

/// Other people's tools that events and the calendar are written for.
enum class NoteTool { calendarium, seasonsStars };

struct NoteToolEntry {
  NoteTool tool;
  std::string_view word;  ///< by which a person names it
};
inline constexpr std::array<NoteToolEntry, 2> allNoteTools = {
    {{NoteTool::calendarium, "calendarium"}, {NoteTool::seasonsStars, "seasons-stars"}}};

/// The tool that a word names; nothing where it names none.
std::optional<NoteTool> noteToolOf(std::string_view word);

/// "calendarium or seasons-stars", with what is put between them.
std::string noteToolWords(std::string_view between = " or ");

}  // namespace veyruna::notes
