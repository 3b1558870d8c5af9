// The same command with what drawing takes.
#include <QGuiApplication>
#include <cstdio>
#include <optional>
#include <string>
#include <unistd.h>
#include <vector>

#include "cli/program/command_line.h"
#include "cli/written/streams.h"
#include "export/sheet.h"

namespace {

using namespace veyruna;

/// Qt's remarks on a desktop that is not asked for are not the command's; what ends the program is.
void hear(QtMsgType type, const QMessageLogContext& /*where*/, const QString& message) {
  if (type == QtFatalMsg) {
    std::fprintf(stderr, "veyruna: cannot draw: %s\n", qUtf8Printable(message.simplified()));
    _exit(cli::writeFailed);
  }
}

/// Fonts and painting without a display: nothing of the person's desktop has a say.
class Studio {
 public:
  Studio() : isSet_(qputenv("QT_QPA_PLATFORM", "offscreen")), application_(argc_, argv_.data()) {}

 private:
  int argc_ = 1;
  std::string name_ = "veyruna-draw";
  std::vector<char*> argv_ = {name_.data(), nullptr};
  bool isSet_;  // before the application reads it
  QGuiApplication application_;
};

std::string drawn(const cli::Original& original, documents::Form form, int widthPixels) {
  const exports::Sheet sheet = exports::documentSheet(
      original.document, QString::fromStdString(original.heading),
      QString::fromStdString(original.text),
      {QString::fromStdString(original.date), QString::fromStdString(original.place)});
  return exports::bytesOf(sheet, form, widthPixels).toStdString();
}

}  // namespace

int main(int argc, char** argv) {
  cli::prepareStreams();
  qInstallMessageHandler(hear);
  std::optional<Studio> studio;  // opened when the arguments have turned out to be fine
  return cli::runCommandLine(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc),
                             {.open = [&studio] { studio.emplace(); }, .draw = &drawn});
}
