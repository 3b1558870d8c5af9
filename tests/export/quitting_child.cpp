// quitting_child HOW FOLDER: starts three exports and quits at once. Waits for them as HOW says:
// after-the-loop, about-to-quit, without-a-loop or in-the-loop.
#include <QGuiApplication>
#include <QTimer>
#include <cstdio>

#include "export/pdf_exporter.h"
#include "export/report_page.h"
#include "files/file_writer.h"

using namespace Qt::StringLiterals;
using veyruna::exports::PDFExporter;
using veyruna::exports::PdfResult;

namespace {

void startThree(const QString& folder) {
  const QString html = veyruna::exports::reportDocument(
      u"Title"_s, u"M"_s, {{u"One"_s, u"some row of a table\n"_s.repeated(2000)}});
  for (int number = 0; number < 3; ++number) {
    const QString path = folder + u'/' + QString::number(number) + u".pdf"_s;
    PDFExporter::start(html, {612, 792}, [path](const PdfResult& result) {
      if (const auto* bytes = std::get_if<QByteArray>(&result)) {
        veyruna::files::writeWholeFile(path.toStdString(), bytes->toStdString());
      }
    });
  }
}

}  // namespace

int main(int argc, char** argv) {
  veyruna::exports::prepareWebEngine();
  QGuiApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 3) {
    return 2;
  }
  const QString how = arguments.at(1);
  const QString folder = arguments.at(2);
  bool isDone = false;
  if (how == u"without-a-loop"_s) {
    startThree(folder);
    return PDFExporter::waitForAll() ? 0 : 1;
  }
  if (how == u"about-to-quit"_s) {
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &application,
                     [&] { isDone = PDFExporter::waitForAll(); });
  }
  QTimer::singleShot(0, &application, [&] {
    startThree(folder);
    if (how == u"in-the-loop"_s) {
      isDone = PDFExporter::waitForAll();
    }
    QCoreApplication::quit();
  });
  QCoreApplication::exec();
  if (how == u"after-the-loop"_s) {
    isDone = PDFExporter::waitForAll();
  }
  return isDone ? 0 : 1;
}
