#pragma once

#include <QList>
#include <QString>
#include <array>

#include "astro/observer.h"
#include "documents/documents.h"
#include "reports/positions.h"

namespace veyruna::model {

/// All that a calculation sees.
struct CalculationInput {
  astro::Observer observer;
  bool blackAndWhite = false;  ///< of the horoscope
};

/// A text for each document.
using Texts = std::array<QString, documents::documentCount>;

/// The document's text among them. `Document::count` stands for none and has no text.
inline QString& textIn(Texts& texts, documents::Document document) {
  return texts.at(static_cast<std::size_t>(document));
}
inline const QString& textIn(const Texts& texts, documents::Document document) {
  return texts.at(static_cast<std::size_t>(document));
}

/// Whether the model holds a text of its own for the document. Of the horoscope's two forms it
/// holds the one that is shown, as the horoscope; the moment is the labels it holds.
bool isHeld(documents::Document document);

/// Outputs of one moment and place.
struct CalculationResult {
  CalculationInput input;
  QList<documents::Document> documents;  ///< what was computed; the rest is empty
  Texts texts;
  std::array<reports::PositionRow, astro::bodyCount> positions;  ///< with their document
  double nextFullMoonBaseTime = 0.0;                             ///< days, with its label
  double nextNewMoonBaseTime = 0.0;                              ///< days, likewise
};

/// Every document that is held.
QList<documents::Document> heldDocuments();

/// Computes these documents, of which each is held. Safe from any thread.
CalculationResult calculate(const CalculationInput& input,
                            const QList<documents::Document>& documents);

/// The horoscope alone.
QString calculateHoroscope(const CalculationInput& input);

/// Whether the calculations hold for this moment: within a billion days of the epoch.
bool isMomentWithinReach(double baseTime);

/// Whether the calculations hold for these angles: within 1,000 radians of 0, beyond which a place
/// can no longer be meant. How far north a latitude may lie is not asked.
bool isPlaceWithinReach(double latitude, double longitude);

}  // namespace veyruna::model
