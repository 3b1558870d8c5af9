#include "cli/batch/batch_command.h"

#include <algorithm>
#include <cstdio>

#include "cli/batch/row_writer.h"
#include "cli/batch/side_by_side.h"
#include "cli/batch/summary.h"
#include "cli/typed/errors.h"
#include "cli/typed/named_file.h"
#include "cli/written/asked_forms.h"
#include "cli/written/document_writer.h"
#include "cli/written/folder.h"
#include "cli/written/progress.h"
#include "words/listing.h"
#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::cli {

namespace {

using documents::Document;
using documents::Entry;
using documents::Form;

constexpr std::string_view usualDocuments = "horoscope,star-map";

std::string allCommands() {
  std::vector<std::string_view> commands;
  for (const Entry& entry : documents::allDocuments) {
    if (!entry.command.empty()) {
      commands.push_back(entry.command);
    }
  }
  return words::joined(commands);
}

/// The documents whose command words those are, in their order.
std::vector<Document> listedDocuments(std::string_view list) {
  std::vector<Document> listed;
  for (std::size_t from = 0; from <= list.size();) {
    const std::size_t comma = std::min(list.find(',', from), list.size());
    const std::string_view word = list.substr(from, comma - from);
    const auto* const found = std::ranges::find(documents::allDocuments, word, &Entry::command);
    if (word.empty() || found == documents::allDocuments.end()) {
      words::refuse("--documents", list,
                    "one or several of " + allCommands() + ", with commas between them");
    }
    listed.push_back(found->document);
    from = comma + 1;
  }
  std::ranges::sort(listed);
  listed.erase(std::unique(listed.begin(), listed.end()), listed.end());
  return listed;
}

/// Every document in each of the forms that it can have.
std::vector<RowFile> filesOf(const Typed& typed, const std::vector<Form>& forms) {
  std::vector<RowFile> files;
  for (const Document listed :
       listedDocuments(typed.documents.empty() ? usualDocuments : typed.documents)) {
    const bool isOnPaper = listed == Document::horoscope && typed.blackAndWhite;
    const Document document = isOnPaper ? Document::horoscopeOnPaper : listed;
    const Entry& entry = documents::entryOf(document);
    const std::size_t before = files.size();
    for (const Form form : forms) {
      if (documents::canBe(entry, form)) {
        files.push_back({document, form});
      }
    }
    if (files.size() == before) {
      words::refuse("--format", typed.formats,
                    "also one of " + documents::acceptedExtensions(entry) + " for " +
                        std::string(entry.command));
    }
  }
  return files;
}

RowDefaults defaultsOf(const Typed& typed) {
  return {.hour = words::readHour("--hour", typed.hour),
          .isLocal = typed.isLocal,
          .place = typed.hasPlace ? std::optional(placeOf(typed)) : std::nullopt};
}

/// The rows of the table, which messages name.
std::vector<BatchRow> rowsOf(const Typed& typed) {
  constexpr std::size_t mostBytes = std::size_t{256} << 20U;
  const RowDefaults defaults = defaultsOf(typed);
  const std::string content = contentOfFile(typed.table, mostBytes);
  try {
    return readRows(content, defaults,
                    [](const std::string& name) { return savedPlace(name, "place"); });
  } catch (const words::UsageError& error) {
    throw words::UsageError(nameOfFile(typed.table) + ": " + error.what());
  }
}

}  // namespace

BatchCommand::BatchCommand(const Typed& typed, const std::vector<Form>& forms,
                           const Renderer& renderer)
    : typed_(typed),
      renderer_(renderer),
      widthPixels_(askedWidth(typed, forms)),
      files_(filesOf(typed, forms)) {
  if (typed.table.empty() || typed.folder.empty() || typed.file != "-") {
    throw words::UsageError(
        "batch needs a table and --out DIR, such as batch people.csv --out campaign, "
        "and takes no -o");
  }
}

bool BatchCommand::draws() const {
  return std::ranges::any_of(files_, documents::isDrawn, &RowFile::form);
}

void BatchCommand::run() const {
  const std::vector<BatchRow> rows = rowsOf(typed_);
  std::vector<RowOutcome> outcomes(rows.size());
  std::vector<std::vector<std::string>> names(rows.size());
  std::vector<std::size_t> usable;
  RowFileNames rowFileNames(files_);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    outcomes[i].problem = words::joined(rows[i].problems, "; ");
    if (rows[i].problems.empty()) {
      names[i] = rowFileNames.namesOf(rows[i]);
      usable.push_back(i);
    }
  }
  if (!usable.empty()) {
    makeFolder(typed_.folder);
  }
  {
    RowWriter writer(typed_.folder, files_, widthPixels_, renderer_);
    Progress progress(static_cast<std::int64_t>(usable.size()), "rows", false);
    doSideBySide(
        {.count = usable.size(),
         .run =
             [&](std::size_t number) {
               const std::size_t i = usable[number];
               outcomes[i] = writer.write(rows[i], names[i]);
             },
         .isReached =
             [&progress](std::size_t done) { progress.reach(static_cast<std::int64_t>(done)); }});
  }
  const std::vector<std::string> lines = complaints(rows, outcomes);
  for (const std::string& line : lines) {
    std::fprintf(stderr, "veyruna: %s, %s\n", nameOfFile(typed_.table).c_str(), line.c_str());
  }
  DocumentWriter summary = DocumentWriter::toStandardOutput();
  summary.write(summaryText(rows, outcomes));
  summary.finish();
  if (!lines.empty()) {
    throw WriteError("not every row could be written");
  }
}

}  // namespace veyruna::cli
