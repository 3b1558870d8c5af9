#include "astro/invariant.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>

#include "astro/number_conversion.h"

namespace veyruna::astro {

void InvariantValue::print() const noexcept {
  std::array<char, longestShortestText> text{};  // and for any 64-bit integer
  const char* const end = isWhole_
                              ? std::to_chars(text.data(), text.data() + text.size(), whole_).ptr
                              : writeShortest(text.data(), real_);
  std::fwrite(text.data(), 1, static_cast<std::size_t>(end - text.data()), stderr);
}

void stopOnBrokenInvariant(const char* what,
                           std::initializer_list<InvariantValue> values) noexcept {
  std::fputs("veyruna: broken invariant: ", stderr);
  std::fputs(what, stderr);
  const char* before = " (";
  for (const InvariantValue& value : values) {
    std::fputs(before, stderr);
    value.print();
    before = ", ";
  }
  std::fputs(values.size() > 0 ? ")\n" : "\n", stderr);
  std::abort();
}

}  // namespace veyruna::astro
