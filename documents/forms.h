#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "documents/documents.h"

/// The kinds of file that documents are written as, a row each in one table.
namespace veyruna::documents {

enum class Form {
  svg,   ///< a chart as it is
  text,  ///< a table or list as it is
  html,
  pdf,
  png,
  json,
  jsonl,
  csv,
  count  ///< none: how many there are
};

inline constexpr auto formCount = static_cast<std::size_t>(Form::count);

/// What is said of a form.
struct FormEntry {
  Form form = Form::count;
  std::string_view extension;  ///< lower case, without the dot
  std::string_view name;       ///< what a person reads
  bool isOfCharts = false;
  bool isOfTables = false;  ///< and of lists
  bool isAsItIs = false;    ///< the document's own text
  bool isOfValues = false;  ///< for programs to read: made of the sky's values; others of that text
  bool isText = false;      ///< may be read on a terminal
};

/// Every form, in their order.
extern const std::array<FormEntry, formCount> allForms;

/// `Form::count` is a broken invariant, here and below.
const FormEntry& formEntry(Form form);

/// The form that a file's extension names, in any letter case; nothing where none has it.
std::optional<Form> formOf(std::string_view extension);

/// The form of a document's own text.
Form ownForm(Kind kind);

/// Whether the form is drawn or set on pages, which takes fonts.
bool isDrawn(Form form);

/// Whether a document of that kind can be written in the form; a label is text alone.
bool canBe(Kind kind, Form form);
/// The same of that document, whose values may be had besides its picture.
bool canBe(const Entry& document, Form form);

/// The extensions of the forms that the document can have, each behind the prefix:
/// "svg, html, pdf or png".
std::string acceptedExtensions(const Entry& document, std::string_view prefix = "");

}  // namespace veyruna::documents
