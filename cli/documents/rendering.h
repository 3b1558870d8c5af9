#pragma once

#include <functional>
#include <string>

#include "documents/documents.h"
#include "documents/forms.h"

namespace veyruna::cli {

/// A document that is to be written in a form other than its own text.
struct Original {
  documents::Document document = documents::Document::count;
  std::string heading;  ///< over a table or list
  std::string text;
  std::string date;   ///< the moment in words
  std::string place;  ///< the place in words
};

/// What draws. Of the two programs one has it; the other, which starts without what drawing takes,
/// has it empty.
struct Renderer {
  /// Makes ready; on the main thread, before anything is drawn.
  std::function<void()> open;
  /// What a file of the form holds; a PNG is so many pixels wide, or as wide as it is on paper
  /// where that is 0. Safe from any thread. Throws std::runtime_error where it cannot be made.
  std::function<std::string(const Original& original, documents::Form form, int widthPixels)> draw;

  explicit operator bool() const { return draw != nullptr; }
};

}  // namespace veyruna::cli
