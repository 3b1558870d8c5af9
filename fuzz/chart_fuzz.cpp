// Any bytes as a chart's SVG text: refused with a line, or a picture of finite numbers that can be
// painted.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <cmath>
#include <cstring>

#include "drawing/picture_painter.h"
#include "drawing/svg_reader.h"
#include "fuzz/target.h"

using namespace veyruna;
using fuzz::promise;

namespace {

/// What is promised of each shape; groups are counted.
struct Check {
  int open = 0;

  static void isFinite(QPointF point) {
    promise(std::isfinite(point.x()) && std::isfinite(point.y()), "a point is finite");
  }
  static void isLength(double length) {
    promise(std::isfinite(length) && length >= 0.0, "a length is finite and not negative");
  }
  static void isSimple(const QString& text) {
    promise(text == text.simplified(), "blanks are collapsed");
  }

  void operator()(const drawing::Circle& circle) const {
    isFinite(circle.centre);
    isLength(circle.radius);
    isLength(circle.strokeWidth);
  }
  void operator()(const drawing::Line& line) const {
    isFinite(line.from);
    isFinite(line.to);
    isLength(line.strokeWidth);
  }
  void operator()(const drawing::Outline& outline) const {
    for (int i = 0; i < outline.path.elementCount(); ++i) {
      isFinite(outline.path.elementAt(i));
    }
  }
  void operator()(const drawing::LevelText& text) const {
    isFinite(text.at);
    isLength(text.letters.size);
    isSimple(text.letters.text);
  }
  void operator()(const drawing::BentText& text) const {
    isFinite(text.rim.centre);
    isLength(text.rim.radius);
    isLength(text.letters.size);
    isSimple(text.letters.text);
    promise(std::isfinite(text.startOffset), "an offset is finite");
  }
  void operator()(const drawing::BeginRotated& group) {
    isFinite(group.centre);
    promise(std::isfinite(group.degrees), "a turn is finite");
    ++open;
  }
  void operator()(const drawing::BeginClipped& group) {
    isFinite(group.centre);
    isLength(group.radius);
    ++open;
  }
  void operator()(const drawing::EndGroup& /*end*/) {
    promise(open > 0, "a group that ends has begun");
    --open;
  }
};

void paint(const drawing::Picture& picture) {
  QImage image(48, 48, QImage::Format_RGB32);
  QPainter painter(&image);
  drawing::PicturePainter().paint(painter, picture, image.rect(), drawing::Medium::pixels);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static const bool isSet = qputenv("QT_QPA_PLATFORM", "offscreen");
  static int argc = 1;
  static char name[] = "chart";
  static char* argv[] = {name, nullptr};
  static const QGuiApplication application(argc, argv);
  promise(isSet, "there is a platform without a display");
  try {
    const drawing::Picture picture = drawing::readSvg(
        QByteArray(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size)));
    promise(size == 0 || (std::isfinite(picture.viewBox.width()) && !picture.viewBox.isEmpty()),
            "a picture has its extent");
    Check check;
    for (const drawing::Shape& shape : picture.shapes) {
      std::visit(check, shape);
    }
    promise(check.open == 0, "every group ends");
    paint(picture);
  } catch (const drawing::PictureError& error) {
    promise(std::strncmp(error.what(), "line ", 5) == 0, "an error names its line");
  }
  return 0;
}
