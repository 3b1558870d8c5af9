// Renderings side by side, and what lives how long.
#include "export/pdf_exporter.h"

#include <QProcess>
#include <QTimer>
#include <gtest/gtest.h>

#include "export/chart_page.h"
#include "export/document_exporter.h"
#include "export/report_page.h"
#include "tests/export/pdf_reader.h"
#include "tests/model/observed.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using exports::DocumentExporter;
using exports::OutputTab;
using exports::PDFExporter;
using exports::PdfResult;
using tests::PdfReader;

constexpr QSizeF letterPoints(612, 792);

QString report(const QString& title) {
  return exports::reportDocument(title, u"M"_s, {{u"One"_s, u"a table"_s}});
}

TEST(Charts, FillExactlyOnePage) {
  for (const tests::ReferenceCase& at : tests::referenceCases()) {
    const tests::ObservedModel world(at);
    for (const OutputTab tab : {OutputTab::starMap, OutputTab::horoscope}) {
      const auto content = exports::pdfExport(world.model, tab);
      const PdfReader pdf(tests::rendered(content->html, content->pageSizePoints));
      const auto pages = pdf.pages();
      ASSERT_EQ(pages.size(), 1U);
      EXPECT_NEAR(pages[0].width, content->pageSizePoints.width(), 0.1);
      EXPECT_NEAR(pages[0].height, content->pageSizePoints.height(), 0.1);
      EXPECT_FALSE(pdf.embeddings().isEmpty());
      EXPECT_FALSE(pdf.embeddings().contains(u"no"_s));
      // Text that runs along no curve can be found.
      EXPECT_TRUE(pdf.lines().join(u'\n').contains(world.model.dateLabel()));
    }
  }
}

TEST(Charts, EmptyOnesFillAPageToo) {
  const PdfReader pdf(tests::rendered(exports::chartPage({}), {720, 720}));
  EXPECT_EQ(pdf.pages().size(), 1U);
}

TEST(BackToBack, BothComplete) {
  QStringList titles;
  for (const QString& title : {u"First"_s, u"Second"_s}) {
    PDFExporter::start(report(title), letterPoints, [&titles, title](const PdfResult& result) {
      EXPECT_EQ(PDFExporter::activeCount(), 2 - titles.size());  // this one still counts
      titles.append(PdfReader(std::get<QByteArray>(result)).lines().value(0));
      EXPECT_EQ(titles.back(), title);
    });
  }
  EXPECT_EQ(PDFExporter::activeCount(), 2);
  EXPECT_TRUE(titles.isEmpty());
  EXPECT_TRUE(PDFExporter::waitForAll());
  EXPECT_EQ(PDFExporter::activeCount(), 0);
  titles.sort();
  EXPECT_EQ(titles, QStringList({u"First"_s, u"Second"_s}));
}

TEST(BackToBack, ACompletionMayStartTheNext) {
  int left = 3;
  std::function<void()> startOne = [&] {
    PDFExporter::start(report(u"T"_s), letterPoints, [&](const PdfResult& result) {
      EXPECT_TRUE(std::holds_alternative<QByteArray>(result));
      if (--left > 0) {
        startOne();
      }
    });
  };
  startOne();
  EXPECT_TRUE(PDFExporter::waitForAll());
  EXPECT_EQ(left, 0);
}

/// Files that are written by an exporter over a model, both gone before the first one is there.
TEST(Deleted, WhoAskedDoesNotTakeTheFilesAlong) {
  const tests::Folder folder;
  QStringList outcomes;
  {
    const tests::ObservedModel world(tests::referenceCases().front());
    const DocumentExporter exporter(world.model, &PDFExporter::render);
    for (const OutputTab tab : exports::outputTabs) {
      if (const auto content = exporter.pdf(tab)) {
        exporter.save(*content, folder / exports::title(tab),
                      [&](const std::optional<QString>& error) {
                        outcomes.append(error.value_or(u"saved"_s));
                      });
      }
    }
  }
  EXPECT_EQ(folder.names(), QStringList());
  EXPECT_TRUE(PDFExporter::waitForAll());
  EXPECT_EQ(outcomes.join(u'|'), u"saved|saved|saved|saved|saved"_s);
  for (const QString& name : folder.names()) {
    EXPECT_GE(PdfReader(tests::bytesIn(folder / name)).pages().size(), 1U);
  }
  EXPECT_EQ(folder.names().size(), 5);
}

/// A program that starts an export and quits at once, in one of its ways.
class Quitting : public testing::TestWithParam<QString> {};

TEST_P(Quitting, LosesNoFile) {
  const tests::Folder folder;
  QProcess child;
  child.start(QStringLiteral(VEYRUNA_QUITTING_CHILD), {GetParam(), folder.path()});
  ASSERT_TRUE(child.waitForFinished(120'000));
  EXPECT_EQ(child.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(child.exitCode(), 0) << child.readAllStandardError().toStdString();
  EXPECT_EQ(folder.names(), QStringList({u"0.pdf"_s, u"1.pdf"_s, u"2.pdf"_s}));
  for (const QString& name : folder.names()) {
    EXPECT_EQ(PdfReader(tests::bytesIn(folder / name)).lines().value(0), u"Title"_s);
  }
}

INSTANTIATE_TEST_SUITE_P(Moments, Quitting,
                         testing::Values(u"after-the-loop"_s, u"about-to-quit"_s,
                                         u"without-a-loop"_s, u"in-the-loop"_s));

}  // namespace
}  // namespace veyruna
