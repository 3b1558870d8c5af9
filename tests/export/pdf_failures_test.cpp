// Renderings that fail: each tells so once, and none takes the program along.
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTimer>
#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <unistd.h>

#include "export/chart_page.h"
#include "export/document_exporter.h"
#include "export/pdf_exporter.h"
#include "export/report_page.h"
#include "tests/export/pdf_reader.h"
#include "tests/model/observed.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using exports::PDFExporter;
using exports::PdfResult;
using exports::RenderFailure;
using std::chrono::milliseconds;

constexpr QSizeF letterPoints(612, 792);

/// A report that takes a while to print.
QString longReport() {
  return exports::reportDocument(u"Title"_s, u"M"_s,
                                 {{u"One"_s, u"some_row_of_a_table\n"_s.repeated(3000)}});
}

/// What completions were told.
struct Answers {
  QStringList descriptions = {};

  exports::PdfCompletion completion() {
    return [this](const PdfResult& result) {
      const auto* failure = std::get_if<RenderFailure>(&result);
      descriptions.append(failure != nullptr ? failure->description : u"a PDF"_s);
    };
  }
};

/// The render processes of this program: its children of the web engine fork what draws the
/// documents.
std::vector<pid_t> renderProcesses() {
  const auto read = [](const QString& id, const QString& name) {
    QFile file(u"/proc/"_s + id + u'/' + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  };
  const auto parentOf = [&](const QString& id) {
    // After the name, which stands in brackets: state and parent.
    return QString::fromLatin1(read(id, u"stat"_s)).section(u')', -1).section(u' ', 2, 2);
  };
  const QString self = QString::number(getpid());
  std::vector<pid_t> found;
  for (const QString& id : QDir(u"/proc"_s).entryList({u"[0-9]*"_s}, QDir::Dirs)) {
    const QString parent = parentOf(id);
    if (parent != self && parentOf(parent) == self &&
        read(id, u"cmdline"_s).contains("QtWebEngineProcess")) {
      found.push_back(id.toInt());
    }
  }
  return found;
}

void runEventLoopFor(milliseconds time) {
  QEventLoop loop;
  QTimer::singleShot(time, &loop, &QEventLoop::quit);
  loop.exec();
}

TEST(Failures, ADocumentThatDoesNotLoad) {
  Answers answers;
  // Beyond what the web engine takes as one document.
  PDFExporter::start(QString(3'000'000, u'x'), letterPoints, answers.completion());
  EXPECT_TRUE(answers.descriptions.isEmpty());
  EXPECT_TRUE(PDFExporter::waitForAll());
  EXPECT_EQ(answers.descriptions, QStringList{u"The document could not be loaded."_s});
}

TEST(Failures, APageWithoutSize) {
  for (const QSizeF& size : {QSizeF(0, 0), QSizeF(-1, 5), QSizeF()}) {
    Answers answers;
    PDFExporter::start(exports::chartPage({}), size, answers.completion());
    EXPECT_TRUE(PDFExporter::waitForAll());
    EXPECT_EQ(answers.descriptions, QStringList{u"The document could not be laid out."_s});
  }
}

TEST(Failures, AreToldUnderTheirPrefixAndLeaveNoFile) {
  const tests::Folder folder;
  const tests::FakeModel world;
  QStringList lines;
  const exports::DocumentExporter exporter(world.model, &PDFExporter::render,
                                           [&](const QString& line) { lines.append(line); });
  auto content = *exporter.pdf(exports::OutputTab::planets);
  content.html = QString(3'000'000, u'x');
  exporter.save(content, folder / u"a.pdf"_s);
  EXPECT_TRUE(PDFExporter::waitForAll());
  EXPECT_EQ(lines, QStringList{u"Error rendering PDF: The document could not be loaded."_s});
  EXPECT_EQ(folder.names(), QStringList());
}

TEST(Failures, ARenderProcessThatDiesBeforeItPrints) {
  for (int round = 0; round < 10; ++round) {
    Answers answers;
    const std::vector<pid_t> before = renderProcesses();
    PDFExporter::start(longReport(), letterPoints, answers.completion(), std::chrono::seconds(100));
    // Killed as soon as it is there: the document is still being read.
    const auto newest = [&] {
      std::vector<pid_t> found = renderProcesses();
      std::erase_if(found, [&](pid_t id) { return std::ranges::count(before, id) > 0; });
      return found;
    };
    while (newest().empty() && answers.descriptions.isEmpty()) {
      runEventLoopFor(milliseconds(1));
    }
    for (const pid_t process : newest()) {
      ASSERT_EQ(kill(process, SIGKILL), 0);
    }
    ASSERT_TRUE(PDFExporter::waitForAll(std::chrono::seconds(110)));
    runEventLoopFor(milliseconds(20));
    EXPECT_EQ(answers.descriptions, QStringList(u"The process that draws the document ended."_s));
  }
}

TEST(Failures, PatienceThatEndsAtAnyMoment) {
  int impatient = 0;
  for (int patience = 0; patience <= 600; patience += 50) {
    Answers answers;
    PDFExporter::start(longReport(), letterPoints, answers.completion(), milliseconds(patience));
    ASSERT_TRUE(PDFExporter::waitForAll()) << patience;
    runEventLoopFor(milliseconds(5));
    ASSERT_EQ(answers.descriptions.size(), 1) << patience;
    impatient += answers.descriptions.front() == u"Drawing the document took too long."_s ? 1 : 0;
  }
  EXPECT_GT(impatient, 0);
  std::printf("%d of 13 renderings given up\n", impatient);
}

TEST(Waiting, EndsWhenItsOwnPatienceDoes) {
  Answers answers;
  PDFExporter::start(longReport(), letterPoints, answers.completion());
  EXPECT_FALSE(PDFExporter::waitForAll(milliseconds(0)));
  EXPECT_TRUE(answers.descriptions.isEmpty());
  EXPECT_TRUE(PDFExporter::waitForAll());
  EXPECT_EQ(answers.descriptions, QStringList{u"a PDF"_s});
}

TEST(Waiting, ForNothingEnds) {
  EXPECT_TRUE(PDFExporter::waitForAll());
}

}  // namespace
}  // namespace veyruna
