#include <QApplication>

#include "export/pdf_exporter.h"
#include "export/sealed_page.h"
#include "tests/support/qt_tests.h"

/// Runs the tests with the web engine.
int main(int argc, char** argv) {
  return veyruna::tests::runQtTests<QApplication>(
      argc, argv, &veyruna::exports::prepareWebEngine,
      [] { return veyruna::exports::PDFExporter::waitForAll(); });
}
