#include <QApplication>
#include <QLocale>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <locale>
#include <stdexcept>

#include "export/pdf_exporter.h"
#include "export/sealed_page.h"

/// Runs the tests with the web engine, and under the locale named in VEYRUNA_TEST_LOCALE where it
/// is set; it must be one that writes decimal commas.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  veyruna::exports::prepareWebEngine();
  const QApplication application(argc, argv);
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
  const int failures = RUN_ALL_TESTS();
  return veyruna::exports::PDFExporter::waitForAll() ? failures : 1;
}
