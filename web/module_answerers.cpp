#include <vector>

#include "web/answers.h"
#include "web/facade.h"

namespace veyruna::web {

std::span<const Answerer> moduleAnswerers() {
  static const std::vector<Answerer> all = [] {
    const std::span<const Answerer> ofPage = pageAnswerers();
    std::vector<Answerer> answerers(ofPage.begin(), ofPage.end());
    answerers.push_back({"search", answerIsJson, searchAnswer});
    return answerers;
  }();
  return all;
}

}  // namespace veyruna::web
