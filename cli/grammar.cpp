#include "cli/grammar.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <set>

#include "cli/errors.h"
#include "cli/quoting.h"

#include "documents/documents.h"

namespace veyruna::cli {

namespace {

const std::set<std::string> valueOptions = {"-o",     "--year",      "--month", "--day",
                                            "--hour", "--base-time", "--lat",   "--long",
                                            "--rows", "--step",      "--out",   "--location"};
const std::set<std::string> flags = {"--local", "--bw", "--help", "--version"};

/// "--lat -20" as "--lat=-20": what follows these options is theirs, even with a minus in front.
std::vector<std::string> withValuesAttached(const std::vector<std::string>& arguments) {
  std::vector<std::string> attached;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string name = arguments[i].substr(0, arguments[i].find('='));
    const bool isAttached = name.size() < arguments[i].size();
    if (flags.contains(name) && isAttached) {
      throw UsageError(inQuotes(arguments[i]) + " is not accepted; " + name + " takes no value");
    }
    if (!valueOptions.contains(name)) {
      attached.push_back(arguments[i]);
      continue;
    }
    const std::string given = isAttached                 ? arguments[i].substr(name.size() + 1)
                              : i + 1 < arguments.size() ? arguments[++i]
                                                         : "";
    if (given.empty()) {
      throw UsageError(name + ": a value is missing; veyruna --help says which are accepted");
    }
    attached.push_back(name == "-o" ? name + given : name + "=" + given);
  }
  return attached;
}

}  // namespace

Grammar::Grammar()
    : app_(std::make_unique<CLI::App>("The sky of Veyruna for a moment and a place.", "veyruna")) {
  app_->fallthrough();
  app_->require_subcommand(0, 1);
  app_->option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
  app_->allow_extras();
  app_->set_version_flag("--version", "version", "Show the version");
  app_->set_help_flag("-h,--help", "Show this help");
  app_->get_formatter()->label("SUBCOMMAND", "COMMAND");
  app_->footer("`veyruna help COMMAND` shows an example of each.");
  addMoment();
  addPlace();
  app_->add_option("-o", typed_.file, "Write the document to FILE instead of standard output")
      ->type_name("FILE");
  for (const documents::Entry& document : documents::allDocuments) {
    if (!document.command.empty()) {
      addCommand(document.command, document.summary);
    }
  }
  app_->get_subcommand("horoscope")->add_flag("--bw", typed_.blackAndWhite, "Black on white");
  addTable("ephemeris", "Moon and sun at moments of your own", "--rows 24 --step 1/24");
  addTable("conjunctions", "All bodies at moments of your own", "--rows 720 --step 10");
  addCommand("base-time", "The moment as days since noon of the first day");
  addCommand("all", "Every document, into one folder", " --out campaign")
      ->add_option("--out", typed_.folder, "The folder; made where it is missing")
      ->type_name("DIR");
  addCommand("locations", "The saved places with their coordinates");
  app_->add_subcommand("help", "Show what a command does, with an example")
      ->group("Commands")
      ->add_option("COMMAND", typed_.helpTopic, "The command");
}

Grammar::~Grammar() = default;

const Typed& Grammar::parse(const std::vector<std::string>& arguments) {
  std::vector<std::string> fromTheBack = withValuesAttached(arguments);
  std::reverse(fromTheBack.begin(), fromTheBack.end());
  try {
    app_->parse(fromTheBack);
  } catch (const CLI::CallForHelp&) {
    typed_.helpTopic = chosenCommand();
    typed_.command = "help";
    return typed_;
  } catch (const CLI::CallForVersion&) {
    typed_.command = "version";
    return typed_;
  } catch (const CLI::ParseError& error) {
    throw UsageError(error.what());
  }
  typed_.command = chosenCommand();
  refuseTwoOf("--base-time", typed_.baseTime, {"--year", "--month", "--day", "--hour", "--local"},
              "moments");
  refuseTwoOf("--location", typed_.location, {"--lat", "--long"}, "places");
  const std::vector<std::string> extras = app_->remaining(true);
  if (!extras.empty()) {
    refuseExtra(extras.front());
  }
  if (typed_.command.empty()) {
    throw UsageError("a command is missing; give one of " + commandNames());
  }
  return typed_;
}

std::string Grammar::helpText(const std::string& topic) const {
  if (topic.empty()) {
    return app_->get_formatter()->make_help(app_.get(), app_->get_name(),
                                            CLI::AppFormatMode::Normal);
  }
  const auto commands = app_->get_subcommands(nullptr);
  const auto found = std::find_if(commands.begin(), commands.end(), [&](const CLI::App* command) {
    return command->get_name() == topic;
  });
  if (found == commands.end()) {
    throw UsageError("help: " + inQuotes(topic) + " is not a command; give one of " +
                     commandNames());
  }
  return app_->get_formatter()->make_help(*found, "veyruna " + topic, CLI::AppFormatMode::Normal);
}

void Grammar::addMoment() {
  const std::string moment = "Moment";
  app_->add_option("--base-time", typed_.baseTime,
                   "Instead of a date: days since noon of the first day")
      ->type_name("T")
      ->group(moment);
  const auto add = [&](const std::string& name, std::string& typed, const std::string& type,
                       const std::string& description) {
    app_->add_option(name, typed, description)->type_name(type)->group(moment);
  };
  add("--year", typed_.year, "Y", "Year, from 1 (720)");
  add("--month", typed_.month, "M", "Month, 1 to 12 or its name (1)");
  add("--day", typed_.day, "D", "Day, 1 to 30 (1)");
  add("--hour", typed_.hour, "H", "Hour, 18.25 or 18:15 (12)");
  app_->add_flag("--local", typed_.isLocal, "The hour is local solar time")->group(moment);
}

void Grammar::addPlace() {
  const std::string place = "Place";
  app_->add_option("--lat", typed_.latitude, "Latitude, 40.5N or 40.5, south negative (40.5)")
      ->type_name("DEG")
      ->group(place);
  app_->add_option("--long", typed_.longitude, "Longitude, 20.9W or -20.9, west negative (-20.9)")
      ->type_name("DEG")
      ->group(place);
  app_->add_option("--location", typed_.location, "Instead of both: the name of a saved place")
      ->type_name("NAME")
      ->group(place);
}

void Grammar::refuseTwoOf(const char* whole, const std::string& typed,
                          std::initializer_list<const char*> parts, const char* what) const {
  for (const char* const part : parts) {
    if (!typed.empty() && app_->get_option(part)->count() > 0) {
      throw UsageError(std::string(whole) + " " + inQuotes(typed) + " and " + part + " name two " +
                       what + "; give one");
    }
  }
}

CLI::App* Grammar::addCommand(std::string_view name, std::string_view summary,
                              const std::string& exampleEnd) {
  const std::string word(name);
  CLI::App* const command = app_->add_subcommand(word, std::string(summary))->group("Commands");
  command->footer(
      "`veyruna --help` says how the moment, the place and a file (-o) are given.\n\nExample:\n"
      "  veyruna --year 720 --month Dovri --day 10 --hour 18:15 --lat 40.5N --long 20.9W " +
      word + exampleEnd);
  return command;
}

void Grammar::addTable(const std::string& name, const std::string& summary,
                       const std::string& example) {
  CLI::App* const command = addCommand(name, summary, " " + example);
  command->add_option("--rows", typed_.rows, "How many rows")->type_name("N");
  command->add_option("--step", typed_.step, "Days from row to row, 0.5 or 1/24")
      ->type_name("DAYS");
}

std::string Grammar::commandNames() const {
  std::string names;
  for (const CLI::App* const command : app_->get_subcommands(nullptr)) {
    names += (names.empty() ? "" : ", ") + command->get_name();
  }
  return names;
}

std::string Grammar::chosenCommand() const {
  const auto chosen = app_->get_subcommands();
  return chosen.empty() ? "" : chosen.front()->get_name();
}

void Grammar::refuseExtra(const std::string& extra) const {
  if (extra.size() > 1 && extra.starts_with('-')) {
    const std::string option = extra.substr(0, extra.find('='));
    const std::string owners = commandsWith(option);
    throw UsageError(owners.empty() ? inQuotes(option) + " is no option; veyruna --help lists them"
                                    : inQuotes(option) + " belongs behind " + owners);
  }
  if (chosenCommand().empty()) {
    throw UsageError(inQuotes(extra) + " is not a command; give one of " + commandNames());
  }
  throw UsageError(inQuotes(extra) + " is one word too many behind " + chosenCommand());
}

std::string Grammar::commandsWith(const std::string& option) const {
  std::string names;
  for (const CLI::App* const command : app_->get_subcommands(nullptr)) {
    if (command->get_option_no_throw(option) != nullptr) {
      names += (names.empty() ? "" : " or ") + command->get_name();
    }
  }
  return names;
}

}  // namespace veyruna::cli
