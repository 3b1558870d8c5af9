#pragma once

#include <span>
#include <string>
#include <string_view>

#include "web/question.h"

/// The engine as one function, for scripts of a browser: a question, an answer. Pure and safe from
/// any thread.
namespace veyruna::web {

/// What an answer's first character says of the rest.
inline constexpr char answerIsText = '=';   ///< a document as it is
inline constexpr char answerIsJson = '>';   ///< data
inline constexpr char answerIsError = '!';  ///< what is wrong with the question, in words

/// One thing that can be asked for.
struct Answerer {
  std::string_view ask;
  char sort = answerIsText;                         ///< of its answer
  std::string (*answer)(const Question& question);  ///< throws words::UsageError
};

/// All that the module answers, and all that the page asks for: a page is to be small.
std::span<const Answerer> moduleAnswerers();
std::span<const Answerer> pageAnswerers();

/// Answers "ask=moment&moment=720-06-12&lat=…", values as addresses of the web carry them. What
/// cannot be read is an error that quotes it and says what is accepted; nothing is thrown.
std::string answer(std::string_view question, std::span<const Answerer> answerers);

}  // namespace veyruna::web
