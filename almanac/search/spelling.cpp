#include "almanac/search/spelling.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace veyruna::almanac {

std::string lowered(std::string_view text) {
  std::string small(text);
  for (char& letter : small) {
    letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  }
  return small;
}

std::size_t Spelling::distanceTo(std::string_view other) const {
  const std::string a = lowered(text);
  const std::string b = lowered(other);
  // Rows of the table of distances between beginnings: the one before last, the last, and the next.
  std::vector<std::size_t> older(b.size() + 1);
  std::vector<std::size_t> last(b.size() + 1);
  std::vector<std::size_t> next(b.size() + 1);
  std::iota(last.begin(), last.end(), 0U);
  for (std::size_t i = 1; i <= a.size(); ++i) {
    next[0] = i;
    for (std::size_t k = 1; k <= b.size(); ++k) {
      next[k] =
          std::min({last[k] + 1, next[k - 1] + 1, last[k - 1] + (a[i - 1] == b[k - 1] ? 0 : 1)});
      if (i > 1 && k > 1 && a[i - 1] == b[k - 2] && a[i - 2] == b[k - 1]) {
        next[k] = std::min(next[k], older[k - 2] + 1);
      }
    }
    older.swap(last);
    last.swap(next);
  }
  return last[b.size()];
}

std::string nearestTo(std::string_view text, std::span<const std::string> words) {
  constexpr std::size_t longestThatIsCompared = 64;
  if (text.size() > longestThatIsCompared) {
    return {};
  }
  std::string best;
  std::size_t least = (text.size() + 1) / 3;
  for (const std::string& word : words) {
    const std::size_t distance = Spelling{text}.distanceTo(word);
    if (distance < least || (distance == least && best.empty())) {
      least = distance;
      best = word;
    }
  }
  return best;
}

}  // namespace veyruna::almanac
