#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// What this program asks of the system for the files of one folder, written down in its order. The
/// program's own open(), write(), fsync() and so on stand before the system's, also for libraries.
namespace veyruna::tests {

/// Names and contents of the files of a folder.
using Files = std::map<std::string, std::string>;

/// One change that was asked for. Files have numbers, since they may have no name or several.
struct Change {
  enum class Kind {
    create,      ///< file `file`, empty, under `name` where it has one
    write,       ///< `bytes` at `offset`
    resize,      ///< to `offset` bytes
    sync,        ///< what `file` holds is to be on disk
    syncFolder,  ///< which names there are is to be on disk
    name,        ///< `file` has `name`, too
    rename,      ///< what `from` names is called `name`, whatever that was
    unname       ///< `name` is gone
  };
  Kind kind;
  int file = 0;
  std::string name = {};
  std::string from = {};
  std::int64_t offset = 0;
  std::string bytes = {};
};

/// "write 120 bytes at 0 into 3", for messages.
std::string wordsOf(const Change& change);

/// Writes down what this thread does while it lives. One at a time.
class Recording {
 public:
  /// Of a folder that holds files only, which have the numbers from 1 in the order of their names.
  /// Where files must have names, open() refuses those without as some file systems do.
  Recording(const std::string& folder, bool needsNames);
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;
  ~Recording();

  [[nodiscard]] const std::vector<Change>& changes() const;
};

/// What is in a folder of files.
Files filesIn(const std::string& folder);

}  // namespace veyruna::tests
