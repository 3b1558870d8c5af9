#include <QCoreApplication>

#include "tests/support/qt_tests.h"

/// Settings and calculations need an application object.
int main(int argc, char** argv) {
  return veyruna::tests::runQtTests<QCoreApplication>(argc, argv);
}
