#include "cli/documents/document_commands.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <optional>

#include "astro/invariant.h"
#include "cli/documents/document_content.h"
#include "cli/page/page_file.h"
#include "cli/page/session.h"
#include "cli/written/asked_forms.h"
#include "cli/written/folder.h"
#include "cli/written/notation.h"
#include "cli/written/progress.h"
#include "records/document_records.h"
#include "reports/conjunctions.h"
#include "reports/ephemeris.h"
#include "words/dates.h"
#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::cli {

namespace {

using documents::Document;
using documents::Entry;
using documents::Form;

/// Of the page for browsers in a folder of all documents.
constexpr const char* pageName = "veyruna.html";

constexpr std::int64_t mostRows = 100'000'000;
/// Of a table that is not written row by row: all of its pages are laid out in memory.
constexpr std::int64_t mostRowsOnPages = 36'000;

void writeWhole(DocumentWriter writer, const std::string& content) {
  writer.write(content);
  writer.finish();
}

/// The document's name in a folder, with the form's extension.
std::string fileNameOf(const Entry& document, Form form) {
  return std::filesystem::path(document.fileName)
      .replace_extension(documents::formEntry(form).extension)
      .string();
}

}  // namespace

DocumentCommands::DocumentCommands(const Typed& typed, const Sky& sky,
                                   const std::vector<Form>& forms, const Renderer& renderer)
    : typed_(typed),
      sky_(sky),
      forms_(forms),
      renderer_(renderer),
      widthPixels_(askedWidth(typed, forms)) {}

void DocumentCommands::writeOne(const Entry& document) const {
  std::optional<std::string> text;
  writeContent(document, forms_.front(), typed_.file, text);
}

void DocumentCommands::writeTable(const Entry& likeIt) const {
  const reports::TableSize size = typedSize();
  const Form form = forms_.front();
  if (!documents::isDrawn(form)) {
    DocumentWriter writer = DocumentWriter::to(typed_.file);
    writeRows(likeIt, size, form, [&](std::string_view piece) { writer.write(piece); });
    writer.finish();
    return;
  }
  if (size.rows > mostRowsOnPages) {
    throw words::UsageError("--rows: " + words::inQuotes(typed_.rows) + " is too many for " +
                            std::string(documents::formEntry(form).name) + "; give at most " +
                            std::to_string(mostRowsOnPages) + ", or a name that ends in .txt");
  }
  std::string text;
  writeRows(likeIt, size, documents::ownForm(likeIt.kind),
            [&](std::string_view piece) { text += piece; });
  const std::string heading = typed_.rows + " rows, a step of " + typed_.step + " days";
  writeWhole(DocumentWriter::to(typed_.file), rendered(likeIt, heading, text, form));
}

void DocumentCommands::writeAll() const {
  if (typed_.folder.empty() || typed_.file != "-") {
    throw words::UsageError("all needs --out DIR, and takes no -o");
  }
  makeFolder(typed_.folder);
  DocumentWriter list = DocumentWriter::to("-");
  for (const Entry& document : documents::allDocuments) {
    std::optional<std::string> text;
    for (const Form form : forms_) {
      if (document.fileName.empty() || !documents::canBe(document, form)) {
        continue;
      }
      const std::string path =
          (std::filesystem::path(typed_.folder) / fileNameOf(document, form)).string();
      writeContent(document, form, path, text);
      list.write(path + "\n");
    }
  }
  if (std::ranges::count(forms_, Form::html) > 0) {
    writePageBeside(list);
  }
  list.finish();
}

void DocumentCommands::writePageBeside(DocumentWriter& list) const {
  const Session session{
      .baseTime = sky_.observer.baseTime,
      .place = Place{sky_.observer.latitude, sky_.observer.longitude, sky_.place}};
  std::string page;
  try {
    page = pageFor(session);
  } catch (const std::runtime_error& error) {
    std::fprintf(stderr, "veyruna: left out is %s: %s\n", pageName, error.what());
    return;
  }
  const std::string path = (std::filesystem::path(typed_.folder) / pageName).string();
  writeWhole(DocumentWriter::to(path), page);
  list.write(path + "\n");
}

reports::TableSize DocumentCommands::typedSize() const {
  if (typed_.rows.empty() || typed_.step.empty()) {
    throw words::UsageError(
        "a table needs --rows N and --step DAYS, such as --rows 24 --step 1/24");
  }
  const reports::TableSize size{.rows = words::readWholeNumber("--rows", typed_.rows, 0, mostRows),
                                .stepDays = words::readStepDays(typed_.step)};
  words::checkedBaseTime(sky_.observer.baseTime + static_cast<double>(size.rows) * size.stepDays,
                         "the last of " + words::inQuotes(typed_.rows) + " rows at steps of " +
                             words::inQuotes(typed_.step));
  return size;
}

void DocumentCommands::writeRows(const Entry& likeIt, const reports::TableSize& size, Form form,
                                 const reports::TextSink& sink) const {
  Progress progress(size.rows + 1, "rows", isStandardOutput(typed_.file));
  const reports::TextSink counted = [&](std::string_view piece) {
    sink(piece);
    progress.advance();
  };
  if (documents::formEntry(form).isOfValues) {
    records::writeRecords(likeIt.document, sky_.observer, size, notationOf(form), counted);
  } else if (likeIt.document == Document::hourly) {
    reports::writeEphemerisTable(sky_.observer, size, counted);
  } else {
    reports::writeConjunctionTable(sky_.observer.baseTime, size, counted);
  }
}

void DocumentCommands::writeContent(const Entry& document, Form form, const std::string& file,
                                    std::optional<std::string>& text) const {
  DocumentWriter writer = DocumentWriter::to(file);
  writer.write(contentOf(form, document, sky_, renderer_, widthPixels_, text));
  writer.finish();
}

std::string DocumentCommands::rendered(const Entry& document, const std::string& heading,
                                       const std::string& text, Form form) const {
  return inForm(form, document, heading, text, sky_, renderer_, widthPixels_);
}

}  // namespace veyruna::cli
