#pragma once

#include <string>

#include "web/question.h"

/// The answers to each kind of question. All throw words::UsageError where it cannot be used. A sky
/// is moment, lat, long and local; a stretch of time is from, to or for, and local.
namespace veyruna::web {

/// Nothing is asked: version, documents, places, months, kinds of events.
std::string aboutAnswer(const Question& question);
/// Of a sky: the moment in both clocks, the place in words.
std::string momentAnswer(const Question& question);
/// Of a name and a sky: a document's text, as the command writes it.
std::string documentAnswer(const Question& question);
/// Of a name and a sky: a document's values, as the command writes them in JSON.
std::string recordAnswer(const Question& question);
/// Of a name and a sky: what a chart shows where.
std::string marksAnswer(const Question& question);
/// Of a stretch, kinds, lat, long and place_name: what happens, as the command writes it in JSON.
std::string eventsAnswer(const Question& question);
/// Of a stretch, conditions, lat, long, place_name and first: when they hold, likewise.
std::string searchAnswer(const Question& question);

}  // namespace veyruna::web
