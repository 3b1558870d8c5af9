#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "charts/body_marker.h"
#include "charts/chart_mark.h"
#include "charts/star_catalogue.h"

namespace veyruna::charts {

/// What a body or star has been drawn as.
struct DrawnMarker {
  std::optional<Stretch> dot;
  std::optional<Stretch> letters;
};

/// A marker as drawDot and drawLabel draw it.
DrawnMarker drawn(const BodyMarker& marker);

/// Writes down what a chart draws while it draws. Without marks to write to every call does
/// nothing.
class MarkRecorder {
 public:
  /// `marks` may be null; else it must live as long as the recorder.
  explicit MarkRecorder(ChartMarks* marks) : marks_(marks) {}

  [[nodiscard]] bool isRecording() const { return marks_ != nullptr; }

  /// A body, by its row in the positions list. One that is drawn as nothing is left out.
  void body(std::size_t row, std::string_view name, double magnitude, const astro::Vec3D& ecliptic,
            const DrawnMarker& as);

  /// An entry of the catalogue that is no boundary, by its place there.
  void star(std::size_t place, const FixedStar& star, const DrawnMarker& as);

  /// The tick at the beginning of a sign.
  void signBoundary(std::size_t place, const FixedStar& marker, const Stretch& tick);

  void ascendant(double longitude, const DrawnMarker& as);

  /// `line` is what the panel says of the element.
  void chord(std::size_t place, std::string_view name, const Stretch& chord, std::string_view line);

  /// A text of the panel. Texts at one height, drawn one after the other, make one line.
  void panelText(std::int64_t x, std::int64_t y, std::string_view text, double size);

 private:
  ChartMarks* marks_;
  std::size_t panelLines_ = 0;
  std::int64_t lineY_ = 0;
};

}  // namespace veyruna::charts
