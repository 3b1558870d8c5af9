#pragma once

#include <QString>
#include <string_view>

namespace veyruna::exports {

/// What a table of the rooms below says, as Qt's text.
inline QString saidText(std::string_view said) {
  return QString::fromUtf8(said.data(), static_cast<qsizetype>(said.size()));
}

}  // namespace veyruna::exports
