#pragma once

#include <optional>
#include <string>

#include "cli/documents/rendering.h"
#include "cli/typed/sky.h"

namespace veyruna::cli {

/// The document whose text that is, in a form that it can have. Forms other than its own text need
/// the renderer, made ready. Safe from any thread.
std::string inForm(documents::Form form, const documents::Entry& document,
                   const std::string& heading, const std::string& text, const Sky& sky,
                   const Renderer& renderer, int widthPixels);

/// The document of that moment and place in a form that it can have, likewise. `text` keeps the
/// document's own text from one form to the next.
std::string contentOf(documents::Form form, const documents::Entry& document, const Sky& sky,
                      const Renderer& renderer, int widthPixels, std::optional<std::string>& text);

}  // namespace veyruna::cli
