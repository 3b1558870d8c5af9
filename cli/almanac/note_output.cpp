#include "cli/almanac/note_output.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

#include "astro/calendar.h"
#include "cli/written/document_writer.h"
#include "cli/written/folder.h"
#include "notes/calendarium.h"
#include "notes/note.h"
#include "notes/seasons_stars.h"
#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::cli {

namespace {

using almanac::Event;
using notes::Note;
using notes::Visibility;
using records::Lookout;

Visibility visibilityOf(const Typed& typed, const std::vector<Place>& places) {
  if (typed.visibility.empty() || typed.visibility == "gm") {
    return Visibility::gameMaster;
  }
  if (typed.visibility != "player") {
    words::refuse("--visibility", typed.visibility, "gm or player");
  }
  if (places.empty()) {
    throw words::UsageError(
        "--visibility \"player\" is what can be seen in the sky, which needs a place; give one "
        "with "
        "--location, or with --lat and --long");
  }
  return Visibility::players;
}

/// Makes notes of events and leaves out what is not for those who read them.
class NoteOutput : public EventOutput {
 public:
  NoteOutput(Visibility visibility, const std::vector<Place>& places) : visibility_(visibility) {
    for (const Place& place : places) {
      lookouts_.push_back({place.words, {0.0, place.latitude, place.longitude}});
    }
  }

  void take(const Event& event) final {
    const bool belongsToAPlace = almanac::entryOf(event.kind).needsPlace;
    const std::optional<Note> note = belongsToAPlace
                                         ? notes::noteOf(event, {lookouts_[event.place]})
                                         : notes::noteOf(event, lookouts_);
    if (note && (note->isSeen || visibility_ == Visibility::gameMaster)) {
      write(*note);
    }
  }

 private:
  virtual void write(const Note& note) = 0;

  Visibility visibility_;
  std::vector<Lookout> lookouts_;
};

class CalendariumOutput final : public NoteOutput {
 public:
  CalendariumOutput(const Typed& typed, Visibility visibility, const std::vector<Place>& places)
      : NoteOutput(visibility, places), folder_(typed.folder), list_(DocumentWriter::to("-")) {
    makeFolder(typed.folder);
  }

  void finish() override {
    list_.finish();
    if (kept_ == 1) {
      std::fputs("veyruna: 1 note was there already and stays as it is\n", stderr);
    } else if (kept_ > 1) {
      std::fprintf(stderr, "veyruna: %zu notes were there already and stay as they are\n", kept_);
    }
  }

 private:
  void write(const Note& note) override {
    const std::filesystem::path path = folder_ / (note.id + ".md");
    std::error_code error;
    if (std::filesystem::exists(std::filesystem::symlink_status(path, error))) {
      ++kept_;  // a person may have written in it
      return;
    }
    DocumentWriter writer = DocumentWriter::to(path.string());
    writer.write(notes::calendariumNote(note));
    writer.finish();
    list_.write(path.string() + "\n");
  }

  std::filesystem::path folder_;
  DocumentWriter list_;
  std::size_t kept_ = 0;
};

class SeasonsStarsOutput final : public NoteOutput {
 public:
  SeasonsStarsOutput(const Typed& typed, std::int64_t year, Visibility visibility,
                     const std::vector<Place>& places)
      : NoteOutput(visibility, places),
        writer_(DocumentWriter::to(typed.file)),
        events_(year, visibility, [this](std::string_view piece) { writer_.write(piece); }) {}

  void finish() override {
    events_.finish();
    writer_.finish();
  }

 private:
  void write(const Note& note) override { events_.write(note); }

  DocumentWriter writer_;
  notes::SeasonsStarsWriter events_;
};

}  // namespace

std::unique_ptr<EventOutput> noteOutput(notes::NoteTool tool, const Typed& typed,
                                        const almanac::Range& range,
                                        const std::vector<Place>& places) {
  const Visibility visibility = visibilityOf(typed, places);
  const std::optional<astro::CalendarMoment> beginning = astro::calendarMoment(range.from);
  if (!beginning) {
    throw words::UsageError("--from: " + words::inQuotes(typed.from) +
                            " is before the first midnight, where the calendar has no dates; give "
                            "1-01-01 or later");
  }
  if (tool == notes::NoteTool::seasonsStars) {
    if (!typed.folder.empty()) {
      throw words::UsageError(
          "--format seasons-stars writes one file; give -o FILE instead of --out");
    }
    return std::make_unique<SeasonsStarsOutput>(typed, beginning->year, visibility, places);
  }
  if (typed.folder.empty() || typed.file != "-") {
    throw words::UsageError(
        "--format calendarium writes a note for each event; it needs --out DIR, and "
        "takes no -o");
  }
  return std::make_unique<CalendariumOutput>(typed, visibility, places);
}

}  // namespace veyruna::cli
