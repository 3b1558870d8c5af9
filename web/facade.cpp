#include "web/facade.h"

#include <algorithm>
#include <array>
#include <exception>

#include "web/answers.h"
#include "words/values.h"

namespace veyruna::web {

namespace {

struct Answerer {
  std::string_view ask;
  char sort;
  std::string (*answer)(const Question& question);
};
constexpr std::array answerers = {Answerer{"about", answerIsJson, aboutAnswer},
                                  Answerer{"moment", answerIsJson, momentAnswer},
                                  Answerer{"document", answerIsText, documentAnswer},
                                  Answerer{"record", answerIsJson, recordAnswer},
                                  Answerer{"marks", answerIsJson, marksAnswer},
                                  Answerer{"events", answerIsJson, eventsAnswer},
                                  Answerer{"search", answerIsJson, searchAnswer}};

std::string answerTo(const Question& question) {
  std::string accepted;
  for (const Answerer& answerer : answerers) {
    accepted.append(accepted.empty() ? "one of " : ", ").append(answerer.ask);
  }
  const std::string ask = question.required("ask", accepted);
  const auto* const found = std::ranges::find(answerers, ask, &Answerer::ask);
  if (found == answerers.end()) {
    words::refuse("ask", ask, accepted);
  }
  return found->sort + found->answer(question);
}

}  // namespace

std::string answer(std::string_view question) {
  try {
    return answerTo(Question(question));
  } catch (const std::exception& error) {
    return answerIsError + std::string(error.what());
  }
}

}  // namespace veyruna::web
