#include "cli/guides/shell_words.h"

#include <algorithm>

namespace veyruna::cli {

std::string quotedForShell(std::string_view text) {
  std::string quoted = "'";
  for (const char character : text) {
    quoted += character == '\'' ? R"('\'')" : std::string(1, character);
  }
  return quoted + "'";
}

std::vector<OptionGuide> differentOptions(const Guide& guide) {
  std::vector<OptionGuide> options = guide.options;
  for (const CommandGuide& command : guide.commands) {
    for (const OptionGuide& option : command.options) {
      if (std::ranges::find(options, option.names, &OptionGuide::names) == options.end()) {
        options.push_back(option);
      }
    }
  }
  return options;
}

std::vector<std::string> namesWithValues(const Guide& guide) {
  std::vector<std::string> names;
  for (const OptionGuide& option : differentOptions(guide)) {
    if (!option.value.empty()) {
      names.insert(names.end(), option.names.begin(), option.names.end());
    }
  }
  return names;
}

}  // namespace veyruna::cli
