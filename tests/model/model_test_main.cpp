#include <QCoreApplication>
#include <QLocale>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <locale>
#include <stdexcept>

/// Runs the tests under an application object, which settings and calculations need, and under the
/// locale named in VEYRUNA_TEST_LOCALE where it is set: for C, C++ and Qt alike, and it must be one
/// that writes decimal commas.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  if (const char* name = std::getenv("VEYRUNA_TEST_LOCALE")) {
    try {
      std::locale::global(std::locale(name));
    } catch (const std::runtime_error&) {
      std::fprintf(stderr, "the locale %s is not installed\n", name);
      return 1;
    }
    QLocale::setDefault(QLocale(QString::fromLatin1(name)));
    if (QLocale().decimalPoint() != QLatin1String(",")) {
      std::fprintf(stderr, "the locale %s writes no decimal comma\n", name);
      return 1;
    }
  }
  return RUN_ALL_TESTS();
}
