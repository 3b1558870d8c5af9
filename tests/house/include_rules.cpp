#include "tests/house/include_rules.h"

#include <map>
#include <set>
#include <sstream>

namespace veyruna::tests {

namespace {

/// The libraries that a room uses.
enum class Libraries { standard, standardAndPosix, standardAndJson, any };

struct Room {
  std::set<std::string, std::less<>> mayUse;  ///< rooms below, besides itself
  Libraries libraries;
};

const std::map<std::string, Room, std::less<>>& rooms() {
  static const std::map<std::string, Room, std::less<>> all = {
      {"astro", {{}, Libraries::standard}},
      {"files", {{}, Libraries::standardAndPosix}},
      {"reports", {{"astro"}, Libraries::standard}},
      {"charts", {{"astro", "reports"}, Libraries::standard}},
      {"almanac/motion", {{"astro"}, Libraries::standard}},
      {"almanac/events", {{"astro", "reports", "almanac/motion"}, Libraries::standard}},
      {"almanac/search", {{"astro", "reports", "charts", "almanac/motion"}, Libraries::standard}},
      {"documents", {{"astro", "reports", "charts"}, Libraries::standard}},
      {"records",
       {{"astro", "reports", "charts", "almanac/motion", "almanac/events", "almanac/search",
         "words", "documents"},
        Libraries::standardAndJson}},
      {"notes",
       {{"astro", "reports", "charts", "almanac/motion", "almanac/events", "almanac/search",
         "words", "documents", "records"},
        Libraries::standardAndJson}},
      {"words",
       {{"astro", "almanac/motion", "almanac/events", "almanac/search"}, Libraries::standard}},
      {"web",
       {{"astro", "reports", "charts", "almanac/motion", "almanac/events", "almanac/search",
         "words", "documents", "records"},
        Libraries::standard}},
      {"model", {{"astro", "reports", "charts", "documents", "files"}, Libraries::any}},
      {"drawing", {{"astro"}, Libraries::any}},
      {"export",
       {{"astro", "reports", "charts", "documents", "drawing", "files", "model"}, Libraries::any}},
      {"cli/typed",
       {{"astro", "words", "almanac/motion", "almanac/events", "documents", "records", "notes",
         "files", "model"},
        Libraries::any}},
      {"cli/written",
       {{"astro", "words", "documents", "records", "files", "cli/typed"}, Libraries::any}},
      {"cli/page",
       {{"astro", "words", "almanac/motion", "documents", "records", "cli/typed", "cli/written"},
        Libraries::any}},
      {"cli/documents",
       {{"astro", "words", "reports", "charts", "documents", "records", "cli/typed", "cli/written",
         "cli/page"},
        Libraries::any}},
      {"cli/almanac",
       {{"astro", "words", "reports", "charts", "almanac/motion", "almanac/events",
         "almanac/search", "documents", "records", "notes", "cli/typed", "cli/written"},
        Libraries::any}},
      {"cli/guides", {{"words", "cli/typed"}, Libraries::standard}},
      {"cli/batch",
       {{"astro", "words", "documents", "files", "model", "cli/typed", "cli/written",
         "cli/documents"},
        Libraries::any}},
      {"cli/program",
       {{"astro", "words", "documents", "export", "cli/typed", "cli/written", "cli/page",
         "cli/documents", "cli/almanac", "cli/batch"},
        Libraries::any}},
      {"ui/controls", {{"astro"}, Libraries::any}},
      {"ui/charts",
       {{"astro", "reports", "charts", "documents", "drawing", "ui/controls"}, Libraries::any}},
      {"ui/map", {{"astro", "model", "ui/controls"}, Libraries::any}},
      {"ui/outputs",
       {{"astro", "reports", "documents", "drawing", "model", "export", "ui/controls", "ui/charts",
         "ui/map"},
        Libraries::any}},
      {"ui/sidebar", {{"astro", "model", "export", "ui/controls"}, Libraries::any}},
      {"ui/window",
       {{"astro", "drawing", "model", "export", "ui/controls", "ui/charts", "ui/map", "ui/outputs",
         "ui/sidebar"},
        Libraries::any}},
  };
  return all;
}

/// A header of the standard library has neither a folder nor an ending, nor capitals as Qt's.
bool isStandardHeader(const std::string& header) {
  return header.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_") == std::string::npos;
}

bool isPosixHeader(const std::string& header) {
  static const std::set<std::string, std::less<>> used = {"fcntl.h", "poll.h", "sys/mman.h",
                                                          "sys/stat.h", "unistd.h"};
  return used.contains(header);
}

bool isLibraryAllowed(Libraries libraries, const std::string& header) {
  return libraries == Libraries::any || isStandardHeader(header) ||
         (libraries == Libraries::standardAndPosix && isPosixHeader(header)) ||
         (libraries == Libraries::standardAndJson && header == "nlohmann/json.hpp");
}

/// Whether a file of the room may include what stands between the quotes or brackets.
bool isAllowed(const std::string& roomName, const Room& room, const std::string& header,
               bool isQuoted) {
  if (!isQuoted) {
    return isLibraryAllowed(room.libraries, header);
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
