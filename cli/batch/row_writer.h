#pragma once

#include <atomic>
#include <semaphore>
#include <string>
#include <vector>

#include "cli/batch/row_files.h"
#include "cli/documents/rendering.h"

namespace veyruna::cli {

/// What has become of a row.
struct RowOutcome {
  std::vector<std::string> files;  ///< what was written, as it is called in the folder
  std::string problem;             ///< why not all of them were; empty where they were
  bool isDiskFull = false;         ///< that is the problem
  bool isLeftOut = false;          ///< since it was for an earlier one
};

/// Writes the files of rows into a folder, each of them whole or not at all. Of the threads that
/// write, as many calculate and draw at a time as there are cores: what is drawn takes memory.
class RowWriter {
 public:
  /// Keeps the reference. Forms other than the documents' own text need the renderer, made ready.
  RowWriter(std::string folder, std::vector<RowFile> files, int widthPixels,
            const Renderer& renderer);

  /// Calculates all that is to be written of a row without problems, and then writes it under the
  /// names. Writes nothing more once the disk was full. Throws nothing; safe from any thread.
  RowOutcome write(const BatchRow& row, const std::vector<std::string>& names);

 private:
  [[nodiscard]] std::vector<std::string> contentsOf(const BatchRow& row);
  void writeFile(const std::string& name, const std::string& content, RowOutcome& outcome);

  std::string folder_;
  std::vector<RowFile> files_;
  int widthPixels_;
  const Renderer& renderer_;
  std::atomic<bool> isFull_ = false;
  std::counting_semaphore<> freeCores_;
};

}  // namespace veyruna::cli
