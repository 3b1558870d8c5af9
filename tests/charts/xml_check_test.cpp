// The reader that judges the charts must itself refuse what is not well-formed.
#include "tests/charts/xml_check.h"

#include <gtest/gtest.h>

namespace veyruna::tests {
namespace {

class NotWellFormed : public testing::TestWithParam<const char*> {};

TEST_P(NotWellFormed, IsRefused) {
  EXPECT_THROW(readXml(GetParam()), XmlError);
}

INSTANTIATE_TEST_SUITE_P(Xml, NotWellFormed,
                         testing::Values("", "text", "<a>", "<a></b>", "<a><b></a></b>",
                                         "<a /><b />", "<a x=1 />", "<a x=\"1\" x=\"2\" />",
                                         "<a x=\"1\"y=\"2\" />", "<a x=\"<\" />", "<a x=\"&\" />",
                                         "<a>&nbsp;</a>", "<a>&lt</a>", "<a>]]></a>",
                                         "<a q:x=\"1\" />", "<a>\x01</a>", "<a>\xC3</a>",
                                         "<a>\xB0</a>", "<1 />", "<a></a>x", "<a x=\"1\" / >"));

TEST(WellFormed, ElementsComeInOrderWithTheirContent) {
  const auto elements =
      readXml("<a xmlns:q=\"n\">1<b q:x=\"&quot;&amp;\" >&lt;\xC2\xB0</b>2<c/></a>\n");
  ASSERT_EQ(elements.size(), 3U);
  EXPECT_EQ(elements[0].text, "12");
  EXPECT_EQ(elements[1].attribute("q:x"), "\"&");
  EXPECT_EQ(elements[1].text, "<\xC2\xB0");
  EXPECT_EQ(elements[2].depth, 1U);
  EXPECT_THROW((void)elements[2].attribute("x"), XmlError);
}

}  // namespace
}  // namespace veyruna::tests
