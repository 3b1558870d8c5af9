#pragma once

#include <string>
#include <sys/stat.h>
#include <system_error>

#include "files/descriptor.h"

namespace veyruna::files {

/// A file in the making. It has no name where the file system can do without and /proc can give it
/// one in the end, and so vanishes with the process however that ends; elsewhere, and for the
/// instant in which it takes the place of another file, it has a name like ".veyruna-1f0c…", which
/// goes at the end of its life.
class TemporaryFile {
 public:
  /// In the folder of the file it will become, with the permissions of a new file. Throws the
  /// reason where there can be none.
  static TemporaryFile inFolder(const std::string& folder);
  /// Where temporary files are, or in memory: for what cannot be made in its folder.
  static TemporaryFile elsewhere();

  TemporaryFile(TemporaryFile&& other) noexcept;
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  TemporaryFile& operator=(TemporaryFile&&) = delete;
  ~TemporaryFile();

  /// Open for reading and writing.
  [[nodiscard]] const Descriptor& file() const { return file_; }

  /// Takes over whose file `existing` is and who may read it, as far as this user may give it away.
  void takeOver(const struct stat& existing) const;

  /// Becomes `target`, a path in its folder, at one stroke, in place of what is there. Where that
  /// is refused the reason comes back, and what is there is as it was.
  [[nodiscard]] std::error_code becomes(const std::string& target);

 private:
  TemporaryFile(Descriptor file, std::string folder, std::string name);
  [[nodiscard]] bool isLinkedAs(const std::string& path) const;

  Descriptor file_;
  std::string folder_;
  std::string name_;  ///< its path; empty while it has none
};

}  // namespace veyruna::files
