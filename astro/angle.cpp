#include "astro/angle.h"

#include "astro/invariant.h"

namespace veyruna::astro {

namespace {

/// Beyond this the last bits of an angle no longer mean a direction, and fmod is as good as a loop.
constexpr double manyTurns = 1000.0 * twoPi;

double withoutManyTurns(double angle) {
  requireInvariant(std::isfinite(angle), "an angle is finite", angle);
  return std::abs(angle) > manyTurns ? std::fmod(angle, twoPi) : angle;
}

}  // namespace

double wrappedToHalfTurns(double angle) {
  angle = withoutManyTurns(angle);
  while (angle > pi) {
    angle -= twoPi;
  }
  while (angle < -pi) {
    angle += twoPi;
  }
  return angle;
}

double wrappedToHalfOpenHalfTurns(double angle) {
  angle = withoutManyTurns(angle);
  while (angle > pi) {
    angle -= twoPi;
  }
  while (angle <= -pi) {
    angle += twoPi;
  }
  return angle;
}

double wrappedToTurn(double angle) {
  angle = withoutManyTurns(angle);
  while (angle < 0.0) {
    angle += twoPi;
  }
  while (angle >= twoPi) {
    angle -= twoPi;
  }
  return angle;
}

double wrappedToClosedTurn(double angle) {
  angle = withoutManyTurns(angle);
  while (angle > twoPi) {
    angle -= twoPi;
  }
  while (angle < 0.0) {
    angle += twoPi;
  }
  return angle;
}

}  // namespace veyruna::astro
