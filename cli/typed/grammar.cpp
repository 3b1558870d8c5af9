#include "cli/typed/grammar.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "cli/typed/option_values.h"
#include "words/dates.h"
#include "words/listing.h"
#include "words/nearest.h"
#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::cli {

namespace {

/// "--for", "3", "years" with the number and its unit in one word, whatever unit it is.
std::vector<std::string> withUnitsJoined(std::vector<std::string> arguments) {
  for (std::size_t i = 0; i + 1 < arguments.size(); ++i) {
    const bool isAttached = arguments[i].starts_with("--for=");
    const std::size_t number = isAttached ? i : i + 1;
    const bool isLength = isAttached || arguments[i] == "--for";
    const std::string value =
        isAttached ? arguments[i].substr(arguments[i].find('=') + 1) : arguments[number];
    if (isLength && words::numberOf(value) && number + 1 < arguments.size() &&
        !arguments[number + 1].starts_with('-')) {
      arguments[number] += " " + arguments[number + 1];
      arguments.erase(arguments.begin() + static_cast<std::ptrdiff_t>(number) + 1);
    }
  }
  return arguments;
}

}  // namespace

const Typed& Grammar::parse(const std::vector<std::string>& arguments) {
  Typed& typed = language_.typed();
  std::vector<std::string> fromTheBack =
      withValuesAttached(language_.app(), withUnitsJoined(arguments));
  std::reverse(fromTheBack.begin(), fromTheBack.end());
  try {
    language_.app().parse(fromTheBack);
  } catch (const CLI::CallForHelp&) {
    typed.helpTopic = chosenCommand();
    typed.command = "help";
    return typed;
  } catch (const CLI::CallForVersion&) {
    typed.command = "version";
    return typed;
  } catch (const CLI::ParseError& error) {
    throw words::UsageError(error.what());
  }
  typed.command = chosenCommand();
  refuseTwoOf("--base-time", typed.baseTime, {"--year", "--month", "--day", "--hour", "--local"},
              "moments");
  refuseTwoOf("--location", typed.location, {"--lat", "--long"}, "places");
  typed.hasMoment = isGiven("--base-time") || isGiven("--year") || isGiven("--month") ||
                    isGiven("--day") || isGiven("--hour");
  typed.hasPlace = isGiven("--lat") || isGiven("--long") || !typed.location.empty();
  refuseMomentBesideOthers();
  refuseWhatNobodyReads();
  const std::vector<std::string> extras = language_.app().remaining(true);
  if (!extras.empty()) {
    refuseExtra(extras.front());
  }
  if (typed.command.empty()) {
    throw words::UsageError("a command is missing; give one of " + words::joined(commandNames()));
  }
  return typed;
}

std::string Grammar::helpText(const std::string& topic) const {
  if (topic.empty()) {
    return language_.app().get_formatter()->make_help(&language_.app(), language_.app().get_name(),
                                                      CLI::AppFormatMode::Normal);
  }
  const auto commands = language_.app().get_subcommands(nullptr);
  const auto found = std::find_if(commands.begin(), commands.end(), [&](const CLI::App* command) {
    return command->get_name() == topic;
  });
  if (found == commands.end()) {
    throw words::UsageError("help: " + refusalOfCommand(topic));
  }
  return language_.app().get_formatter()->make_help(*found, "veyruna " + topic,
                                                    CLI::AppFormatMode::Normal);
}

bool Grammar::isGiven(const char* option) const {
  return language_.app().get_option(option)->count() > 0;
}

void Grammar::refuseMomentBesideOthers() const {
  const Typed& typed = language_.typed();
  const auto refuseIfGiven = [&](std::initializer_list<const char*> options,
                                 const std::string& instead) {
    for (const char* const option : options) {
      if (isGiven(option)) {
        throw words::UsageError(std::string(option) + " is of one moment; " + typed.command +
                                " takes " + instead);
      }
    }
  };
  if (typed.command == "batch") {
    refuseIfGiven({"--base-time", "--year", "--month", "--day"}, "the date of each row");
  } else if (typed.command == "page" && typed.from.empty()) {
    return;  // which opens at a moment or is bound to a stretch
  } else if (!typed.command.empty() &&
             language_.app().get_subcommand(typed.command)->get_option_no_throw("--from") !=
                 nullptr) {
    refuseIfGiven({"--base-time", "--year", "--month", "--day", "--hour"},
                  "--from DATE and --to DATE, or --for N UNIT");
  }
}

void Grammar::refuseWhatNobodyReads() const {
  const std::string& command = language_.typed().command;
  const bool isCalendar = command == "calendar";
  if (!isCalendar && command != "locations" && command != "schema" && command != "help") {
    return;
  }
  for (const std::string_view option : {"--base-time", "--year", "--month", "--day", "--hour",
                                        "--local", "--lat", "--long", "--location"}) {
    const bool isRead = isCalendar && option == "--year";
    if (isGiven(option.data()) && !isRead) {
      throw words::UsageError(std::string(option) + " is of one moment or place; " + command +
                              " takes " + (isCalendar ? "--year alone" : "none"));
    }
  }
}

void Grammar::refuseTwoOf(const char* whole, const std::string& typed,
                          std::initializer_list<const char*> parts, const char* what) const {
  for (const char* const part : parts) {
    if (!typed.empty() && isGiven(part)) {
      throw words::UsageError(std::string(whole) + " " + words::inQuotes(typed) + " and " + part +
                              " name two " + what + "; give one");
    }
  }
}

std::vector<std::string> Grammar::commandNames() const {
  std::vector<std::string> names;
  for (const CLI::App* const command : language_.app().get_subcommands(nullptr)) {
    names.push_back(command->get_name());
  }
  return names;
}

std::vector<std::string> Grammar::optionNames() const {
  std::vector<std::string> names;
  const auto addNames = [&names](const CLI::App& app) {
    for (const CLI::Option* const option : app.get_options()) {
      for (const std::string& name : option->get_lnames()) {
        names.push_back(name);
      }
    }
  };
  addNames(language_.app());
  const std::string chosen = chosenCommand();
  for (const CLI::App* const command : language_.app().get_subcommands(nullptr)) {
    if (chosen.empty() || command->get_name() == chosen) {
      addNames(*command);
    }
  }
  return names;
}

std::string Grammar::refusalOfCommand(const std::string& word) const {
  const std::vector<std::string> names = commandNames();
  return words::inQuotes(word) + " is not a command; give one of " + words::joined(names) +
         words::asNearest(words::nearestOf(word, names));
}

std::string Grammar::refusalOfOption(const std::string& name) const {
  if (const std::string owners = commandsWith(name); !owners.empty()) {
    return words::inQuotes(name) + " belongs behind " + owners;
  }
  const std::string bare = name.substr(std::min(name.find_first_not_of('-'), name.size()));
  const std::string nearest = words::nearestOf(bare, optionNames());
  const std::string command = chosenCommand();
  return words::inQuotes(name) + " is no option; veyruna --help " +
         (command.empty() ? "lists them" : "and veyruna help " + command + " list them") +
         words::asNearest(nearest.empty() ? "" : "--" + nearest);
}

std::string Grammar::chosenCommand() const {
  const auto chosen = language_.app().get_subcommands();
  return chosen.empty() ? "" : chosen.front()->get_name();
}

void Grammar::refuseExtra(const std::string& extra) const {
  if (extra.size() > 1 && extra.starts_with('-')) {
    // What follows a short option has been joined to it.
    const std::string shortName = extra.substr(0, 2);
    throw words::UsageError(
        refusalOfOption(commandsWith(shortName).empty() ? optionName(extra) : shortName));
  }
  if (chosenCommand().empty()) {
    throw words::UsageError(refusalOfCommand(extra));
  }
  throw words::UsageError(words::inQuotes(extra) + " is one word too many behind " +
                          chosenCommand());
}

std::string Grammar::commandsWith(const std::string& option) const {
  std::vector<std::string> names;
  for (const CLI::App* const command : language_.app().get_subcommands(nullptr)) {
    if (command->get_option_no_throw(option) != nullptr) {
      names.push_back(command->get_name());
    }
  }
  return words::joined(names, " or ");
}

}  // namespace veyruna::cli
