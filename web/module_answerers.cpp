#include <array>

#include "web/answers.h"
#include "web/facade.h"

namespace veyruna::web {

std::span<const Answerer> moduleAnswerers() {
  static constexpr std::array all = {Answerer{"about", answerIsJson, aboutAnswer},
                                     Answerer{"moment", answerIsJson, momentAnswer},
                                     Answerer{"document", answerIsText, documentAnswer},
                                     Answerer{"record", answerIsJson, recordAnswer},
                                     Answerer{"marks", answerIsJson, marksAnswer},
                                     Answerer{"events", answerIsJson, eventsAnswer},
                                     Answerer{"search", answerIsJson, searchAnswer}};
  return all;
}

}  // namespace veyruna::web
