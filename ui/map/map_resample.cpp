// The filter is separable: first every row concerned is scaled across, then those rows are summed
// down. Four floats a pixel in rows of fixed length, so that the compiler can take many at once.
#include "ui/map/map_resample.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "astro/invariant.h"

namespace veyruna::ui {

namespace {

constexpr int channels = 4;  ///< blue, green, red, and one to fill up

/// Catmull and Rom's cubic: passes through every pixel, reaches two to either side.
double kernel(double distance) {
  const double t = std::abs(distance);
  if (t < 1.0) {
    return (1.5 * t - 2.5) * t * t + 1.0;
  }
  return t < 2.0 ? ((-0.5 * t + 2.5) * t - 4.0) * t + 2.0 : 0.0;
}

/// The source pixels one shown pixel is made of, with their weights, whose sum is 1.
struct Taps {
  std::vector<int> pixels;
  std::vector<float> weights;
};

/// `length`: pixels of the source; beyond them the outermost count.
Taps tapsOf(int shown, double scale, int length) {
  const double widening = std::max(1.0, 1.0 / scale);
  const double centre = (shown + 0.5) / scale - 0.5;
  const int first = static_cast<int>(std::ceil(centre - 2.0 * widening));
  const int last = static_cast<int>(std::floor(centre + 2.0 * widening));
  std::vector<double> weights;
  Taps taps;
  for (int pixel = first; pixel <= last; ++pixel) {
    taps.pixels.push_back(std::clamp(pixel, 0, length - 1));
    weights.push_back(kernel((pixel - centre) / widening));
  }
  const double sum = std::accumulate(weights.begin(), weights.end(), 0.0);
  taps.weights.reserve(weights.size());
  for (const double weight : weights) {
    taps.weights.push_back(static_cast<float>(weight / sum));
  }
  return taps;
}

/// Neighbouring pixels of the shown picture, in one direction.
struct ShownPixels {
  int first;
  int count;
};

std::vector<Taps> allTaps(const ShownPixels& shown, double scale, int length) {
  std::vector<Taps> all;
  all.reserve(static_cast<std::size_t>(shown.count));
  for (int i = 0; i < shown.count; ++i) {
    all.push_back(tapsOf(shown.first + i, scale, length));
  }
  return all;
}

void scaleAcross(const uchar* line, const std::vector<Taps>& columns, float* out) {
  for (const Taps& taps : columns) {
    std::array<float, channels> sum{};
    for (std::size_t i = 0; i < taps.weights.size(); ++i) {
      const uchar* const pixel = line + std::ptrdiff_t{channels} * taps.pixels[i];
      for (std::size_t c = 0; c < channels; ++c) {
        sum[c] += taps.weights[i] * static_cast<float>(pixel[c]);
      }
    }
    out = std::copy(sum.begin(), sum.end(), out);
  }
}

template <class Row>
void addWeighted(const Row& row, float weight, Row& sum) {
  for (std::size_t i = 0; i < sum.size(); ++i) {
    sum[i] += weight * row[i];
  }
}

uint byteOf(float value) {
  return static_cast<uint>(std::clamp(value + 0.5F, 0.0F, 255.0F));
}

void write(const float* row, int width, uchar* line) {
  auto* const pixels = reinterpret_cast<QRgb*>(line);
  for (int x = 0; x < width; ++x) {
    const float* const p = row + std::ptrdiff_t{channels} * x;
    pixels[x] = 0xff000000U | byteOf(p[2]) << 16U | byteOf(p[1]) << 8U | byteOf(p[0]);
  }
}

}  // namespace

void Resampler::draw(const QImage& source, QSizeF scale, QPoint first, QSize size, QImage& into) {
  astro::requireInvariant(size.width() <= longestRow,
                          "a piece of the map is at most 512 pixels wide");
  const std::vector<Taps> columns =
      allTaps({.first = first.x(), .count = size.width()}, scale.width(), source.width());
  const std::vector<Taps> lines =
      allTaps({.first = first.y(), .count = size.height()}, scale.height(), source.height());
  const int top = lines.front().pixels.front();
  const int bottom = lines.back().pixels.back();
  const auto indexOf = [top](int y) { return static_cast<std::size_t>(y - top); };

  rows_.resize(std::max(rows_.size(), indexOf(bottom) + 1));
  for (int y = top; y <= bottom; ++y) {
    scaleAcross(source.constScanLine(y), columns, rows_[indexOf(y)].data());
  }

  for (int y = 0; y < size.height(); ++y) {
    const Taps& taps = lines[static_cast<std::size_t>(y)];
    Row sum{};
    for (std::size_t i = 0; i < taps.weights.size(); ++i) {
      addWeighted(rows_[indexOf(taps.pixels[i])], taps.weights[i], sum);
    }
    write(sum.data(), size.width(), into.scanLine(y));
  }
}

}  // namespace veyruna::ui
