#include "cli/almanac/asked_conditions.h"

#include <cstddef>
#include <iterator>
#include <string>

#include "almanac/search/condition_reader.h"
#include "cli/typed/named_file.h"
#include "words/condition_refusal.h"
#include "words/quoting.h"
#include "words/usage_error.h"

namespace veyruna::cli {

namespace {

using almanac::Condition;
using almanac::ConditionError;

std::vector<Condition> conditionsIn(const std::string& argument, bool isAlone) {
  try {
    std::vector<Condition> conditions = almanac::readConditions(argument);
    if (conditions.empty()) {
      throw words::UsageError("condition " + words::inQuotes(argument) + " is empty");
    }
    return conditions;
  } catch (const ConditionError& error) {
    const bool mayBeABeginning = !isAlone && error.spot().length == 0;
    throw words::refusalOf(
        "condition " + words::inQuotes(argument) +
            (mayBeABeginning ? " (the words of one condition stand in quotes)" : ""),
        error);
  }
}

std::vector<Condition> conditionsOf(const std::string& file) {
  constexpr std::size_t mostBytes = 1U << 20U;
  try {
    return almanac::readConditions(contentOfFile(file, mostBytes));
  } catch (const ConditionError& error) {
    throw words::refusalOf(
        "-f " + words::inQuotes(file) + ", line " + std::to_string(error.spot().lineNumber), error);
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
    throw words::UsageError(
        typed.conditionFile.empty()
            ? "search needs a condition, such as \"moon full\" or \"dunmor conjunct "
              "galvi\", or a file of them with -f FILE"
            : "-f " + words::inQuotes(typed.conditionFile) + " holds no condition");
  }
  return asked;
}

}  // namespace veyruna::cli
