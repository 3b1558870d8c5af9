#pragma once

#include <version>

// The algorithms on ranges that the house uses, for a C++20 library that has none of them yet: that
// of the compiler for browsers knows the language, but not this part of the library. They stand
// where the standard has them, so that no source knows; with a library that is whole this file is
// empty.
#if !defined(__cpp_lib_ranges)

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

namespace std::ranges {

template <class Range, class Test, class Projection = std::identity>
constexpr auto find_if(Range&& range, Test test, Projection projection = {}) {
  return std::find_if(std::begin(range), std::end(range), [&](auto&& element) -> bool {
    return std::invoke(test, std::invoke(projection, element));
  });
}

template <class Range, class Value, class Projection = std::identity>
constexpr auto find(Range&& range, const Value& value, Projection projection = {}) {
  return ranges::find_if(
      range, [&](auto&& element) -> bool { return element == value; }, projection);
}

template <class Range, class Test, class Projection = std::identity>
constexpr bool all_of(Range&& range, Test test, Projection projection = {}) {
  return ranges::find_if(range, std::not_fn(test), projection) == std::end(range);
}

template <class Range, class Test, class Projection = std::identity>
constexpr bool any_of(Range&& range, Test test, Projection projection = {}) {
  return ranges::find_if(range, test, projection) != std::end(range);
}

template <class Range, class Test, class Projection = std::identity>
constexpr auto count_if(Range&& range, Test test, Projection projection = {}) {
  return std::count_if(std::begin(range), std::end(range), [&](auto&& element) -> bool {
    return std::invoke(test, std::invoke(projection, element));
  });
}

template <class Range, class Value, class Projection = std::identity>
constexpr auto count(Range&& range, const Value& value, Projection projection = {}) {
  return ranges::count_if(
      range, [&](auto&& element) -> bool { return element == value; }, projection);
}

template <class One, class Other, class Equal = std::equal_to<>, class Projection = std::identity,
          class OtherProjection = std::identity>
constexpr bool equal(One&& one, Other&& other, Equal isEqual = {}, Projection projection = {},
                     OtherProjection otherProjection = {}) {
  return std::equal(std::begin(one), std::end(one), std::begin(other), std::end(other),
                    [&](auto&& a, auto&& b) -> bool {
                      return std::invoke(isEqual, std::invoke(projection, a),
                                         std::invoke(otherProjection, b));
                    });
}

template <class Range, class Out, class Change>
constexpr void transform(Range&& range, Out out, Change change) {
  std::transform(std::begin(range), std::end(range), out,
                 [&](auto&& element) { return std::invoke(change, element); });
}

template <class Range, class Value>
constexpr void replace(Range&& range, const Value& before, const Value& after) {
  std::replace(std::begin(range), std::end(range), before, after);
}

template <class Range, class Out>
constexpr void move(Range&& range, Out out) {
  std::move(std::begin(range), std::end(range), out);
}

/// An order of elements by what is projected of them.
template <class Order, class Projection>
constexpr auto orderBy(Order& order, Projection& projection) {
  return [&](auto&& a, auto&& b) -> bool {
    return std::invoke(order, std::invoke(projection, a), std::invoke(projection, b));
  };
}

template <class Range, class Order = std::less<>, class Projection = std::identity>
constexpr void sort(Range&& range, Order order = {}, Projection projection = {}) {
  std::sort(std::begin(range), std::end(range), ranges::orderBy(order, projection));
}

template <class Range, class Order = std::less<>, class Projection = std::identity>
void stable_sort(Range&& range, Order order = {}, Projection projection = {}) {
  std::stable_sort(std::begin(range), std::end(range), ranges::orderBy(order, projection));
}

template <class Range, class Order>
constexpr void push_heap(Range&& range, Order order) {
  std::push_heap(std::begin(range), std::end(range), order);
}

template <class Range, class Order>
constexpr void pop_heap(Range&& range, Order order) {
  std::pop_heap(std::begin(range), std::end(range), order);
}

}  // namespace std::ranges

#endif
