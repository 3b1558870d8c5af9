#include "cli/guides/man_page.h"

#include <string_view>
#include <vector>

#include "cli/guides/shell_words.h"
#include "words/listing.h"

namespace veyruna::cli {

namespace {

/// As roff reads it: every character for itself, a hyphen as one that can be typed.
std::string escapedForRoff(std::string_view text) {
  std::string result;
  bool isAtStart = true;
  for (const char character : text) {
    if (isAtStart && (character == '.' || character == '\'')) {
      result += "\\&";
    }
    switch (character) {
      case '\\':
        result += "\\e";
        break;
      case '-':
        result += "\\-";
        break;
      case '\'':
        result += "\\(aq";
        break;
      case '`':
        result += "\\(ga";
        break;
      default:
        result += character;
    }
    isAtStart = character == '\n';
  }
  return result;
}

std::string entryOf(const OptionGuide& option) {
  std::vector<std::string> names;
  for (const std::string& name : option.names) {
    names.push_back("\\fB" + escapedForRoff(name) + "\\fR" +
                    (option.value.empty() ? "" : " \\fI" + escapedForRoff(option.value) + "\\fR"));
  }
  const std::string head =
      names.empty() ? "\\fI" + escapedForRoff(option.value) + "\\fR" : words::joined(names, ", ");
  return ".TP\n" + head + "\n" + escapedForRoff(option.description) + ".\n";
}

std::string exampleOf(const std::string& command) {
  return ".PP\n.nf\n.RS\n" + escapedForRoff(command) + "\n.RE\n.fi\n";
}

std::string commandText(const CommandGuide& command) {
  std::string words;
  for (const OptionGuide& word : command.words) {
    words += " [\\fI" + escapedForRoff(word.value) + "\\fR]";
  }
  std::string text = ".SS \"" + escapedForRoff(command.name) + words + "\"\n" +
                     escapedForRoff(command.summary) + ".\n";
  if (!command.note.empty()) {
    text += ".PP\n" + escapedForRoff(command.note) + "\n";
  }
  for (const std::vector<OptionGuide>& options : {command.words, command.options}) {
    for (const OptionGuide& option : options) {
      text += entryOf(option);
    }
  }
  return text + (command.example.empty() ? "" : exampleOf(command.example));
}

constexpr std::string_view pageBeginning = R"(.SH NAME
veyruna \- star maps, horoscopes and tables of the sky of Veyruna
.SH SYNOPSIS
.B veyruna
.RI [ MOMENT ]
.RI [ PLACE ]
.I COMMAND
.RI [ OPTIONS ]
.SH DESCRIPTION
Writes the charts and tables of
.BR veyruna\-astro (1)
without a window: for scripts, for a whole campaign at once, or for years the window does not reach.
Moment, place and file may be given before or after the command; its own options stand behind it. What
is not given is that of a first start.
.PP
A chart is written as SVG and a table as text where nothing else is asked for. The ending of a file says
its form: .svg, .txt, .html, .pdf, .png, .json, .jsonl or .csv. No display is needed.
)";

constexpr std::string_view pageEnd = R"(.SH EXIT STATUS
.TP
0
All went well.
.TP
1
Something could not be read or written.
.TP
2
Something that was typed is not accepted. A line says what, and what would be; nothing is written.
.SH ENVIRONMENT
.TP
.B XDG_DATA_HOME
Where the saved places are looked for, in VeyrunaAstro/locations.json;
.I ~/.local/share
where it is not set.
.TP
.B XDG_CONFIG_HOME
Where what was typed in the window is looked for, in VeyrunaAstro/VeyrunaAstro.conf;
.I ~/.config
where it is not set.
.TP
.B VEYRUNA_PAGE
The empty page that
.B veyruna page
fills, in place of the one that is installed.
.SH FILES
.TP
.I ~/.local/share/VeyrunaAstro/locations.json
The saved places. The command reads them and never changes them.
.TP
.I ~/.config/VeyrunaAstro/VeyrunaAstro.conf
The window's inputs, of which the command reads the place Manual.
.SH SEE ALSO
.BR veyruna\-astro (1).
The manual, a page of which lists the conditions of a search, opens in the window with F1.
)";

}  // namespace

std::string manPage(const Guide& guide, const std::string& version) {
  std::string text = ".TH VEYRUNA 1 \"\" \"Veyruna " + version + "\" \"User Commands\"\n";
  text.append(pageBeginning).append(".SH OPTIONS\n");
  std::string group;
  for (const OptionGuide& option : guide.options) {
    if (option.group != group) {
      group = option.group;
      text += ".SS " + (group == "Options" ? "Other" : group) + "\n";
    }
    text += entryOf(option);
  }
  text += ".SH COMMANDS\n";
  for (const CommandGuide& command : guide.commands) {
    text += commandText(command);
  }
  return text.append(pageEnd);
}

}  // namespace veyruna::cli
