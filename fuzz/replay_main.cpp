// replay FOLDER...: tries every file of the folders once, without a fuzzer.
#include <QDir>
#include <QFile>
#include <cstdio>

#include "fuzz/target.h"

int main(int argc, char** argv) {
  int tried = 0;
  for (int i = 1; i < argc; ++i) {
    const QDir folder(QString::fromLocal8Bit(argv[i]));
    for (const QString& name : folder.entryList(QDir::Files)) {
      QFile file(folder.filePath(name));
      if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(file.fileName()));
        return 1;
      }
      std::printf("%s\n", qPrintable(name));
      std::fflush(stdout);
      const QByteArray bytes = file.readAll();
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                             static_cast<std::size_t>(bytes.size()));
      ++tried;
    }
  }
  std::printf("%d files tried\n", tried);
  return tried > 0 ? 0 : 1;
}
