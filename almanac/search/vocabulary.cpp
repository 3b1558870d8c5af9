#include "almanac/search/vocabulary.h"

#include <algorithm>

#include "almanac/search/spelling.h"
#include "astro/calendar.h"
#include "astro/invariant.h"
#include "charts/star_catalogue.h"
#include "reports/zodiac.h"

namespace veyruna::almanac {

namespace {

bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// The words of a verdict of the panel, small: "ivro" and "fate" of "IVRO (Fate)".
std::vector<std::string> wordsOf(std::string_view verdict) {
  std::vector<std::string> words(1);
  for (const char c : verdict) {
    if (isLetter(c)) {
      words.back() += c;
    } else if (!words.back().empty()) {
      words.emplace_back();
    }
  }
  std::erase(words, "");
  std::ranges::transform(words, words.begin(),
                         [](const std::string& word) { return lowered(word); });
  return words;
}

Words<Body> makeBodyWords() {
  Words<Body> words;
  for (const Body body : allBodies) {
    words.push_back({std::string(wordOf(body)), body});
  }
  words.push_back({"sun", Body::thessil});
  words.push_back({"moon", Body::ivro});
  return words;
}

Words<astro::Planet> makePlanetWords() {
  Words<astro::Planet> words;
  for (const Body body : allBodies) {
    if (const auto planet = planetOf(body)) {
      words.push_back({std::string(wordOf(body)), *planet});
    }
  }
  return words;
}

Words<std::size_t> makeStarWords() {
  Words<std::size_t> words;
  const std::vector<charts::FixedStar>& stars = charts::builtInCatalogue().stars();
  for (std::size_t i = 0; i < stars.size(); ++i) {
    if (!stars[i].name.starts_with('_')) {
      words.push_back({stars[i].name, i});
    }
  }
  return words;
}

/// The words for the rows of a table, `count` of each.
template <class Meaning, class Rows, class Text, class MeaningOf>
Words<Meaning> wordsFor(const Rows& rows, Text textOfRow, MeaningOf meaningOfRow) {
  Words<Meaning> words;
  for (const auto& row : rows) {
    words.push_back({std::string(textOfRow(row)), meaningOfRow(row)});
  }
  return words;
}

}  // namespace

const Words<Body>& bodyWords() {
  static const Words<Body> words = makeBodyWords();
  return words;
}

const Words<astro::Planet>& planetWords() {
  static const Words<astro::Planet> words = makePlanetWords();
  return words;
}

const Words<const reports::ZodiacSign*>& signWords() {
  static const auto words =
      wordsFor<const reports::ZodiacSign*>(reports::zodiacSigns, reports::plainName,
                                           [](const reports::ZodiacSign& sign) { return &sign; });
  return words;
}

const Words<const charts::Element*>& elementWords() {
  static const auto words = wordsFor<const charts::Element*>(
      charts::elements, [](const charts::Element& element) { return element.name; },
      [](const charts::Element& element) { return &element; });
  return words;
}

const Words<charts::Strength>& strengthWords() {
  static const auto words = wordsFor<charts::Strength>(
      charts::strengths, [](const charts::StrengthEntry& entry) { return lowered(entry.name); },
      [](const charts::StrengthEntry& entry) { return entry.strength; });
  return words;
}

const Words<charts::Sphere>& sphereWords() {
  static const Words<charts::Sphere> words = [] {
    Words<charts::Sphere> all;
    for (const charts::SphereEntry& entry : charts::spheres) {
      // What it means comes last: "fate" of "IVRO (Fate)".
      const std::vector<std::string> said = wordsOf(entry.verdict);
      std::for_each(said.rbegin(), said.rend(), [&](const std::string& word) {
        all.push_back({word, entry.sphere});
      });
    }
    return all;
  }();
  return words;
}

const Words<charts::Power>& powerWords() {
  static const auto words = wordsFor<charts::Power>(
      charts::powers,
      [](const charts::PowerEntry& entry) { return wordsOf(entry.verdict).front(); },
      [](const charts::PowerEntry& entry) { return entry.power; });
  return words;
}

const Words<bool>& keepWords() {
  static const auto words = wordsFor<bool>(
      charts::keeps, [](const charts::KeepEntry& entry) { return wordsOf(entry.verdict).front(); },
      [](const charts::KeepEntry& entry) { return entry.isTwisted; });
  return words;
}

const Words<std::size_t>& starWords() {
  static const Words<std::size_t> words = makeStarWords();
  return words;
}

const Words<int>& monthWords() {
  static const Words<int> words = [] {
    Words<int> all;
    for (int month = 0; month < astro::monthsPerYear; ++month) {
      all.push_back({std::string(astro::monthNames[static_cast<std::size_t>(month)]), month});
    }
    return all;
  }();
  return words;
}

const Words<Phase>& phaseWords() {
  static const Words<Phase> words = {{"full", Phase::full},
                                     {"new", Phase::fresh},
                                     {"waxing", Phase::waxing},
                                     {"waning", Phase::waning}};
  return words;
}

const Words<Light>& lightWords() {
  static const Words<Light> words = {
      {"day", Light::day}, {"twilight", Light::twilight}, {"night", Light::night}};
  return words;
}

}  // namespace veyruna::almanac
