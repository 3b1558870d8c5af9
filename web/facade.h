#pragma once

#include <string>
#include <string_view>

/// The engine as one function, for scripts of a browser: a question, an answer. Pure and safe from
/// any thread.
namespace veyruna::web {

/// What an answer's first character says of the rest.
inline constexpr char answerIsText = '=';   ///< a document as it is
inline constexpr char answerIsJson = '>';   ///< data
inline constexpr char answerIsError = '!';  ///< what is wrong with the question, in words

/// Answers "ask=moment&moment=720-06-12&lat=…", values as addresses of the web carry them. What
/// cannot be read is an error that quotes it and says what is accepted; nothing is thrown.
///
/// | ask | besides | answer |
/// |---|---|---|
/// | about | | version, documents, places, months, kinds of events |
/// | moment | a sky | the moment in both clocks, the place in words |
/// | document | name, a sky | its text, as the command writes it |
/// | record | name, a sky | its values, as the command writes them in JSON |
/// | marks | name, a sky | what a chart shows where |
/// | events | from, to or for, kinds, lat, long, place_name, local | as the command writes them in
/// JSON | | search | conditions, from, to or for, lat, long, place_name, local, first | likewise |
///
/// A sky is moment, lat, long and local. All is as a person types it; kinds and conditions may come
/// several times.
std::string answer(std::string_view question);

}  // namespace veyruna::web
