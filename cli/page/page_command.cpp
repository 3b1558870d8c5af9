#include "cli/page/page_command.h"

#include <unistd.h>

#include "cli/page/page_file.h"
#include "cli/page/session.h"
#include "cli/typed/range.h"
#include "cli/typed/sky.h"
#include "cli/written/asked_forms.h"
#include "cli/written/document_writer.h"
#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::cli {

namespace {

constexpr std::string_view ending = ".html";

void requireHtml(const Typed& typed) {
  if (!typed.formats.empty() && !words::equalIgnoringCase(typed.formats, ending.substr(1))) {
    words::refuse("--format", typed.formats, "html, which is all that a page can be");
  }
  askedWidth(typed, {documents::Form::html});
  if (isStandardOutput(typed.file)) {
    if (isatty(STDOUT_FILENO) == 1) {
      throw words::UsageError(
          "a page is nothing for a terminal; give a file, such as -o page.html");
    }
    return;
  }
  if (typed.file.size() < ending.size() ||
      !words::equalIgnoringCase(
          std::string_view(typed.file).substr(typed.file.size() - ending.size()), ending)) {
    words::refuse("-o", typed.file, "a name that ends in .html for page");
  }
}

Session askedSession(const Typed& typed) {
  if (typed.location == everyPlace) {
    throw words::UsageError("--location: a page opens at one place, not at \"all\"");
  }
  Session session{.title = typed.title, .isForPlayers = typed.isForPlayers};
  if (typed.hasPlace) {
    session.place = placeOf(typed);
  }
  if (!typed.from.empty() || !typed.to.empty() || !typed.length.empty()) {
    session.bounds = rangeOf(typed, placesOf(typed));
  } else if (typed.hasMoment) {
    session.baseTime = skyOf(typed).observer.baseTime;
  }
  if (session.isForPlayers && !(session.place && session.bounds)) {
    throw words::UsageError(
        "--player: what eyes can see is of one place and of an evening; give --location, or --lat "
        "and --long, and --from with --to or --for");
  }
  return session;
}

}  // namespace

void writePage(const Typed& typed) {
  requireHtml(typed);
  const std::string page = pageFor(askedSession(typed));
  DocumentWriter writer = DocumentWriter::to(typed.file);
  writer.write(page);
  writer.finish();
}

}  // namespace veyruna::cli
