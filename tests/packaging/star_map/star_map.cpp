// The sky of a first start as a star map.
#include <documents/documents.h>
#include <iostream>
#include <numbers>

int main() {
  constexpr double degree = std::numbers::pi / 180;
  const veyruna::astro::Observer observer{
      .baseTime = 258840, .latitude = 40.5 * degree, .longitude = -20.9 * degree};
  std::cout << textOf(veyruna::documents::Document::starMap, observer);
}
