#include <array>

#include "web/answers.h"
#include "web/facade.h"

namespace veyruna::web {

std::span<const Answerer> pageAnswerers() {
  static constexpr std::array all = {Answerer{"about", answerIsJson, aboutAnswer},
                                     Answerer{"moment", answerIsJson, momentAnswer},
                                     Answerer{"document", answerIsText, documentAnswer},
                                     Answerer{"record", answerIsJson, recordAnswer},
                                     Answerer{"marks", answerIsJson, marksAnswer},
                                     Answerer{"events", answerIsJson, eventsAnswer}};
  return all;
}

}  // namespace veyruna::web
