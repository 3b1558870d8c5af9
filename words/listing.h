#pragma once

#include <functional>
#include <ranges>
#include <string>
#include <string_view>

namespace veyruna::words {

/// The texts one after the other with `between` between them; `textOf` says the text of each.
template <std::ranges::input_range Many, class TextOf = std::identity>
std::string joined(Many&& many, std::string_view between = ", ", TextOf textOf = {}) {
  std::string all;
  bool isFirst = true;
  for (const auto& one : many) {
    all.append(isFirst ? std::string_view() : between).append(std::invoke(textOf, one));
    isFirst = false;
  }
  return all;
}

}  // namespace veyruna::words
