#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace veyruna::reports {

/// Where a table goes, piece by piece: the header in one call, then each row, newline included.
/// A piece is valid during the call only. What a sink throws passes through the table.
using TextSink = std::function<void(std::string_view)>;

/// A table collected into one text: `write` is given a sink.
template <class Write>
std::string collected(Write write) {
  std::string text;
  write(TextSink([&text](std::string_view piece) { text += piece; }));
  return text;
}

}  // namespace veyruna::reports
