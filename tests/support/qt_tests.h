#pragma once

#include <QLocale>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <locale>
#include <stdexcept>

#include "tests/support/patience.h"

namespace veyruna::tests {

/// Takes over the locale named in VEYRUNA_TEST_LOCALE, for C, C++ and Qt alike; it must be one that
/// writes decimal commas. Without a name: the plain locale. False, with a message, where it cannot.
inline bool takesTestLocale() {
  QLocale::setDefault(QLocale::c());
  const char* const name = std::getenv("VEYRUNA_TEST_LOCALE");
  if (name == nullptr) {
    return true;
  }
  try {
    std::locale::global(std::locale(name));
  } catch (const std::runtime_error&) {
    std::fprintf(stderr, "the locale %s is not installed\n", name);
    return false;
  }
  QLocale::setDefault(QLocale(QString::fromLatin1(name)));
  if (QLocale().decimalPoint() != QLatin1String(",")) {
    std::fprintf(stderr, "the locale %s writes no decimal comma\n", name);
    return false;
  }
  return true;
}

/// Runs the tests under an application object, in the locale asked for. `before` is called before
/// there is an application, `after` before it goes; the tests have failed where that returns false.
template <class Application>
int runQtTests(
    int argc, char** argv, const std::function<void()>& before = [] {},
    const std::function<bool()>& after = [] { return true; }) {
  testing::InitGoogleTest(&argc, argv);
  endTestsThatHang();
  before();
  // The application takes the environment's locale, the tests theirs after it.
  const Application application(argc, argv);
  if (!takesTestLocale()) {
    return 1;
  }
  const int failures = RUN_ALL_TESTS();
  return after() ? failures : 1;
}

}  // namespace veyruna::tests
