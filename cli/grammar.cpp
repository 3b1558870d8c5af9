#include "cli/grammar.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <set>

#include "cli/documents.h"
#include "cli/errors.h"
#include "cli/quoting.h"

namespace veyruna::cli {

namespace {

/// "--lat -20" as "--lat=-20": what follows these options is theirs, even with a minus in front.
std::vector<std::string> withValuesAttached(const std::vector<std::string>& arguments) {
  static const std::set<std::string> takesValue = {"-o",     "--year",      "--month", "--day",
                                                   "--hour", "--base-time", "--lat",   "--long",
                                                   "--rows", "--step",      "--out"};
  std::vector<std::string> attached;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string name = arguments[i].substr(0, arguments[i].find('='));
    if (!takesValue.contains(name)) {
      attached.push_back(arguments[i]);
      continue;
    }
    const bool isAttached = name.size() < arguments[i].size();
    const std::string given = isAttached                 ? arguments[i].substr(name.size() + 1)
                              : i + 1 < arguments.size() ? arguments[++i]
                                                         : "";
    if (given.empty()) {
      throw UsageError(name + ": a value is missing");
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
  app_->set_version_flag("--version", "version");
  app_->set_help_flag("-h,--help", "Show this help");
  app_->get_formatter()->label("SUBCOMMAND", "COMMAND");
  app_->get_formatter()->label("Subcommands", "Commands");
  app_->footer("`veyruna help COMMAND` shows an example of each.");
  addMoment();
  addPlace();
  app_->add_option("-o", typed_.file, "Write the document to FILE instead of standard output")
      ->type_name("FILE");
  for (const Document& document : allDocuments) {
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
  app_->add_subcommand("help", "Show what a command does, with an example")
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
  refuseTwoMoments();
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
  app_->add_option("--base-time", typed_.baseTime, "Days since noon of the first day, alone")
      ->type_name("T")
      ->group(moment);
  const auto add = [&](const std::string& name, std::string& typed, const std::string& type,
                       const std::string& description) {
    app_->add_option(name, typed, description)
        ->type_name(type)
        ->capture_default_str()
        ->group(moment);
  };
  add("--year", typed_.year, "Y", "Year, from 1");
  add("--month", typed_.month, "M", "Month, 1 to 12 or its name");
  add("--day", typed_.day, "D", "Day, 1 to 30");
  add("--hour", typed_.hour, "H", "Hour, 18.25 or 18:15");
  app_->add_flag("--local", typed_.isLocal, "The hour is local solar time")->group(moment);
}

void Grammar::addPlace() {
  const std::string place = "Place";
  app_->add_option("--lat", typed_.latitude, "Latitude, 40.5 or 40.5N, south negative")
      ->type_name("DEG")
      ->capture_default_str()
      ->group(place);
  app_->add_option("--long", typed_.longitude, "Longitude, 20.9W or -20.9, west negative")
      ->type_name("DEG")
      ->capture_default_str()
      ->group(place);
}

void Grammar::refuseTwoMoments() const {
  if (typed_.baseTime.empty()) {
    return;
  }
  for (const char* const option : {"--year", "--month", "--day", "--hour", "--local"}) {
    if (app_->get_option(option)->count() > 0) {
      throw UsageError("--base-time " + inQuotes(typed_.baseTime) + " and " + option +
                       " name two moments; give one");
    }
  }
}

CLI::App* Grammar::addCommand(std::string_view name, std::string_view summary,
                              const std::string& exampleEnd) {
  const std::string word(name);
  CLI::App* const command = app_->add_subcommand(word, std::string(summary));
  command->footer(
      "The moment and the place are given as `veyruna --help` says.\n\nExample:\n"
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
    throw UsageError(inQuotes(extra) + " is no option here; veyruna --help lists them");
  }
  if (chosenCommand().empty()) {
    throw UsageError(inQuotes(extra) + " is not a command; give one of " + commandNames());
  }
  throw UsageError(inQuotes(extra) + " is one word too many behind " + chosenCommand());
}

}  // namespace veyruna::cli
