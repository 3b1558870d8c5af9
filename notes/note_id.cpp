#include "notes/note_id.h"

#include <bit>
#include <cstdint>

#include "astro/number_text.h"
#include "notes/note_text.h"
#include "reports/zodiac.h"

namespace veyruna::notes {

namespace {

using almanac::Event;
using almanac::EventKind;

/// The letters and digits of a name, in small letters; a hyphen for each stretch of anything else.
std::string plainWordOf(std::string_view name) {
  constexpr std::size_t longest = 24;
  std::string word;
  for (const char byte : name) {
    const char letter = byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
    const bool isPlain = (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9');
    if (isPlain) {
      word += letter;
    } else if (!word.empty() && word.back() != '-') {
      word += '-';
    }
    if (word.size() == longest) {
      break;
    }
  }
  while (word.ends_with('-')) {
    word.pop_back();
  }
  return word.empty() ? "place" : word;
}

/// FNV-1a, which is the same on every machine.
class Fingerprint {
 public:
  void take(std::string_view bytes) {
    for (const char byte : bytes) {
      takeByte(static_cast<unsigned char>(byte));
    }
  }

  void take(double number) {
    auto bits = std::bit_cast<std::uint64_t>(number);
    for (int byte = 0; byte < 8; ++byte) {
      takeByte(static_cast<unsigned char>(bits & 0xFFU));
      bits >>= 8U;
    }
  }

  [[nodiscard]] std::string text() const {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (unsigned shift = 64; shift > 0; shift -= 4) {
      text += digits[(state_ >> (shift - 4)) & 0xFU];
    }
    return text;
  }

 private:
  void takeByte(unsigned char byte) { state_ = (state_ ^ byte) * 0x100000001B3U; }

  std::uint64_t state_ = 0xCBF29CE484222325U;
};

/// Names of places may be alike where it matters; with their coordinates they are not.
std::string placeWord(const records::Lookout& lookout) {
  Fingerprint fingerprint;
  fingerprint.take(lookout.name);
  fingerprint.take(lookout.place.latitude);
  fingerprint.take(lookout.place.longitude);
  return plainWordOf(lookout.name) + "-" + fingerprint.text();
}

/// "720-06-12-pm", or "720-06-12-22h" of what belongs to a place: near a pole the moon rises twice
/// within half a day, where its own motion lifts and lowers it as much as the sky's turning. Both
/// are wide beside the last digits of a moment, which may be others where it was sought from
/// elsewhere.
std::string partOfDay(EventKind kind, const astro::CalendarMoment& moment) {
  std::string text = dateText(moment) + "-";
  if (!almanac::entryOf(kind).needsPlace) {
    return text + (moment.hour < 12 ? "am" : "pm");
  }
  astro::appendPaddedInteger(text, moment.hour, 2);
  return text + "h";
}

}  // namespace

std::string idOf(const Event& event, const astro::CalendarMoment& moment,
                 const std::optional<records::Lookout>& place) {
  std::string id = partOfDay(event.kind, moment);
  id.append("-").append(almanac::entryOf(event.kind).word);
  id.append("-").append(almanac::wordOf(event.body));
  if (event.other != almanac::Body::count) {
    id.append("-").append(almanac::wordOf(event.other));
  }
  if (event.sign != nullptr) {
    id.append("-").append(plainWordOf(reports::plainName(*event.sign)));
  }
  return place ? id + "-" + placeWord(*place) : id;
}

}  // namespace veyruna::notes
