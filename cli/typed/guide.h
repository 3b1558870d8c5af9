#pragma once

#include <string>
#include <vector>

/// What there is to type and what it does, for whoever tells people of it.
namespace veyruna::cli {

/// What a shell can offer where a word is to be typed.
enum class Offer { nothing, files, folders, places, words, listOfWords };

struct Offered {
  Offer kind = Offer::nothing;
  std::vector<std::string> words = {};  ///< of words, and of a list of them with commas
};

/// An option, or the word behind a command, which has no name.
struct OptionGuide {
  std::vector<std::string> names;  ///< "-h", "--help"
  std::string value;               ///< "DEG"; empty where none is taken
  std::string description;         ///< a line without a full stop
  std::string group;               ///< "Moment"; "Options" for the rest
  Offered offered;
};

struct CommandGuide {
  std::string name;
  std::string summary;               ///< a line without a full stop
  std::string note;                  ///< what else is to be known; may be empty
  std::string example;               ///< "veyruna moment"; empty for none
  std::vector<OptionGuide> options;  ///< its own, without help
  std::vector<OptionGuide> words;    ///< behind it, one or none
};

/// The whole of it, in the order in which people are told.
struct Guide {
  std::string summary;
  std::vector<OptionGuide> options;  ///< of any command
  std::vector<CommandGuide> commands;
};

}  // namespace veyruna::cli
