#include "notes/note_tools.h"

#include <algorithm>

namespace veyruna::notes {

std::optional<NoteTool> noteToolOf(std::string_view word) {
  const auto* const found = std::ranges::find(allNoteTools, word, &NoteToolEntry::word);
  return found == allNoteTools.end() ? std::nullopt : std::optional(found->tool);
}

std::string noteToolWords(std::string_view between) {
  std::string words;
  for (const NoteToolEntry& entry : allNoteTools) {
    words.append(words.empty() ? "" : between).append(entry.word);
  }
  return words;
}

}  // namespace veyruna::notes
