// What is saved as HTML, to the character.
#include <gtest/gtest.h>

#include "export/chart_page.h"
#include "export/export_content.h"
#include "export/report_page.h"
#include "tests/model/observed.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using exports::escaped;
using exports::metaText;

TEST(Escaping, WritesAmpersandsFirst) {
  EXPECT_EQ(escaped(u"a < b & c > d"_s), u"a &lt; b &amp; c &gt; d"_s);
  EXPECT_EQ(escaped(u"&lt;&&amp;"_s), u"&amp;lt;&amp;&amp;amp;"_s);
  EXPECT_EQ(escaped(u"\"quotes\" 'stay' 🌘"_s), u"\"quotes\" 'stay' 🌘"_s);
  EXPECT_EQ(escaped({}), QString());
}

TEST(ChartPage, HoldsTheChartAsItIs) {
  EXPECT_EQ(exports::chartPage(u"<svg>&amp; &lt;</svg>"_s),
            uR"(<!DOCTYPE html>
<html>
<head>
<meta charset="utf-8">
<style>
html, body { margin: 0; padding: 0; width: 100%; height: 100%; background: transparent; }
svg { display: block; width: 100%; height: 100%; }
</style>
</head>
<body>
<svg>&amp; &lt;</svg>
</body>
</html>)"_s);
}

TEST(Report, HoldsTitleMomentAndSections) {
  EXPECT_EQ(exports::reportDocument({u"A & B"_s,
                                     u"720-01-01   <Ebb>"_s,
                                     {{u"One > two"_s, u"x < y\nz\n"_s}, {u"Three"_s, {}}}}),
            uR"(<!DOCTYPE html>
<html>
<head>
<meta charset="utf-8">
<style>
body { font-family: -apple-system, "Helvetica Neue", sans-serif; color: #1a1a1a; padding: 28px; margin: 0; }
h1 { font-size: 18px; margin: 0 0 4px 0; }
.meta { font-size: 10px; color: #666; margin-bottom: 18px; white-space: pre-wrap; }
h2 { font-size: 12px; margin: 14px 0 4px 0; color: #444; }
pre { font-family: "Menlo", "Courier New", monospace; font-size: 9px; line-height: 1.25; margin: 0; }
</style>
</head>
<body>
<h1>A &amp; B</h1>
<div class="meta">720-01-01   &lt;Ebb&gt;</div>
<h2>One &gt; two</h2>
<pre>x &lt; y
z
</pre>
<h2>Three</h2>
<pre></pre>
</body>
</html>)"_s);
}

TEST(Report, MayHaveNoSections) {
  EXPECT_TRUE(exports::reportDocument({u"T"_s, u"M"_s, {}})
                  .endsWith(u"<h1>T</h1>\n<div class=\"meta\">M</div>\n\n</body>\n</html>"_s));
}

TEST(Meta, NamesTheMomentCalculatedAndThePlaceChosen) {
  tests::FakeModel world;
  EXPECT_EQ(metaText(exports::skyOf(world.model)), u"   40.50°N  20.90°W"_s);
  world.calculate();
  world.model.setYear(3);
  world.model.setManualLatDeg(1.0);
  world.model.setLatNorth(false);
  EXPECT_EQ(metaText(exports::skyOf(world.model)), u"720-01-01 12:00 OST   1.00°S  20.90°W"_s);
}

TEST(Meta, HoldsTheNameOfASavedPlaceWhole) {
  tests::FakeModel world;
  world.model.setSelectedCityID(std::get<QUuid>(world.model.addCity(u"A/B & <C>"_s)));
  EXPECT_EQ(metaText(exports::skyOf(world.model)), u"   A/B & <C>"_s);
}

}  // namespace
}  // namespace veyruna
