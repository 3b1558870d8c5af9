#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace veyruna::charts {

/// A coordinate or size written with a fixed number of decimals.
struct Fixed {
  double value;
  int decimals;
};

/// Writes SVG elements at the end of a document, one chain of calls an element:
///
///     svg.element("circle").attribute("cx", 180).attribute("r", Fixed{1.5, 2}).endEmpty();
///
/// In attribute values and text content & < > " are escaped, here and nowhere else.
class SvgWriter {
 public:
  explicit SvgWriter(std::string& document) : document_(document) {}

  /// Markup that is well-formed as it stands.
  void markup(std::string_view wellFormed) { document_ += wellFormed; }

  /// Begins "<name". `name` must live until the element ends.
  SvgWriter& element(std::string_view name);

  SvgWriter& attribute(std::string_view name, std::string_view value);
  SvgWriter& attribute(std::string_view name, std::int64_t value);
  SvgWriter& attribute(std::string_view name, Fixed value);

  /// One more blank before the next attribute; the charts' labels are written so.
  SvgWriter& blank();

  /// Ends the element with " />" and a line feed.
  void endEmpty();

  /// Ends the element with its escaped content, its end tag and a line feed.
  void endWithText(std::string_view content);

  /// The same without the line feed, for an element inside a line of text.
  void endInside(std::string_view content);

  /// Ends the start tag with ">" and a line feed; the caller writes what is inside and the end tag.
  void endStartTag();

 private:
  void beginAttribute(std::string_view name);

  std::string& document_;
  std::string_view name_;
};

}  // namespace veyruna::charts
