#pragma once

#include <string>
#include <vector>

#include "cli/batch/row_writer.h"
#include "cli/batch/rows.h"

namespace veyruna::cli {

/// What has become of the rows, a line each under a header, and a line about them all.
std::string summaryText(const std::vector<BatchRow>& rows, const std::vector<RowOutcome>& outcomes);

/// Of each row that was not written whole one line: "line 7: " and why. Of those for which the disk
/// had no room the first alone, with their number.
std::vector<std::string> complaints(const std::vector<BatchRow>& rows,
                                    const std::vector<RowOutcome>& outcomes);

}  // namespace veyruna::cli
