// Any bytes as a question of the engine for browsers: the answer is an error in words that a person
// can use, a text or JSON, all of it UTF-8. What takes its time, a search of centuries, is not
// waited for.
#include <algorithm>
#include <nlohmann/json.hpp>
#include <span>
#include <string>

#include "fuzz/target.h"
#include "web/facade.h"
#include "web/stretch.h"
#include "words/usage_error.h"
#include "words/utf8.h"

using namespace veyruna;
using fuzz::promise;

namespace {

/// Whether it is answered at once; an error always is.
bool isShort(const web::Question& question) {
  constexpr double mostDays = 10.0;
  try {
    const almanac::Range range = web::askedRange(question, web::askedLookout(question));
    return range.to - range.from <= mostDays;
  } catch (const words::UsageError&) {
    return true;
  }
}

/// Errors of any other kind than a person's words end the program here.
void expectWordsOf(const web::Question& question, const std::string& refusal) {
  const std::span<const web::Answerer> answerers = web::moduleAnswerers();
  try {
    const std::string ask = question.text("ask").value_or("");
    const auto found = std::ranges::find(answerers, ask, &web::Answerer::ask);
    if (found != answerers.end()) {
      found->answer(question);
      promise(false, "an error is thrown again");
    }
  } catch (const words::UsageError& error) {
    promise(refusal == error.what(), "an error is said as it is thrown");
  }
}

void tryAnswer(const web::Question& question, const std::string& answer) {
  promise(words::isUtf8(answer), "an answer is UTF-8");
  const std::string rest = answer.substr(1);
  switch (answer.front()) {
    case web::answerIsText:
      promise(!rest.empty(), "a text says something");
      break;
    case web::answerIsJson:
      promise(nlohmann::json::accept(rest), "data is JSON");
      break;
    case web::answerIsError:
      promise(!rest.empty(), "an error says something");
      expectWordsOf(question, rest);
      break;
    default:
      promise(false, "an answer is of a known sort");
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string text(bytes, bytes + size);
  const web::Question question(text);
  if (isShort(question)) {
    tryAnswer(question, web::answer(text, web::moduleAnswerers()));
  }
  return 0;
}
