#include <QApplication>
#include <QLocale>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>

/// Runs the tests under a windowing application, in the plain locale or in the one named in
/// VEYRUNA_TEST_LOCALE, which must write decimal commas.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const char* const name = std::getenv("VEYRUNA_TEST_LOCALE");
  QLocale::setDefault(name != nullptr ? QLocale(QString::fromLatin1(name)) : QLocale::c());
  if (name != nullptr && QLocale().decimalPoint() != QLatin1String(",")) {
    std::fprintf(stderr, "the locale %s writes no decimal comma\n", name);
    return 1;
  }
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
