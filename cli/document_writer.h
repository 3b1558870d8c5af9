#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace veyruna::cli {

/// Where a document goes: to standard output, or to a file that appears whole or not at all.
/// Every failure is a WriteError that names the file and the reason.
class DocumentWriter {
 public:
  static DocumentWriter toStandardOutput();

  /// A document that replaces `path` when it is finished. Until then, and for good where it is
  /// never finished, what was there stays. A device or pipe is written to as it is.
  static DocumentWriter toFile(const std::string& path);

  DocumentWriter(DocumentWriter&& other) noexcept;
  DocumentWriter(const DocumentWriter&) = delete;
  DocumentWriter& operator=(const DocumentWriter&) = delete;
  DocumentWriter& operator=(DocumentWriter&&) = delete;
  ~DocumentWriter();

  void write(std::string_view text);

  /// Hands over all that was written; for a file, puts it in its place.
  void finish();

 private:
  /// A file still without a name, or with a temporary one.
  struct Replacement {
    std::string target;     ///< where the file goes, links resolved
    std::string temporary;  ///< its name beside the target
    bool isNamed;           ///< the temporary name exists in the folder
  };

  DocumentWriter(int descriptor, std::string name, std::optional<Replacement> replacement);
  void flush();
  void putInPlace(Replacement& replacement);
  [[noreturn]] void fail() const;

  int descriptor_;
  std::string name_;  ///< as the person gave it
  std::optional<Replacement> replacement_;
  std::string buffer_;
};

}  // namespace veyruna::cli
