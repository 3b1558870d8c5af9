// The command draws: by the file's ending or by name, without a display, as the exports do.
#include <algorithm>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <thread>

#include "cli/program/command_line.h"
#include "documents/forms.h"
#include "tests/cli/process.h"
#include "tests/cli/scratch_folder.h"
#include "tests/support/reference_case.h"

namespace veyruna {
namespace {

namespace fs = std::filesystem;
using documents::Entry;
using documents::Form;
using documents::FormEntry;
using tests::fileContent;
using tests::namesIn;
using tests::Outcome;
using tests::run;
using tests::runWith;
using tests::ScratchFolder;
using tests::words;

/// The bytes by which a file of the form begins.
const std::map<Form, std::string> beginnings = {
    {Form::svg, "<?xml"},       {Form::html, "<!DOCTYPE html>"}, {Form::pdf, "%PDF-"},
    {Form::png, "\x89PNG\r\n"}, {Form::json, "{\n\"schema\":{"}, {Form::jsonl, "{\"schema\":{"}};

/// Without the one line that a PDF made a moment later has differently.
std::string undated(const std::string& pdf) {
  const std::size_t from = pdf.find("/CreationDate");
  return from == std::string::npos ? pdf : pdf.substr(0, from) + pdf.substr(pdf.find('\n', from));
}

/// Two whole numbers of a PNG's header.
std::pair<unsigned, unsigned> sizeOf(const std::string& png) {
  const auto at = [&png](std::size_t first) {
    unsigned number = 0;
    for (std::size_t i = first; i < first + 4; ++i) {
      number = number * 256 + static_cast<unsigned char>(png.at(i));
    }
    return number;
  };
  return {at(16), at(20)};
}

class Drawing : public testing::Test {
 protected:
  const ScratchFolder scratch;

  /// What a run that succeeds without a word puts into the file.
  std::string written(const std::string& arguments, const std::string& file) const {
    const Outcome outcome =
        run({.arguments = words(arguments + " -o " + file), .folder = scratch.path()});
    EXPECT_EQ(outcome.status, 0) << arguments << ' ' << file;
    EXPECT_EQ(outcome.out + outcome.err, "") << arguments << ' ' << file;
    return fileContent(scratch / file);
  }
};

TEST_F(Drawing, EveryDocumentInEveryFormItCanHave) {
  for (const Entry& document : documents::allDocuments) {
    for (const FormEntry& form : documents::allForms) {
      if (document.command.empty()) {
        continue;
      }
      const std::string command(document.command);
      const std::string file = "document." + std::string(form.extension);
      if (documents::canBe(document, form.form)) {
        const std::string content = written(command, file);
        if (form.form == documents::ownForm(document.kind)) {
          EXPECT_TRUE(content == runWith({command}).out) << command << ' ' << file;
        } else if (form.form == Form::csv) {
          EXPECT_NE(content.substr(0, content.find('\n')).find("_degrees,"), std::string::npos);
        } else {
          EXPECT_TRUE(content.starts_with(beginnings.at(form.form))) << command << ' ' << file;
        }
        EXPECT_TRUE(undated(runWith({command, "--format", std::string(form.extension)}).out) ==
                    undated(content))
            << command << ' ' << file;
      } else {
        const Outcome refused = run({.arguments = {command, "-o", file}});
        EXPECT_EQ(refused.status, cli::usageWrong) << command << ' ' << file;
        EXPECT_NE(refused.err.find("\"" + file + "\""), std::string::npos) << refused.err;
      }
      fs::remove(scratch / file);
    }
  }
  EXPECT_EQ(namesIn(scratch.path()), std::vector<std::string>());
}

TEST_F(Drawing, TheMomentAndThePlaceCount) {
  const std::string usual = written("horoscope", "usual.png");
  for (const char* const other : {"--lat 41", "--year 721", "--local", "--bw"}) {
    EXPECT_NE(written("horoscope " + std::string(other), "other.png"), usual) << other;
  }
  for (const std::string file : {"list.html", "list.pdf"}) {
    EXPECT_NE(undated(written("positions --location Ebb", file)),
              undated(written("positions", file)));
  }
}

TEST_F(Drawing, ALetterCaseOfTheEndingIsAsGoodAsAnother) {
  EXPECT_EQ(undated(written("star-map", "sky.PDF")), undated(written("star-map", "sky.pdf")));
  EXPECT_EQ(written("star-map", "sky.Svg"), runWith({"star-map"}).out);
}

TEST_F(Drawing, AnEndingThatSaysNothingIsNone) {
  for (const char* const file : {"wheel", "wheel.2", "Star-Map-40.50°N", ".wheel", "--wheel"}) {
    EXPECT_EQ(written("horoscope", file), runWith({"horoscope"}).out) << file;
  }
  for (const char* const file : {"table.md", "table.log", "table"}) {
    EXPECT_EQ(written("hourly", file), runWith({"hourly"}).out) << file;
  }
}

TEST_F(Drawing, PicturesAreAsWideAsAskedAndShapedAsThePage) {
  using Size = std::pair<unsigned, unsigned>;
  EXPECT_EQ(sizeOf(written("star-map", "sky.png")), Size(720, 720));
  EXPECT_EQ(sizeOf(written("horoscope", "wheel.png")), Size(1440, 760));
  EXPECT_EQ(sizeOf(written("star-map --size 33", "sky.png")), Size(33, 33));
  EXPECT_EQ(sizeOf(written("horoscope --size 2880", "wheel.png")), Size(2880, 1520));
  EXPECT_EQ(sizeOf(written("horoscope --size 16", "wheel.png")), Size(16, 8));
}

TEST_F(Drawing, HtmlNeedsNoOtherFile) {
  const std::string chart = written("star-map", "sky.html");
  EXPECT_NE(chart.find(runWith({"star-map"}).out), std::string::npos);
  const std::string table = written("hourly --location Ebb", "hours.html");
  EXPECT_NE(
      table.find("<h1>Sun &amp; Moon</h1>\n<div class=\"meta\">720-01-01 12:00 OST   Ebb</div>"
                 "\n<h2>Hourly</h2>\n<pre>" +
                 runWith({"hourly", "--location", "Ebb"}).out + "</pre>"),
      std::string::npos)
      << table;
  EXPECT_NE(written("moment --lat 5S", "m.html").find("5.00°S  20.90°W"), std::string::npos);
  for (const std::string& page : {chart, table}) {
    EXPECT_EQ(page.find(" src="), std::string::npos);
    EXPECT_EQ(page.find(" href=\"http"), std::string::npos);
  }
}

TEST_F(Drawing, TablesOfOnesOwnSayWhatTheyAre) {
  const std::string table = written("conjunctions --rows 3 --step 1/7", "three.html");
  EXPECT_NE(table.find("<h1>Conjunctions</h1>"), std::string::npos);
  EXPECT_NE(table.find("<h2>3 rows, a step of 1/7 days</h2>\n<pre>" +
                       runWith(words("conjunctions --rows 3 --step 1/7")).out),
            std::string::npos);
  EXPECT_TRUE(written("ephemeris --rows 200 --step 1", "pages.pdf").starts_with("%PDF-"));
}

TEST_F(Drawing, AllWritesTheFormsThatWereListed) {
  const Outcome outcome = run({.arguments = words("all --out some --format PNG,txt,html --size 64"),
                               .environment = {"VEYRUNA_PAGE=" + scratch / "none.html"},
                               .folder = scratch.path()});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_TRUE(outcome.err.starts_with("veyruna: left out is veyruna.html")) << outcome.err;
  std::vector<std::string> expected;
  std::string listed;
  for (const Entry& document : documents::allDocuments) {
    for (const Form form : {Form::text, Form::html, Form::png}) {
      if (!document.fileName.empty() && documents::canBe(document, form)) {
        const std::string stem(document.fileName.substr(0, document.fileName.find('.')));
        expected.push_back(stem + "." + std::string(documents::formEntry(form).extension));
        listed += "some/" + expected.back() + "\n";
      }
    }
  }
  EXPECT_EQ(outcome.out, listed);
  std::ranges::sort(expected);
  EXPECT_EQ(namesIn(scratch / "some"), expected);
  EXPECT_EQ(sizeOf(fileContent(scratch / "some/star-map.png")),
            (std::pair<unsigned, unsigned>(64, 64)));
  EXPECT_EQ(fileContent(scratch / "some/moment.txt"), runWith({"moment"}).out);
}

/// What is not accepted, and what the one line about it says.
struct Refused {
  const char* arguments;
  const char* says;
};

TEST_F(Drawing, WhatIsNotAcceptedIsQuoted) {
  constexpr Refused refusals[] = {
      {"star-map -o sky.jpg",
       "-o: \"sky.jpg\" is not accepted; give a name that ends in .svg, "
       ".html, .pdf or .png for star-map"},
      {"hourly -o h.png",
       "-o: \"h.png\" is not accepted; give a name that ends in .txt, .html, "
       ".pdf, .json, .jsonl or .csv for hourly"},
      {"base-time -o b.pdf",
       "-o: \"b.pdf\" is not accepted; give a name that ends in .txt for base-time"},
      {"help -o h.html", "\"h.html\""},
      {"locations --format pdf",
       "--format: \"pdf\" is not accepted; give one of txt, json, jsonl or csv for locations"},
      {"star-map --format gif",
       "--format: \"gif\" is not accepted; give one of svg, html, pdf or png for star-map"},
      {"all --out x --format gif",
       "--format: \"gif\" is not accepted; give one or several of svg, "
       "txt, html, pdf, png, json, jsonl, csv, with commas between them"},
      {"all --out x --format svg,,png", "\"svg,,png\""},
      {"star-map --format svg,png",
       "--format: \"svg,png\" is not accepted; give one of svg, html, "
       "pdf or png for star-map"},
      {"star-map --format pdf -o sky.svg",
       "--format \"pdf\" and -o \"sky.svg\" name two forms; give one"},
      {"star-map --size 720", "--size \"720\" is the width of a PNG, and none is asked for"},
      {"moment --size 720", "--size \"720\""},
      {"base-time --size 720", "--size \"720\""},
      {"all --out x --size 720", "--size \"720\""},
      {"star-map -o sky.png --size 15",
       "--size: \"15\" is not accepted; give a whole number from 16 to 10000"},
      {"star-map -o sky.png --size 10001", "\"10001\""},
      {"star-map -o sky.png --size 2x", "\"2x\""},
      {"ephemeris --rows 36001 --step 1 -o e.pdf",
       "--rows: \"36001\" is too many for PDF; give at most 36000, or a name that ends in .txt"},
      {"star-map --month 13 -o sky.pdf", "--month: \"13\""},
  };
  for (const auto& [arguments, says] : refusals) {
    const Outcome outcome = run({.arguments = words(arguments), .folder = scratch.path()});
    EXPECT_EQ(outcome.status, cli::usageWrong) << arguments;
    EXPECT_EQ(outcome.out, "") << arguments;
    EXPECT_TRUE(outcome.err.starts_with("veyruna: ")) << outcome.err;
    EXPECT_NE(outcome.err.find(says), std::string::npos) << outcome.err;
    EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1) << outcome.err;
  }
  EXPECT_EQ(namesIn(scratch.path()), std::vector<std::string>());
}

TEST_F(Drawing, NoDesktopHasASay) {
  const std::string usual = written("horoscope", "usual.png");
  const std::vector<std::vector<std::string>> desktops = {
      {"QT_QPA_PLATFORM=xcb", "DISPLAY="},
      {"QT_QPA_PLATFORM=none-of-that-name", "WAYLAND_DISPLAY=nowhere"},
      {"QT_SCALE_FACTOR=2", "QT_FONT_DPI=300", "QT_DEBUG_PLUGINS=1"},
      {"XDG_RUNTIME_DIR=/proc", "QT_QPA_PLATFORMTHEME=gtk3", "QT_STYLE_OVERRIDE=x"},
      {"HOME=/nonexistent", "XDG_CACHE_HOME=/nonexistent", "LC_ALL=tlh_XX"},
  };
  for (const std::vector<std::string>& environment : desktops) {
    const Outcome outcome =
        run({.arguments = {"horoscope", "--format", "png"}, .environment = environment});
    EXPECT_EQ(outcome.status, 0) << environment.front();
    EXPECT_EQ(outcome.err, "") << environment.front();
    EXPECT_TRUE(outcome.out == usual) << environment.front();
  }
}

TEST_F(Drawing, WhatCannotBeWrittenStaysAsItWas) {
  const std::string file = scratch / "wheel.pdf";
  tests::writeFile(file, "before\n");
  const Outcome outcome = runWith({"horoscope", "-o", file + "/wheel.png"});
  EXPECT_EQ(outcome.status, cli::writeFailed);
  EXPECT_TRUE(outcome.err.starts_with("veyruna: cannot write \"" + file)) << outcome.err;
  EXPECT_EQ(run({.arguments = {"horoscope", "--format", "pdf"}, .standardOutput = "/dev/full"}).err,
            "veyruna: cannot write standard output: No space left on device\n");
  EXPECT_EQ(fileContent(file), "before\n");
}

TEST_F(Drawing, KilledAtAnyMomentItLeavesTheOldFileOrTheNewOne) {
  const std::string file = scratch / "sky.png";
  const std::string old = written("star-map --size 100", "sky.png");
  const std::string fresh = runWith(words("star-map --size 300 --format png")).out;
  ASSERT_NE(old, fresh);
  std::mt19937 random(720);
  for (int i = 0; i < 40; ++i) {
    tests::writeFile(file, old);
    const tests::Process drawing({.arguments = {"star-map", "--size", "300", "-o", file}});
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 150'000));
    drawing.kill(SIGKILL);
    const std::string left = fileContent(file);
    EXPECT_TRUE(left == old || left == fresh) << left.size();
  }
  // A kill may meet the instant in which the whole new picture takes the old one's place.
  for (const std::string& name : namesIn(scratch.path())) {
    EXPECT_TRUE(name == "sky.png" || name.starts_with(".veyruna-")) << name;
    EXPECT_TRUE(name == "sky.png" || fileContent(scratch / name) == fresh) << name;
  }
}

/// Copies of the two programs, in a folder of their own.
class Installed : public Drawing {
 protected:
  const fs::path folder = scratch.path();

  void install(const char* name) const {
    fs::copy_file(fs::path(tests::programPath()).parent_path() / name, folder / name);
  }
  [[nodiscard]] Outcome runInstalled(const std::string& arguments) const {
    return run({.arguments = words(arguments),
                .folder = scratch.path(),
                .program = (folder / "veyruna").string()});
  }
};

TEST_F(Installed, TheProgramThatDrawsIsLookedForBesideTheOther) {
  install("veyruna");
  EXPECT_EQ(runInstalled("moment").out, runWith({"moment"}).out);
  const Outcome without = runInstalled("horoscope -o wheel.pdf");
  EXPECT_EQ(without.status, cli::writeFailed);
  EXPECT_EQ(without.err, "veyruna: cannot start \"" + (folder / "veyruna-draw").string() +
                             "\", which draws: No such file or directory\n");
  EXPECT_EQ(namesIn(scratch.path()), std::vector<std::string>{"veyruna"});
  install("veyruna-draw");
  EXPECT_EQ(runInstalled("horoscope --format png").out,
            runWith(words("horoscope --format png")).out);
}

TEST_F(Installed, WhereNothingCanDrawItSaysSoInALine) {
  install("veyruna");
  install("veyruna-draw");
  tests::writeFile(scratch / "qt.conf", "[Paths]\nPlugins=/nonexistent\n");
  const Outcome outcome = runInstalled("horoscope -o wheel.pdf");
  EXPECT_EQ(outcome.status, cli::writeFailed);
  EXPECT_TRUE(outcome.err.starts_with("veyruna: cannot draw: ")) << outcome.err;
  EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1) << outcome.err;
  EXPECT_FALSE(fs::exists(folder / "wheel.pdf"));
}

TEST_F(Drawing, APicturesBytesAreNotShownOnATerminal) {
  const Outcome outcome =
      run({.arguments = {"star-map", "--format", "png"}, .outputOnTerminal = true});
  EXPECT_EQ(outcome.status, cli::usageWrong);
  EXPECT_EQ(outcome.err,
            "veyruna: a PNG is nothing for a terminal; give a file, such as -o "
            "star-map.png\n");
  EXPECT_EQ(outcome.out, "");
  const Outcome text = run({.arguments = {"moment", "--format", "html"}, .outputOnTerminal = true});
  EXPECT_EQ(text.status, 0);
  EXPECT_TRUE(text.out.starts_with("<!DOCTYPE html>")) << text.out;
}

}  // namespace
}  // namespace veyruna
