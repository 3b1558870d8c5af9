#include "cli/guides/completion.h"
#include "cli/guides/shell_words.h"
#include "words/listing.h"

namespace veyruna::cli {

namespace {

/// With the brackets and colons that mean something in a description taken for themselves.
std::string escapedForZsh(const std::string& text) {
  std::string result;
  for (const char character : text) {
    if (character == '[' || character == ']' || character == ':') {
      result += '\\';
    }
    result += character;
  }
  return result;
}

std::string actionOf(const Offered& offered) {
  switch (offered.kind) {
    case Offer::nothing:
      return " ";
    case Offer::files:
      return "_files";
    case Offer::folders:
      return "_directories";
    case Offer::places:
      return "_veyruna_places";
    case Offer::words:
      return "(" + words::joined(offered.words, " ") + ")";
    case Offer::listOfWords:
      return "_sequence compadd - " + words::joined(offered.words, " ");
  }
  return "";
}

std::string argumentOf(const OptionGuide& option) {
  return ":" + escapedForZsh(option.value) + ":" + actionOf(option.offered);
}

/// A line for each name, none of which is offered beside another.
std::string linesOf(const OptionGuide& option) {
  std::string lines;
  for (const std::string& name : option.names) {
    std::string line = option.names.size() > 1 ? "(" + words::joined(option.names, " ") + ")" : "";
    line += name;
    if (!option.value.empty()) {
      line += name.starts_with("--") ? "=" : "+";
    }
    line += "[" + escapedForZsh(option.description) + "]";
    line += option.value.empty() ? "" : argumentOf(option);
    lines += "    " + quotedForShell(line) + "\n";
  }
  return lines;
}

constexpr std::string_view zshPlaces = R"zsh(
_veyruna_places() {
  local -a places expl
  places=(${(f)"$(_call_program places veyruna locations --format csv 2>/dev/null | )zsh";

constexpr std::string_view zshBeginning = R"zsh()"})
  _wanted places expl 'saved place' compadd -a places
}

_veyruna() {
  local curcontext=$curcontext state line
  typeset -A opt_args
  local -a general commands own
  general=(
)zsh";

constexpr std::string_view zshChoice = R"zsh(  )

  _arguments -C $general '1:command:->command' '*:: :->rest' && return
  if [[ $state == command ]]; then
    _describe command commands
    return
  fi
  case $words[1] in
)zsh";

}  // namespace

std::string zshCompletion(const Guide& guide) {
  std::string text = "#compdef veyruna\n# Completes what is typed behind veyruna.\n";
  text.append(zshPlaces).append(placeNamesOfTable).append(zshBeginning);
  for (const OptionGuide& option : guide.options) {
    text += linesOf(option);
  }
  text += "  )\n  commands=(\n";
  for (const CommandGuide& command : guide.commands) {
    text += "    " + quotedForShell(command.name + ":" + escapedForZsh(command.summary)) + "\n";
  }
  text.append(zshChoice);
  for (const CommandGuide& command : guide.commands) {
    if (command.options.empty() && command.words.empty()) {
      continue;
    }
    text += "    " + command.name + ")\n      own=(\n";
    for (const OptionGuide& option : command.options) {
      text += linesOf(option);
    }
    for (const OptionGuide& word : command.words) {
      text += "    " + quotedForShell("*" + argumentOf(word)) + "\n";
    }
    text += "      ) ;;\n";
  }
  return text + "  esac\n  _arguments $general $own\n}\n\n_veyruna \"$@\"\n";
}

}  // namespace veyruna::cli
