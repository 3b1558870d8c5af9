#pragma once

#include <optional>
#include <string>

#include "cli/typed/grammar.h"

namespace veyruna::cli {

/// Other people's tools that events and the calendar are written for.
enum class NoteTool { calendarium, seasonsStars };

/// The tool that a form names; nothing where it names none.
std::optional<NoteTool> noteToolOf(const std::string& form);

/// "calendarium or seasons-stars", with what is put between them.
std::string noteToolWords(const std::string& between = " or ");

/// Writes the calendar as a tool takes it. Throws UsageError.
void writeCalendar(const Typed& typed);

}  // namespace veyruna::cli
