#include "cli/program/command_line.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>

#include "astro/number_text.h"
#include "cli/almanac/calendar_command.h"
#include "cli/almanac/event_command.h"
#include "cli/almanac/search_command.h"
#include "cli/batch/batch_command.h"
#include "cli/documents/document_commands.h"
#include "cli/documents/drawing_program.h"
#include "cli/documents/locations_command.h"
#include "cli/documents/schema_command.h"
#include "cli/page/page_command.h"
#include "cli/typed/grammar.h"
#include "cli/typed/sky.h"
#include "cli/written/asked_forms.h"
#include "cli/written/document_writer.h"
#include "words/usage_error.h"

namespace veyruna::cli {

namespace {

using documents::Document;
using documents::Entry;
using documents::Form;

bool isTableOfOnesOwn(const Typed& typed) {
  return typed.command == "ephemeris" || typed.command == "conjunctions";
}

/// The document that a command writes, or whose like it writes at moments of one's own; null where
/// it writes something else.
const Entry* documentOf(const Typed& typed) {
  if (isTableOfOnesOwn(typed)) {
    return &documents::entryOf(typed.command == "ephemeris" ? Document::hourly : Document::daily);
  }
  if (typed.command == "horoscope" && typed.blackAndWhite) {
    return &documents::entryOf(Document::horoscopeOnPaper);
  }
  const auto* const found =
      std::ranges::find(documents::allDocuments, typed.command, &Entry::command);
  return found == documents::allDocuments.end() ? nullptr : found;
}

/// What a command says that writes no document; not of every moment, nor of a place.
std::string plainText(const Grammar& grammar, const Typed& typed) {
  if (typed.command == "help") {
    return grammar.helpText(typed.helpTopic);
  }
  if (typed.command == "version") {
    return "veyruna " VEYRUNA_VERSION " (build " VEYRUNA_BUILD_NUMBER ")\n";
  }
  return astro::shortestText(skyOf(typed).observer.baseTime) + "\n";
}

/// The commands that write something other than documents of one moment and place.
struct OwnCommand {
  std::string_view word;
  void (*run)(const Typed& typed);
};
constexpr std::array ownCommands = {
    OwnCommand{"calendar", writeCalendar},   OwnCommand{"events", writeEvents},
    OwnCommand{"locations", writeLocations}, OwnCommand{"page", writePage},
    OwnCommand{"schema", writeSchema},       OwnCommand{"search", writeSearch}};

/// To draw, in this program or in the one that can.
void makeReady(const Renderer& renderer, const std::vector<std::string>& arguments) {
  if (!renderer) {
    becomeDrawingProgram(arguments);
  }
  renderer.open();
}

void run(const Grammar& grammar, const Typed& typed, const std::vector<std::string>& arguments,
         const Renderer& renderer) {
  const auto* const own = std::ranges::find(ownCommands, typed.command, &OwnCommand::word);
  if (own != ownCommands.end()) {
    own->run(typed);
    return;
  }
  const Entry* const document = documentOf(typed);
  const std::vector<Form> forms = document == nullptr ? askedForms(typed, documents::Kind::label)
                                                      : askedForms(typed, *document);
  if (document == nullptr && typed.command != "all" && typed.command != "batch") {
    askedWidth(typed, forms);
    DocumentWriter writer = DocumentWriter::to(typed.file);
    writer.write(plainText(grammar, typed));
    writer.finish();
    return;
  }
  if (typed.command == "batch") {
    const BatchCommand batch(typed, forms, renderer);
    if (batch.draws()) {
      makeReady(renderer, arguments);
    }
    batch.run();
    return;
  }
  const Sky sky = skyOf(typed);
  const DocumentCommands commands(typed, sky, forms, renderer);
  if (std::ranges::any_of(forms, documents::isDrawn)) {
    makeReady(renderer, arguments);
  }
  if (document == nullptr) {
    commands.writeAll();
  } else if (isTableOfOnesOwn(typed)) {
    commands.writeTable(*document);
  } else {
    commands.writeOne(*document);
  }
}

int complain(const std::string& message, int status) {
  std::fprintf(stderr, "veyruna: %s\n", message.c_str());
  return status;
}

}  // namespace

int runCommandLine(const std::vector<std::string>& arguments, const Renderer& renderer) {
  try {
    Grammar grammar;
    const Typed& typed = grammar.parse(arguments);
    run(grammar, typed, arguments, renderer);
    return succeeded;
  } catch (const words::UsageError& error) {
    return complain(error.what(), usageWrong);
  } catch (const std::exception& error) {
    return complain(error.what(), writeFailed);
  }
}

}  // namespace veyruna::cli
