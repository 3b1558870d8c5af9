#pragma once

#include <vector>

#include "cli/batch/row_files.h"
#include "cli/documents/rendering.h"
#include "cli/typed/grammar.h"

namespace veyruna::cli {

/// The command that writes documents of many moments and places, a row of a table each.
class BatchCommand {
 public:
  /// Keeps references. The forms are those that were asked for; others than the documents' own text
  /// need the renderer, made ready. Throws UsageError.
  BatchCommand(const Typed& typed, const std::vector<documents::Form>& forms,
               const Renderer& renderer);

  /// Whether anything is to be drawn.
  [[nodiscard]] bool draws() const;

  /// Reads the table, writes what can be written, and says on standard output what has become of
  /// each row. Throws UsageError where the table has no rows that could be told apart, WriteError
  /// at the end where a row was not written, std::runtime_error where the table cannot be read.
  void run() const;

 private:
  const Typed& typed_;
  const Renderer& renderer_;
  int widthPixels_;
  std::vector<RowFile> files_;
};

}  // namespace veyruna::cli
