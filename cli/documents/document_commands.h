#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/documents/rendering.h"
#include "cli/typed/grammar.h"
#include "cli/typed/sky.h"
#include "cli/written/document_writer.h"
#include "reports/table_size.h"
#include "reports/text_sink.h"

namespace veyruna::cli {

/// The commands that write documents of one moment and place, in the forms that were asked for.
class DocumentCommands {
 public:
  /// Keeps references. Forms that are drawn need the renderer.
  DocumentCommands(const Typed& typed, const Sky& sky, const std::vector<documents::Form>& forms,
                   const Renderer& renderer);

  /// One document of the table.
  void writeOne(const documents::Entry& document) const;

  /// A table of the person's own length and step.
  void writeTable(const documents::Entry& likeIt) const;

  /// Every document in every form that was asked for and that it can have, into one folder; in HTML
  /// the page for browsers, too.
  void writeAll() const;

 private:
  /// The page, opened at the moment and place; where it was not built, that is said.
  void writePageBeside(DocumentWriter& list) const;
  [[nodiscard]] reports::TableSize typedSize() const;
  /// `text` keeps the document's text from one form to the next.
  void writeContent(const documents::Entry& document, documents::Form form, const std::string& file,
                    std::optional<std::string>& text) const;
  void writeRows(const documents::Entry& likeIt, const reports::TableSize& size,
                 documents::Form form, const reports::TextSink& sink) const;
  [[nodiscard]] std::string rendered(const documents::Entry& document, const std::string& heading,
                                     const std::string& text, documents::Form form) const;

  const Typed& typed_;
  const Sky& sky_;
  const std::vector<documents::Form>& forms_;
  const Renderer& renderer_;
  int widthPixels_;
};

}  // namespace veyruna::cli
