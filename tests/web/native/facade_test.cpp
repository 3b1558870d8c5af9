// The engine for browsers as it is natively, where sanitizers watch it: whatever is asked, there is
// an answer.
#include "web/facade.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "documents/documents.h"
#include "web/documents_by_name.h"

namespace veyruna {
namespace {

std::string answerOf(const std::string& question) {
  return web::answer(question, web::moduleAnswerers());
}

const std::string aPlace = "&lat=40.5N&long=-20.9";
const std::string aSky = "&moment=720-06-12T22%3A30" + aPlace;

TEST(Facade, DocumentsAreThoseOfTheTable) {
  for (const documents::Entry& entry : documents::allDocuments) {
    const std::string text = answerOf("ask=document&name=" + web::nameOf(entry) + aSky);
    ASSERT_EQ(text.front(), web::answerIsText) << text;
    const double latitude = 40.5 / 180.0 * 3.141592653589793;
    const double longitude = -20.9 / 180.0 * 3.141592653589793;
    EXPECT_EQ(text.substr(1), documents::textOf(entry.document, {.baseTime = 259001.4375,
                                                                 .latitude = latitude,
                                                                 .longitude = longitude}));
  }
}

TEST(Facade, ThePageAsksForNoSearch) {
  const std::string question = "ask=search&conditions=moon+full&from=720-01-01&for=1+year";
  EXPECT_EQ(answerOf(question).front(), web::answerIsJson);
  const std::string refused = web::answer(question, web::pageAnswerers());
  EXPECT_EQ(refused.substr(0, 34), "!ask: \"search\" is not accepted; gi");
  for (const web::Answerer& answerer : web::pageAnswerers()) {
    EXPECT_NE(refused.find(answerer.ask), std::string::npos) << answerer.ask;
  }
}

TEST(Facade, EscapesOfAddressesAreUnderstoodAndOthersStay) {
  EXPECT_EQ(answerOf("ask=mo%6Dent" + aSky), answerOf("ask=moment" + aSky));
  for (const char* odd : {"%", "%4", "%zz", "%%", "100%"}) {
    const std::string answer = answerOf(std::string("ask=") + odd);
    EXPECT_NE(answer.find("ask: \"" + std::string(odd) + "\" is not accepted"), std::string::npos)
        << answer;
  }
}

TEST(Facade, AMissingQuestionIsAnError) {
  for (const char* question : {"", "&", "=", "ask", "ask=", "&&&", "moment"}) {
    EXPECT_EQ(answerOf(question).front(), web::answerIsError) << question;
  }
}

TEST(Facade, MarksSayWhatTheyAre) {
  const auto expectMarks = [](const std::string& chart, const std::vector<std::string>& kinds) {
    const std::string answer = answerOf("ask=marks&name=" + chart + aSky);
    ASSERT_EQ(answer.front(), web::answerIsJson) << answer;
    for (const std::string& kind : kinds) {
      EXPECT_NE(answer.find("\"kind\":\"" + kind + "\""), std::string::npos) << chart << kind;
    }
  };
  expectMarks("star-map", {"body", "star", "background_star", "figure_name"});
  expectMarks("horoscope", {"body", "sign_boundary", "ascendant", "chord", "panel_line"});
}

TEST(Facade, AMomentBeforeTheCalendarHasNoDate) {
  const std::string answer = answerOf("ask=moment&moment=%40-5&lat=40.5N&long=-20.9");
  EXPECT_NE(answer.find("\"standard\":null"), std::string::npos) << answer;
  EXPECT_NE(answer.find("\"address\":\"@-5;"), std::string::npos) << answer;
}

TEST(Facade, DatesAreThoseOfTheRecords) {
  for (const std::string year : {"1", "22", "720", "12345"}) {
    const std::string sky = "&moment=" + year + "-01-01T13%3A00" + aPlace;
    const std::string record = answerOf("ask=record&name=moment" + sky);
    const std::string name = "\"date\":";
    const std::size_t begin = record.find(name);
    ASSERT_NE(begin, std::string::npos) << record;
    const std::string date = record.substr(record.find('"', begin + name.size()), 10 + 8);
    const std::string standard = "\"standard\":{\"date\":" + date.substr(0, date.find('"', 1) + 1);
    EXPECT_NE(answerOf("ask=moment" + sky).find(standard), std::string::npos)
        << standard << "\n"
        << answerOf("ask=moment" + sky);
  }
}

TEST(Facade, AnEmptyConditionIsRefusedBesideOthers) {
  const std::string stretch =
      "ask=search&from=720-01-01&for=1+year&conditions=moon+full&conditions=";
  EXPECT_EQ(answerOf(stretch), "!condition \"\" is empty");
  EXPECT_EQ(answerOf(stretch + "%23+none"), "!condition \"# none\" is empty");
}

TEST(Facade, LocalClocksNeedAPlace) {
  EXPECT_EQ(answerOf("ask=events&from=720-01-01&for=1+day&local=true").substr(0, 48),
            "!local: local clocks are those of a place; give ");
}

/// Names and values of questions, most of them wrong somewhere.
std::string randomQuestion(std::mt19937& random) {
  static const std::vector<std::string> names = {
      "ask", "moment", "lat",   "long",       "local", "name",       "from",
      "to",  "for",    "kinds", "conditions", "first", "place_name", "x"};
  static const std::vector<std::string> values = {
      "moment",    "document",  "record",    "marks",
      "events",    "search",    "about",     "star-map",
      "positions", "horoscope", "720-06-12", "@5",
      "@1e9",      "@-1e9",     "@nan",      "90",
      "-90",       "180",       "-181",      "1+day",
      "0+days",    "moon",      "rise,set",  "moon%20full",
      "night",     "any+of+(",  "true",      "%FF%FE",
      "%00",       "",          "1e308",     std::string(400, '9')};
  std::string question = "ask=" + values[random() % 7];
  for (auto pairs = random() % 7; pairs > 0; --pairs) {
    question += "&" + names[random() % names.size()] + "=" + values[random() % values.size()];
  }
  return question;
}

TEST(Facade, NonsenseIsAnswered) {
  std::mt19937 random(720);  // NOLINT(*-msc51-cpp): the same questions in every run
  int refused = 0;
  for (int i = 0; i < 5'000; ++i) {
    const std::string question = randomQuestion(random);
    const std::string answer = answerOf(question);
    ASSERT_FALSE(answer.empty()) << question;
    ASSERT_NE(std::string("=>!").find(answer.front()), std::string::npos) << question;
    if (answer.front() == web::answerIsError) {
      ++refused;
      ASSERT_GT(answer.size(), 10U) << question;
    }
  }
  EXPECT_GT(refused, 2'500);
  EXPECT_LT(refused, 5'000);
}

}  // namespace
}  // namespace veyruna
