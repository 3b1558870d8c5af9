#pragma once

#include <string>

namespace veyruna::tests {

/// What the C library's printf writes in the "C" locale, whatever the locale the tests run under.
[[gnu::format(printf, 1, 2)]] std::string printedInC(const char* format, ...);

}  // namespace veyruna::tests
