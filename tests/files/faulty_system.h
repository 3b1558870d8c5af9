#pragma once

#include <cstddef>
#include <limits>

/// Refusals of the system that no test could bring about by itself on every machine.
namespace veyruna::tests {

struct Faults {
  bool needsNames = false;        ///< the file system has no files without a name
  bool hidesProcesses = false;    ///< nothing is mounted at /proc
  int folderRefuses = 0;          ///< errno with which the folder takes nothing new
  int renameRefuses = 0;          ///< errno with which no file can be replaced
  int syncRefuses = 0;            ///< errno of fsync() of a file
  int folderSyncRefuses = 0;      ///< errno of fsync() of a folder
  bool promisesNoRoom = false;    ///< the file system cannot promise room
  std::size_t room = everything;  ///< bytes the disk takes until it is full

  static constexpr std::size_t everything = std::numeric_limits<std::size_t>::max();
};

/// The system refuses these things while it lives.
class FaultySystem {
 public:
  explicit FaultySystem(const Faults& faults);
  FaultySystem(const FaultySystem&) = delete;
  FaultySystem& operator=(const FaultySystem&) = delete;
  ~FaultySystem();

  /// How many times a file was put on disk since, and whether one was before the last rename.
  [[nodiscard]] static int syncs();
  [[nodiscard]] static bool syncedBeforeRename();
};

}  // namespace veyruna::tests
