#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "charts/element.h"
#include "charts/nativity.h"

/// The interpretation in words, line by line: what the panel beside the wheel writes, and what a
/// program is told.
namespace veyruna::charts {

/// The blocks of lines, in the order in which they are read.
enum class ReadingBlock { character, fate, planetary, elemental, natal, count };

struct ReadingBlockEntry {
  ReadingBlock block = ReadingBlock::count;
  std::string_view heading;
};

inline constexpr std::array<ReadingBlockEntry, static_cast<std::size_t>(ReadingBlock::count)>
    readingBlocks = {{
        {ReadingBlock::character, "Thessil Influence (Character)"},
        {ReadingBlock::fate, "Ivroar Influence (Fate)"},
        {ReadingBlock::planetary, "Planetary Influences"},
        {ReadingBlock::elemental, "Elemental Influences"},
        {ReadingBlock::natal, "Natal Forces (Origins)"},
    }};

/// One line. What it does not say stays empty.
struct ReadingLine {
  ReadingBlock block = ReadingBlock::count;
  std::string subject = {};     ///< "House", "Bralo (Inspiration)", "Marthel"
  std::string code = {};        ///< of an element: its two planets
  std::string bodyPart = {};    ///< of an element
  std::string sign = {};        ///< with its meaning
  std::string verdict = {};     ///< "IVRO (Fate)", "Strong"
  std::string_view color = {};  ///< that it is marked with, as a chart writes it
  bool isOfPlanet = false;      ///< whether a planet is the subject
};

/// All lines but the keep, in the blocks' order.
std::vector<ReadingLine> readingOf(const Nativity& nativity);

/// The line of one element.
ReadingLine elementReading(const Element& element, const Nativity& nativity);

/// What is said of the keep.
std::string_view keepVerdictOf(const Nativity& nativity);

}  // namespace veyruna::charts
