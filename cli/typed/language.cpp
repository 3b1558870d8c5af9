#include "cli/typed/language.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <utility>

#include "almanac/events/event.h"
#include "astro/calendar.h"
#include "documents/documents.h"
#include "documents/forms.h"
#include "notes/note_tools.h"
#include "records/all_types.h"
#include "words/listing.h"

namespace veyruna::cli {

namespace {

Offered words(std::vector<std::string> words) {
  return {.kind = Offer::words, .words = std::move(words)};
}

Offered listOf(std::vector<std::string> words) {
  return {.kind = Offer::listOfWords, .words = std::move(words)};
}

/// One member of every row of a table.
template <typename Rows, typename Member>
std::vector<std::string> column(const Rows& rows, Member member) {
  std::vector<std::string> texts(rows.size());
  std::ranges::transform(rows, texts.begin(),
                         [member](const auto& row) { return std::string(row.*member); });
  return texts;
}

/// In lines that fit beside the names of options on a terminal of 80 columns.
std::string wrapped(const std::string& text) {
  constexpr std::size_t columns = 50;
  std::string lines;
  std::size_t lineStart = 0;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find(' ', at), text.size());
    const std::size_t length = end - at;
    if (at > 0) {
      const bool fits = lines.size() - lineStart + 1 + length <= columns;
      lines += fits ? ' ' : '\n';
      lineStart = fits ? lineStart : lines.size();
    }
    lines.append(text, at, length);
    at = end + 1;
  }
  return lines;
}

std::vector<std::string> documentCommands() {
  std::vector<std::string> commands = column(documents::allDocuments, &documents::Entry::command);
  std::erase(commands, "");
  return commands;
}

std::vector<std::string> formWords() {
  std::vector<std::string> forms = column(documents::allForms, &documents::FormEntry::extension);
  const std::vector<std::string> tools = column(notes::allNoteTools, &notes::NoteToolEntry::word);
  forms.insert(forms.end(), tools.begin(), tools.end());
  return forms;
}

}  // namespace

Language::Language()
    : app_(std::make_unique<CLI::App>("The sky of Veyruna for a moment and a place.", "veyruna")) {
  app_->fallthrough();
  app_->require_subcommand(0, 1);
  app_->option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
  app_->allow_extras();
  app_->set_version_flag("--version", "version", "Show the version");
  app_->set_help_flag("-h,--help", "Show this help");
  app_->get_formatter()->label("SUBCOMMAND", "COMMAND");
  app_->footer("`veyruna help COMMAND` shows the options of each, with an example.");
  addMoment();
  addPlace();
  addOutput();
  for (const documents::Entry& document : documents::allDocuments) {
    if (!document.command.empty()) {
      addDocument(document.command, document.summary);
    }
  }
  app_->get_subcommand("horoscope")
      ->add_flag("--bw", typed_.blackAndWhite, wrapped("Black on white"));
  addTable("ephemeris", "Moon and sun at moments of your own", "--rows 24 --step 1/24");
  addTable("conjunctions", "All bodies at moments of your own", "--rows 720 --step 10");
  addEvents();
  addSearch();
  addDocument("base-time", "The moment as days since noon of the first day");
  add(*addDocument("all", "Every document, into one folder", " --out campaign"),
      {.name = "--out",
       .type = "DIR",
       .typed = typed_.folder,
       .description = "The folder; made where it is missing",
       .offered = {.kind = Offer::folders}});
  addBatch();
  addPage();
  say(*addCommand("locations", "The saved places with their coordinates"), "",
      {.note = "The forms for programs hold their numbers, too.",
       .example = "locations --format json"});
  addCalendar();
  addSchema();
  addHelp();
}

Language::~Language() = default;

CLI::Option* Language::add(CLI::App& command, Value value) {
  CLI::Option* const option =
      command.add_option(value.name, value.typed, wrapped(value.description));
  offered_[option] = std::move(value.offered);
  return option->type_name(value.type);
}

void Language::addMoment() {
  const auto addOne = [this](const char* name, const char* type, std::string& typed,
                             const char* description, Offered offered = {}) {
    add(*app_, {name, type, typed, description, std::move(offered)})->group("Moment");
  };
  addOne("--base-time", "T", typed_.baseTime,
         "Instead of a date: days since noon of the first day");
  addOne("--year", "Y", typed_.year, "Year, from 1 (720)");
  addOne("--month", "M", typed_.month, "Month, 1 to 12 or its name (1)",
         words({astro::monthNames.begin(), astro::monthNames.end()}));
  addOne("--day", "D", typed_.day, "Day, 1 to 30 (1)");
  addOne("--hour", "H", typed_.hour, "Hour, 18.25 or 18:15, up to 24 (12)");
  app_->add_flag("--local", typed_.isLocal,
                 wrapped("The hour is local solar time; of events, search and page, all hours are"))
      ->group("Moment");
}

void Language::addPlace() {
  const auto addOne = [this](const char* name, const char* type, std::string& typed,
                             const char* description, Offered offered = {}) {
    add(*app_, {name, type, typed, description, std::move(offered)})->group("Place");
  };
  addOne("--lat", "DEG", typed_.latitude, "Latitude, 40.5N or 40.5, south negative (40.5)");
  addOne("--long", "DEG", typed_.longitude, "Longitude, 20.9W or -20.9, west negative (-20.9)");
  addOne("--location", "NAME", typed_.location,
         "Instead of both: a saved place, or Manual for what is typed in the window; of events, "
         "all for every place",
         {.kind = Offer::places});
}

void Language::addOutput() {
  const auto addOne = [this](const char* name, const char* type, std::string& typed,
                             const char* description, Offered offered = {}) {
    add(*app_, {name, type, typed, description, std::move(offered)})->group("Output");
  };
  addOne("-o", "FILE", typed_.file,
         "Write to FILE instead of standard output; .html, .pdf and .png are drawn, .json, .jsonl "
         "and .csv are for programs",
         {.kind = Offer::files});
  addOne("--format", "FORM", typed_.formats,
         "The form, whatever the file is called; of all and batch, several such as svg,pdf,csv",
         listOf(formWords()));
  addOne("--size", "PIXELS", typed_.size, "How wide a PNG is, 16 to 10000 (720, a horoscope 1440)");
}

CLI::App* Language::addCommand(std::string_view name, std::string_view summary) {
  return app_->add_subcommand(std::string(name), std::string(summary))->group("Commands");
}

CLI::App* Language::addDocument(std::string_view name, std::string_view summary,
                                const std::string& exampleEnd) {
  CLI::App* const command = addCommand(name, summary);
  say(*command, "`veyruna --help` says how the moment, the place and a file (-o) are given.",
      {.note = "",
       .example = "--year 720 --month Dovri --day 10 --hour 18:15 --lat 40.5N --long 20.9W " +
                  std::string(name) + exampleEnd});
  return command;
}

CLI::App* Language::addStretchCommand(std::string_view name, std::string_view summary,
                                      const std::string& exampleEnd) {
  CLI::App* const command = addCommand(name, summary);
  add(*command, {"--from", "DATE", typed_.from,
                 "The beginning: 720-06-12, 720-Cendo-12T22:30 or, as days since noon of the first "
                 "day, @258900.5"});
  add(*command, {"--to", "DATE", typed_.to, "The end, which is no part of it"});
  add(*command, {"--for", "N UNIT", typed_.length, "Instead of the end: 10 days, months, years"});
  say(*command, "`veyruna --help` says how a place and a file (-o) are given.",
      {.note = "", .example = std::string(name) + exampleEnd});
  return command;
}

void Language::addTable(const std::string& name, const std::string& summary,
                        const std::string& example) {
  CLI::App* const command = addDocument(name, summary, " " + example);
  add(*command, {"--rows", "N", typed_.rows, "How many rows"});
  add(*command, {"--step", "DAYS", typed_.step, "Days from row to row, 0.5 or 1/24"});
}

void Language::addEvents() {
  CLI::App* const events =
      addStretchCommand("events", "What happens in the sky, in the order of time",
                        " --from 720-01-01 --for 1 year --kind eclipse,season --location Wendmark");
  const std::vector<std::string> kinds =
      column(almanac::allEventKinds, &almanac::EventKindEntry::word);
  add(*events, {.name = "--kind",
                .type = "KIND[,KIND...]",
                .typed = typed_.kinds,
                .description = "Instead of all: of " + words::joined(kinds) +
                               "; conjunction:all and opposition:all pair the sun and "
                               "the moon, too",
                .offered = listOf(kinds)});
  add(*events,
      {.name = "--out",
       .type = "DIR",
       .typed = typed_.folder,
       .description = "The folder of --format calendarium, a note each; made where it is missing",
       .offered = {.kind = Offer::folders}});
  add(*events, {.name = "--visibility",
                .type = "WHO",
                .typed = typed_.visibility,
                .description = "Of --format calendarium and seasons-stars: gm for all (gm), player "
                               "for what is seen from the place",
                .offered = words({"gm", "player"})});
}

void Language::addSearch() {
  CLI::App* const search = addStretchCommand(
      "search", "When all of these conditions hold",
      " --from 720-01-01 --for 10 years --location Ebb 'keep twisted' 'ascending sign Wen' night");
  search
      ->add_option("CONDITION", typed_.conditions,
                   "Such as 'dunmor conjunct galvi', each in quotes; the manual lists them all")
      ->type_name("");
  add(*search, {.name = "-f",
                .type = "FILE",
                .typed = typed_.conditionFile,
                .description = "Further conditions, one a line; - for standard input",
                .offered = {.kind = Offer::files}});
  search->add_flag("--explain", typed_.isExplained,
                   wrapped("First say what is asked, and what is not"));
  add(*search, {"--first", "N", typed_.first, "No more than the first N answers"});
}

void Language::addBatch() {
  CLI::App* const batch =
      addCommand("batch", "Documents of many people or scenes, a row of a table each");
  add(*batch, {.name = "FILE.csv",
               .type = "",
               .typed = typed_.table,
               .description = "The table; - for standard input",
               .offered = {.kind = Offer::files}});
  add(*batch, {.name = "--out",
               .type = "DIR",
               .typed = typed_.folder,
               .description = "The folder; made where it is missing",
               .offered = {.kind = Offer::folders}});
  add(*batch, {.name = "--documents",
               .type = "COMMAND[,COMMAND...]",
               .typed = typed_.documents,
               .description = "What is written of each row (horoscope,star-map)",
               .offered = listOf(documentCommands())});
  batch->add_flag("--bw", typed_.blackAndWhite, wrapped("Horoscopes black on white"));
  say(*batch, "",
      {.note =
           "The table's first line names its columns: name, date, hour, local and place, in any "
           "order.\nWhere a row says no hour or place, --hour, --local and --location do.",
       .example = "batch people.csv --out campaign --documents horoscope,hourly --format pdf"});
}

void Language::addPage() {
  CLI::App* const page = addStretchCommand(
      "page", "The sky in one page for any browser, made for a session",
      " --from 720-06-12T18:00 --to 720-06-13T02:00 --location Ebb --player -o evening.html");
  page->get_option("--to")->description(wrapped("The end, the last moment it shows"));
  page->add_flag("--player", typed_.isForPlayers,
                 wrapped("Shows what eyes can see from there, no more"));
  add(*page, {"--title", "TEXT", typed_.title, "What stands over it"});
}

void Language::addCalendar() {
  say(*addCommand("calendar", "The calendar for tools that keep events"), "",
      {.note =
           "Of those that --format names: calendarium or seasons-stars; --year is the present one.",
       .example = "calendar --year 720 --format seasons-stars -o veyruna.json"});
}

void Language::addSchema() {
  CLI::App* const schema = addCommand("schema", "What JSON and JSON Lines hold, as a JSON Schema");
  add(*schema, {.name = "NAME",
                .type = "",
                .typed = typed_.schema,
                .description = "Of what; without it the names are listed",
                .offered = words(column(records::allTypes, &records::TypeEntry::name))});
  say(*schema, "",
      {.note = "With --format jsonl it is the schema of a line.",
       .example = "schema events -o events.schema.json"});
}

void Language::addHelp() {
  std::vector<std::string> commands;
  for (const CLI::App* const command : app_->get_subcommands(nullptr)) {
    commands.push_back(command->get_name());
  }
  add(*addCommand("help", "Show what a command does, with an example"),
      {.name = "COMMAND",
       .type = "",
       .typed = typed_.helpTopic,
       .description = "The command",
       .offered = words(std::move(commands))});
}

void Language::say(CLI::App& command, const std::string& pointer, Saying saying) {
  command.footer(pointer + saying.note + "\n\nExample:\n  veyruna " + saying.example);
  sayings_[&command] = std::move(saying);
}

}  // namespace veyruna::cli
