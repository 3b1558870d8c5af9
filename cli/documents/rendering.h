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

/// What a file of the form holds; a PNG is so many pixels wide, or as wide as it is on paper where
/// that is 0. Throws std::runtime_error where it cannot be made. Of the two programs one is given
/// such a function; the other, which starts without what drawing takes, has it empty.
using Renderer =
    std::function<std::string(const Original& original, documents::Form form, int widthPixels)>;

}  // namespace veyruna::cli
