#pragma once

#include <array>
#include <string>
#include <string_view>

#include "astro/observer.h"

namespace veyruna::cli {

/// One document of a moment and place.
struct Document {
  std::string_view command;   ///< its word on the command line; empty for one that has none
  std::string_view fileName;  ///< its name in a folder of all documents
  std::string_view summary;
  std::string (*text)(const astro::Observer& observer);
};

/// Every document, in the order in which they are written.
extern const std::array<Document, 9> allDocuments;

/// The horoscope in black and white where `blackAndWhite` is set.
std::string horoscopeText(const astro::Observer& observer, bool blackAndWhite);

}  // namespace veyruna::cli
