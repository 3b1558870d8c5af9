#include "cli/typed/guide.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "cli/typed/language.h"

namespace veyruna::cli {

Guide Language::guide() const {
  Guide guide{.summary = app_->get_description(), .options = {}, .commands = {}};
  for (const CLI::Option* const option : app_->get_options()) {
    guide.options.push_back(guideOf(*option));
  }
  // Those of one kind together, the general ones last.
  std::stable_partition(guide.options.begin(), guide.options.end(),
                        [](const OptionGuide& option) { return option.group != "Options"; });
  for (const CLI::App* const command : app_->get_subcommands(nullptr)) {
    guide.commands.push_back(guideOf(*command));
  }
  return guide;
}

OptionGuide Language::guideOf(const CLI::Option& option) const {
  OptionGuide guide;
  for (const std::string& name : option.get_snames()) {
    guide.names.push_back("-" + name);
  }
  for (const std::string& name : option.get_lnames()) {
    guide.names.push_back("--" + name);
  }
  if (option.get_positional()) {
    guide.value = option.get_name(true);
  } else if (option.get_expected_max() > 0) {
    guide.value = option.get_type_name();
  }
  guide.description = option.get_description();
  std::ranges::replace(guide.description, '\n', ' ');
  guide.group = option.get_group();
  if (const auto offered = offered_.find(&option); offered != offered_.end()) {
    guide.offered = offered->second;
  }
  return guide;
}

CommandGuide Language::guideOf(const CLI::App& command) const {
  CommandGuide guide;
  guide.name = command.get_name();
  guide.summary = command.get_description();
  if (const auto saying = sayings_.find(&command); saying != sayings_.end()) {
    guide.note = saying->second.note;
    guide.example = "veyruna " + saying->second.example;
  }
  for (const CLI::Option* const option : command.get_options()) {
    if (option->get_positional()) {
      guide.words.push_back(guideOf(*option));
    } else if (option != command.get_help_ptr()) {
      guide.options.push_back(guideOf(*option));
    }
  }
  return guide;
}

}  // namespace veyruna::cli
