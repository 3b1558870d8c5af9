#include "drawing/svg_reader.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "charts/horoscope.h"
#include "charts/star_map.h"
#include "tests/support/random_sky.h"
#include "tests/support/reference_case.h"

namespace veyruna::drawing {
namespace {

const QByteArray head =
    R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" viewBox="-10 -20 300 200">)";

Picture pictureOf(const QByteArray& elements) {
  return readSvg(head + elements + "</svg>");
}

template <class Kind>
Kind only(const QByteArray& element) {
  const Picture picture = pictureOf(element);
  EXPECT_EQ(picture.shapes.size(), 1U) << element.constData();
  return std::get<Kind>(picture.shapes.at(0));
}

std::string refusal(const QByteArray& svg) {
  try {
    readSvg(svg);
  } catch (const PictureError& error) {
    return error.what();
  }
  return "";
}

TEST(SvgReader, TheViewBoxIsTheExtentOfThePicture) {
  EXPECT_EQ(pictureOf("").viewBox, QRectF(-10.0, -20.0, 300.0, 200.0));
}

TEST(SvgReader, AnEmptyTextIsAnEmptyPicture) {
  EXPECT_TRUE(readSvg("").viewBox.isNull());
  EXPECT_TRUE(readSvg("").shapes.empty());
}

TEST(SvgReader, ACircleHasItsFillAndItsStroke) {
  const auto circle = only<Circle>(
      R"(<circle cx="1.5" cy="-2" r="3" fill="#102030" stroke="red" stroke-width="0.3" />)");
  EXPECT_EQ(circle.centre, QPointF(1.5, -2.0));
  EXPECT_EQ(circle.radius, 3.0);
  EXPECT_EQ(circle.fill, QColor(0x10, 0x20, 0x30));
  EXPECT_EQ(circle.stroke, QColor(255, 0, 0));
  EXPECT_EQ(circle.strokeWidth, 0.3);
}

TEST(SvgReader, WhatIsNotSaidIsAsInSvg) {
  const auto bare = only<Circle>(R"(<circle cx="1" cy="2" r="3"/>)");
  EXPECT_EQ(bare.fill, QColor(Qt::black));
  EXPECT_EQ(bare.stroke.alpha(), 0);
  const auto ring = only<Circle>(
      R"(<circle cx="1" cy="2" r="3" fill="none" stroke="orange" stroke-weight="5"/>)");
  EXPECT_EQ(ring.fill.alpha(), 0);
  EXPECT_EQ(ring.strokeWidth, 1.0);
}

TEST(SvgReader, ALineHasItsOpacity) {
  const auto line = only<Line>(
      R"(<line x1="1" y1="2" x2="3" y2="4" stroke="#eaeae9" stroke-width="0.4" opacity="0.5" />)");
  EXPECT_EQ(line.from, QPointF(1.0, 2.0));
  EXPECT_EQ(line.to, QPointF(3.0, 4.0));
  EXPECT_EQ(line.stroke.rgb(), QColor(0xea, 0xea, 0xe9).rgb());
  EXPECT_NEAR(line.stroke.alphaF(), 0.5, 1e-4);
  EXPECT_EQ(line.strokeWidth, 0.4);
  EXPECT_EQ(only<Line>(R"(<line x1="1" y1="2" x2="3" y2="4" stroke="red"/>)").stroke.alpha(), 255);
}

TEST(SvgReader, ATextHasItsBlanksCollapsed) {
  const auto text = only<LevelText>(
      "<text x=\"0\" y=\"8\" fill=\"gray\" font-family=\"Arial\" font-size=\"6\">\n"
      "720-01-01   12:00 &lt;&amp;&gt;\n</text>");
  EXPECT_EQ(text.letters.text, QStringLiteral("720-01-01 12:00 <&>"));
  EXPECT_EQ(text.letters.size, 6.0);
  EXPECT_EQ(text.letters.fill, QColor(128, 128, 128));
  EXPECT_EQ(text.at, QPointF(0.0, 8.0));
  EXPECT_FALSE(text.isCentred);
  EXPECT_TRUE(
      only<LevelText>(R"(<text font-family="Arial" font-size="5" text-anchor="middle">S</text>)")
          .isCentred);
}

TEST(SvgReader, ANameRunsAlongItsRim) {
  const Picture picture = pictureOf(
      R"(<defs><path id="a" d="M180,5 A175,175, 0 1,1 180,355 A175,175, 0 1,1 180,5" fill="none" />)"
      R"(<path id="b" d="M180,10 A170,170, 0 1,1 180,350 A170,170, 0 1,1 180,10" fill="none" /></defs>)"
      R"(<text fill="#f4f4f3" font-family="Arial" font-size="5">)"
      "\n"
      R"(<textPath xlink:href="#b" startOffset="90.5%">Bralo</textPath></text>)");
  const auto name = std::get<BentText>(picture.shapes.at(0));
  EXPECT_EQ(name.letters.text, QStringLiteral("Bralo"));
  EXPECT_EQ(name.rim.centre, QPointF(180.0, 180.0));
  EXPECT_EQ(name.rim.radius, 170.0);
  EXPECT_EQ(name.rim.beginning, -90.0);
  EXPECT_DOUBLE_EQ(name.startOffset, 0.905);
}

TEST(SvgReader, GroupsAreTurnedOrClippedAndEnd) {
  const Picture picture = pictureOf(
      R"svg(<defs><clipPath id="c"><circle cx="1" cy="2" r="3"/></clipPath></defs><g clip-path="url(#c)">)svg"
      R"svg(<g transform="rotate(-167.21, 212.46, 8.33)"><path d="M 1,2 A 3,4 0 0,1 5,6 Z" fill="white" /></g></g>)svg");
  ASSERT_EQ(picture.shapes.size(), 5U);
  EXPECT_EQ(std::get<BeginClipped>(picture.shapes[0]).centre, QPointF(1.0, 2.0));
  EXPECT_EQ(std::get<BeginClipped>(picture.shapes[0]).radius, 3.0);
  EXPECT_EQ(std::get<BeginRotated>(picture.shapes[1]).degrees, -167.21);
  EXPECT_EQ(std::get<BeginRotated>(picture.shapes[1]).centre, QPointF(212.46, 8.33));
  EXPECT_EQ(std::get<Outline>(picture.shapes[2]).fill, QColor(Qt::white));
  EXPECT_TRUE(std::holds_alternative<EndGroup>(picture.shapes[3]));
  EXPECT_TRUE(std::holds_alternative<EndGroup>(picture.shapes[4]));
}

TEST(SvgReader, ARefusalNamesTheLineWhatStandsThereAndWhatIsUnderstood) {
  EXPECT_EQ(
      refusal(head + "\n\n<rect x=\"1\"/></svg>"),
      "line 3: <rect> is not understood; understood are circle, line, path, text, g and defs");
  EXPECT_EQ(refusal(head + "\n<circle cx=\"one\" cy=\"2\" r=\"3\"/></svg>"),
            "line 2: <circle> with cx=\"one\"; accepted is a number");
  EXPECT_EQ(refusal("<html></html>"), "line 1: <html> is no chart; its text begins with <svg>");
}

TEST(SvgReader, AViewBoxIsFourNumbersWithAnExtent) {
  for (const std::string box : {"", "0 0 100", "0 0 100 100 5", "0 0 a 100", "0 0 0 100",
                                "0 0 100 -1", "0 0 inf 100", "nan 0 100 100"}) {
    EXPECT_EQ(
        refusal(QByteArray::fromStdString("<svg viewBox=\"" + box + "\"></svg>")),
        "line 1: <svg> with viewBox=\"" + box + "\"; accepted is left, top, width and height");
  }
}

TEST(SvgReader, NothingStandsBehindThePicture) {
  EXPECT_EQ(refusal(head + "</svg>\n"), "");
  EXPECT_EQ(refusal(head + "</svg>\n<svg/>").find("line 2: "), 0U);
}

/// One element that is refused and a word that the refusal must hold.
struct Refused {
  const char* element;
  const char* word;
};

struct SvgReaderRefuses : testing::TestWithParam<Refused> {};

TEST_P(SvgReaderRefuses, WhatLiesOutside) {
  const auto& [element, word] = GetParam();
  const std::string why = refusal(head + element + "</svg>");
  EXPECT_NE(why.find("line 1: "), std::string::npos) << element << ": " << why;
  EXPECT_NE(why.find(word), std::string::npos) << element << ": " << why;
}

INSTANTIATE_TEST_SUITE_P(
    Elements, SvgReaderRefuses,
    testing::Values(
        Refused{R"(<circle cx="1" cy="2" r="3" style="fill:red"/>)", "style"},
        Refused{R"(<circle cx="1" cy="2"/>)", "r=\"\""},
        Refused{R"(<circle cx="1" cy="2" r="-3"/>)", "0 or more"},
        Refused{R"(<circle cx="1" cy="nan" r="3"/>)", "nan"},
        Refused{R"svg(<circle cx="1" cy="2" r="3" fill="url(#x)"/>)svg", "url(#x)"},
        Refused{R"(<circle cx="1" cy="2" r="3"><title>no</title></circle>)", "title"},
        Refused{R"(<line x1="1" y1="2" x2="3" y2="4" opacity="2"/>)", "from 0 to 1"},
        Refused{R"(<path d="M 1,2 L 3,4"/>)", "M 1,2 L 3,4"},
        Refused{R"(<text font-family="Times" font-size="5">x</text>)", "Times"},
        Refused{R"(<text font-family="Arial" font-size="5" text-anchor="end">x</text>)", "end"},
        Refused{R"(<text font-family="Arial" font-size="5"><tspan>x</tspan></text>)", "textPath"},
        Refused{
            R"(<text font-family="Arial" font-size="5"><textPath xlink:href="#x" startOffset="1%">x</textPath></text>)",
            "#x"},
        Refused{R"(<g>x</g>)", "transform"},
        Refused{R"svg(<g transform="scale(2)"/>)svg", "scale(2)"},
        Refused{R"svg(<g transform="rotate(1, 2)"/>)svg", "rotate(1, 2)"},
        Refused{R"svg(<g clip-path="url(#nowhere)"/>)svg", "nowhere"},
        Refused{R"svg(<g clip-path="url"/>)svg", "url"},
        Refused{R"svg(<g clip-path=")"/>)svg", ")"}, Refused{R"svg(<g clip-path=""/>)svg", "NAME"},
        Refused{R"svg(<g transform="rotate("/>)svg", "rotate("},
        Refused{R"(<defs><path id="a" d="M 1,2 A 3,3 0 0,1 4,5"/></defs>)", "full circle"},
        Refused{R"(<defs><clipPath id="a"><path d="M 1,2"/></clipPath></defs>)", "one circle"},
        Refused{R"(<defs><marker/></defs>)", "marker"}, Refused{"letters", "letters"},
        Refused{R"(<circle cx="1" cy="2" r="3">)", "line"}, Refused{"<?style x?>", "neither"}));

TEST(SvgReader, AnOffsetNeedsItsNumberAndItsSign) {
  for (const char* const offset : {"", "%", "5", "x%", "nan%"}) {
    const QByteArray text =
        head +
        R"(<defs><path id="a" d="M180,5 A175,175 0 1,1 180,355 A175,175 0 1,1 180,5"/></defs>)"
        R"(<text font-family="Arial" font-size="5"><textPath xlink:href="#a" startOffset=")" +
        offset + R"(">x</textPath></text></svg>)";
    EXPECT_NE(refusal(text).find("a number of percent"), std::string::npos) << refusal(text);
  }
}

TEST(SvgReader, GroupsStandInEachOtherSixteenDeepAtMost) {
  const auto nested = [](int depth) {
    return head + QByteArray(R"svg(<g transform="rotate(1, 2, 3)">)svg").repeated(depth) +
           QByteArray("</g>").repeated(depth) + "</svg>";
  };
  EXPECT_EQ(readSvg(nested(16)).shapes.size(), 32U);
  EXPECT_EQ(refusal(nested(17)), "line 1: a g stands in more than 15 others");
  EXPECT_EQ(refusal(nested(200'000)), "line 1: a g stands in more than 15 others");
}

TEST(SvgReader, WhatEndsTooEarlyIsRefused) {
  const QByteArray whole = QByteArray::fromStdString(
      charts::horoscope(false, {1000.0, 0.7, 0.3}, charts::builtInCatalogue()));
  for (qsizetype length = 1; length < whole.size() - 1; length += 997) {
    EXPECT_NE(refusal(whole.first(length)), "") << length;
  }
}

RC_GTEST_PROP(SvgReader, ReadsTheChartsOfEveryMomentAndPlace, ()) {
  const astro::Observer observer{*tests::moments(), *tests::latitudes(), *tests::longitudes()};
  const charts::StarCatalogue& sky = charts::builtInCatalogue();
  for (const std::string& chart :
       {charts::starMap(observer, sky), charts::horoscope(false, observer, sky),
        charts::horoscope(true, observer, sky)}) {
    const Picture picture = readSvg(QByteArray::fromStdString(chart));
    // Every element is a shape, and so is the end of every group.
    std::size_t elements = 0;
    for (const char* const begin : {"<circle ", "<line ", "<path d", "<text ", "<g ", "</g>"}) {
      for (std::size_t at = chart.find(begin); at != std::string::npos;
           at = chart.find(begin, at + 1)) {
        ++elements;
      }
    }
    const std::size_t clips = chart.find("<clipPath") == std::string::npos ? 0U : 1U;
    RC_ASSERT(picture.shapes.size() == elements - clips);
  }
}

}  // namespace
}  // namespace veyruna::drawing
