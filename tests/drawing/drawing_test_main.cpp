#include <QGuiApplication>

#include "tests/support/qt_tests.h"

int main(int argc, char** argv) {
  return veyruna::tests::runQtTests<QGuiApplication>(argc, argv);
}
