// The table of the sky as it ships: how many of what, under which names.
#include <algorithm>
#include <charconv>
#include <gtest/gtest.h>
#include <set>

#include "charts/catalogue_reader.h"
#include "reports/zodiac.h"
#include "tests/charts/catalogue_survey.h"
#include "tests/support/reference_case.h"
#include "tests/support/source_path.h"

namespace veyruna::charts {
namespace {

using tests::Role;
using tests::surveyOfTheSky;

const std::string starFile = tests::sourcePath("resources/star_catalogue.csv");
const std::string lineFile = tests::sourcePath("resources/constellation_lines.csv");

/// The fields of a file's rows, without the header.
std::vector<std::vector<std::string>> rowsOf(const std::string& path) {
  std::vector<std::vector<std::string>> rows(1, std::vector<std::string>(1));
  for (const char c : tests::fileContent(path)) {
    if (c == '\n') {
      rows.emplace_back(1);
    } else if (c == ',') {
      rows.back().emplace_back();
    } else {
      rows.back().back() += c;
    }
  }
  rows.pop_back();
  rows.erase(rows.begin());
  return rows;
}

std::string nameOf(const reports::ZodiacSign& sign) {
  return std::string(sign.name.substr(0, sign.name.find(' ')));
}

/// Smallest and largest magnitude, tested against the ends of the range.
void expectMagnitudes(const std::vector<const FixedStar*>& stars, double smallest, double largest) {
  double least = 99.0;
  double most = -99.0;
  for (const FixedStar* const star : stars) {
    least = std::min(least, star->magnitude);
    most = std::max(most, star->magnitude);
  }
  EXPECT_EQ(least, smallest);
  EXPECT_EQ(most, largest);
}

std::vector<const FixedStar*> figureStars() {
  std::vector<const FixedStar*> stars;
  for (const auto& [code, figure] : surveyOfTheSky().figures) {
    stars.insert(stars.end(), figure.stars.begin(), figure.stars.end());
  }
  return stars;
}

TEST(ShippedCatalogue, HoldsSixHundredAndSeventyNineEntries) {
  EXPECT_EQ(builtInCatalogue().stars().size(), 679U);
  EXPECT_EQ(surveyOfTheSky().background.size(), 454U);
  EXPECT_EQ(figureStars().size(), 176U);
  EXPECT_EQ(surveyOfTheSky().markers.size(), 12U);
  EXPECT_EQ(surveyOfTheSky().labels.size(), 37U);
}

TEST(ShippedCatalogue, IsTheFilesOfTheSourceTree) {
  const auto fromFile = readStars(tests::fileContent(starFile));
  const auto& shipped = builtInCatalogue().stars();
  ASSERT_EQ(shipped.size(), fromFile.size());
  for (std::size_t i = 0; i < shipped.size(); ++i) {
    EXPECT_EQ(shipped[i].name, fromFile[i].name);
    EXPECT_EQ(shipped[i].ec.v, fromFile[i].ec.v);
    EXPECT_EQ(shipped[i].color, fromFile[i].color);
    EXPECT_EQ(shipped[i].magnitude, fromFile[i].magnitude);
  }
  EXPECT_EQ(readLineNames(tests::fileContent(lineFile)).size(), 162U);
  EXPECT_EQ(builtInCatalogue().lines().size(), 162U) << "every line finds its two stars";
}

TEST(ShippedCatalogue, NoNameStandsTwice) {
  std::set<std::string> names;
  for (const FixedStar& star : builtInCatalogue().stars()) {
    EXPECT_TRUE(names.insert(star.name).second) << star.name;
  }
}

TEST(ShippedCatalogue, BackgroundStarsAreNumberedFromOne) {
  std::set<std::string> names;
  for (const FixedStar* const star : surveyOfTheSky().background) {
    names.insert(star->name);
    EXPECT_EQ(star->color, "#adadad");
  }
  for (int i = 1; i <= 454; ++i) {
    const std::string digits = std::to_string(1000 + i).substr(1);
    EXPECT_TRUE(names.contains("_BACKGROUND" + digits)) << i;
  }
  expectMagnitudes(surveyOfTheSky().background, 4.51, 6.0);
}

TEST(ShippedCatalogue, ThirtyFiveConstellationsHaveTwoToNineStarsNumberedFromOne) {
  EXPECT_EQ(surveyOfTheSky().figures.size(), 35U);
  for (const auto& [code, figure] : surveyOfTheSky().figures) {
    EXPECT_GE(figure.stars.size(), 2U) << code;
    EXPECT_LE(figure.stars.size(), 9U) << code;
    EXPECT_TRUE(std::all_of(code.begin(), code.end(), [](char c) { return c >= 'A' && c <= 'Z'; }))
        << code;
    std::set<std::string> names;
    for (const FixedStar* const star : figure.stars) {
      names.insert(star->name);
    }
    for (std::size_t i = 1; i <= figure.stars.size(); ++i) {
      EXPECT_TRUE(names.contains("_" + code + std::to_string(i))) << code << i;
    }
  }
  expectMagnitudes(figureStars(), 0.54, 4.0);
}

TEST(ShippedCatalogue, OneConstellationStarIsYellow) {
  int yellow = 0;
  for (const FixedStar* const star : figureStars()) {
    EXPECT_TRUE(star->color == "#f4f4f3" || star->color == "#fef651") << star->name;
    yellow += star->color == "#fef651" ? 1 : 0;
  }
  EXPECT_EQ(yellow, 1);
}

TEST(ShippedCatalogue, TheSignsAloneHaveMarkersExactlyWhereTheyBegin) {
  std::map<std::string, const FixedStar*> markers;
  for (const FixedStar* const marker : surveyOfTheSky().markers) {
    markers[tests::codeOf(marker->name)] = marker;
    EXPECT_EQ(marker->magnitude, 1.0);
    EXPECT_EQ(marker->color, "#f4f4f3");
  }
  EXPECT_EQ(markers.size(), 12U);
  for (const reports::ZodiacSign& sign : reports::zodiacSigns) {
    const std::string code = tests::codeNamedBy(nameOf(sign));
    ASSERT_TRUE(markers.contains(code)) << code;
    EXPECT_EQ(markers[code]->ec.phi, sign.start) << code;
    EXPECT_EQ(markers[code]->ec.theta, 0.0) << code;
    EXPECT_TRUE(surveyOfTheSky().figures.contains(code)) << code;
  }
}

TEST(ShippedCatalogue, EveryConstellationHasItsNameAndTwoNamesAreNone) {
  std::set<std::string> named;
  int labelStars = 0;
  for (const FixedStar* const label : surveyOfTheSky().labels) {
    EXPECT_FALSE(label->name.empty());
    EXPECT_TRUE(label->color == "#f4f4f3" || label->color == "#fef651") << label->name;
    EXPECT_TRUE(label->magnitude == 0.0 || label->magnitude == 1.0) << label->name;
    labelStars += label->magnitude == 1.0 ? 1 : 0;
    named.insert(tests::codeNamedBy(label->name));
  }
  EXPECT_EQ(labelStars, 1);
  EXPECT_EQ(named.size(), 37U);
  for (const auto& [code, figure] : surveyOfTheSky().figures) {
    EXPECT_TRUE(named.contains(code)) << code;
  }
}

TEST(ShippedCatalogue, OnlyMarkersAndTheSignsNamesAreGivenOnTheEcliptic) {
  std::set<std::string> signNames;
  for (const reports::ZodiacSign& sign : reports::zodiacSigns) {
    signNames.insert(nameOf(sign));
  }
  const auto rows = rowsOf(starFile);
  ASSERT_EQ(rows.size(), 679U);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 6U) << row[0];
    const Role role = tests::roleOf(row[0]);
    const bool isOnEcliptic =
        role == Role::marker || (role == Role::label && signNames.contains(row[0]));
    EXPECT_EQ(row[1], isOnEcliptic ? "ecliptic" : "equatorial") << row[0];
  }
}

TEST(ShippedCatalogue, PositionsAreOrdinaryAngles) {
  for (const auto& row : rowsOf(starFile)) {
    const auto number = [&row](std::size_t i) {
      double read = -99.0;
      std::from_chars(row[i].data(), row[i].data() + row[i].size(), read);
      return read;
    };
    EXPECT_GE(number(3), 0.0) << row[0];
    EXPECT_LT(number(3), tests::fullTurn) << row[0];
    EXPECT_LE(std::abs(number(4)), tests::halfTurn / 2.0) << row[0];
  }
}

TEST(ShippedCatalogue, LinesJoinTwoStarsOfOneConstellationOnceAndLeaveNoneAlone) {
  std::set<std::set<std::string>> pairs;
  for (const auto& row : rowsOf(lineFile)) {
    ASSERT_EQ(row.size(), 2U);
    EXPECT_NE(row[0], row[1]);
    EXPECT_EQ(tests::roleOf(row[0]), Role::figureStar) << row[0];
    EXPECT_EQ(tests::roleOf(row[1]), Role::figureStar) << row[1];
    EXPECT_EQ(tests::codeOf(row[0]), tests::codeOf(row[1]));
    EXPECT_TRUE(pairs.insert({row[0], row[1]}).second) << row[0] << " and " << row[1] << " twice";
  }
  EXPECT_EQ(pairs.size(), 162U);

  for (const auto& [code, figure] : surveyOfTheSky().figures) {
    std::set<const FixedStar*> reached = {figure.stars.front()};
    for (std::size_t before = 0; before < reached.size();) {
      before = reached.size();
      for (const auto& [from, to] : figure.lines) {
        if (reached.contains(from) || reached.contains(to)) {
          reached.insert({from, to});
        }
      }
    }
    EXPECT_EQ(reached.size(), figure.stars.size()) << code << " falls apart";
  }
}

}  // namespace
}  // namespace veyruna::charts
