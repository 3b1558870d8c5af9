#include "cli/typed/grammar.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "almanac/events/event.h"
#include "cli/typed/option_values.h"
#include "documents/documents.h"
#include "words/dates.h"
#include "words/quoting.h"
#include "words/usage_error.h"

namespace veyruna::cli {

namespace {

/// An option with a value, which is kept as it was typed.
CLI::Option* addValue(CLI::App& command, const std::string& name, const std::string& type,
                      std::string& typed, const std::string& description) {
  return command.add_option(name, typed, description)->type_name(type);
}

/// "--for", "3", "years" with the number and its unit in one word.
std::vector<std::string> withUnitsJoined(std::vector<std::string> arguments) {
  for (std::size_t i = 0; i + 1 < arguments.size(); ++i) {
    const bool isAttached = arguments[i].starts_with("--for=");
    const std::size_t number = isAttached ? i : i + 1;
    const bool isLength = isAttached || arguments[i] == "--for";
    if (isLength && number + 1 < arguments.size() && words::isUnitOfTime(arguments[number + 1])) {
      arguments[number] += " " + arguments[number + 1];
      arguments.erase(arguments.begin() + static_cast<std::ptrdiff_t>(number) + 1);
    }
  }
  return arguments;
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
  addOutput();
  for (const documents::Entry& document : documents::allDocuments) {
    if (!document.command.empty()) {
      addCommand(document.command, document.summary);
    }
  }
  app_->get_subcommand("horoscope")->add_flag("--bw", typed_.blackAndWhite, "Black on white");
  addTable("ephemeris", "Moon and sun at moments of your own", "--rows 24 --step 1/24");
  addTable("conjunctions", "All bodies at moments of your own", "--rows 720 --step 10");
  addEvents();
  addSearch();
  addCommand("base-time", "The moment as days since noon of the first day");
  CLI::App* const all = addCommand("all", "Every document, into one folder", " --out campaign");
  addValue(*all, "--out", "DIR", typed_.folder, "The folder; made where it is missing");
  addBatch();
  addPage();
  addCommand("locations", "The saved places with their coordinates");
  addCalendar();
  addSchema();
  app_->add_subcommand("help", "Show what a command does, with an example")
      ->group("Commands")
      ->add_option("COMMAND", typed_.helpTopic, "The command");
}

Grammar::~Grammar() = default;

const Typed& Grammar::parse(const std::vector<std::string>& arguments) {
  std::vector<std::string> fromTheBack = withValuesAttached(*app_, withUnitsJoined(arguments));
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
    throw words::UsageError(error.what());
  }
  typed_.command = chosenCommand();
  refuseTwoOf("--base-time", typed_.baseTime, {"--year", "--month", "--day", "--hour", "--local"},
              "moments");
  refuseTwoOf("--location", typed_.location, {"--lat", "--long"}, "places");
  typed_.hasMoment = isGiven("--base-time") || isGiven("--year") || isGiven("--month") ||
                     isGiven("--day") || isGiven("--hour");
  typed_.hasPlace = isGiven("--lat") || isGiven("--long") || !typed_.location.empty();
  refuseMomentBesideOthers();
  const std::vector<std::string> extras = app_->remaining(true);
  if (!extras.empty()) {
    refuseExtra(extras.front());
  }
  if (typed_.command.empty()) {
    throw words::UsageError("a command is missing; give one of " + commandNames());
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
    throw words::UsageError("help: " + words::inQuotes(topic) + " is not a command; give one of " +
                            commandNames());
  }
  return app_->get_formatter()->make_help(*found, "veyruna " + topic, CLI::AppFormatMode::Normal);
}

void Grammar::addMoment() {
  const auto add = [this](const char* name, const char* type, std::string& typed,
                          const char* description) {
    addValue(*app_, name, type, typed, description)->group("Moment");
  };
  add("--base-time", "T", typed_.baseTime, "Instead of a date: days since noon of the first day");
  add("--year", "Y", typed_.year, "Year, from 1 (720)");
  add("--month", "M", typed_.month, "Month, 1 to 12 or its name (1)");
  add("--day", "D", typed_.day, "Day, 1 to 30 (1)");
  add("--hour", "H", typed_.hour, "Hour, 18.25 or 18:15 (12)");
  app_->add_flag("--local", typed_.isLocal, "The hour is local solar time")->group("Moment");
}

void Grammar::addPlace() {
  const auto add = [this](const char* name, const char* type, std::string& typed,
                          const char* description) {
    addValue(*app_, name, type, typed, description)->group("Place");
  };
  add("--lat", "DEG", typed_.latitude, "Latitude, 40.5N or 40.5, south negative (40.5)");
  add("--long", "DEG", typed_.longitude, "Longitude, 20.9W or -20.9, west negative (-20.9)");
  add("--location", "NAME", typed_.location, "Instead of both: the name of a saved place");
}

void Grammar::addOutput() {
  const auto add = [this](const char* name, const char* type, std::string& typed,
                          const char* description) {
    addValue(*app_, name, type, typed, description)->group("Output");
  };
  add("-o", "FILE", typed_.file,
      "Write to FILE instead of standard output; .html, .pdf and .png are drawn, .json, .jsonl "
      "and .csv are for programs");
  add("--format", "FORM", typed_.formats,
      "The form, whatever the file is called; of all and batch, several such as svg,pdf,csv");
  add("--size", "PIXELS", typed_.size, "How wide a PNG is, 16 to 10000 (720, a horoscope 1440)");
}

bool Grammar::isGiven(const char* option) const {
  return app_->get_option(option)->count() > 0;
}

void Grammar::refuseMomentBesideOthers() const {
  const auto refuseIfGiven = [this](std::initializer_list<const char*> options,
                                    const std::string& instead) {
    for (const char* const option : options) {
      if (isGiven(option)) {
        throw words::UsageError(std::string(option) + " is of one moment; " + typed_.command +
                                " takes " + instead);
      }
    }
  };
  if (typed_.command == "batch") {
    refuseIfGiven({"--base-time", "--year", "--month", "--day"}, "the date of each row");
  } else if (typed_.command == "page" && typed_.from.empty()) {
    return;  // which opens at a moment or is bound to a stretch
  } else if (!typed_.command.empty() &&
             app_->get_subcommand(typed_.command)->get_option_no_throw("--from") != nullptr) {
    refuseIfGiven({"--base-time", "--year", "--month", "--day", "--hour"},
                  "--from DATE and --to DATE, or --for N UNIT");
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

CLI::App* Grammar::addStretchCommand(std::string_view name, std::string_view summary,
                                     const std::string& exampleEnd) {
  const std::string word(name);
  CLI::App* const command = app_->add_subcommand(word, std::string(summary))->group("Commands");
  addValue(*command, "--from", "DATE", typed_.from, "The beginning, 720-06-12 or 720-06-12T22:30");
  addValue(*command, "--to", "DATE", typed_.to, "The end, which is no part of it");
  addValue(*command, "--for", "N UNIT", typed_.length,
           "Instead of the end: 10 days, months, years");
  command->footer(
      "`veyruna --help` says how a place and a file (-o) are given.\n\nExample:\n"
      "  veyruna " +
      word + exampleEnd);
  return command;
}

void Grammar::addEvents() {
  CLI::App* const events =
      addStretchCommand("events", "What happens in the sky, in the order of time",
                        " --from 720-01-01 --for 1 year --kind eclipse,season --location Wendmark");
  std::string kinds;
  for (const almanac::EventKindEntry& kind : almanac::allEventKinds) {
    kinds += (kinds.empty() ? "" : ", ") + std::string(kind.word);
  }
  addValue(*events, "--kind", "KIND[,KIND...]", typed_.kinds,
           "Instead of all: of " + kinds +
               "; conjunction:all and opposition:all pair the sun and "
               "the moon, too");
  addValue(*events, "--out", "DIR", typed_.folder,
           "The folder of --format calendarium, a note each; made where it is missing");
  addValue(*events, "--visibility", "WHO", typed_.visibility,
           "Of --format calendarium and seasons-stars: gm for all (gm), player for what is seen");
}

void Grammar::addCalendar() {
  app_->add_subcommand("calendar", "The calendar for tools that keep events")
      ->group("Commands")
      ->footer(
          "--format says for which: calendarium or seasons-stars; --year is the present one.\n\n"
          "Example:\n  veyruna calendar --year 720 --format seasons-stars -o veyruna.json");
}

void Grammar::addSearch() {
  CLI::App* const search = addStretchCommand(
      "search", "When all of these conditions hold",
      " --from 720-01-01 --for 10 years --location Ebb 'keep twisted' 'ascending sign Wen' night");
  search->add_option("CONDITION", typed_.conditions,
                     "Such as 'dunmor conjunct galvi', each in quotes; the manual lists them all");
  addValue(*search, "-f", "FILE", typed_.conditionFile, "Further conditions, one a line");
  search->add_flag("--explain", typed_.isExplained, "First say what is asked, and what is not");
  addValue(*search, "--first", "N", typed_.first, "No more than the first N answers");
}

void Grammar::addPage() {
  CLI::App* const page = addStretchCommand(
      "page", "The sky in one page for any browser, made for a session",
      " --from 720-06-12T18:00 --to 720-06-13T02:00 --location Ebb --player -o evening.html");
  page->add_flag("--player", typed_.isForPlayers, "Shows what eyes can see from there, no more");
  addValue(*page, "--title", "TEXT", typed_.title, "What stands over it");
}

void Grammar::addSchema() {
  CLI::App* const schema =
      app_->add_subcommand("schema", "What JSON and JSON Lines hold, as a JSON Schema")
          ->group("Commands");
  schema->add_option("NAME", typed_.schema, "Of what; without it the names are listed");
  schema->footer(
      "--format jsonl asks for the schema of a line.\n\nExample:\n"
      "  veyruna schema events -o events.schema.json");
}

void Grammar::addBatch() {
  CLI::App* const batch =
      app_->add_subcommand("batch", "Documents of many people or scenes, a row of a table each")
          ->group("Commands");
  batch->add_option("FILE.csv", typed_.table, "The table; - for standard input");
  addValue(*batch, "--out", "DIR", typed_.folder, "The folder; made where it is missing");
  addValue(*batch, "--documents", "COMMAND[,COMMAND...]", typed_.documents,
           "What is written of each row (horoscope,star-map)");
  batch->add_flag("--bw", typed_.blackAndWhite, "Horoscopes black on white");
  batch->footer(
      "The table's first line names its columns: name, date, hour, local and place, in any order.\n"
      "Where a row says no hour or place, --hour, --local and --location do.\n\nExample:\n"
      "  veyruna batch people.csv --out campaign --documents horoscope,hourly --format pdf");
}

void Grammar::addTable(const std::string& name, const std::string& summary,
                       const std::string& example) {
  CLI::App* const command = addCommand(name, summary, " " + example);
  addValue(*command, "--rows", "N", typed_.rows, "How many rows");
  addValue(*command, "--step", "DAYS", typed_.step, "Days from row to row, 0.5 or 1/24");
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
    const std::string name = optionName(extra);
    const std::string owners = commandsWith(name);
    throw words::UsageError(owners.empty()
                                ? words::inQuotes(name) + " is no option; veyruna --help lists them"
                                : words::inQuotes(name) + " belongs behind " + owners);
  }
  if (chosenCommand().empty()) {
    throw words::UsageError(words::inQuotes(extra) + " is not a command; give one of " +
                            commandNames());
  }
  throw words::UsageError(words::inQuotes(extra) + " is one word too many behind " +
                          chosenCommand());
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
