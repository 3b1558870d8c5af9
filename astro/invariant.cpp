#include "astro/invariant.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>

namespace veyruna::astro {

void InvariantValue::print() const noexcept {
  std::array<char, 32> text{};  // room for any double and any 64-bit integer
  char* const end = text.data() + text.size();
  const auto written =
      isWhole_ ? std::to_chars(text.data(), end, whole_) : std::to_chars(text.data(), end, real_);
  std::fwrite(text.data(), 1, static_cast<std::size_t>(written.ptr - text.data()), stderr);
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
