#include "cli/guides/completion.h"
#include "cli/guides/shell_words.h"
#include "words/listing.h"

namespace veyruna::cli {

namespace {

/// In single quotes, in which fish reads a backslash.
std::string quotedForFish(std::string_view text) {
  std::string quoted = "'";
  for (const char character : text) {
    if (character == '\'' || character == '\\') {
      quoted += '\\';
    }
    quoted += character;
  }
  return quoted + "'";
}

/// -x takes a value and no file, -r with -F takes files.
std::string valueOf(const Offered& offered) {
  switch (offered.kind) {
    case Offer::nothing:
      return " -x";
    case Offer::files:
      return " -r -F";
    case Offer::folders:
      return " -x -a '(__fish_complete_directories (commandline -ct))'";
    case Offer::places:
      return " -x -a '(__veyruna_places)'";
    case Offer::words:
      return " -x -a " + quotedForFish(words::joined(offered.words, " "));
    case Offer::listOfWords:
      return " -x -a '(__fish_append , " + words::joined(offered.words, " ") + ")'";
  }
  return "";
}

std::string lineOf(const OptionGuide& option, const std::string& condition) {
  std::string line = "complete -c veyruna" + condition;
  for (const std::string& name : option.names) {
    line += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
  }
  line += option.value.empty() ? "" : valueOf(option.offered);
  return line + " -d " + quotedForFish(option.description) + "\n";
}

constexpr std::string_view fishCommand = R"(
# The command that was typed; fails where none was.
function __veyruna_command
    set -l isValue 0
    for word in (commandline -opc)[2..-1]
        if test $isValue = 1
            set isValue 0
            continue
        end
        switch $word
            case )";

constexpr std::string_view fishRest = R"(
                set isValue 1
            case '-*'
            case '*'
                echo $word
                return
        end
    end
    return 1
end

function __veyruna_is
    contains -- $argv[1] (__veyruna_command)
end

complete -c veyruna -f
)";

}  // namespace

std::string fishCompletion(const Guide& guide) {
  std::string text =
      "# Completes what is typed behind veyruna.\n\nfunction __veyruna_places\n"
      "    veyruna locations --format csv 2>/dev/null | ";
  text.append(placeNamesOfTable).append("\nend\n").append(fishCommand);
  text.append(words::joined(namesWithValues(guide), " ")).append(fishRest);
  for (const CommandGuide& entry : guide.commands) {
    text += "complete -c veyruna -n 'not __veyruna_command >/dev/null' -a " + entry.name + " -d " +
            quotedForFish(entry.summary) + "\n";
  }
  for (const OptionGuide& option : guide.options) {
    text += lineOf(option, "");
  }
  for (const CommandGuide& entry : guide.commands) {
    const std::string condition = " -n '__veyruna_is " + entry.name + "'";
    for (const OptionGuide& option : entry.options) {
      text += lineOf(option, condition);
    }
    for (const OptionGuide& word : entry.words) {
      if (word.offered.kind == Offer::files) {
        text += "complete -c veyruna" + condition + " -F\n";
      } else if (word.offered.kind == Offer::words) {
        text += "complete -c veyruna" + condition + " -a " +
                quotedForFish(words::joined(word.offered.words, " ")) + "\n";
      }
    }
  }
  return text;
}

}  // namespace veyruna::cli
