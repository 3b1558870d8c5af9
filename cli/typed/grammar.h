#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "cli/typed/language.h"

namespace veyruna::cli {

/// The command line's grammar: how words and options are put together.
class Grammar {
 public:
  /// Sorts the arguments into what was typed; the command is "help" or "version" where one was
  /// asked for in any form. Throws UsageError.
  const Typed& parse(const std::vector<std::string>& arguments);

  /// The help of one command, or of all where `topic` is empty. Throws UsageError.
  [[nodiscard]] std::string helpText(const std::string& topic) const;

 private:
  [[nodiscard]] std::vector<std::string> commandNames() const;
  /// Without their dashes: of the chosen command and of all; where none is chosen, of each.
  [[nodiscard]] std::vector<std::string> optionNames() const;
  [[nodiscard]] std::string chosenCommand() const;
  [[nodiscard]] bool isGiven(const char* option) const;
  void refuseMomentBesideOthers() const;
  void refuseWhatNobodyReads() const;
  void refuseTwoOf(const char* whole, const std::string& typed,
                   std::initializer_list<const char*> parts, const char* what) const;
  /// The commands that have an option, joined by "or".
  [[nodiscard]] std::string commandsWith(const std::string& option) const;
  [[nodiscard]] std::string refusalOfCommand(const std::string& word) const;
  [[nodiscard]] std::string refusalOfOption(const std::string& name) const;
  [[noreturn]] void refuseExtra(const std::string& extra) const;

  Language language_;
};

}  // namespace veyruna::cli
