#pragma once

#include <string>

/// The tables once more, written as plainly as they can be described: every direction, matrix and
/// altitude is computed anew at every turn and every search is a bare loop. Slow, and independent
/// of the program: it shares no code and no constant with it.
namespace veyruna::tests {

std::string plainEphemerisTable(int rows, double start, double step, double latitude);

std::string plainConjunctionTable(int rows, double start, double step);

/// The eclipse marker of [start, start + step], or the empty text.
std::string plainNodeEclipseEvent(double start, double step);

}  // namespace veyruna::tests
