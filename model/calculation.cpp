#include "model/calculation.h"

#include <cmath>

#include "astro/angle.h"
#include "astro/lunar_phases.h"

namespace veyruna::model {

namespace {

using documents::Document;

QString textOf(Document document, const CalculationInput& input) {
  const bool isOnPaper = document == Document::horoscope && input.blackAndWhite;
  return QString::fromStdString(
      documents::textOf(isOnPaper ? Document::horoscopeOnPaper : document, input.observer));
}

}  // namespace

bool isHeld(Document document) {
  return document != Document::horoscopeOnPaper && document != Document::moment;
}

QList<Document> heldDocuments() {
  QList<Document> held;
  for (const documents::Entry& entry : documents::allDocuments) {
    if (isHeld(entry.document)) {
      held.append(entry.document);
    }
  }
  return held;
}

CalculationResult calculate(const CalculationInput& input, const QList<Document>& documents) {
  const double baseTime = input.observer.baseTime;
  CalculationResult result{.input = input, .documents = documents, .texts = {}, .positions = {}};
  for (const Document document : documents) {
    textIn(result.texts, document) = textOf(document, input);
  }
  if (documents.contains(Document::positions)) {
    result.positions = reports::positionRows(input.observer);
  }
  if (documents.contains(Document::nextFullMoon)) {
    result.nextFullMoonBaseTime =
        astro::nextPhase({.start = baseTime, .elongation = astro::fullMoonElongation});
  }
  if (documents.contains(Document::nextNewMoon)) {
    result.nextNewMoonBaseTime =
        astro::nextPhase({.start = baseTime, .elongation = astro::newMoonElongation});
  }
  return result;
}

QString calculateHoroscope(const CalculationInput& input) {
  return textOf(Document::horoscope, input);
}

bool isMomentWithinReach(double baseTime) {
  return std::abs(baseTime) <= astro::baseTimeLimitDays;
}

bool isPlaceWithinReach(double latitude, double longitude) {
  constexpr double mostRadians = 1000.0;
  return std::abs(latitude) <= mostRadians && std::abs(longitude) <= mostRadians;
}

}  // namespace veyruna::model
