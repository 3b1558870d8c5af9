#include "cli/written/asked_forms.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <unistd.h>

#include "cli/written/document_writer.h"
#include "words/listing.h"
#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::cli {

namespace {

using documents::Entry;
using documents::Form;
using documents::FormEntry;
using documents::Kind;

constexpr std::int64_t leastWidth = 16;
constexpr std::int64_t mostWidth = 10'000;  // of a square picture, 400 MB

/// What a name of a file ends in, behind the dot: letters and digits that are not all digits, so
/// that neither "40.50°N" nor "draft.2" is taken to have an ending. Empty where there is none.
std::string endingOf(const std::string& file) {
  const std::string extension = std::filesystem::path(file).extension().string();
  const std::string ending = extension.substr(std::min<std::size_t>(1, extension.size()));
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
  const bool isWord = std::ranges::all_of(
      ending, [&](char character) { return isDigit(character) || isLetter(character); });
  return isWord && std::ranges::any_of(ending, isLetter) ? ending : std::string();
}

/// The form that the file's ending names; nothing where the document is to be written as it is.
std::optional<Form> formOfFile(const Typed& typed, const Entry& document) {
  const std::string ending = endingOf(typed.file);
  if (ending.empty() || isStandardOutput(typed.file)) {
    return std::nullopt;
  }
  const std::optional<Form> form = documents::formOf(ending);
  // A text may stand in a file of any name; a picture under a strange one is opened by nothing.
  const bool isKnown = form || document.kind == Kind::chart;
  if (isKnown && !(form && documents::canBe(document, *form))) {
    words::refuse("-o", typed.file,
                  "a name that ends in " + documents::acceptedExtensions(document, ".") + " for " +
                      typed.command);
  }
  return form;
}

/// The forms of --format, in their order.
std::vector<Form> listedForms(const std::string& list) {
  std::vector<Form> forms;
  for (std::size_t from = 0; from <= list.size();) {
    const std::size_t comma = std::min(list.find(',', from), list.size());
    const std::optional<Form> form = documents::formOf(list.substr(from, comma - from));
    if (!form) {
      const std::string accepted = words::joined(documents::allForms, ", ", &FormEntry::extension);
      words::refuse("--format", list,
                    "one or several of " + accepted + ", with commas between them");
    }
    forms.push_back(*form);
    from = comma + 1;
  }
  std::ranges::sort(forms);
  forms.erase(std::unique(forms.begin(), forms.end()), forms.end());
  return forms;
}

Form formOfOne(const Typed& typed, const Entry& document) {
  const std::optional<Form> ofFile = formOfFile(typed, document);
  if (typed.formats.empty()) {
    return ofFile.value_or(documents::ownForm(document.kind));
  }
  const std::optional<Form> named = documents::formOf(typed.formats);
  if (!named || !documents::canBe(document, *named)) {
    words::refuse("--format", typed.formats,
                  "one of " + documents::acceptedExtensions(document) + " for " + typed.command);
  }
  if (ofFile && *ofFile != *named) {
    throw words::UsageError("--format " + words::inQuotes(typed.formats) + " and -o " +
                            words::inQuotes(typed.file) + " name two forms; give one");
  }
  return *named;
}

}  // namespace

std::vector<Form> askedForms(const Typed& typed, Kind kind) {
  return askedForms(typed, Entry{.kind = kind});
}

std::vector<Form> askedForms(const Typed& typed, const Entry& document) {
  if (typed.command == "all" || typed.command == "batch") {
    return typed.formats.empty() ? std::vector{Form::svg, Form::text} : listedForms(typed.formats);
  }
  const Form form = formOfOne(typed, document);
  const FormEntry& entry = documents::formEntry(form);
  if (!entry.isText && isStandardOutput(typed.file) && isatty(STDOUT_FILENO) == 1) {
    throw words::UsageError("a " + std::string(entry.name) +
                            " is nothing for a terminal; give a file, such as -o " + typed.command +
                            "." + std::string(entry.extension));
  }
  return {form};
}

void refuseOtherEndings(const Typed& typed, Form only) {
  const std::optional<Form> form = documents::formOf(endingOf(typed.file));
  if (form && *form != only && !isStandardOutput(typed.file)) {
    words::refuse("-o", typed.file,
                  "a name that ends in ." + std::string(documents::formEntry(only).extension) +
                      " for " + typed.command);
  }
}

int askedWidth(const Typed& typed, const std::vector<Form>& forms) {
  if (typed.size.empty()) {
    return 0;
  }
  if (std::ranges::count(forms, Form::png) == 0) {
    const bool isOfMany = typed.command == "all" || typed.command == "batch";
    throw words::UsageError("--size " + words::inQuotes(typed.size) +
                            " is the width of a PNG, and none is asked for; name one with " +
                            (isOfMany ? "" : "-o FILE.png or ") + "--format png");
  }
  return static_cast<int>(words::readWholeNumber("--size", typed.size, leastWidth, mostWidth));
}

}  // namespace veyruna::cli
