#pragma once

#include <string>

#include "web/question.h"

/// The answers to each kind of question. All throw words::UsageError where it cannot be used.
namespace veyruna::web {

std::string aboutAnswer(const Question& question);
std::string momentAnswer(const Question& question);
std::string documentAnswer(const Question& question);
std::string recordAnswer(const Question& question);
std::string marksAnswer(const Question& question);
std::string eventsAnswer(const Question& question);
std::string searchAnswer(const Question& question);

}  // namespace veyruna::web
