#include "cli/typed/option_values.h"

#include <CLI/CLI.hpp>

#include "words/quoting.h"
#include "words/usage_error.h"

namespace veyruna::cli {

namespace {

struct Declared {
  const CLI::Option* option = nullptr;
  const CLI::App* owner = nullptr;
};

/// The option of that name, of the whole or of any command; null where there is none.
Declared declaredOption(const CLI::App& app, const std::string& name) {
  if (name.size() < 2 || name.front() != '-') {
    return {};
  }
  Declared found{app.get_option_no_throw(name), &app};
  for (const CLI::App* const command : app.get_subcommands(nullptr)) {
    if (found.option == nullptr) {
      found = {command->get_option_no_throw(name), command};
    }
  }
  return found;
}

}  // namespace

std::string optionName(const std::string& argument) {
  return argument.substr(0, argument.find('='));
}

std::vector<std::string> withValuesAttached(const CLI::App& app,
                                            const std::vector<std::string>& arguments) {
  std::vector<std::string> attached;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string name = optionName(arguments[i]);
    const bool isAttached = name.size() < arguments[i].size();
    const auto [known, owner] = declaredOption(app, name);
    const bool takesValue = known != nullptr && known->get_expected_max() > 0;
    if (known != nullptr && !takesValue && isAttached) {
      throw words::UsageError(words::inQuotes(arguments[i]) + " is not accepted; " + name +
                              " takes no value");
    }
    if (!takesValue) {
      attached.push_back(arguments[i]);
      continue;
    }
    const std::string value = isAttached                 ? arguments[i].substr(name.size() + 1)
                              : i + 1 < arguments.size() ? arguments[++i]
                                                         : "";
    if (value.empty()) {
      const std::string help = owner == &app ? "--help" : "help " + owner->get_name();
      throw words::UsageError(name + ": a value is missing; veyruna " + help +
                              " says which are accepted");
    }
    if (!isAttached && declaredOption(app, optionName(value)).option != nullptr) {
      throw words::UsageError(name + ": a value is missing in front of " + words::inQuotes(value) +
                              ", which is an option; where it is meant, write " +
                              words::inQuotes(name + "=" + value));
    }
    constexpr std::size_t shortLength = 2;  // "-o"
    attached.push_back(name.size() == shortLength ? name + value : name + "=" + value);
  }
  return attached;
}

}  // namespace veyruna::cli
