#pragma once

#include <cstddef>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace veyruna::tests {

/// A document that a strict reader of XML would refuse; the message shows where.
class XmlError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct XmlElement {
  std::string name;
  std::map<std::string, std::string> attributes;  ///< their entities resolved
  std::string text;  ///< its own text, entities resolved, without that of its children
  std::size_t depth = 0;

  /// The value of an attribute; throws XmlError where there is none.
  [[nodiscard]] const std::string& attribute(const std::string& key) const;
  [[nodiscard]] double number(const std::string& key) const;
  [[nodiscard]] bool has(const std::string& key, std::string_view value) const;
};

/// Reads the part of XML that a chart may use: one root, nested elements, quoted attributes each
/// named once, declared prefixes, the five named entities, UTF-8 text. Anything else throws
/// XmlError. The elements come in the order of their start tags.
std::vector<XmlElement> readXml(std::string_view document);

/// Those with this name and, where given, this value of an attribute.
std::vector<XmlElement> select(const std::vector<XmlElement>& elements, std::string_view name,
                               const std::string& key = {}, std::string_view value = {});

/// The number a text begins with, read alike in every locale; it may carry its sign.
double leadingNumber(std::string_view text);

/// The texts of all `text` and `textPath` elements that have any.
std::vector<std::string> textsOf(const std::vector<XmlElement>& elements);

}  // namespace veyruna::tests
