#include "cli/guides/completion.h"
#include "cli/guides/shell_words.h"
#include "words/listing.h"

namespace veyruna::cli {

namespace {

/// What a value may be, as a call of the functions below.
std::string callOf(const Offered& offered) {
  switch (offered.kind) {
    case Offer::nothing:
      return "";
    case Offer::files:
      return "compopt -o default";
    case Offer::folders:
      return "compopt -o dirnames";
    case Offer::places:
      return "_veyruna_places \"$1\" \"$word\"";
    case Offer::words:
      return "_veyruna_words \"$word\" " + words::joined(offered.words, " ");
    case Offer::listOfWords:
      return "_veyruna_list \"$word\" " + words::joined(offered.words, " ");
  }
  return "";
}

constexpr std::string_view bashFunctions = R"(
_veyruna_words() {
  mapfile -t COMPREPLY < <(compgen -W "${*:2}" -- "$1")
}

# Words with commas between them.
_veyruna_list() {
  local front=
  [[ $1 == *,* ]] && front=${1%,*},
  mapfile -t COMPREPLY < <(compgen -P "$front" -W "${*:2}" -- "${1##*,}")
}

# A quote that is open stays; without one, blanks are escaped.
_veyruna_places() {
  local place start=${2#[\"\']}
  COMPREPLY=()
  start=${start//\\/}
  while IFS= read -r place; do
    if [[ $place == "$start"* ]]; then
      [[ $2 == [\"\']* ]] || printf -v place %q "$place"
      COMPREPLY+=("$place")
    fi
  done < <("$1" locations --format csv 2>/dev/null | )";

constexpr std::string_view bashBeginning = R"()
}

_veyruna() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command='' i
  # --month=Dov is three words here.
  if [[ $word == = ]]; then
    word=
  elif [[ $before == = ]]; then
    before=${COMP_WORDS[COMP_CWORD - 2]}
  fi
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case ${COMP_WORDS[i]} in
      =) ((++i)) ;;
      )";

std::string namesOf(const OptionGuide& option) {
  return words::joined(option.names, " ");
}

}  // namespace

std::string bashCompletion(const Guide& guide) {
  std::string text = "# Completes what is typed behind veyruna.\n";
  text.append(bashFunctions).append(placeNamesOfTable).append(bashBeginning);
  text += words::joined(namesWithValues(guide), " | ") +
          ") [[ ${COMP_WORDS[i + 1]} == = ]] || ((++i)) ;;\n"
          "      -*) ;;\n"
          "      *)\n"
          "        command=${COMP_WORDS[i]}\n"
          "        break\n"
          "        ;;\n"
          "    esac\n"
          "  done\n"
          "\n"
          "  case $before in\n";
  for (const OptionGuide& option : differentOptions(guide)) {
    if (!option.value.empty()) {
      const std::string call = callOf(option.offered);
      text += "    " + words::joined(option.names, " | ") + ")\n" +
              (call.empty() ? "" : "      " + call + "\n") + "      return\n      ;;\n";
    }
  }
  text += "  esac\n\n  if [[ $word == -* ]]; then\n    local options='" +
          words::joined(guide.options, " ", namesOf) + "'\n    case $command in\n";
  for (const CommandGuide& command : guide.commands) {
    if (!command.options.empty()) {
      text += "      " + command.name + ") options+=' " +
              words::joined(command.options, " ", namesOf) + "' ;;\n";
    }
  }
  text +=
      "    esac\n    _veyruna_words \"$word\" \"$options\"\n    return\n  fi\n\n"
      "  case $command in\n    '')\n      _veyruna_words \"$word\"";
  for (const CommandGuide& command : guide.commands) {
    text += " " + command.name;
  }
  text += "\n      ;;\n";
  for (const CommandGuide& command : guide.commands) {
    for (const OptionGuide& word : command.words) {
      if (word.offered.kind != Offer::nothing) {
        text += "    " + command.name + ") " + callOf(word.offered) + " ;;\n";
      }
    }
  }
  return text + "  esac\n}\n\ncomplete -F _veyruna veyruna\n";
}

}  // namespace veyruna::cli
