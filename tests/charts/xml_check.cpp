#include "tests/charts/xml_check.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace veyruna::tests {

namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\n' || c == '\t' || c == '\r';
}

bool isNameCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
         c == '_' || c == ':' || c == '.';
}

class Reader {
 public:
  explicit Reader(std::string_view document) : rest_(document) {}

  std::vector<XmlElement> read() {
    checkEncoding();
    skipBlanks();
    readElement(0);
    skipBlanks();
    if (!rest_.empty()) {
      fail("something stands behind the root element");
    }
    return std::move(elements_);
  }

 private:
  [[noreturn]] void fail(const std::string& what) const {
    throw XmlError(what + " at \"" + std::string(rest_.substr(0, 60)) + "\"");
  }

  /// Whole UTF-8 sequences without surplus bytes, and no control character but the blanks.
  void checkEncoding() const {
    for (std::size_t i = 0; i < rest_.size();) {
      const auto lead = static_cast<unsigned char>(rest_[i]);
      if (lead < 0x20 && !isBlank(rest_[i])) {
        fail("a control character");
      }
      const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
      if ((lead >= 0x80 && lead < 0xC2) || lead > 0xF4 || i + length > rest_.size()) {
        fail("no UTF-8");
      }
      for (std::size_t k = 1; k < length; ++k) {
        if ((static_cast<unsigned char>(rest_[i + k]) & 0xC0U) != 0x80U) {
          fail("no UTF-8");
        }
      }
      i += length;
    }
  }

  bool skipBlanks() {
    const auto end = std::find_if_not(rest_.begin(), rest_.end(), isBlank);
    const auto count = static_cast<std::size_t>(end - rest_.begin());
    rest_.remove_prefix(count);
    return count > 0;
  }

  bool take(std::string_view expected) {
    if (!rest_.starts_with(expected)) {
      return false;
    }
    rest_.remove_prefix(expected.size());
    return true;
  }

  void require(std::string_view expected) {
    if (!take(expected)) {
      fail("expected " + std::string(expected));
    }
  }

  std::string readName() {
    const auto end = std::find_if_not(rest_.begin(), rest_.end(), isNameCharacter);
    std::string name(rest_.begin(), end);
    if (name.empty() || (name[0] >= '0' && name[0] <= '9') || name[0] == '-' || name[0] == '.') {
      fail("expected a name");
    }
    rest_.remove_prefix(name.size());
    return name;
  }

  /// Text up to the first `end`, which stays; a "<" may not stand in it.
  std::string readCharacters(char end) {
    std::string text;
    while (!rest_.empty() && rest_.front() != end) {
      if (rest_.front() == '<' || rest_.starts_with("]]>")) {
        fail("markup inside text");
      }
      if (rest_.front() == '&') {
        text += readEntity();
      } else {
        text += rest_.front();
        rest_.remove_prefix(1);
      }
    }
    return text;
  }

  char readEntity() {
    using Entity = std::pair<std::string_view, char>;
    for (const auto& [entity, meaning] :
         {Entity{"&amp;", '&'}, Entity{"&lt;", '<'}, Entity{"&gt;", '>'}, Entity{"&quot;", '"'},
          Entity{"&apos;", '\''}}) {
      if (take(entity)) {
        return meaning;
      }
    }
    fail("an unknown entity");
  }

  void readAttribute(XmlElement& element) {
    const std::string key = readName();
    require("=\"");
    if (!element.attributes.emplace(key, readCharacters('"')).second) {
      fail("the attribute " + key + " a second time");
    }
    require("\"");
  }

  void checkPrefixes(const XmlElement& element) const {
    for (const auto& [key, value] : element.attributes) {
      const std::size_t colon = key.find(':');
      const std::string prefix = key.substr(0, colon);
      const XmlElement& root = elements_.empty() ? element : elements_.front();
      if (colon != std::string::npos && prefix != "xmlns" &&
          root.attributes.count("xmlns:" + prefix) == 0) {
        fail("the undeclared prefix " + prefix);
      }
    }
  }

  void readElement(std::size_t depth) {
    require("<");
    XmlElement element;
    element.name = readName();
    element.depth = depth;
    while (skipBlanks() && !rest_.starts_with('/') && !rest_.starts_with('>')) {
      readAttribute(element);
    }
    checkPrefixes(element);
    const std::size_t index = elements_.size();
    elements_.push_back(element);
    if (take("/>")) {
      return;
    }
    require(">");
    for (;;) {
      elements_[index].text += readCharacters('<');
      if (take("</")) {
        require(element.name + ">");
        return;
      }
      readElement(depth + 1);
    }
  }

  std::string_view rest_;
  std::vector<XmlElement> elements_;
};

}  // namespace

const std::string& XmlElement::attribute(const std::string& key) const {
  const auto found = attributes.find(key);
  if (found == attributes.end()) {
    throw XmlError("a " + name + " without " + key);
  }
  return found->second;
}

double XmlElement::number(const std::string& key) const {
  const std::string& written = attribute(key);
  double number = 0.0;
  const auto read = std::from_chars(written.data(), written.data() + written.size(), number);
  if (read.ec != std::errc{} || read.ptr != written.data() + written.size()) {
    throw XmlError(key + " is \"" + written + "\", no number");
  }
  return number;
}

bool XmlElement::has(const std::string& key, std::string_view value) const {
  const auto found = attributes.find(key);
  return found != attributes.end() && found->second == value;
}

std::vector<XmlElement> readXml(std::string_view document) {
  return Reader(document).read();
}

std::vector<XmlElement> select(const std::vector<XmlElement>& elements, std::string_view name,
                               const std::string& key, std::string_view value) {
  std::vector<XmlElement> selected;
  for (const XmlElement& element : elements) {
    if (element.name == name && (key.empty() || element.has(key, value))) {
      selected.push_back(element);
    }
  }
  return selected;
}

double leadingNumber(std::string_view text) {
  double number = 0.0;
  text.remove_prefix(text.starts_with('+') ? 1 : 0);
  if (std::from_chars(text.data(), text.data() + text.size(), number).ec != std::errc{}) {
    throw XmlError("no number begins \"" + std::string(text) + "\"");
  }
  return number;
}

std::vector<std::string> textsOf(const std::vector<XmlElement>& elements) {
  std::vector<std::string> texts;
  for (const XmlElement& element : elements) {
    const bool isText = element.name == "text" || element.name == "textPath";
    if (isText && !std::all_of(element.text.begin(), element.text.end(), isBlank)) {
      texts.push_back(element.text);
    }
  }
  return texts;
}

}  // namespace veyruna::tests
