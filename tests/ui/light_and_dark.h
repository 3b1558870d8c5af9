#pragma once

#include <string>

#include "tests/ui/looks.h"
#include "tests/ui/shown_window.h"

namespace veyruna::tests {

/// The window on a light desktop and, where the parameter is set, on a dark one.
struct LightAndDark : testing::TestWithParam<bool> {
  const Look look{GetParam() ? darkPalette() : lightPalette()};
  ShownWindow shown;
};

inline std::string lightOrDark(const testing::TestParamInfo<bool>& isDark) {
  return isDark.param ? "Dark" : "Light";
}

}  // namespace veyruna::tests
