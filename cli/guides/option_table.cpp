#include "cli/guides/option_table.h"

#include <algorithm>
#include <vector>

namespace veyruna::cli {

namespace {

std::string escapedForHtml(const std::string& text) {
  std::string result;
  for (const char character : text) {
    if (character == '[') {
      result += "<wbr>[";  // where a long name may go on below
    } else if (character == '&') {
      result += "&amp;";
    } else if (character == '<') {
      result += "&lt;";
    } else {
      result += character;
    }
  }
  return result;
}

/// One row, and the commands that have the very same option.
struct Row {
  OptionGuide option;
  std::string commands;
};

bool isSame(const OptionGuide& left, const OptionGuide& right) {
  return left.names == right.names && left.value == right.value &&
         left.description == right.description;
}

std::string textOf(const Row& row) {
  std::string names;
  for (const std::string& name : row.option.names) {
    names += (names.empty() ? "<code>" : ", <code>") + name;
    names += (row.option.value.empty() ? "" : " " + escapedForHtml(row.option.value)) + "</code>";
  }
  return "<tr><th scope=\"row\">" + names + "</th><td>" + row.commands + "</td><td>" +
         escapedForHtml(row.option.description) + "</td></tr>\n";
}

}  // namespace

std::string optionTable(const Guide& guide) {
  std::vector<Row> rows;
  for (const OptionGuide& option : guide.options) {
    rows.push_back({.option = option, .commands = "all commands"});
  }
  for (const CommandGuide& command : guide.commands) {
    for (const OptionGuide& option : command.options) {
      const auto same = std::ranges::find_if(
          rows, [&option](const Row& row) { return isSame(row.option, option); });
      const std::string name = "<code>" + command.name + "</code>";
      if (same == rows.end()) {
        rows.push_back({.option = option, .commands = name});
      } else {
        same->commands += ", " + name;
      }
    }
  }
  std::string table;
  for (const Row& row : rows) {
    table += textOf(row);
  }
  return table;
}

}  // namespace veyruna::cli
