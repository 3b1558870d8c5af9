#include <QApplication>
#include <QStandardPaths>
#include <cstdio>
#include <string_view>

#include "ui/controls/program.h"
#include "ui/window/application.h"
#include "ui/window/product.h"

namespace {

/// -h, --help and --version alone answer on the terminal; true where one of them was given.
bool answersOnTerminal(int argc, char** argv) {
  const std::string_view option = argc == 2 ? argv[1] : "";
  if (option == "--version") {
    std::printf("veyruna-astro %s (build %s)\n", qUtf8Printable(veyruna::ui::programVersion()),
                qUtf8Printable(veyruna::ui::programBuild()));
  } else if (option == "--help" || option == "-h") {
    std::printf(
        "veyruna-astro opens the window of %s. It takes no options but\n"
        "-h, --help and --version; `veyruna` is the command for scripts.\n",
        qUtf8Printable(veyruna::ui::product().title));
  } else {
    return false;
  }
  return true;
}

/// Of the arguments that Qt has left, the first: nobody opens the window by mistyping an option,
/// and files it opens none. True where there is one.
bool refusesArguments(int argc, char** argv) {
  if (argc < 2) {
    return false;
  }
  std::fprintf(stderr, "veyruna-astro: \"%s\" is no option; veyruna-astro --help lists them\n",
               argv[1]);
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (answersOnTerminal(argc, argv)) {
    return 0;
  }
  const QApplication application(argc, argv);  // takes its own arguments out
  if (refusesArguments(argc, argv)) {
    return 2;
  }
  veyruna::ui::VeyrunaAstroApp program(
      veyruna::model::AstronomyModel::standardSurroundings(),
      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
          QStringLiteral("/VeyrunaAstro/window.ini"));
  program.openWindow();
  return QApplication::exec();
}
