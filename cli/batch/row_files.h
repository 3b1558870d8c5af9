#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "cli/batch/rows.h"
#include "documents/documents.h"
#include "documents/forms.h"

namespace veyruna::cli {

/// One file of each row.
struct RowFile {
  documents::Document document = documents::Document::count;
  documents::Form form = documents::Form::count;
};

/// What the files of rows are called: as the window proposes it, with the row's name in front, as
/// in "Arla - Horoscope - Ebb - 720-06-12 22-30.svg". Every file system takes these names.
class RowFileNames {
 public:
  explicit RowFileNames(std::vector<RowFile> files);

  /// The names of that row's files, in their order. Where one of them would be that of an earlier
  /// row, to a file system that knows no letter case, the row's name has a number: "Arla (2)".
  /// The row has no problems.
  std::vector<std::string> namesOf(const BatchRow& row);

 private:
  std::vector<RowFile> files_;
  std::set<std::string> taken_;
  std::map<std::string, int> lastNumbers_;  ///< of rows that would be called alike
};

}  // namespace veyruna::cli
