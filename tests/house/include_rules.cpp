#include "tests/house/include_rules.h"

#include <map>
#include <set>
#include <sstream>

namespace veyruna::tests {

namespace {

struct Room {
  std::set<std::string, std::less<>> mayUse;  ///< rooms below, besides itself
  bool standardLibraryOnly;                   ///< uses no other library
};

const std::map<std::string, Room, std::less<>>& rooms() {
  static const std::map<std::string, Room, std::less<>> all = {
      {"astro", {{}, true}},
      {"reports", {{"astro"}, true}},
      {"charts", {{"astro", "reports"}, true}},
      {"documents", {{"astro", "reports", "charts"}, true}},
      {"model", {{"astro", "reports", "charts", "documents"}, false}},
      {"export", {{"astro", "reports", "charts", "documents", "model"}, false}},
      {"cli", {{"astro", "reports", "charts", "documents", "model"}, false}},
      {"ui/controls", {{"astro"}, false}},
      {"ui/map", {{"astro", "model", "ui/controls"}, false}},
      {"ui/outputs",
       {{"astro", "reports", "documents", "model", "export", "ui/controls", "ui/map"}, false}},
      {"ui/sidebar", {{"astro", "model", "export", "ui/controls"}, false}},
      {"ui/window",
       {{"astro", "model", "export", "ui/controls", "ui/map", "ui/outputs", "ui/sidebar"}, false}},
  };
  return all;
}

/// A header of the standard library has neither a folder nor an ending, but for C's own.
bool isStandardHeader(const std::string& header) {
  return header.find_first_of("/.") == std::string::npos;
}

/// Whether a file of the room may include what stands between the quotes or brackets.
bool isAllowed(const std::string& roomName, const Room& room, const std::string& header,
               bool isQuoted) {
  if (!isQuoted) {
    return !room.standardLibraryOnly || isStandardHeader(header);
  }
  const std::string folder = header.substr(0, header.rfind('/'));
  return folder == roomName || room.mayUse.contains(folder);
}

}  // namespace

std::vector<std::string> roomNames() {
  std::vector<std::string> names;
  for (const auto& [name, room] : rooms()) {
    names.push_back(name);
  }
  return names;
}

std::vector<std::string> forbiddenIncludes(std::string_view room, std::string_view source) {
  const auto rules = rooms().find(room);
  if (rules == rooms().end()) {
    return {"no rules for the room " + std::string(room)};
  }
  std::vector<std::string> forbidden;
  std::istringstream lines{std::string(source)};
  for (std::string line; std::getline(lines, line);) {
    const std::size_t hash = line.find_first_not_of(" \t");
    if (hash == std::string::npos || line[hash] != '#' ||
        line.find("include", hash) == std::string::npos) {
      continue;
    }
    const std::size_t begin = line.find_first_of("<\"", hash);
    const std::size_t end =
        begin == std::string::npos ? begin : line.find_first_of(">\"", begin + 1);
    if (end == std::string::npos) {
      continue;
    }
    if (!isAllowed(rules->first, rules->second, line.substr(begin + 1, end - begin - 1),
                   line[begin] == '"')) {
      forbidden.push_back(line);
    }
  }
  return forbidden;
}

}  // namespace veyruna::tests
