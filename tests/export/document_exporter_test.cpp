// What each tab saves, and how its failures are told.
#include "export/document_exporter.h"

#include <QFile>
#include <QImage>
#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "export/chart_page.h"
#include "export/report_page.h"
#include "tests/export/pdf_reader.h"
#include "tests/model/disk.h"
#include "tests/model/observed.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using documents::Form;
using exports::DocumentExporter;
using exports::OutputTab;
using tests::bytesIn;
using tests::reasonOf;

/// The positions list as reports write it.
QString positionsTable(const QList<model::BodyPosition>& positions) {
  std::vector<reports::PositionRow> rows;
  for (const model::BodyPosition& body : positions) {
    rows.push_back({body.name.toStdString(), body.bodyType.toStdString(),
                    body.azimuth.toStdString(), body.altitude.toStdString(),
                    body.ecLong.toStdString(), body.sign.toStdString()});
  }
  return QString::fromStdString(reports::positionsTableText(rows));
}

/// An exporter over the first reference.
class Exporting : public testing::Test {
 protected:
  exports::Saved saved() {
    return [this](const std::optional<QString>& error) {
      outcomes.push_back(error.value_or(u"saved"_s));
    };
  }

  tests::ObservedModel world{tests::referenceCases().front()};
  QStringList failures;
  QStringList outcomes;
  tests::Folder folder;
  DocumentExporter exporter{world.model, [this](const QString& line) { failures.append(line); }};
};

TEST(Tabs, HaveTheirTitlesInOrder) {
  QStringList titles;
  for (const OutputTab tab : exports::outputTabs) {
    titles.append(exports::title(tab));
  }
  EXPECT_EQ(titles.join(u'|'),
            u"Star Map|Horoscope|Thessil System|Sun & Moon|Positions|Location"_s);
  EXPECT_TRUE(exports::isChart(OutputTab::starMap));
  EXPECT_TRUE(exports::isChart(OutputTab::horoscope));
  EXPECT_FALSE(exports::isChart(OutputTab::planets));
  EXPECT_FALSE(exports::isChart(OutputTab::location));
}

TEST_F(Exporting, PdfsOfTheTabs) {
  struct Expected {
    OutputTab tab;
    QString html;
    QSizeF points;
    QString prefix;
  };
  const auto& model = world.model;
  const QString meta = exports::metaText(exports::skyOf(model));
  const std::vector<Expected> all = {
      {OutputTab::starMap, exports::chartPage(model.starMapSVG()), {720, 720}, u"Star Map"_s},
      {OutputTab::horoscope, exports::chartPage(model.horoscopeSVG()), {1440, 760}, u"Horoscope"_s},
      {OutputTab::planets,
       exports::reportDocument(
           {u"Planet Positions"_s, meta, {{u"Positions"_s, positionsTable(model.positions())}}}),
       {612, 792},
       u"Planets"_s},
      {OutputTab::sunMoon,
       exports::reportDocument(
           {u"Sun & Moon"_s,
            meta,
            {{u"Hourly"_s, model.basicTableHourly()}, {u"Monthly"_s, model.basicTableMonthly()}}}),
       {612, 792},
       u"Sun & Moon"_s},
      {OutputTab::positions,
       exports::reportDocument(
           {u"Conjunctions"_s,
            meta,
            {{u"Daily"_s, model.conjunctionDaily()}, {u"Yearly"_s, model.conjunctionYearly()}}}),
       {612, 792},
       u"Positions"_s},
  };
  for (const Expected& expected : all) {
    const auto content = exporter.sheet(expected.tab, Form::pdf);
    ASSERT_TRUE(content);
    EXPECT_EQ(exports::htmlOf(*content), expected.html);
    EXPECT_EQ(content->pageSizePoints, expected.points);
    EXPECT_EQ(content->proposedName,
              expected.prefix + u" - 40.50°N 20.90°W - 720-01-01 12-00.pdf"_s);
    EXPECT_EQ(content->message, u"Choose where to save the PDF file"_s);
  }
  EXPECT_FALSE(exporter.sheet(OutputTab::location, Form::pdf));
}

TEST_F(Exporting, TextsOfTheTabs) {
  struct Expected {
    OutputTab tab;
    QString text;
    QString name;
    QString message;
  };
  const auto& model = world.model;
  const QString svgMessage = u"Choose where to save the SVG file"_s;
  const QString textMessage = u"Choose where to save the text file"_s;
  const QString at = u" - 40.50°N 20.90°W - 720-01-01 12-00."_s;
  const std::vector<Expected> all = {
      {OutputTab::starMap, model.starMapSVG(), u"Star Map"_s + at + u"svg"_s, svgMessage},
      {OutputTab::horoscope, model.horoscopeSVG(), u"Horoscope"_s + at + u"svg"_s, svgMessage},
      {OutputTab::planets, positionsTable(model.positions()), u"Planets"_s + at + u"txt"_s,
       textMessage},
      {OutputTab::sunMoon,
       u"— Hourly —\n\n"_s + model.basicTableHourly() + u"\n\n— Monthly —\n\n"_s +
           model.basicTableMonthly(),
       u"Sun & Moon"_s + at + u"txt"_s, textMessage},
      {OutputTab::positions,
       u"— Daily Conjunctions —\n\n"_s + model.conjunctionDaily() +
           u"\n\n— Yearly Conjunctions —\n\n"_s + model.conjunctionYearly(),
       u"Positions"_s + at + u"txt"_s, textMessage},
  };
  for (const Expected& expected : all) {
    const auto content = exporter.native(expected.tab);
    ASSERT_TRUE(content);
    EXPECT_EQ(content->text, expected.text);
    EXPECT_EQ(content->proposedName, expected.name);
    EXPECT_EQ(content->message, expected.message);
    EXPECT_EQ(content->form, exports::isChart(expected.tab) ? Form::svg : Form::text);
    exporter.save(*content, folder / content->proposedName, saved());
    EXPECT_EQ(bytesIn(folder / content->proposedName), expected.text.toUtf8());
  }
  EXPECT_FALSE(exporter.native(OutputTab::location));
  EXPECT_EQ(outcomes.join(u'|'), u"saved|saved|saved|saved|saved"_s);
  EXPECT_EQ(folder.names().size(), 5);
  EXPECT_TRUE(failures.isEmpty());
}

TEST_F(Exporting, SectionsOfTheReports) {
  const auto headings = [this](OutputTab tab) {
    QStringList found = exports::htmlOf(*exporter.sheet(tab, Form::pdf)).split(u"<h2>"_s).mid(1);
    for (QString& heading : found) {
      heading = heading.section(u"</h2>"_s, 0, 0);
    }
    return found.join(u'|');
  };
  EXPECT_EQ(headings(OutputTab::planets), u"Positions"_s);
  EXPECT_EQ(headings(OutputTab::sunMoon), u"Hourly|Monthly"_s);
  EXPECT_EQ(headings(OutputTab::positions), u"Daily|Yearly"_s);
  EXPECT_TRUE(exports::htmlOf(*exporter.sheet(OutputTab::positions, Form::pdf))
                  .contains(u"<h1>Conjunctions</h1>"_s));
}

TEST_F(Exporting, PlaceNameInReportAndFileName) {
  world.selectPlaceCalled(u"Salt & <Sand>"_s);
  const auto content = exporter.sheet(OutputTab::planets, Form::pdf);
  EXPECT_TRUE(exports::htmlOf(*content).contains(u"OST   Salt &amp; &lt;Sand&gt;</div>"_s));
  EXPECT_EQ(content->proposedName, u"Planets - Salt & <Sand> - 720-01-01 12-00.pdf"_s);
}

TEST(ExportingEarly, GivesEmptyDocuments) {
  const tests::FakeModel world;
  EXPECT_EQ(exports::htmlOf(*exports::sheetExport(world.model, OutputTab::starMap, Form::pdf)),
            exports::chartPage({}));
  EXPECT_FALSE(
      exports::pdfOf(*exports::sheetExport(world.model, OutputTab::starMap, Form::pdf)).isEmpty());
  EXPECT_EQ(exports::nativeExport(world.model, OutputTab::horoscope)->text, QString());
  EXPECT_EQ(exports::nativeExport(world.model, OutputTab::sunMoon)->text,
            u"— Hourly —\n\n\n\n— Monthly —\n\n"_s);
  EXPECT_EQ(exports::nativeExport(world.model, OutputTab::planets)->text,
            u"Body           Azimuth    Altitude   Ec. Long.   Sign\n"
            u"----           -------    --------   ---------   ----\n"_s);
}

TEST_F(Exporting, SavesWhatWasShownWhenItWasChosen) {
  const auto svg = exporter.native(OutputTab::starMap);
  const auto pdf = exporter.sheet(OutputTab::planets, Form::pdf);
  const QString shown = world.model.starMapSVG();
  const QByteArray bytes = tests::withoutDates(exports::pdfOf(*pdf));
  world.model.setHour(3.0);
  world.calculate();
  ASSERT_NE(world.model.starMapSVG(), shown);
  exporter.save(*svg, folder / svg->proposedName);
  EXPECT_EQ(bytesIn(folder / svg->proposedName), shown.toUtf8());
  exporter.save(*pdf, folder / pdf->proposedName);
  EXPECT_EQ(tests::withoutDates(bytesIn(folder / pdf->proposedName)), bytes);
}

TEST_F(Exporting, DoesNothingWithoutADestination) {
  exporter.save(*exporter.native(OutputTab::starMap), {}, saved());
  exporter.save(*exporter.sheet(OutputTab::starMap, Form::pdf), {}, saved());
  EXPECT_TRUE(folder.names().isEmpty());
  EXPECT_TRUE(outcomes.isEmpty());
  EXPECT_TRUE(failures.isEmpty());
}

TEST_F(Exporting, TellsEachFailureUnderItsPrefix) {
  const QString path = folder / u"gone/file"_s;
  exporter.save(*exporter.native(OutputTab::horoscope), path, saved());
  exporter.save(*exporter.native(OutputTab::planets), path, saved());
  exporter.save(*exporter.sheet(OutputTab::planets, Form::pdf), path, saved());
  auto broken = exporter.sheet(OutputTab::starMap, Form::pdf);
  broken->svg = u"<svg"_s;
  exporter.save(*broken, folder / u"a.pdf"_s, saved());
  exporter.save(*exporter.sheet(OutputTab::planets, Form::html), path, saved());
  exporter.save(*exporter.sheet(OutputTab::starMap, Form::png), path, saved());
  EXPECT_EQ(failures.mid(4).join(u'|'), u"Error writing HTML: "_s + reasonOf(ENOENT) +
                                            u"|Error writing PNG: "_s + reasonOf(ENOENT));
  failures = failures.mid(0, 4);
  outcomes = outcomes.mid(0, 4);
  const QString gone = reasonOf(ENOENT);
  EXPECT_EQ(failures.join(u'\n'), u"Error saving SVG: "_s + gone + u"\nError saving text: "_s +
                                      gone + u"\nError writing PDF: "_s + gone +
                                      u"\nError rendering PDF: "_s + outcomes.last());
  EXPECT_TRUE(outcomes.last().startsWith(u"line 1: "_s)) << outcomes.last().toStdString();
  EXPECT_TRUE(folder.names().isEmpty());
  EXPECT_EQ(outcomes.join(u'\n'), QStringList({gone, gone, gone, outcomes.last()}).join(u'\n'));
}

TEST_F(Exporting, FailuresGoToStandardOutput) {
  const DocumentExporter plain(world.model);
  testing::internal::CaptureStdout();
  plain.save(*plain.native(OutputTab::planets), folder / u"gone/°"_s);
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "Error saving text: " + reasonOf(ENOENT).toStdString() + "\n");
}

/// A program that reads the failures must not have to wait for the window's end.
TEST_F(Exporting, AFailureIsInAPipeAtOnce) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK), 0);
  std::fflush(stdout);
  const int standardOutput = dup(STDOUT_FILENO);
  dup2(ends[1], STDOUT_FILENO);
  std::array<char, 4096> buffer{};  // as the C library buffers a pipe, whatever the tests write to
  setvbuf(stdout, buffer.data(), _IOFBF, buffer.size());
  exports::standardOutput()(u"Error saving text: °"_s);
  QByteArray received(256, '\0');
  const ssize_t count = read(ends[0], received.data(), 256);
  std::fflush(stdout);
  setvbuf(stdout, nullptr, _IOLBF, 0);
  dup2(standardOutput, STDOUT_FILENO);
  for (const int end : {ends[0], ends[1], standardOutput}) {
    close(end);
  }
  received.resize(std::max(count, ssize_t{0}));
  EXPECT_EQ(received, "Error saving text: °\n"_ba);
}

TEST_F(Exporting, PdfsSayWhatTheyHoldAndOfWhen) {
  const auto chart = exporter.sheet(OutputTab::horoscope, Form::pdf);
  EXPECT_EQ(chart->information.title, u"Horoscope, 720-01-01 12:00 OST"_s);
  EXPECT_TRUE(chart->information.program.startsWith(u"Veyruna Astro "_s));
  EXPECT_EQ(exporter.sheet(OutputTab::positions, Form::pdf)->information.title,
            u"Conjunctions, 720-01-01 12:00 OST"_s);
}

TEST_F(Exporting, PdfsOfTablesRepeatTheHeadingsOfTheirColumns) {
  const auto linesAbove = [this](OutputTab tab) {
    QList<int> lines;
    const auto document = exporter.sheet(tab, Form::pdf);
    for (const exports::ReportSection& section : document->report.sections) {
      lines.append(section.columnHeadingLines);
    }
    return lines;
  };
  EXPECT_EQ(linesAbove(OutputTab::planets), QList<int>({2}));
  EXPECT_EQ(linesAbove(OutputTab::sunMoon), QList<int>({1, 1}));
  EXPECT_EQ(linesAbove(OutputTab::positions), QList<int>({2, 2}));
}

TEST_F(Exporting, EachFormSaysWhatItIs) {
  const auto html = exporter.sheet(OutputTab::sunMoon, Form::html);
  EXPECT_EQ(html->message, u"Choose where to save the HTML file"_s);
  EXPECT_EQ(html->proposedName, u"Sun & Moon - 40.50°N 20.90°W - 720-01-01 12-00.html"_s);
  const auto png = exporter.sheet(OutputTab::starMap, Form::png);
  EXPECT_EQ(png->message, u"Choose where to save the PNG file"_s);
  EXPECT_EQ(png->proposedName, u"Star Map - 40.50°N 20.90°W - 720-01-01 12-00.png"_s);
  for (const OutputTab tab : exports::outputTabs) {
    EXPECT_EQ(exporter.sheet(tab, Form::png).has_value(), exports::isChart(tab));
    EXPECT_EQ(exporter.sheet(tab, Form::html).has_value(), tab != OutputTab::location);
  }
}

TEST_F(Exporting, TheFileHoldsTheForm) {
  for (const OutputTab tab : exports::outputTabs) {
    for (const Form form : {Form::html, Form::pdf, Form::png}) {
      const auto content = exporter.sheet(tab, form);
      if (!content) {
        continue;
      }
      const QString path = folder / content->proposedName;
      exporter.save(*content, path, saved());
      EXPECT_EQ(outcomes.last(), u"saved"_s);
      const QByteArray bytes = bytesIn(path);
      if (form == Form::html) {
        EXPECT_EQ(bytes, exports::htmlOf(*content).toUtf8());
      } else if (form == Form::pdf) {
        EXPECT_EQ(tests::withoutDates(bytes), tests::withoutDates(exports::pdfOf(*content)));
      } else {
        EXPECT_EQ(QImage::fromData(bytes, "PNG").size(), content->pageSizePoints.toSize());
        EXPECT_EQ(QImage::fromData(exports::bytesOf(*content, form, 360), "PNG").width(), 360);
      }
    }
  }
}

TEST_F(Exporting, AFormThatNothingIsMadeIntoIsABrokenInvariant) {
  const auto tables = exporter.sheet(OutputTab::planets, Form::pdf);
  EXPECT_EXIT(exports::bytesOf(*tables, Form::png), testing::KilledBySignal(SIGABRT),
              "a sheet is made into a form that it can have");
}

TEST_F(Exporting, ADocumentByItselfHasTheTitlesOfItsTab) {
  const exports::SheetSky sky{u"720-01-01 12:00 OST"_s, u"Ebb"_s};
  const auto titleOf = [&sky](documents::Document document) {
    return exports::documentSheet(document, u"Heading"_s, u"text"_s, sky).information.title;
  };
  EXPECT_EQ(titleOf(documents::Document::starMap), u"Star Map, 720-01-01 12:00 OST"_s);
  EXPECT_EQ(titleOf(documents::Document::horoscopeOnPaper), u"Horoscope, 720-01-01 12:00 OST"_s);
  EXPECT_EQ(titleOf(documents::Document::daily), u"Conjunctions, 720-01-01 12:00 OST"_s);
  EXPECT_EQ(titleOf(documents::Document::moment), u"Moment, 720-01-01 12:00 OST"_s);
  const exports::Sheet table =
      exports::documentSheet(documents::Document::daily, u"Heading"_s, u"text"_s, sky);
  EXPECT_EQ(exports::htmlOf(table), exports::reportDocument({u"Conjunctions"_s,
                                                             u"720-01-01 12:00 OST   Ebb"_s,
                                                             {{u"Heading"_s, u"text"_s, 2}}}));
  EXPECT_EQ(table.report.sections.front().columnHeadingLines, 2);
}

TEST_F(Exporting, PdfsAreWritten) {
  for (const OutputTab tab : exports::outputTabs) {
    if (const auto content = exporter.sheet(tab, Form::pdf)) {
      const QString path = folder / content->proposedName;
      exporter.save(*content, path, saved());
      EXPECT_TRUE(bytesIn(path).startsWith("%PDF-")) << path.toStdString();
    }
  }
  EXPECT_EQ(outcomes.join(u'|'), u"saved|saved|saved|saved|saved"_s);
}

}  // namespace
}  // namespace veyruna
