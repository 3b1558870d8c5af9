#pragma once

#include <array>
#include <string_view>

/// The ecliptic is divided into twelve signs of unequal width.
namespace veyruna::reports {

struct ZodiacSign {
  double start;                      ///< ecliptic longitude, radians, inclusive
  std::string_view name;             ///< padded with blanks to 11 characters
  std::string_view nameWithMeaning;  ///< unpadded, the meanings in parentheses
};

/// In order of increasing longitude; each runs to the start of the next, Voni through 0.
inline constexpr std::array<ZodiacSign, 12> zodiacSigns = {{
    {0.02106, "Gimbral    ", "Gimbral (Renewal, Growth)"},
    {0.54465, "Sevrino    ", "Sevrino (Blossoming)"},
    {1.05089, "Lothac     ", "Lothac (Enterprise)"},
    {1.59169, "Pemi       ", "Pemi (Cleansing Destruction)"},
    {2.13298, "Istramondel", "Istramondel (Conflict)"},
    {2.69112, "Felum      ", "Felum (Unfocused Energy)"},
    {3.19759, "Corra      ", "Corra (Freedom, Sell-Will)"},
    {3.70378, "Bessim     ", "Bessim (Wealth, Unseen Power)"},
    {4.20993, "Wen        ", "Wen (Knowledge, Mystery)"},
    {4.71598, "Ostrel     ", "Ostrel (Learning, Transformation)"},
    {5.23987, "Quelin     ", "Quelin (Pleasure, Maternity)"},
    {5.74599, "Voni       ", "Voni (Culmination, Returning)"},
}};

/// The sign an ecliptic longitude (radians, any finite value) lies in.
const ZodiacSign& signAt(double longitude);

/// Its name, 11 characters.
std::string_view signName(double longitude);

/// Its name followed by its meanings.
std::string_view signNameWithMeaning(double longitude);

/// A sign's name without its padding.
std::string_view plainName(const ZodiacSign& sign);

}  // namespace veyruna::reports
