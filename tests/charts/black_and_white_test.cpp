// What turns black on paper, and what does not: the two documents of one moment, line by line.
#include <gtest/gtest.h>
#include <map>
#include <sstream>

#include "charts/horoscope.h"

namespace veyruna::charts {
namespace {

std::vector<std::string> linesOf(const std::string& document) {
  std::vector<std::string> lines;
  std::istringstream in(document);
  for (std::string line; std::getline(in, line);) {
    lines.push_back(line);
  }
  return lines;
}

std::string replaced(std::string line, const std::string& from, const std::string& to) {
  const std::size_t at = line.find(from);
  return at == std::string::npos ? line : line.replace(at, from.size(), to);
}

bool hasPart(const std::string& line, const std::string& part) {
  return line.find(part) != std::string::npos;
}

/// Stars and names of every colour, on the rim and inside it, two lines and a marker.
StarCatalogue colourfulSky() {
  const auto at = [](const char* name, const char* color, double longitude, double latitude,
                     double magnitude) {
    return makeStar(name, false, color, longitude, latitude, magnitude);
  };
  return {{at("_BACKGROUND001", "#adadad", 0.3, 0.4, 5.0), at("_WEN1", "#f4f4f3", 1.0, 0.5, 2.0),
           at("_WEN2", "#fef651", 1.2, 0.6, 1.0), at("_WEN3", "#eaeae9", 1.4, 0.5, 3.0),
           at("_WEN", "#f4f4f3", 4.2, 0.0, 1.0), at("Wen", "#f4f4f3", 4.4, -0.1, 0.0),
           at("Low Lamp", "#fef651", 5.0, -0.3, 0.0), at("Far Ember", "#fef651", 2.0, 0.8, 1.0),
           at("Blue Well", "#407ff5", 2.5, 0.1, 1.0), at("The Harp", "#f4f4f3", 3.0, 0.7, 0.0)},
          {{"_WEN1", "_WEN2"}, {"_WEN2", "_WEN3"}}};
}

class BlackAndWhite : public testing::TestWithParam<double> {
 protected:
  const StarCatalogue sky = colourfulSky();
  const std::vector<std::string> inColour = linesOf(horoscope(false, {GetParam(), 0.7, 1.1}, sky));
  const std::vector<std::string> onPaper = linesOf(horoscope(true, {GetParam(), 0.7, 1.1}, sky));
};

TEST_P(BlackAndWhite, ChangesTheListedThingsAndNothingElse) {
  // What a line holds in colour and on paper, and how many lines change that way.
  struct Change {
    std::string from;
    std::string to;
    int expected;
    int seen = 0;
  };
  std::vector<Change> changes = {
      {"r=\"180\" fill=\"#727cbb\"", "r=\"180\" fill=\"#ffffff\"", 1},  // the disc
      {"r=\"5.00\" fill=\"yellow\"", "r=\"5.00\" fill=\"black\"", 1},   // the sun
      {"Z\" fill=\"white\"", "Z\" fill=\"black\"", 1},                  // the moon's light
      {"stroke=\"yellow\" stroke-width=\"0.8\"", "stroke=\"black\" stroke-width=\"0.8\"", 1},
      {"stroke=\"#eaeae9\"", "stroke=\"black\"", 2},  // constellation lines
      {"stroke=\"#f4f4f3\"", "stroke=\"black\"", 1},  // the tick of _WEN
      {"fill=\"#f4f4f3\"", "fill=\"black\"", 3},      // _WEN1, Wen, The Harp
      {"fill=\"#fef651\"", "fill=\"black\"", 4},      // _WEN2, Low Lamp, Far Ember and its name
      {"fill=\"#eaeae9\"", "fill=\"black\"", 1},      // _WEN3
      {"xlink:href=\"#rim\"", "xlink:href=\"#rim_inner\"", 1},  // Wen moves inside
  };
  ASSERT_EQ(inColour.size(), onPaper.size());
  for (std::size_t i = 0; i < inColour.size(); ++i) {
    if (inColour[i] == onPaper[i]) {
      continue;
    }
    bool isListed = false;
    for (Change& change : changes) {
      const bool matches = hasPart(inColour[i], change.from) &&
                           replaced(inColour[i], change.from, change.to) == onPaper[i];
      change.seen += matches ? 1 : 0;
      isListed = isListed || matches;
    }
    EXPECT_TRUE(isListed) << inColour[i] << "\nbecame\n" << onPaper[i];
  }
  for (const Change& change : changes) {
    EXPECT_EQ(change.seen, change.expected) << change.from;
  }
}

TEST_P(BlackAndWhite, NoShiningColourIsLeftOnTheWheel) {
  for (const std::string& line : onPaper) {
    for (const char* const color : {"#f4f4f3", "#fef651", "#eaeae9", "\"white\"", "#727cbb"}) {
      EXPECT_FALSE(hasPart(line, color)) << line;
    }
  }
}

TEST_P(BlackAndWhite, OtherColoursStay) {
  std::map<std::string, int> counts;
  for (const std::vector<std::string>* const lines : {&inColour, &onPaper}) {
    for (const std::string& line : *lines) {
      for (const char* const color :
           {"#407ff5", "#e3463e", "#e98739", "#b141d5", "#757475", "red", "#adadad", "#3a3a3a",
            "gray", "orange", "green", "purple", "pink", "blue"}) {
        counts[color] +=
            hasPart(line, '"' + std::string(color) + '"') ? (lines == &inColour) * 2 - 1 : 0;
      }
    }
  }
  for (const auto& [color, surplus] : counts) {
    EXPECT_EQ(surplus, 0) << color;
  }
}

INSTANTIATE_TEST_SUITE_P(Moments, BlackAndWhite, testing::Values(0.0, 258840.0, -17.3, 446789.18));

}  // namespace
}  // namespace veyruna::charts
