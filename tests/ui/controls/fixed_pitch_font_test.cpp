// Tables keep their columns whatever font the platform names for them.
#include "ui/controls/fixed_pitch_font.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPlainTextEdit>

#include "tests/ui/shown_window.h"

namespace veyruna::ui {
namespace {

const QFont proportional(QStringLiteral("DejaVu Sans"), 13);
const QFont fixed(QStringLiteral("DejaVu Sans Mono"), 13);

TEST(FixedPitchFont, IsToldApartByTheWidthOfItsCharacters) {
  EXPECT_TRUE(isFixedPitch(fixed));
  EXPECT_FALSE(isFixedPitch(proportional));
}

TEST(FixedPitchFont, IsThePlatformsWhereThatIsFixed) {
  EXPECT_EQ(fixedPitchFont(fixed), fixed);
}

TEST(FixedPitchFont, IsMonospaceInTheSameSizeWhereThePlatformsIsProportional) {
  const QFont font = fixedPitchFont(proportional);
  EXPECT_EQ(font.families(), QStringList(QStringLiteral("monospace")));
  EXPECT_TRUE(isFixedPitch(font));
  EXPECT_EQ(font.pointSizeF(), proportional.pointSizeF());
}

TEST(FixedPitchFont, IsLookedForWhereMonospaceIsProportionalToo) {
  QStringList tried;
  const QFont font = fixedPitchFont(proportional, [&tried](const QFont& candidate) {
    tried.append(candidate.families());
    return candidate.families() != QStringList(QStringLiteral("monospace")) &&
           isFixedPitch(candidate);
  });
  EXPECT_TRUE(tried.contains(QStringLiteral("monospace")));
  EXPECT_TRUE(isFixedPitch(font));
  EXPECT_TRUE(QFontDatabase::families().contains(font.families().constFirst()));
}

TEST(FixedPitchFont, IsThePlatformsWhereThereIsNoneAtAll) {
  EXPECT_EQ(fixedPitchFont(proportional, [](const QFont&) { return false; }), proportional);
}

TEST(FixedPitchFont, IsWhatTheTablesAreShownIn) {
  tests::ShownWindow shown;
  shown.calculate();
  shown.press("tab5");
  int tables = 0;
  for (const auto* const table : shown.window.findChildren<QPlainTextEdit*>()) {
    EXPECT_TRUE(isFixedPitch(table->font())) << table->accessibleName().toStdString();
    ++tables;
  }
  EXPECT_EQ(tables, 4);
}

}  // namespace
}  // namespace veyruna::ui
