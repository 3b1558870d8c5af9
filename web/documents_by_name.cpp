#include "web/documents_by_name.h"

#include <vector>

#include "words/listing.h"

namespace veyruna::web {

std::string nameOf(const documents::Entry& document) {
  if (!document.command.empty()) {
    return std::string(document.command);
  }
  std::string name;
  for (const char letter : document.heading) {
    if (letter == ' ') {
      name += '-';
    } else if (letter != ',') {
      name += letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    }
  }
  return name;
}

std::string documentNames(bool (*isAccepted)(const documents::Entry&)) {
  std::vector<std::string> names;
  for (const documents::Entry& document : documents::allDocuments) {
    if (isAccepted(document)) {
      names.push_back(nameOf(document));
    }
  }
  return words::joined(names);
}

}  // namespace veyruna::web
