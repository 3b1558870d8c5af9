// A chart on its paper, as the window shows it.
#include "ui/charts/svg_view.h"

#include <QImage>
#include <gtest/gtest.h>

#include "tests/support/picture_difference.h"
#include "tests/support/reference_case.h"
#include "tests/support/source_path.h"

namespace veyruna::ui {
namespace {

/// A disc of one colour in the middle of a picture twice as wide as high.
QString discOf(const char* color) {
  return QStringLiteral(
             "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 200 100\">"
             "<circle cx=\"100\" cy=\"50\" r=\"50\" fill=\"%1\"/></svg>")
      .arg(QLatin1String(color));
}

struct SvgViews : testing::Test {
  SVGView view{QStringLiteral("Chart")};

  SvgViews() {
    view.resize(300, 200);
    static_cast<QWidget&>(view).show();
  }

  [[nodiscard]] QImage seen() { return view.grab().toImage(); }
  [[nodiscard]] QColor at(double x, double y) {
    const QImage image = seen();
    return image.pixelColor(static_cast<int>(x * image.width()),
                            static_cast<int>(y * image.height()));
  }
};

TEST_F(SvgViews, ShowWhatTheyAreGivenAtOnceAndNothingElse) {
  EXPECT_EQ(at(0.5, 0.5), QColor(Qt::white));
  view.show(discOf("red"));
  EXPECT_EQ(at(0.5, 0.5), QColor(Qt::red));
  view.show(discOf("blue"));
  EXPECT_EQ(at(0.5, 0.5), QColor(Qt::blue));
  view.show(QString());
  EXPECT_EQ(at(0.5, 0.5), QColor(Qt::white));
}

TEST_F(SvgViews, FitAndCentreTheChart) {
  view.show(discOf("red"));  // 300 × 150 of 300 × 200: a disc of 150 in the middle
  EXPECT_EQ(at(0.5, 0.14), QColor(Qt::red));
  EXPECT_EQ(at(0.5, 0.11), QColor(Qt::white));
  EXPECT_EQ(at(0.26, 0.5), QColor(Qt::red));
  EXPECT_EQ(at(0.24, 0.5), QColor(Qt::white));
  view.resize(600, 100);
  EXPECT_EQ(at(0.5, 0.02), QColor(Qt::red));
  EXPECT_EQ(at(0.40, 0.5), QColor(Qt::white));
  EXPECT_EQ(at(0.43, 0.5), QColor(Qt::red));
}

TEST_F(SvgViews, LieOnWhitePaperInDarkWindowsToo) {
  QPalette dark(QColor(0x35, 0x35, 0x39), QColor(0x2b, 0x2b, 0x2e));
  view.setPalette(dark);
  view.setAutoFillBackground(true);
  view.show(discOf("red"));
  EXPECT_EQ(at(0.02, 0.02), QColor(Qt::white));
  EXPECT_EQ(at(0.98, 0.98), QColor(Qt::white));
}

TEST_F(SvgViews, SayWhyTheyCannotShowWhatIsNoChart) {
  view.show(discOf("red"));
  view.show(QStringLiteral("<html></html>"));
  EXPECT_NE(at(0.5, 0.11), QColor(Qt::red));
  const QImage image = seen();
  int ink = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      ink += qGray(image.pixel(x, y)) < 100 ? 1 : 0;
    }
  }
  EXPECT_GT(ink, 50);  // some letters
  view.show(discOf("blue"));
  EXPECT_EQ(at(0.5, 0.5), QColor(Qt::blue));
}

TEST_F(SvgViews, DrawInThePixelsOfTheScreen) {
  // The window's own picture at the screen's scale, against the golden one at the same size.
  view.resize((QSizeF(1440, 1440) / view.devicePixelRatioF()).toSize());
  view.show(QString::fromStdString(
      tests::fileContent(tests::sourcePath("tests/reference/evening-local/star-map.svg"))));
  QImage image = seen();
  image.setDevicePixelRatio(1.0);
  const QImage golden(
      QString::fromStdString(tests::sourcePath("tests/export/golden/star-map.png")));
  ASSERT_EQ(image.size(), golden.size());
  EXPECT_LT(tests::differenceOf(image, golden, 4).different, 0.0001);
}

}  // namespace
}  // namespace veyruna::ui
