#include "cli/documents/document_content.h"

#include "cli/written/notation.h"
#include "records/document_records.h"

namespace veyruna::cli {

using documents::Document;

namespace {

/// What stands over a document that is by itself.
std::string headingOf(const documents::Entry& document) {
  return std::string(document.document == Document::moment ? document.summary : document.heading);
}

}  // namespace

std::string inForm(documents::Form form, const documents::Entry& document,
                   const std::string& heading, const std::string& text, const Sky& sky,
                   const Renderer& renderer, int widthPixels) {
  if (form == documents::ownForm(document.kind)) {
    return text;
  }
  return renderer.draw({.document = document.document,
                        .heading = heading,
                        .text = text,
                        .date = documents::textOf(Document::date, sky.observer),
                        .place = sky.place},
                       form, widthPixels);
}

std::string contentOf(documents::Form form, const documents::Entry& document, const Sky& sky,
                      const Renderer& renderer, int widthPixels, std::optional<std::string>& text) {
  if (documents::formEntry(form).isOfValues) {
    std::string records;
    records::writeRecords(document.document, sky.observer, document.size, notationOf(form),
                          [&records](std::string_view piece) { records += piece; });
    return records;
  }
  if (!text) {
    text = documents::textOf(document.document, sky.observer);
  }
  return inForm(form, document, headingOf(document), *text, sky, renderer, widthPixels);
}

}  // namespace veyruna::cli
