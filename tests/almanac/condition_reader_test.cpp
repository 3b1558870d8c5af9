// Conditions as people write them: what is understood, and what is said of what is not.
#include "almanac/search/condition_reader.h"

#include <gtest/gtest.h>
#include <string>

#include "almanac/search/spelling.h"
#include "almanac/search/vocabulary.h"
#include "charts/star_catalogue.h"
#include "tests/almanac/random_conditions.h"

namespace veyruna {
namespace {

using namespace almanac;

Condition one(const std::string& text) {
  std::vector<Condition> read = readConditions(text);
  EXPECT_EQ(read.size(), 1U) << text;
  return read.front();
}

const reports::ZodiacSign* signCalled(std::string_view name) {
  for (const reports::ZodiacSign& sign : reports::zodiacSigns) {
    if (sign.name.starts_with(name)) {
      return &sign;
    }
  }
  return nullptr;
}

const charts::Element* elementCalled(std::string_view name) {
  return std::ranges::find(charts::elements, name, &charts::Element::name);
}

TEST(ConditionReader, EveryFormHasItsWords) {
  EXPECT_EQ(one("bralo in Wen"), (Condition{InSign{Body::bralo, signCalled("Wen")}}));
  EXPECT_EQ(one("ivro house Voni"), (Condition{InSign{Body::ivro, signCalled("Voni")}}));
  EXPECT_EQ(one("dunmor conjunct galvi"),
            (Condition{Together{Body::dunmor, Body::galvi, false, 2.0}}));
  EXPECT_EQ(one("moon opposite pallox within 5"),
            (Condition{Together{Body::ivro, Body::pallox, true, 5.0}}));
  EXPECT_EQ(one("sun conjunct moon within 2.5°"),
            (Condition{Together{Body::thessil, Body::ivro, false, 2.5}}));
  EXPECT_EQ(one("moon full"), (Condition{MoonIs{Phase::full}}));
  EXPECT_EQ(one("ivro new"), (Condition{MoonIs{Phase::fresh}}));
  EXPECT_EQ(one("moon waxing"), (Condition{MoonIs{Phase::waxing}}));
  EXPECT_EQ(one("moon waning"), (Condition{MoonIs{Phase::waning}}));
  EXPECT_EQ(one("galvi backward"), (Condition{Running{astro::Planet::galvi, true}}));
  EXPECT_EQ(one("galvi forward"), (Condition{Running{astro::Planet::galvi, false}}));
  EXPECT_EQ(one("eclipse"), (Condition{EclipseLasts{}}));
  EXPECT_EQ(one("ascending sign Lothac"), (Condition{RisingSign{signCalled("Lothac"), false}}));
  EXPECT_EQ(one("descending sign Wen"), (Condition{RisingSign{signCalled("Wen"), true}}));
  EXPECT_EQ(one("power superior"), (Condition{PowerIs{charts::Power::superior}}));
  EXPECT_EQ(one("keep twisted"), (Condition{KeepIs{true}}));
  EXPECT_EQ(one("full moon"), one("moon full"));
  EXPECT_EQ(one("New Moon"), one("moon new"));
  EXPECT_EQ(one("straight keep"), (Condition{KeepIs{false}}));
  EXPECT_EQ(one("zerathe exceptional"),
            (Condition{ElementIs{elementCalled("Zerathe"), charts::Strength::exceptional}}));
  EXPECT_EQ(one("bralo natal strong"),
            (Condition{NatalIs{astro::Planet::bralo, charts::Strength::strong}}));
  EXPECT_EQ(one("bralo favours will"),
            (Condition{Favours{astro::Planet::bralo, charts::Sphere::will}}));
  EXPECT_EQ(one("pallox favours ivro"),
            (Condition{Favours{astro::Planet::pallox, charts::Sphere::fate}}));
  EXPECT_EQ(one("dominant sphere balanced"), (Condition{DominantSphere{charts::Sphere::balanced}}));
  EXPECT_EQ(one("pallox above horizon"), (Condition{BodyAbove{Body::pallox, 0.0}}));
  EXPECT_EQ(one("ivro above −6.5°"), (Condition{BodyAbove{Body::ivro, -6.5}}));
  const auto& stars = charts::builtInCatalogue().stars();
  const Condition hathel = one("Hathel above 60");
  EXPECT_EQ(stars.at(std::get<StarAbove>(hathel.form).star).name, "Hathel");
  EXPECT_EQ(std::get<StarAbove>(hathel.form).degrees, 60.0);
  EXPECT_EQ(one("night"), (Condition{LightIs{Light::night}}));
  EXPECT_EQ(one("day"), (Condition{LightIs{Light::day}}));
  EXPECT_EQ(one("twilight"), (Condition{LightIs{Light::twilight}}));
  EXPECT_EQ(one("hour 22:00 to 4:00"), (Condition{HourBetween{22.0, 4.0}}));
  EXPECT_EQ(one("hour 18.25 to 24"), (Condition{HourBetween{18.25, 24.0}}));
  EXPECT_EQ(one("month Cendo"), (Condition{MonthIs{6}}));
  EXPECT_EQ(one("month 12"), (Condition{MonthIs{11}}));
  EXPECT_EQ(one("day 15"), (Condition{DayIs{14}}));
  EXPECT_EQ(one("not night"), (Condition{Not{{Condition{LightIs{Light::night}}}}}));
}

TEST(ConditionReader, EveryVerdictOfThePanelCanBeAsked) {
  for (const charts::StrengthEntry& entry : charts::strengths) {
    for (const charts::Element& element : charts::elements) {
      EXPECT_EQ(one(std::string(element.name) + " " + std::string(entry.name)),
                (Condition{ElementIs{&element, entry.strength}}));
    }
    EXPECT_EQ(one("GALVI natal " + std::string(entry.name)),
              (Condition{NatalIs{astro::Planet::galvi, entry.strength}}));
  }
  for (const charts::SphereEntry& entry : charts::spheres) {
    // "IVRO (Fate)" by either word, in any case.
    const std::string verdict(entry.verdict);
    const std::size_t space = verdict.find(' ');
    EXPECT_EQ(one("dominant sphere: " + verdict.substr(0, space)),
              (Condition{DominantSphere{entry.sphere}}));
    if (space != std::string::npos) {
      EXPECT_EQ(one("dunmor favours " + verdict.substr(space + 2, verdict.size() - space - 3)),
                (Condition{Favours{astro::Planet::dunmor, entry.sphere}}));
    }
  }
  for (const charts::PowerEntry& entry : charts::powers) {
    EXPECT_EQ(one("Power: " + std::string(entry.verdict.substr(0, entry.verdict.find('.')))),
              (Condition{PowerIs{entry.power}}));
  }
  for (const charts::KeepEntry& entry : charts::keeps) {
    EXPECT_EQ(one(std::string(entry.verdict.substr(0, entry.verdict.find(' '))) + " Keep"),
              (Condition{KeepIs{entry.isTwisted}}));
  }
  for (const reports::ZodiacSign& sign : reports::zodiacSigns) {
    const std::string name(sign.name.substr(0, sign.name.find(' ')));
    EXPECT_EQ(one("Ascending Sign: " + name), (Condition{RisingSign{&sign, false}}));
    EXPECT_EQ(one("thessil house: " + name), (Condition{InSign{Body::thessil, &sign}}));
  }
}

TEST(ConditionReader, LetterCaseAndBlanksDoNotMatter) {
  EXPECT_EQ(one(" \tDUNMOR  Conjunct   gAlVi\tWITHIN 3 "), one("dunmor conjunct galvi within 3"));
  EXPECT_EQ(one("any of(night;moon new)"), one("any of ( night ; moon new )"));
  EXPECT_EQ(one("night # after supper"), one("night"));
}

TEST(ConditionReader, GroupsStandInGroupsWithinOneLine) {
  const Condition night = one("night");
  const Condition fresh = one("moon new");
  EXPECT_EQ(one("any of (night; moon new)"), (Condition{AnyOf{{night, fresh}}}));
  EXPECT_EQ(one("not any of (night; all of (moon new; not night))"),
            (Condition{Not{
                {Condition{AnyOf{{night, Condition{AllOf{{fresh, Condition{Not{{night}}}}}}}}}}}}));
}

TEST(ConditionReader, AFileHoldsOneALineAndGroupsByIndentation) {
  const std::vector<Condition> read = readConditions(
      "\xEF\xBB\xBF# omens\r\n"
      "keep twisted\r\n"
      "\r\n"
      "any of:\r\n"
      "    night   # or else\r\n"
      "    # a comment less far in\r\n"
      "    not all of:\r\n"
      "\tmoon new\r\n"
      "\tany of:\r\n"
      "\t  eclipse\r\n"
      "\t  day 15\r\n"
      "    twilight\r\n"
      "month Cendo\r\n");
  ASSERT_EQ(read.size(), 3U);
  EXPECT_EQ(read[0], one("keep twisted"));
  EXPECT_EQ(read[1],
            one("any of (night; not all of (moon new; any of (eclipse; day 15)); twilight)"));
  EXPECT_EQ(read[2], one("month Cendo"));
  EXPECT_TRUE(readConditions("").empty());
  EXPECT_TRUE(readConditions("\n  # nothing\n\n").empty());
}

TEST(ConditionReader, ItsOwnTextReadsBackAsTheSame) {
  tests::RandomConditions random(7);
  for (std::size_t i = 0; i < 2000; ++i) {
    const Condition condition =
        random.tree(i % tests::RandomConditions::leafForms, static_cast<int>(i % 4));
    EXPECT_EQ(one(textOf(condition)), condition) << textOf(condition);
    EXPECT_FALSE(explanationOf(condition, i % 2 == 0).empty());
  }
}

struct Wrong {
  std::string text;
  std::string word;      ///< that is underlined; empty for the end
  std::string accepted;  ///< part of what is said
  std::string nearest;
  std::size_t line = 1;
};

class WrongConditions : public testing::TestWithParam<Wrong> {};

TEST_P(WrongConditions, AreUnderlinedWithWhatCouldStandThere) {
  const Wrong& wrong = GetParam();
  try {
    readConditions(wrong.text);
    FAIL() << wrong.text << " was read";
  } catch (const ConditionError& error) {
    const ConditionError::Spot& spot = error.spot();
    EXPECT_EQ(spot.lineNumber, wrong.line);
    EXPECT_EQ(spot.line.substr(spot.offset, spot.length), wrong.word);
    EXPECT_EQ(spot.length == 0, wrong.word.empty());
    EXPECT_NE(error.accepted().find(wrong.accepted), std::string::npos) << error.accepted();
    EXPECT_EQ(error.nearest(), wrong.nearest);
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, WrongConditions,
    testing::Values(
        Wrong{"bralu in Wen", "bralu", "an element (Marthel", "bralo"},
        Wrong{"bralo im Wen", "im", "conjunct", "in"},
        Wrong{"bralo in When", "When", "Gimbral, Sevrino", "Wen"},
        Wrong{"bralo in", "", "a sign: Gimbral", ""}, Wrong{"bralo", "", "favours", ""},
        Wrong{"xyzzyplugh", "xyzzyplugh", "a body (thessil", ""},
        Wrong{"sun backward", "backward", "in, house, conjunct, opposite, above", ""},
        Wrong{"bralo full", "full", "natal", ""}, Wrong{"moon ful", "ful", "waxing", "full"},
        Wrong{"dunmor conjunct dunmor", "dunmor", "another body", ""},
        Wrong{"dunmor conjunct galvi within 0", "0", "above 0 and up to 180", ""},
        Wrong{"dunmor conjunct galvi within 181", "181", "above 0 and up to 180", ""},
        Wrong{"dunmor conjunct galvi within nan", "nan", "above 0 and up to 180", ""},
        Wrong{"dunmor conjunct galvi withn 3", "withn", "nothing more", ""},
        Wrong{"ivro above 91", "91", "from -90 to 90", ""},
        Wrong{"ivro above horizn", "horizn", "horizon", "horizon"},
        Wrong{"ivro above", "", "horizon", ""},
        Wrong{"Hathal above 60", "Hathal", "a name of the star map", "Hathel"},
        Wrong{"zerathe mighty", "mighty", "exceptional", ""},
        Wrong{"zerathe stong", "stong", "exceptional, strong", "strong"},
        Wrong{"power inferio", "inferio", "superior, balanced, inferior", "inferior"},
        Wrong{"keep crooked", "crooked", "straight, twisted", ""},
        Wrong{"hour 22 to", "", "an hour from 0 to 24", ""},
        Wrong{"hour 22:60 to 23", "22:60", "an hour from 0 to 24", ""},
        Wrong{"hour 5 to 5:00", "5:00", "another hour", ""},
        Wrong{"hour 5 till 6", "till", "to", ""}, Wrong{"month Cendu", "Cendu", "Brenwic", "Cendo"},
        Wrong{"month 13", "13", "1 to 12", ""}, Wrong{"day 31", "31", "1 to 30", ""},
        Wrong{"day 0", "0", "1 to 30", ""}, Wrong{"nght", "nght", "night", "night"},
        Wrong{"night day", "day", "nothing more", ""}, Wrong{"not", "", "a body", ""},
        Wrong{"any of night", "night", "any of (", ""}, Wrong{"any night", "night", "of", ""},
        Wrong{"all of them", "them", "in parentheses: all of (A; B; C)", ""},
        Wrong{"not all of moon:\n  night", "moon", "in parentheses: all of (A; B; C)", ""},
        Wrong{"any of (night", "", "\")\"", ""}, Wrong{"any of (night; )", ")", "a body", ""},
        Wrong{"any of (night moon new)", "moon", "\";\"", ""},
        Wrong{"any of ()", ")", "a body", ""}, Wrong{"(night)", "(", "a body", ""},
        Wrong{"night\nany of:\nmoon new", "", "indented further", "", 2},
        Wrong{"night\nany of: moon new", ":", "any of (", "", 2},
        Wrong{"any of moon:\n  night", "moon", "a colon and the parts on lines below", ""},
        Wrong{"any of: moon:\n  night", "moon", "the parts on lines below", ""},
        Wrong{"night\n  moon new", "  ", "as many blanks", "", 2},
        Wrong{"  night\nmoon new", "", "as many blanks", "", 2},
        Wrong{"any of:\n    night\n  moon new", "  ", "as many blanks", "", 3},
        Wrong{"bralo in Wen:", "bralo", "any", ""}, Wrong{"\xFF\xFE", "\xFF\xFE", "a body", ""}));

TEST(ConditionReader, RefusesWhatStandsTooDeep) {
  std::string deep;
  for (int i = 0; i < 100'000; ++i) {
    deep += "not ";
  }
  EXPECT_THROW(readConditions(deep + "night"), ConditionError);
  EXPECT_THROW(readConditions(deep + "any of:\n night"), ConditionError);
  std::string nested;
  std::string lines;
  for (std::size_t i = 0; i < 1000; ++i) {
    nested += "any of (";
    lines += std::string(i, ' ') + "any of:\n";
  }
  EXPECT_THROW(readConditions(nested), ConditionError);
  EXPECT_THROW(readConditions(lines + std::string(1000, ' ') + "night"), ConditionError);
}

TEST(Spelling, ANeighbourThatIsExchangedIsOneMistake) {
  EXPECT_EQ(Spelling{"galvi"}.distanceTo("Galvi"), 0U);
  EXPECT_EQ(Spelling{"glavi"}.distanceTo("galvi"), 1U);
  EXPECT_EQ(Spelling{"gavi"}.distanceTo("galvi"), 1U);
  EXPECT_EQ(Spelling{"galvvi"}.distanceTo("galvi"), 1U);
  EXPECT_EQ(Spelling{"galwi"}.distanceTo("galvi"), 1U);
  EXPECT_EQ(Spelling{""}.distanceTo("galvi"), 5U);
}

TEST(Conditions, NeedAPlaceWhereTheHorizonOrTheLocalClockIsMeant) {
  for (const char* text : {"bralo in Wen", "moon full", "eclipse", "power superior", "keep twisted",
                           "zerathe weak", "bralo favours fate", "galvi backward"}) {
    EXPECT_FALSE(needsPlace(one(text), false)) << text;
    EXPECT_FALSE(needsPlace(one(text), true)) << text;
  }
  for (const char* text : {"ascending sign Wen", "descending sign Wen", "dominant sphere fate",
                           "bralo natal weak", "ivro above 3", "Hathel above horizon", "night",
                           "day", "twilight", "any of (eclipse; not all of (moon new; night))"}) {
    EXPECT_TRUE(needsPlace(one(text), false)) << text;
  }
  for (const char* text : {"hour 4 to 5", "month 3", "not day 3"}) {
    EXPECT_FALSE(needsPlace(one(text), false)) << text;
    EXPECT_TRUE(needsPlace(one(text), true)) << text;
  }
}

TEST(Conditions, TheirExplanationSaysWhatIsAskedAndWhatIsNot) {
  EXPECT_EQ(explanationOf(one("all of (dunmor conjunct galvi; not moon full)"), false),
            "Asked:\n"
            "  all of these:\n"
            "    Dunmor and Galvi stand less than 2° from one longitude\n"
            "    not this:\n"
            "      the moon is within 6° of full\n"
            "Not asked:\n"
            "  a horizon: what is meant may stand below it\n"
            "  an hour: it may be day or night\n"
            "  a date: any day and month will do\n"
            "  a place: it is the same everywhere\n");
  EXPECT_EQ(explanationOf(one("any of (pallox above 12.5; hour 22 to 4; month Cendo)"), true),
            "Asked:\n"
            "  at least one of these:\n"
            "    Pallox stands higher than 12.5°\n"
            "    hour 22:00 to 04:00, by the place's own clock\n"
            "    month Cendo, by the place's own clock\n"
            "Not asked:\n"
            "  where the sun, the moon and the planets stand among the signs\n"
            "  light: the hours are those of a clock, be it day or night\n");
}

}  // namespace
}  // namespace veyruna
