#include "cli/almanac/asked_conditions.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>

#include "almanac/search/condition_reader.h"
#include "cli/typed/errors.h"
#include "cli/typed/quoting.h"

namespace veyruna::cli {

namespace {

using almanac::Condition;
using almanac::ConditionError;

/// The line with the word underlined; nothing where that would break the terminal's lines or be
/// longer than they are.
std::string underlined(const ConditionError::Spot& spot) {
  constexpr std::size_t longest = 100;
  std::string line = spot.line;
  std::ranges::replace(line, '\t', ' ');
  const auto before = charactersOnALine(std::string_view(line).substr(0, spot.offset));
  const auto within = charactersOnALine(std::string_view(line).substr(spot.offset, spot.length));
  const auto inAll = charactersOnALine(line);
  if (!before || !within || !inAll || *inAll > longest) {
    return {};
  }
  return "\n  " + line + "\n  " + std::string(*before, ' ') +
         std::string(std::max<std::size_t>(*within, 1), '^');
}

/// `where` is the argument or file that holds it.
UsageError refusal(const std::string& where, const ConditionError& error) {
  const ConditionError::Spot& spot = error.spot();
  std::string message = where + ": " + error.what();
  if (spot.length > 0) {
    message += " at " + inQuotes(std::string_view(spot.line).substr(spot.offset, spot.length));
  }
  message += "; give " + error.accepted();
  if (!error.nearest().empty()) {
    message += "; the nearest is " + inQuotes(error.nearest());
  }
  return UsageError(message + underlined(spot));
}

std::vector<Condition> conditionsIn(const std::string& argument, bool isAlone) {
  try {
    std::vector<Condition> conditions = almanac::readConditions(argument);
    if (conditions.empty()) {
      throw UsageError("condition " + inQuotes(argument) + " is empty");
    }
    return conditions;
  } catch (const ConditionError& error) {
    const bool mayBeABeginning = !isAlone && error.spot().length == 0;
    throw refusal("condition " + inQuotes(argument) +
                      (mayBeABeginning ? " (the words of one condition stand in quotes)" : ""),
                  error);
  }
}

/// All of a file that a person wrote; "-" is standard input.
std::string contentOf(const std::string& file) {
  constexpr std::size_t most = 1U << 20U;
  const std::string name = file == "-" ? "/dev/stdin" : file;
  errno = 0;
  std::ifstream stream(name, std::ios::binary);
  std::string content(most + 1, '\0');
  stream.read(content.data(), static_cast<std::streamsize>(content.size()));
  if (!stream.is_open() || stream.bad()) {
    throw UsageError("-f " + inQuotes(file) + " cannot be read: " + std::strerror(errno));
  }
  content.resize(static_cast<std::size_t>(stream.gcount()));
  if (content.size() > most) {
    throw UsageError("-f " + inQuotes(file) +
                     " is longer than the megabyte that conditions may take");
  }
  return content;
}

std::vector<Condition> conditionsOf(const std::string& file) {
  try {
    return almanac::readConditions(contentOf(file));
  } catch (const ConditionError& error) {
    throw refusal("-f " + inQuotes(file) + ", line " + std::to_string(error.spot().lineNumber),
                  error);
  }
}

}  // namespace

std::vector<Condition> askedConditions(const Typed& typed) {
  std::vector<Condition> asked;
  for (const std::string& argument : typed.conditions) {
    std::ranges::move(conditionsIn(argument, typed.conditions.size() == 1),
                      std::back_inserter(asked));
  }
  if (!typed.conditionFile.empty()) {
    std::ranges::move(conditionsOf(typed.conditionFile), std::back_inserter(asked));
  }
  if (asked.empty()) {
    throw UsageError(typed.conditionFile.empty()
                         ? "search needs a condition, such as \"moon full\" or \"dunmor conjunct "
                           "galvi\", or a file of them with -f FILE"
                         : "-f " + inQuotes(typed.conditionFile) + " holds no condition");
  }
  return asked;
}

}  // namespace veyruna::cli
