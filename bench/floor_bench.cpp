// What a recalculation cannot do without, were nothing else to cost anything: one call of the
// mathematical library for every distinct argument within a document, and one formatting for every
// number, as many as the documents of the first start's moment and place take. Each is timed on the
// spot with the library's own functions over arguments of the kinds the documents have.
#include <array>
#include <benchmark/benchmark.h>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

namespace veyruna {
namespace {

constexpr std::size_t sines = 20'962;
constexpr std::size_t cosines = 19'029;
constexpr std::size_t arcTangents = 13'654;
constexpr std::size_t squareRoots = 4'093;
constexpr std::size_t fixedTexts = 3'706;
constexpr std::size_t wholeTexts = 16'947;

template <class Draw>
auto drawn(std::size_t count, Draw draw) {
  std::vector<decltype(draw())> values;
  values.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    values.push_back(draw());
  }
  return values;
}

/// The arguments, drawn once: angles of a few turns, directions, page coordinates, calendar fields.
struct Arguments {
  std::mt19937_64 random{720};
  std::uniform_real_distribution<double> angle{-7.0, 7.0};
  std::uniform_real_distribution<double> component{-1.0, 1.0};
  std::uniform_real_distribution<double> coordinate{0.0, 360.0};
  std::uniform_int_distribution<int> field{0, 360};

  std::vector<double> forSine = drawn(sines, [this] { return angle(random); });
  std::vector<double> forCosine = drawn(cosines, [this] { return angle(random); });
  std::vector<double> above = drawn(arcTangents, [this] { return component(random); });
  std::vector<double> below = drawn(arcTangents, [this] { return component(random); });
  std::vector<double> forSquareRoot =
      drawn(squareRoots, [this] { return std::abs(component(random)); });
  std::vector<double> forFixedText = drawn(fixedTexts, [this] { return coordinate(random); });
  std::vector<int> forWholeText = drawn(wholeTexts, [this] { return field(random); });
};

void floorOfRecalculation(benchmark::State& state) {
  const Arguments arguments;
  std::array<char, 64> text{};
  char* const end = text.data() + text.size();
  for ([[maybe_unused]] const auto run : state) {
    for (const double x : arguments.forSine) {
      benchmark::DoNotOptimize(std::sin(x));
    }
    for (const double x : arguments.forCosine) {
      benchmark::DoNotOptimize(std::cos(x));
    }
    for (std::size_t i = 0; i < arcTangents; ++i) {
      benchmark::DoNotOptimize(std::atan2(arguments.above[i], arguments.below[i]));
    }
    for (const double x : arguments.forSquareRoot) {
      benchmark::DoNotOptimize(std::sqrt(x));
    }
    for (const double x : arguments.forFixedText) {
      benchmark::DoNotOptimize(std::to_chars(text.data(), end, x, std::chars_format::fixed, 2).ptr);
      benchmark::ClobberMemory();
    }
    for (const int x : arguments.forWholeText) {
      benchmark::DoNotOptimize(std::to_chars(text.data(), end, x).ptr);
      benchmark::ClobberMemory();
    }
  }
}

BENCHMARK(floorOfRecalculation)->Name("floor")->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace veyruna
