#include "drawing/letters.h"

#include <gtest/gtest.h>

namespace veyruna::drawing {
namespace {

TEST(Letters, StandInARowAsWideAsTheirAdvances) {
  Letters letters;
  const GlyphRow row = letters.row(QStringLiteral("Pallox"));
  ASSERT_EQ(row.glyphs.size(), 6U);
  double at = 0.0;
  for (const GlyphRow::Glyph& glyph : row.glyphs) {
    EXPECT_NEAR(glyph.at, at, 1e-6);
    EXPECT_GT(glyph.advance, 0.0);
    at += glyph.advance;
  }
  EXPECT_NEAR(row.width, at, 1e-6);
  // Widths of Liberation Sans, which stands in for Arial, at 1,000 units: P 667, a 556, l 222, l
  // 222, o 556, x 500; "Pa" is kerned closer.
  EXPECT_NEAR(row.width, 2723.0, 30.0);
}

TEST(Letters, AreKerned) {
  Letters letters;
  const double apart =
      letters.row(QStringLiteral("A")).width + letters.row(QStringLiteral("V")).width;
  EXPECT_LT(letters.row(QStringLiteral("AV")).width, apart - 20.0);
}

TEST(Letters, AreFoundInAnotherFaceWhereTheFirstHasThemNot) {
  Letters letters;
  const GlyphRow row = letters.row(QStringLiteral("A☽"));
  ASSERT_GE(row.glyphs.size(), 2U);
  EXPECT_GT(row.width, letters.row(QStringLiteral("A")).width);
}

TEST(Letters, NoTextHasNoGlyphs) {
  Letters letters;
  EXPECT_TRUE(letters.row(QString()).glyphs.empty());
  EXPECT_EQ(letters.row(QString()).width, 0.0);
}

TEST(Letters, StayRightWhenMoreWereAskedForThanAreKept) {
  Letters letters;
  const double width = letters.row(QStringLiteral("Ivro 17")).width;
  for (int i = 0; i < 9000; ++i) {
    letters.row(QString::number(i));
    letters.font(0, 5.0 + i / 1000.0);
  }
  EXPECT_EQ(letters.row(QStringLiteral("Ivro 17")).width, width);
  EXPECT_EQ(letters.font(0, 12.0).pixelSize(), 12.0);
}

TEST(Letters, AnOutlineIsAsHighAsItsLetter) {
  Letters letters;
  const GlyphRow::Glyph h = letters.row(QStringLiteral("H")).glyphs.front();
  const QRectF box = letters.outline(h.face, h.index).boundingRect();
  EXPECT_NEAR(box.height(), 688.0, 8.0);  // Liberation Sans' capitals
  EXPECT_NEAR(box.bottom(), 0.0, 2.0);
}

}  // namespace
}  // namespace veyruna::drawing
