#include <QApplication>

#include "tests/support/qt_tests.h"

int main(int argc, char** argv) {
  return veyruna::tests::runQtTests<QApplication>(argc, argv);
}
