#include "tests/almanac/random_conditions.h"

#include <utility>

#include "almanac/search/vocabulary.h"

namespace veyruna::tests {

using namespace almanac;

static_assert(RandomConditions::leafForms == 18, "a form of condition is never made by chance");

Condition RandomConditions::leaf(std::size_t form) {
  const auto planet = [this] { return astro::allPlanets[below(astro::planetCount)]; };
  const auto sign = [this] { return &reports::zodiacSigns[below(12)]; };
  const auto strength = [this] { return static_cast<charts::Strength>(below(6)); };
  const auto sphere = [this] { return static_cast<charts::Sphere>(below(3)); };
  const auto body = [this] { return allBodies[below(allBodies.size())]; };
  const auto altitude = [this] {
    return below(3) == 0 ? 0.0 : static_cast<double>(below(130)) - 50.5;
  };
  switch (form) {
    case 0:
      return {InSign{body(), sign()}};
    case 1: {
      const std::size_t first = below(allBodies.size());
      const std::size_t second = (first + 1 + below(allBodies.size() - 1)) % allBodies.size();
      const double within =
          below(2) == 0 ? 2.0 : static_cast<double>(below(below(2) == 0 ? 40 : 360) + 1) / 2.0;
      return {Together{allBodies[first], allBodies[second], below(2) == 0, within}};
    }
    case 2:
      return {MoonIs{static_cast<Phase>(below(4))}};
    case 3:
      return {Running{planet(), below(3) != 0}};
    case 4:
      return {EclipseLasts{}};
    case 5:
      return {RisingSign{sign(), below(2) == 0}};
    case 6:
      return {PowerIs{static_cast<charts::Power>(below(3))}};
    case 7:
      return {KeepIs{below(2) == 0}};
    case 8:
      return {ElementIs{&charts::elements[below(charts::elements.size())], strength()}};
    case 9:
      return {NatalIs{planet(), strength()}};
    case 10:
      return {Favours{planet(), sphere()}};
    case 11:
      return {DominantSphere{sphere()}};
    case 12:
      return {BodyAbove{body(), altitude()}};
    case 13:
      return {StarAbove{starWords()[below(starWords().size())].meaning, altitude()}};
    case 14:
      return {LightIs{static_cast<Light>(below(3))}};
    case 15: {
      const std::size_t from = below(96);
      const std::size_t to = (from + 1 + below(94)) % 96;
      return {HourBetween{static_cast<double>(from) / 4.0, static_cast<double>(to) / 4.0}};
    }
    case 16:
      return {MonthIs{static_cast<int>(below(12))}};
    default:
      return {DayIs{static_cast<int>(below(30))}};
  }
}

Condition RandomConditions::tree(std::size_t form, int nesting) {
  if (nesting == 0) {
    return below(4) == 0 ? Condition{Not{{leaf(form)}}} : leaf(form);
  }
  std::vector<Condition> parts;
  parts.push_back(tree(form, nesting - 1));
  for (std::size_t more = 1 + below(3); more > 0; --more) {
    parts.push_back(tree(below(leafForms), below(2) == 0 ? 0 : nesting - 1));
  }
  std::swap(parts.front(), parts[below(parts.size())]);
  switch (below(5)) {
    case 0:
      return {Not{{Condition{AnyOf{std::move(parts)}}}}};
    case 1:
    case 2:
      return {AllOf{std::move(parts)}};
    default:
      return {AnyOf{std::move(parts)}};
  }
}

}  // namespace veyruna::tests
