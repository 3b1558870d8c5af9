#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "files/descriptor.h"
#include "files/temporary_file.h"

namespace veyruna::files {

/// Where bytes go: into a file that appears whole or not at all, or down a stream as it is.
/// Every failure is a std::system_error whose code is the reason.
class FileWriter {
 public:
  /// A file that replaces `path` when it is finished. Until then, and for good where it is never
  /// finished, what was there stays. Links are followed, also where the last one leads to nothing
  /// yet, and who may read the file stays as it was. A file that may not be written is refused; one
  /// that may be, in a folder that may not, is written over when all of the bytes are there.
  /// A device or pipe is written to as it is.
  explicit FileWriter(const std::string& path);

  /// An open stream, such as standard output, which stays open.
  static FileWriter toStream(int descriptor);

  void write(std::string_view bytes);

  /// Hands over all that was written; a file is on disk before it takes its place, and its place is
  /// on disk before this returns.
  void finish();

 private:
  explicit FileWriter(Descriptor stream);
  [[nodiscard]] const Descriptor& out() const;
  void flush();

  std::string target_;  ///< where the file goes, links followed
  bool isReplacing_ = false;
  bool isInFolder_ = true;  ///< else the temporary file is elsewhere
  std::optional<TemporaryFile> temporary_;
  std::optional<Descriptor> stream_;  ///< in place of a file
  std::string buffer_;
};

/// Puts the bytes at the path, as a FileWriter does; the reason where that fails.
std::error_code writeWholeFile(const std::string& path, std::string_view bytes);

}  // namespace veyruna::files
