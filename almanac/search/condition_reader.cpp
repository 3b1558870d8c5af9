#include "almanac/search/condition_reader.h"

#include <utility>

#include "almanac/search/line_reader.h"

namespace veyruna::almanac {

namespace {

struct Line {
  std::string_view text;
  std::size_t number;
  std::size_t indentation;  ///< columns in front of the first word
};

/// The lines on which something stands but a comment.
std::vector<Line> linesOf(std::string_view text) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  constexpr std::size_t tabStop = 8;
  if (text.starts_with(byteOrderMark)) {
    text.remove_prefix(byteOrderMark.size());
  }
  std::vector<Line> lines;
  for (std::size_t number = 1; !text.empty(); ++number) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) {
      line.remove_suffix(1);
    }
    const std::size_t first = line.find_first_not_of(" \t\r\v\f");
    if (first == std::string_view::npos || line[first] == '#') {
      continue;
    }
    std::size_t column = 0;
    for (const char blank : line.substr(0, first)) {
      column = blank == '\t' ? (column / tabStop + 1) * tabStop : column + 1;
    }
    lines.push_back({line, number, column});
  }
  return lines;
}

class BlockReader {
 public:
  explicit BlockReader(std::string_view text) : lines_(linesOf(text)) {}

  /// The lines from the next one on that stand as far in as it does, with what they open.
  std::vector<Condition> block(int depth) {
    std::vector<Condition> read;
    const std::size_t indentation = next_ < lines_.size() ? lines_[next_].indentation : 0;
    while (next_ < lines_.size() && lines_[next_].indentation >= indentation) {
      const Line& line = lines_[next_++];
      LineReader reader(line.text, line.number);
      if (line.indentation > indentation) {
        reader.words().refuseIndentation("as many blanks as in the lines before it, or fewer");
      }
      read.push_back(reader.isOpening() ? opened(line, reader, depth) : reader.whole(depth));
    }
    return read;
  }

  /// Refuses what stands less far in than what came first.
  void finish() const {
    if (next_ < lines_.size()) {
      LineReader(lines_[next_].text, lines_[next_].number)
          .words()
          .refuseIndentation("as many blanks as in the first line");
    }
  }

 private:
  Condition opened(const Line& opener, LineReader& reader, int depth) {
    const Opening opening = reader.opening();
    const int inside = depth + opening.negations + 1;
    if (next_ == lines_.size() || lines_[next_].indentation <= opener.indentation) {
      reader.words().refuseEnd(
          "a group has no parts",
          "lines below that are indented further, or all in one: any of (A; B; C)");
    }
    if (inside > deepestNesting) {
      reader.words().refuseDepth();
    }
    std::vector<Condition> parts = block(inside);
    if (next_ < lines_.size() && lines_[next_].indentation > opener.indentation) {
      LineReader(lines_[next_].text, lines_[next_].number)
          .words()
          .refuseIndentation("as many blanks as one of the lines above");
    }
    Condition group = opening.group == Group::any ? Condition{AnyOf{std::move(parts)}}
                                                  : Condition{AllOf{std::move(parts)}};
    for (int i = 0; i < opening.negations; ++i) {
      std::vector<Condition> inner;
      inner.push_back(std::move(group));
      group = {Not{std::move(inner)}};
    }
    return group;
  }

  std::vector<Line> lines_;
  std::size_t next_ = 0;
};

}  // namespace

std::vector<Condition> readConditions(std::string_view text) {
  BlockReader reader(text);
  std::vector<Condition> conditions = reader.block(0);
  reader.finish();
  return conditions;
}

}  // namespace veyruna::almanac
