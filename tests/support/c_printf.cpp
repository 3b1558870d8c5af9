#include "tests/support/c_printf.h"

#include <array>
#include <cstdarg>
#include <cstdio>
#include <locale.h>
#include <stdexcept>

namespace veyruna::tests {

namespace {

/// Switches the calling thread's number format to "C" for as long as it lives.
class CNumbers {
 public:
  CNumbers() : before_(uselocale(theLocale())) {}
  ~CNumbers() { uselocale(before_); }
  CNumbers(const CNumbers&) = delete;
  CNumbers& operator=(const CNumbers&) = delete;

 private:
  static locale_t theLocale() {
    static const locale_t c = newlocale(LC_ALL_MASK, "C", nullptr);
    return c;
  }
  locale_t before_;
};

}  // namespace

std::string printedInC(const char* format, ...) {
  const CNumbers numbers;
  std::array<char, 512> text{};
  std::va_list arguments;
  va_start(arguments, format);
  const int length = std::vsnprintf(text.data(), text.size(), format, arguments);
  va_end(arguments);
  if (length < 0 || static_cast<std::size_t>(length) >= text.size()) {
    throw std::runtime_error("a printed number is longer than its buffer");
  }
  return {text.data(), static_cast<std::size_t>(length)};
}

}  // namespace veyruna::tests
