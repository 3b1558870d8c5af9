// What the search finds, beside a plain scan of every minute. VEYRUNA_LONG=1 scans 500 conditions
// over 50 years, on all cores; else it is 40 over one.
#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "almanac/search/search.h"
#include "astro/angle.h"
#include "tests/almanac/plain_conditions.h"
#include "tests/almanac/random_conditions.h"

namespace veyruna {
namespace {

using almanac::Condition;
using tests::plainHolds;
using tests::PlainHorizon;
using tests::PlainSky;

constexpr double minute = 1.0 / 1440.0;

/// Edges are as good as this.
constexpr double goodness = 1e-4;

/// Also where the ecliptic can lie in the horizon (69°), about the poles, and where local days
/// begin half a day apart.
const std::vector<astro::Observer>& places() {
  static const std::vector<astro::Observer> all = [] {
    std::vector<astro::Observer> list;
    for (const auto& [north, east] : {std::pair{40.5, -20.9},
                                      {-12.25, 179.5},
                                      {66.0, 100.0},
                                      {69.0, 0.0},
                                      {-68.999, 25.3},
                                      {80.0, -180.0},
                                      {-89.9, 10.0},
                                      {90.0, 0.0}}) {
      list.push_back({.baseTime = 0.0,
                      .latitude = astro::radiansOf(north),
                      .longitude = astro::radiansOf(east)});
    }
    return list;
  }();
  return all;
}

struct Asked {
  Condition condition;
  std::size_t place;
  bool isLocal;
};

std::vector<Asked> askedByChance(std::size_t count) {
  tests::RandomConditions random(20'720);
  std::vector<Asked> all;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t form = i % tests::RandomConditions::leafForms;
    all.push_back(
        {i < tests::RandomConditions::leafForms ? random.leaf(form) : random.tree(form, 2),
         random.below(places().size()), random.below(2) == 0});
  }
  return all;
}

/// What was seen in a proof.
struct Count {
  std::atomic<std::int64_t> minutes{0};
  std::atomic<std::int64_t> edges{0};
  std::atomic<std::int64_t> glimpses{0};  ///< that were left out
  std::atomic<std::int64_t> faults{0};
};

/// The answer to one question in one range, as the moments at which it changes.
struct Answer {
  bool holdsAtFirst;
  std::vector<double> edges;

  Answer(const Asked& asked, const almanac::Range& range) : holdsAtFirst(false) {
    almanac::search({.condition = asked.condition,
                     .range = range,
                     .place = places()[asked.place],
                     .isLocal = asked.isLocal},
                    [&](const almanac::Span& span) {
                      EXPECT_LT(span.begin, span.end);
                      EXPECT_TRUE(edges.empty() || edges.back() < span.begin);
                      holdsAtFirst |= span.begin == range.from;
                      if (span.begin > range.from) {
                        edges.push_back(span.begin);
                      }
                      if (span.end < range.to) {
                        edges.push_back(span.end);
                      }
                      return true;
                    });
  }
};

class Proof {
 public:
  Proof(const std::vector<Asked>& all, const almanac::Range& range, Count& count)
      : all_(all), range_(range), count_(count), passed_(all.size(), 0) {
    for (const Asked& asked : all) {
      answers_.emplace_back(asked, range);
    }
  }

  void run() {
    for (std::int64_t i = 0;; ++i) {
      const double t = range_.from + static_cast<double>(i) * minute;
      if (t >= range_.to) {
        break;
      }
      const PlainSky sky(t);
      std::vector<PlainHorizon> horizons;
      for (const astro::Observer& place : places()) {
        horizons.emplace_back(sky, place);
      }
      for (std::size_t k = 0; k < all_.size(); ++k) {
        compare(k, sky, horizons[all_[k].place]);
      }
      ++count_.minutes;
    }
    for (std::size_t k = 0; k < all_.size(); ++k) {
      proveEdges(k);
    }
  }

 private:
  /// None is missing and none is there that should not be, of those that a minute shows.
  void compare(std::size_t k, const PlainSky& sky, const PlainHorizon& horizon) {
    const std::vector<double>& edges = answers_[k].edges;
    std::size_t& passed = passed_[k];
    while (passed < edges.size() && edges[passed] <= sky.t) {
      ++passed;
    }
    const bool isFound = answers_[k].holdsAtFirst != (passed % 2 == 1);
    if (plainHolds(all_[k].condition, sky, horizon, all_[k].isLocal) == isFound ||
        isNearEdge(edges, passed, sky.t)) {
      return;
    }
    if (isGlimpse(k, sky.t, isFound)) {
      ++count_.glimpses;
    } else {
      fail(k, sky.t, "the answer is another than the sky's");
    }
  }

  /// Each edge is where the scan's halving would end, and nothing between two is made up.
  void proveEdges(std::size_t k) {
    const std::vector<double>& edges = answers_[k].edges;
    bool holds = answers_[k].holdsAtFirst;
    double before = range_.from;
    for (std::size_t i = 0; i <= edges.size(); ++i) {
      const double edge = i < edges.size() ? edges[i] : range_.to;
      if (edge - before > 2.0 * goodness) {
        expectAt(k, before + goodness, holds);
        expectAt(k, (before + edge) / 2.0, holds);
        expectAt(k, edge - goodness, holds);
      }
      before = edge;
      holds = !holds;
      ++count_.edges;
    }
  }

  [[nodiscard]] bool holdsAt(std::size_t k, double t) const {
    const PlainSky sky(t);
    return plainHolds(all_[k].condition, sky, PlainHorizon(sky, places()[all_[k].place]),
                      all_[k].isLocal);
  }

  /// Whether what the sky shows at a moment is over within 0.0001 day, from its beginning to its
  /// end, and what was found holds around it. So short a time may be left out.
  [[nodiscard]] bool isGlimpse(std::size_t k, double t, bool isFound) const {
    const auto edgeTowards = [&](double outside) {
      double inside = t;
      for (int halving = 0; halving < 20; ++halving) {
        const double middle = (inside + outside) / 2.0;
        (holdsAt(k, middle) == isFound ? outside : inside) = middle;
      }
      return outside;
    };
    return holdsAt(k, t - goodness) == isFound && holdsAt(k, t + goodness) == isFound &&
           edgeTowards(t + goodness) - edgeTowards(t - goodness) < goodness;
  }

  void expectAt(std::size_t k, double t, bool holds) {
    if (holdsAt(k, t) != holds) {
      fail(k, t, "an edge is further off than 0.0001 day, or none");
    }
  }

  static bool isNearEdge(const std::vector<double>& edges, std::size_t passed, double t) {
    return (passed > 0 && t - edges[passed - 1] < goodness) ||
           (passed < edges.size() && edges[passed] - t < goodness);
  }

  void fail(std::size_t k, double t, const char* what) {
    constexpr int mostThatAreTold = 20;
    if (++count_.faults <= mostThatAreTold) {
      ADD_FAILURE() << what << ": " << textOf(all_[k].condition) << "\n  at " << std::fixed << t
                    << ", latitude " << astro::degreesOf(places()[all_[k].place].latitude)
                    << ", longitude " << astro::degreesOf(places()[all_[k].place].longitude)
                    << (all_[k].isLocal ? ", local" : "");
    }
  }

  const std::vector<Asked>& all_;
  almanac::Range range_;
  Count& count_;
  std::vector<Answer> answers_;
  std::vector<std::size_t> passed_;  ///< how many edges of each lie behind
};

/// Year by year, a thread a core.
void prove(const std::vector<Asked>& all, double from, int years, Count& count) {
  std::atomic<int> next{0};
  const auto work = [&] {
    for (int year = next++; year < years; year = next++) {
      const double begin = from + 360.0 * year;
      Proof(all, {.from = begin, .to = begin + 360.0}, count).run();
    }
  };
  std::vector<std::thread> others;
  for (unsigned core = 1; core < std::thread::hardware_concurrency(); ++core) {
    others.emplace_back(work);
  }
  work();
  for (std::thread& other : others) {
    other.join();
  }
}

TEST(SearchProof, MissesNothingAndMakesNothingUp) {
  const bool isLong = std::getenv("VEYRUNA_LONG") != nullptr;
  const std::size_t conditions = isLong ? 500 : 40;
  const int years = isLong ? 50 : 1;
  Count count;
  const double from = isLong ? 720.0 * 360.0 : 719'640.125;
  prove(askedByChance(conditions), from, years, count);
  std::printf("%zu conditions, %lld minutes, %lld edges, %lld glimpses, %lld faults\n", conditions,
              static_cast<long long>(count.minutes), static_cast<long long>(count.edges),
              static_cast<long long>(count.glimpses), static_cast<long long>(count.faults));
  EXPECT_GE(count.minutes, 518'400 * years);
  EXPECT_GT(count.edges, 5'000 * years);
  EXPECT_LE(count.glimpses, count.edges / 10'000);
  EXPECT_EQ(count.faults, 0);
}

}  // namespace
}  // namespace veyruna
