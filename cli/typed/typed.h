#pragma once

#include <string>
#include <vector>

namespace veyruna::cli {

/// What was typed, as it was typed. The defaults are those of a first start.
struct Typed {
  std::string command;
  std::string year = "720";
  std::string month = "1";
  std::string day = "1";
  std::string hour = "12";
  std::string baseTime;  ///< empty where the moment is given as a date
  std::string latitude = "40.5";
  std::string longitude = "-20.9";
  std::string location;                 ///< empty where the place is given as coordinates
  std::string from;                     ///< of a stretch of time, as the next two
  std::string to;                       ///< empty where its length is given
  std::string length;                   ///< "3 months"; empty where its end is given
  std::string kinds;                    ///< of events; empty for all
  std::vector<std::string> conditions;  ///< of a search
  std::string conditionFile;            ///< empty for none
  std::string first;                    ///< how many answers at most; empty for all
  std::string file = "-";               ///< "-" for standard output
  std::string formats;  ///< empty where the file's ending, or nothing, says the form
  std::string size;     ///< empty for a picture as wide as the page
  std::string rows;
  std::string step;
  std::string folder;
  std::string visibility;  ///< of events in other tools: gm or player; empty for gm
  std::string schema;      ///< whose schema is asked for; empty for a list of them
  std::string title;       ///< of a page; empty for its own
  std::string table;       ///< the file of a batch; "-" for standard input
  std::string documents;   ///< of a batch, as command words; empty for the usual
  std::string helpTopic;   ///< empty for the help of the whole
  bool isLocal = false;
  bool hasMoment = false;    ///< whether a date or base time was typed
  bool hasPlace = false;     ///< whether a place was typed in any form
  bool isExplained = false;  ///< whether what is asked is to be told first
  bool blackAndWhite = false;
  bool isForPlayers = false;  ///< of a page
};

}  // namespace veyruna::cli
