// A program that exports, for the tests that kill it or run several at once: `export_child FORM
// FILE [TIMES]` saves the star maps of two moments in turns through the exporter, for ever or so
// often. The first time it is at work is announced by a byte on standard output.
#include <QGuiApplication>
#include <array>
#include <unistd.h>

#include "tests/export/two_exports.h"

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  if (argc < 3) {
    return 2;
  }
  const auto form = veyruna::documents::formOf(argv[1]);
  const QString path = QString::fromLocal8Bit(argv[2]);
  const int times = argc > 3 ? std::atoi(argv[3]) : -1;
  if (!form) {
    return 2;
  }
  const veyruna::tests::TwoExports exports(*form);
  if (write(STDOUT_FILENO, "!", 1) != 1) {
    return 1;
  }
  for (int done = 0; done != times; ++done) {
    if (exports.save(done % 2, path)) {
      return 1;
    }
  }
  return 0;
}
