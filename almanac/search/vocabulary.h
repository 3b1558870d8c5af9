#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "almanac/search/condition.h"

/// The words of conditions, taken from where the world has them.
namespace veyruna::almanac {

/// A word as it is shown, and what it stands for.
template <class Meaning>
struct Word {
  std::string shown;
  Meaning meaning;
};

template <class Meaning>
using Words = std::vector<Word<Meaning>>;

const Words<Body>& bodyWords();             ///< sun and moon by either name
const Words<astro::Planet>& planetWords();  ///< the bodies that are planets
const Words<const reports::ZodiacSign*>& signWords();
const Words<const charts::Element*>& elementWords();
const Words<charts::Strength>& strengthWords();
const Words<charts::Sphere>& sphereWords();  ///< each verdict by any of its words
const Words<charts::Power>& powerWords();
const Words<bool>& keepWords();
const Words<std::size_t>& starWords();  ///< what has a name on the star map
const Words<int>& monthWords();
const Words<Phase>& phaseWords();
const Words<Light>& lightWords();

/// The first word for a meaning.
template <class Meaning>
const std::string& wordFor(const Words<Meaning>& words, const Meaning& meaning) {
  for (const Word<Meaning>& word : words) {
    if (word.meaning == meaning) {
      return word.shown;
    }
  }
  return words.front().shown;
}

}  // namespace veyruna::almanac
