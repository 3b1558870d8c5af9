// The names on the wheel as they are drawn: along the rim and inside it, none on top of another.
#include <algorithm>
#include <gtest/gtest.h>
#include <set>

#include "charts/horoscope.h"
#include "reports/zodiac.h"
#include "tests/charts/arial.h"
#include "tests/charts/catalogue_survey.h"
#include "tests/charts/xml_check.h"

namespace veyruna::charts {
namespace {

/// A name along the rim, in user units from the top, clockwise.
struct RimName {
  std::string name;
  double radius;
  double begin;

  [[nodiscard]] double end() const { return begin + tests::widthOf(name); }
  [[nodiscard]] double centreLongitude() const { return (begin + end()) / 2.0 / radius; }
};

/// A name inside the wheel: the box of its letters.
struct Box {
  std::string name;
  double left;
  double right;
  double top;
  double bottom;

  [[nodiscard]] bool overlaps(const Box& other) const {
    return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
  }
};

/// The wheel of the shipped sky; where the wanderers stand does not matter to the names.
struct Names {
  explicit Names(bool blackAndWhite)
      : elements(tests::readXml(horoscope(blackAndWhite, {0.0, 0.5, 0.0}, builtInCatalogue()))) {
    std::set<std::string> fixed;
    for (const FixedStar* const label : tests::surveyOfTheSky().labels) {
      fixed.insert(label->name);
    }
    for (const tests::XmlElement& element : elements) {
      if (!fixed.contains(element.text)) {
        continue;
      }
      if (element.name == "textPath") {
        const double radius = radiusOf(element.attribute("xlink:href").substr(1));
        const double share = tests::leadingNumber(element.attribute("startOffset")) / 100.0;
        rim.push_back({element.text, radius, share * tests::fullTurn * radius});
      } else {
        const double width = tests::widthOf(element.text);
        const bool isCentred = element.has("text-anchor", "middle");
        const double left = element.number("x") - (isCentred ? width / 2.0 : 0.0);
        const double y = element.number("y");
        inside.push_back({element.text, left, left + width, y - tests::ascent, y + tests::descent});
      }
    }
    std::sort(rim.begin(), rim.end(),
              [](const RimName& a, const RimName& b) { return a.begin < b.begin; });
  }

  /// Of the half circles "M180,5 A175,175, 0 1,1 …" that a path of this id consists of.
  [[nodiscard]] double radiusOf(const std::string& path) const {
    const std::string outline = tests::select(elements, "path", "id", path).at(0).attribute("d");
    return tests::leadingNumber(outline.substr(outline.find('A') + 1));
  }

  std::vector<tests::XmlElement> elements;
  std::vector<RimName> rim;
  std::vector<Box> inside;
  double outerRadius = radiusOf("rim");
  double innerRadius = radiusOf("rim_inner");
};

class NamesOnTheWheel : public testing::TestWithParam<bool> {
 protected:
  [[nodiscard]] bool isOnPaper() const { return GetParam(); }

  const Names names{GetParam()};
  const std::vector<RimName>& rim = names.rim;
  const std::vector<Box>& inside = names.inside;
  const double outerRadius = names.outerRadius;
  const double innerRadius = names.innerRadius;
};

TEST_P(NamesOnTheWheel, EveryNameIsDrawnOnce) {
  EXPECT_EQ(rim.size() + inside.size(), 37U);
  const auto isFarOut = [](const FixedStar* label) {
    return (90.0 - tests::degrees(label->ec.theta)) / 90.0 > 0.9;
  };
  const auto& labels = tests::surveyOfTheSky().labels;
  EXPECT_EQ(static_cast<std::ptrdiff_t>(rim.size()),
            std::count_if(labels.begin(), labels.end(), isFarOut));
}

TEST_P(NamesOnTheWheel, RimNamesBeginAtTheirLongitude) {
  for (const RimName& label : rim) {
    const double longitude =
        std::ranges::find(builtInCatalogue().stars(), label.name, &FixedStar::name)->ec.phi;
    // Offsets are written to a tenth of a per cent of the turn.
    EXPECT_LE(tests::degrees(std::abs(tests::nearZero(label.begin / label.radius - longitude))),
              0.18 + 1e-9)
        << label.name;
  }
}

TEST_P(NamesOnTheWheel, OnlyTheSignsRunOutsideAndOnPaperNone) {
  for (const RimName& label : rim) {
    const bool isSign = std::any_of(
        reports::zodiacSigns.begin(), reports::zodiacSigns.end(),
        [&](const auto& sign) { return sign.name.substr(0, sign.name.find(' ')) == label.name; });
    EXPECT_EQ(label.radius, isSign && !isOnPaper() ? outerRadius : innerRadius) << label.name;
  }
}

TEST_P(NamesOnTheWheel, RimNamesKeepClearOfEachOther) {
  constexpr double smallestGap = 1.0;
  for (const double radius : {outerRadius, innerRadius}) {
    std::vector<RimName> path;
    std::copy_if(rim.begin(), rim.end(), std::back_inserter(path),
                 [radius](const RimName& label) { return label.radius == radius; });
    EXPECT_EQ(path.empty(), isOnPaper() && radius == outerRadius);
    for (std::size_t i = 1; i < path.size(); ++i) {
      EXPECT_GE(path[i].begin - path[i - 1].end(), smallestGap)
          << path[i - 1].name << " and " << path[i].name;
    }
    if (!path.empty()) {
      EXPECT_LE(path.back().end(), tests::fullTurn * radius)
          << path.back().name << " runs past the end of its path";
      EXPECT_GE(path.front().begin + tests::fullTurn * radius - path.back().end(), smallestGap)
          << path.back().name << " and " << path.front().name;
    }
  }
}

TEST_P(NamesOnTheWheel, TheTwoPathsLieApart) {
  EXPECT_LT(innerRadius + tests::ascent, outerRadius - tests::descent);
  EXPECT_LT(outerRadius + tests::ascent, 180.0) << "the wheel's edge would cut the letters";
}

TEST(SignNames, InColourASignsNameStandsInItsMiddle) {
  const Names names(false);
  for (std::size_t i = 0; i < reports::zodiacSigns.size(); ++i) {
    const reports::ZodiacSign& sign = reports::zodiacSigns[i];
    const double begin = sign.start;
    const double end = i + 1 < reports::zodiacSigns.size()
                           ? reports::zodiacSigns[i + 1].start
                           : reports::zodiacSigns[0].start + tests::fullTurn;
    const auto label =
        std::find_if(names.rim.begin(), names.rim.end(), [&sign](const RimName& name) {
          return sign.name.substr(0, sign.name.find(' ')) == name.name;
        });
    ASSERT_NE(label, names.rim.end()) << sign.name;
    EXPECT_LE(tests::degrees(std::abs(label->centreLongitude() - (begin + end) / 2.0)), 1.0)
        << sign.name;
  }
}

TEST_P(NamesOnTheWheel, NamesInsideKeepClearOfEachOtherAndOfTheRim) {
  for (std::size_t i = 0; i < inside.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k) {
      EXPECT_FALSE(inside[i].overlaps(inside[k])) << inside[i].name << " and " << inside[k].name;
    }
    const Box& box = inside[i];
    const double acrossX = std::max(180.0 - box.left, box.right - 180.0);
    const double acrossY = std::max(180.0 - box.top, box.bottom - 180.0);
    EXPECT_LT(std::hypot(acrossX, acrossY), innerRadius - tests::descent) << box.name;
  }
}

INSTANTIATE_TEST_SUITE_P(ColourAndPaper, NamesOnTheWheel, testing::Bool(),
                         [](const auto& shown) { return shown.param ? "Paper" : "Colour"; });

TEST(Arial, WidthsAreThoseOfTheTypeSize) {
  // In thousandths of the type size, as the font's tables of old give them: V 667, o 556, n 556,
  // i 222.
  EXPECT_NEAR(tests::widthOf("Voni"), (667 + 556 + 556 + 222) * 5.0 / 1000.0, 0.005);
  EXPECT_THROW(tests::widthOf("é"), std::invalid_argument);
}

}  // namespace
}  // namespace veyruna::charts
