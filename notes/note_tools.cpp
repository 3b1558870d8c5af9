#include "notes/note_tools.h"

#include <algorithm>

#include "words/listing.h"

namespace veyruna::notes {

std::optional<NoteTool> noteToolOf(std::string_view word) {
  const auto* const found = std::ranges::find(allNoteTools, word, &NoteToolEntry::word);
  return found == allNoteTools.end() ? std::nullopt : std::optional(found->tool);
}

std::string noteToolWords(std::string_view between) {
  return words::joined(allNoteTools, between, &NoteToolEntry::word);
}

}  // namespace veyruna::notes
