#pragma once

#include <string>
#include <string_view>

#include "files/file_writer.h"

namespace veyruna::cli {

/// Whether a file, as the person gave it, is standard output: "-", or one of its names in the file
/// system. Opened anew, it would begin at the start of the file that a shell appends to.
bool isStandardOutput(std::string_view file);

/// Where a document goes: to standard output, or to a file that appears whole or not at all.
/// Every failure is a WriteError that names the file and the reason.
class DocumentWriter {
 public:
  static DocumentWriter toStandardOutput();

  /// A document that replaces the file when it is finished, as files::FileWriter does, or goes to
  /// standard output where the file is that.
  static DocumentWriter to(const std::string& file);

  void write(std::string_view text);

  /// Hands over all that was written; for a file, puts it in its place.
  void finish();

 private:
  DocumentWriter(std::string name, files::FileWriter writer);

  std::string name_;  ///< as the person gave it
  files::FileWriter writer_;
};

}  // namespace veyruna::cli
