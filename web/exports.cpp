// What a browser calls: a question goes into the room that is made for it, the answer is read where
// it lies, until the next question.
#include <cstddef>
#include <string>

#include "web/facade.h"

#define VEYRUNA_EXPORT extern "C" __attribute__((used, visibility("default")))

namespace {

std::string& questionText() {
  static std::string text;
  return text;
}

std::string& answerText() {
  static std::string text;
  return text;
}

}  // namespace

/// Room for a question of so many bytes.
VEYRUNA_EXPORT char* veyruna_room(std::size_t bytes) {
  questionText().resize(bytes);
  return questionText().data();
}

/// Answers what stands in that room; returns how many bytes the answer has.
VEYRUNA_EXPORT std::size_t veyruna_answer() {
  answerText() = veyruna::web::answer(questionText(), VEYRUNA_ANSWERERS());
  return answerText().size();
}

/// Where the answer lies.
VEYRUNA_EXPORT const char* veyruna_text() {
  return answerText().data();
}
