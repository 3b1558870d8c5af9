#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace veyruna::cli {

/// "--lat -20" as "--lat=-20", for every option that `app` or one of its commands declares: what
/// follows one that takes a value is its value, even with a minus in front, unless it is an option
/// itself. Throws UsageError where a value is missing, or stands where none is taken.
std::vector<std::string> withValuesAttached(const CLI::App& app,
                                            const std::vector<std::string>& arguments);

/// What stands in front of the equals sign.
std::string optionName(const std::string& argument);

}  // namespace veyruna::cli
