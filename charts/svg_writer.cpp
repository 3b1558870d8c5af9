#include "charts/svg_writer.h"

#include "astro/number_text.h"

namespace veyruna::charts {

namespace {

void appendEscaped(std::string& out, std::string_view text) {
  constexpr std::string_view special = "&<>\"";
  for (;;) {
    const std::size_t plain = text.find_first_of(special);
    out += text.substr(0, plain);
    if (plain == std::string_view::npos) {
      return;
    }
    switch (text[plain]) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      default:
        out += "&quot;";
        break;
    }
    text.remove_prefix(plain + 1);
  }
}

}  // namespace

SvgWriter& SvgWriter::element(std::string_view name) {
  name_ = name;
  document_ += '<';
  document_ += name;
  return *this;
}

void SvgWriter::beginAttribute(std::string_view name) {
  document_ += ' ';
  document_ += name;
  document_ += "=\"";
}

SvgWriter& SvgWriter::attribute(std::string_view name, std::string_view value) {
  beginAttribute(name);
  appendEscaped(document_, value);
  document_ += '"';
  return *this;
}

SvgWriter& SvgWriter::attribute(std::string_view name, std::int64_t value) {
  beginAttribute(name);
  astro::appendInteger(document_, value);
  document_ += '"';
  return *this;
}

SvgWriter& SvgWriter::attribute(std::string_view name, Fixed value) {
  beginAttribute(name);
  astro::appendFixed(document_, value.value, value.decimals);
  document_ += '"';
  return *this;
}

SvgWriter& SvgWriter::blank() {
  document_ += ' ';
  return *this;
}

void SvgWriter::endEmpty() {
  document_ += " />\n";
}

void SvgWriter::endWithText(std::string_view content) {
  endInside(content);
  document_ += '\n';
}

void SvgWriter::endInside(std::string_view content) {
  document_ += '>';
  appendEscaped(document_, content);
  document_ += "</";
  document_ += name_;
  document_ += '>';
}

void SvgWriter::endStartTag() {
  document_ += ">\n";
}

}  // namespace veyruna::charts
