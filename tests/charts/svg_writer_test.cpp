#include "charts/svg_writer.h"

#include <gtest/gtest.h>

namespace veyruna::charts {
namespace {

/// What becomes of a text in an element and in an attribute alike.
std::string escaped(const std::string& text) {
  std::string document;
  SvgWriter svg(document);
  svg.element("g").attribute("id", text).endInside(text);
  const std::string::size_type length =
      (document.size() - std::string("<g id=\"\"></g>").size()) / 2;
  const std::string inAttribute = document.substr(std::string("<g id=\"").size(), length);
  EXPECT_EQ(document, "<g id=\"" + inAttribute + "\">" + inAttribute + "</g>");
  return inAttribute;
}

TEST(EscapedXml, OnlyWhatMeansSomethingInXmlChanges) {
  EXPECT_EQ(escaped("Thunder & <Rain> \"now\""), "Thunder &amp; &lt;Rain&gt; &quot;now&quot;");
  EXPECT_EQ(escaped("Ostrel's key, 21°"), "Ostrel's key, 21°");
  EXPECT_EQ(escaped(""), "");
}

TEST(EscapedXml, AnEscapeIsNotEscapedTwiceInOnePass) {
  EXPECT_EQ(escaped("&&"), "&amp;&amp;");
  EXPECT_EQ(escaped("&amp;"), "&amp;amp;");
}

TEST(SvgWriter, AnEmptyElementEndsItsLine) {
  std::string document;
  SvgWriter svg(document);
  svg.element("circle")
      .attribute("cx", 180)
      .attribute("cy", -7)
      .attribute("r", Fixed{1.5, 2})
      .attribute("fill", "none")
      .endEmpty();
  EXPECT_EQ(document, "<circle cx=\"180\" cy=\"-7\" r=\"1.50\" fill=\"none\" />\n");
}

TEST(SvgWriter, AttributesAndContentAreEscaped) {
  std::string document;
  SvgWriter svg(document);
  svg.element("text").attribute("id", "a\"b<").endWithText("1 < 2 & 3");
  EXPECT_EQ(document, "<text id=\"a&quot;b&lt;\">1 &lt; 2 &amp; 3</text>\n");
}

TEST(SvgWriter, ABlankWidensTheGapBeforeTheNextAttribute) {
  std::string document;
  SvgWriter svg(document);
  svg.element("text").attribute("y", 2).blank().attribute("fill", "gray").endWithText("IVRO");
  EXPECT_EQ(document, "<text y=\"2\"  fill=\"gray\">IVRO</text>\n");
}

TEST(SvgWriter, AnElementInsideALineLeavesTheLineOpen) {
  std::string document;
  SvgWriter svg(document);
  svg.element("text").attribute("x", 0).endStartTag();
  svg.element("textPath").endInside("Wen");
  svg.markup("</text>\n");
  EXPECT_EQ(document, "<text x=\"0\">\n<textPath>Wen</textPath></text>\n");
}

TEST(SvgWriter, CoordinatesCarryTheirDecimals) {
  std::string document;
  SvgWriter svg(document);
  svg.element("line")
      .attribute("x1", Fixed{-0.04, 1})
      .attribute("y1", Fixed{12.345, 2})
      .attribute("x2", Fixed{7.0, 0})
      .endEmpty();
  EXPECT_EQ(document, "<line x1=\"-0.0\" y1=\"12.35\" x2=\"7\" />\n");
}

TEST(SvgWriter, ElementsAreAddedBehindWhatIsThere) {
  std::string document = "<g>\n";
  SvgWriter svg(document);
  svg.element("a").endEmpty();
  EXPECT_EQ(document, "<g>\n<a />\n");
}

}  // namespace
}  // namespace veyruna::charts
