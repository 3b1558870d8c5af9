// r half axes; c centre; θ where an arc begins, Δ how far it goes, clockwise, in the circle of
// radius 1 that the ellipse is when its axes are scaled away.
#include "drawing/path_reader.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "astro/angle.h"

namespace veyruna::drawing {

namespace {

struct Arc {
  QPointF from;
  QPointF to;
  double rx = 0.0;
  double ry = 0.0;
  bool isLarge = false;
  bool isClockwise = false;
};

struct Close {};

using Step = std::variant<QPointF, Arc, Close>;

/// The words of path data: letters, and numbers parted by blanks and commas.
class Words {
 public:
  explicit Words(QStringView data) : rest_(data) { skipBlanks(); }

  [[nodiscard]] bool isEmpty() const { return rest_.isEmpty(); }

  std::optional<QChar> letter() {
    if (rest_.isEmpty() || !rest_.front().isLetter()) {
      return std::nullopt;
    }
    const QChar letter = rest_.front();
    rest_ = rest_.sliced(1);
    skipBlanks();
    return letter;
  }

  std::optional<double> number() {
    qsizetype length = 0;
    while (length < rest_.size() && QStringView(u"+-.0123456789").contains(rest_[length])) {
      ++length;
    }
    bool isNumber = false;
    const double number = rest_.first(length).toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number)) {
      return std::nullopt;
    }
    rest_ = rest_.sliced(length);
    skipBlanks();
    return number;
  }

  std::optional<bool> flag() {
    const std::optional<double> value = number();
    return value && (*value == 0.0 || *value == 1.0) ? std::optional(*value == 1.0) : std::nullopt;
  }

  std::optional<QPointF> point() {
    const std::optional<double> x = number();
    const std::optional<double> y = x ? number() : std::nullopt;
    return y ? std::optional(QPointF(*x, *y)) : std::nullopt;
  }

 private:
  void skipBlanks() {
    while (!rest_.isEmpty() && (rest_.front().isSpace() || rest_.front() == u',')) {
      rest_ = rest_.sliced(1);
    }
  }

  QStringView rest_;
};

std::optional<Arc> arcFrom(QPointF from, Words& words) {
  const std::optional<QPointF> axes = words.point();
  const std::optional<double> tilt = axes ? words.number() : std::nullopt;
  const std::optional<bool> isLarge = tilt ? words.flag() : std::nullopt;
  const std::optional<bool> isClockwise = isLarge ? words.flag() : std::nullopt;
  const std::optional<QPointF> to = isClockwise ? words.point() : std::nullopt;
  if (!to || *tilt != 0.0 || axes->x() < 0.0 || axes->y() < 0.0) {
    return std::nullopt;
  }
  return Arc{from, *to, axes->x(), axes->y(), *isLarge, *isClockwise};
}

std::optional<std::vector<Step>> stepsOf(QStringView data) {
  std::vector<Step> steps;
  std::optional<QPointF> at;
  Words words(data);
  while (!words.isEmpty()) {
    const std::optional<QChar> letter = words.letter();
    if (letter == u'M') {
      at = words.point();
      if (!at) {
        return std::nullopt;
      }
      steps.emplace_back(*at);
    } else if (letter == u'A' && at) {
      const std::optional<Arc> arc = arcFrom(*at, words);
      if (!arc) {
        return std::nullopt;
      }
      at = arc->to;
      steps.emplace_back(*arc);
    } else if (letter == u'Z' && at) {
      steps.emplace_back(Close{});
    } else {
      return std::nullopt;
    }
  }
  return steps;
}

/// An arc about its centre, in the unit circle.
struct CentredArc {
  QPointF centre;
  double rx = 0.0;
  double ry = 0.0;
  double begin = 0.0;  ///< radians
  double sweep = 0.0;  ///< radians, clockwise positive
};

CentredArc centred(const Arc& arc) {
  const auto unit = [&arc](QPointF point) {
    return QPointF(point.x() / arc.rx, point.y() / arc.ry);
  };
  const QPointF from = unit(arc.from);
  const QPointF to = unit(arc.to);
  const QPointF half = (to - from) / 2.0;
  const double halfChord = std::hypot(half.x(), half.y());
  // Axes too short to reach are enlarged until they do.
  const double enlarged = std::max(1.0, halfChord);
  const double rise = std::sqrt(std::max(0.0, enlarged * enlarged - halfChord * halfChord));
  const double side = arc.isLarge == arc.isClockwise ? 1.0 : -1.0;
  const QPointF across =
      halfChord > 0.0 ? QPointF(half.y(), -half.x()) * (side * rise / halfChord) : QPointF();
  const QPointF centre = (from + to) / 2.0 + across;
  const double begin = std::atan2(from.y() - centre.y(), from.x() - centre.x());
  const double end = std::atan2(to.y() - centre.y(), to.x() - centre.x());
  double sweep = astro::wrappedToTurn(end - begin);
  if (!arc.isClockwise) {
    sweep -= astro::twoPi;
  }
  return {{centre.x() * arc.rx, centre.y() * arc.ry},
          arc.rx * enlarged,
          arc.ry * enlarged,
          begin,
          sweep};
}

void addArc(QPainterPath& path, const Arc& arc) {
  if (arc.rx == 0.0 || arc.ry == 0.0 || arc.from == arc.to) {
    path.lineTo(arc.to);
    return;
  }
  const CentredArc about = centred(arc);
  // At most an eighth of a turn to a curve, as in circlePath.
  const int curves =
      std::max(1, static_cast<int>(std::ceil(std::abs(about.sweep) / (astro::pi / 4.0))));
  const double step = about.sweep / curves;
  const double reach = 4.0 / 3.0 * std::tan(step / 4.0);
  const auto onPage = [&about](QPointF unit) {
    return about.centre + QPointF(about.rx * unit.x(), about.ry * unit.y());
  };
  for (int curve = 0; curve < curves; ++curve) {
    const double begin = about.begin + curve * step;
    const QPointF from(std::cos(begin), std::sin(begin));
    const QPointF to(std::cos(begin + step), std::sin(begin + step));
    const QPointF end = curve + 1 == curves ? arc.to : onPage(to);
    path.cubicTo(onPage(from + reach * QPointF(-from.y(), from.x())),
                 onPage(to - reach * QPointF(-to.y(), to.x())), end);
  }
}

}  // namespace

std::optional<QPainterPath> outlineOf(QStringView data) {
  const std::optional<std::vector<Step>> steps = stepsOf(data);
  if (!steps) {
    return std::nullopt;
  }
  QPainterPath path;
  for (const Step& step : *steps) {
    if (const auto* const point = std::get_if<QPointF>(&step)) {
      path.moveTo(*point);
    } else if (const auto* const arc = std::get_if<Arc>(&step)) {
      addArc(path, *arc);
    } else {
      path.closeSubpath();
    }
  }
  return path;
}

std::optional<Rim> rimOf(QStringView data) {
  const std::optional<std::vector<Step>> steps = stepsOf(data);
  if (!steps || steps->size() != 3) {
    return std::nullopt;
  }
  const auto* const there = std::get_if<Arc>(&steps->at(1));
  const auto* const back = std::get_if<Arc>(&steps->at(2));
  if (there == nullptr || back == nullptr) {
    return std::nullopt;
  }
  const QPointF centre = (there->from + there->to) / 2.0;
  const QPointF outward = there->from - centre;
  const double radius = std::hypot(outward.x(), outward.y());
  const auto isHalfTurn = [radius](const Arc& arc) {
    return arc.isClockwise && arc.rx == arc.ry && std::abs(arc.rx - radius) <= 1e-9 * radius;
  };
  if (radius <= 0.0 || back->to != there->from || !isHalfTurn(*there) || !isHalfTurn(*back)) {
    return std::nullopt;
  }
  return Rim{centre, radius, astro::degreesOf(std::atan2(outward.y(), outward.x()))};
}

}  // namespace veyruna::drawing
