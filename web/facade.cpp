#include "web/facade.h"

#include <algorithm>
#include <exception>

#include "words/listing.h"
#include "words/values.h"

namespace veyruna::web {

namespace {

std::string answerTo(const Question& question, std::span<const Answerer> answerers) {
  const std::string accepted = "one of " + words::joined(answerers, ", ", &Answerer::ask);
  const std::string ask = question.required("ask", accepted);
  const auto found = std::ranges::find(answerers, ask, &Answerer::ask);
  if (found == answerers.end()) {
    words::refuse("ask", ask, accepted);
  }
  return found->sort + found->answer(question);
}

}  // namespace

std::string answer(std::string_view question, std::span<const Answerer> answerers) {
  try {
    return answerTo(Question(question), answerers);
  } catch (const std::exception& error) {
    return answerIsError + std::string(error.what());
  }
}

}  // namespace veyruna::web
