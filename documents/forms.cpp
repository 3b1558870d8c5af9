#include "documents/forms.h"

#include <algorithm>
#include <vector>

#include "astro/invariant.h"

namespace veyruna::documents {

constexpr std::array<FormEntry, formCount> allForms = {{
    {.form = Form::svg,
     .extension = "svg",
     .name = "SVG",
     .isOfCharts = true,
     .isAsItIs = true,
     .isText = true},
    {.form = Form::text,
     .extension = "txt",
     .name = "Plain text",
     .isOfTables = true,
     .isAsItIs = true,
     .isText = true},
    {.form = Form::html,
     .extension = "html",
     .name = "HTML",
     .isOfCharts = true,
     .isOfTables = true,
     .isText = true},
    {.form = Form::pdf, .extension = "pdf", .name = "PDF", .isOfCharts = true, .isOfTables = true},
    {.form = Form::png, .extension = "png", .name = "PNG", .isOfCharts = true},
    {.form = Form::json,
     .extension = "json",
     .name = "JSON",
     .isOfTables = true,
     .isOfValues = true,
     .isText = true},
    {.form = Form::jsonl,
     .extension = "jsonl",
     .name = "JSON Lines",
     .isOfTables = true,
     .isOfValues = true,
     .isText = true},
    {.form = Form::csv,
     .extension = "csv",
     .name = "CSV",
     .isOfTables = true,
     .isOfValues = true,
     .isText = true},
}};

namespace {

constexpr bool everyFormHasItsRowInOrder() {
  for (std::size_t i = 0; i < allForms.size(); ++i) {
    if (allForms[i].form != static_cast<Form>(i)) {
      return false;
    }
  }
  return true;
}
static_assert(everyFormHasItsRowInOrder());

char loweredLetter(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

}  // namespace

const FormEntry& formEntry(Form form) {
  const auto row = static_cast<std::size_t>(form);
  astro::requireInvariant(row < allForms.size(), "a form has its row", row);
  return allForms[row];
}

std::optional<Form> formOf(std::string_view extension) {
  std::string lowered(extension);
  std::ranges::transform(lowered, lowered.begin(), loweredLetter);
  const auto* const found = std::ranges::find(allForms, lowered, &FormEntry::extension);
  return found == allForms.end() ? std::nullopt : std::optional(found->form);
}

Form ownForm(Kind kind) {
  return kind == Kind::chart ? Form::svg : Form::text;
}

bool isDrawn(Form form) {
  const FormEntry& entry = formEntry(form);
  return !entry.isAsItIs && !entry.isOfValues;
}

bool canBe(Kind kind, Form form) {
  const FormEntry& entry = formEntry(form);
  switch (kind) {
    case Kind::chart:
      return entry.isOfCharts;
    case Kind::table:
    case Kind::list:
      return entry.isOfTables;
    case Kind::label:
      return form == Form::text;
    case Kind::log:
      return entry.isOfTables && !isDrawn(form);
  }
  return false;
}

bool canBe(const Entry& document, Form form) {
  return canBe(document.kind, form) || (document.isRead && formEntry(form).isOfValues);
}

std::string acceptedExtensions(const Entry& document, std::string_view prefix) {
  std::vector<std::string_view> accepted;
  for (const FormEntry& entry : allForms) {
    if (canBe(document, entry.form)) {
      accepted.push_back(entry.extension);
    }
  }
  std::string text;
  for (std::size_t i = 0; i < accepted.size(); ++i) {
    text += i == 0 ? "" : i + 1 == accepted.size() ? " or " : ", ";
    text.append(prefix).append(accepted[i]);
  }
  return text;
}

}  // namespace veyruna::documents
