// The filter is separable: first every row concerned is scaled across, then those rows are summed
// down. Four floats a pixel in rows of fixed length, so that the compiler can take many at once.
#include "ui/map_resample.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "astro/invariant.h"

namespace veyruna::ui {

namespace {

constexpr int longest = 512;  ///< pixels of a row
constexpr int channels = 4;   ///< blue, green, red, and one to fill up

using Row = std::array<float, std::size_t{longest} * channels>;

/// Catmull and Rom's cubic: passes through every pixel, reaches two to either side.
double kernel(double distance) {
  const double t = std::abs(distance);
  if (t < 1.0) {
    return (1.5 * t - 2.5) * t * t + 1.0;
  }
  return t < 2.0 ? ((-0.5 * t + 2.5) * t - 4.0) * t + 2.0 : 0.0;
}

/// The source pixels one shown pixel is made of: as many weights as pixels, their sum 1.
struct Taps {
  int first = 0;
  std::vector<float> weights;
};

Taps tapsOf(int shown, double scale) {
  const double widening = std::max(1.0, 1.0 / scale);
  const double centre = (shown + 0.5) / scale - 0.5;
  const int first = static_cast<int>(std::ceil(centre - 2.0 * widening));
  const int last = static_cast<int>(std::floor(centre + 2.0 * widening));
  Taps taps{first, {}};
  double sum = 0.0;
  for (int pixel = first; pixel <= last; ++pixel) {
    const double weight = kernel((pixel - centre) / widening);
    taps.weights.push_back(static_cast<float>(weight));
    sum += weight;
  }
  for (float& weight : taps.weights) {
    weight = static_cast<float>(static_cast<double>(weight) / sum);
  }
  return taps;
}

std::vector<Taps> allTaps(int first, int count, double scale) {
  std::vector<Taps> all;
  for (int i = 0; i < count; ++i) {
    all.push_back(tapsOf(first + i, scale));
  }
  return all;
}

void scaleAcross(const uchar* pixels, int width, const std::vector<Taps>& columns, Row& row) {
  float* out = row.data();
  for (const Taps& taps : columns) {
    std::array<float, channels> sum{};
    int x = taps.first;
    for (const float weight : taps.weights) {
      const uchar* const pixel = pixels + std::ptrdiff_t{channels} * std::clamp(x++, 0, width - 1);
      for (std::size_t c = 0; c < channels; ++c) {
        sum[c] += weight * static_cast<float>(pixel[c]);
      }
    }
    out = std::copy(sum.begin(), sum.end(), out);
  }
}

void addWeighted(const Row& row, float weight, Row& sum) {
  for (std::size_t i = 0; i < sum.size(); ++i) {
    sum[i] += weight * row[i];
  }
}

uint byteOf(float value) {
  return static_cast<uint>(std::clamp(value + 0.5F, 0.0F, 255.0F));
}

void write(const Row& row, int width, uchar* line) {
  auto* const pixels = reinterpret_cast<QRgb*>(line);
  for (int x = 0; x < width; ++x) {
    const float* const p = row.data() + std::ptrdiff_t{channels} * x;
    pixels[x] = 0xff000000U | byteOf(p[2]) << 16U | byteOf(p[1]) << 8U | byteOf(p[0]);
  }
}

}  // namespace

QImage resampled(const QImage& source, QSizeF scale, QPoint first, QSize size) {
  astro::requireInvariant(size.width() <= longest, "a piece of the map is at most 512 pixels wide");
  const std::vector<Taps> columns = allTaps(first.x(), size.width(), scale.width());
  const std::vector<Taps> lines = allTaps(first.y(), size.height(), scale.height());
  const int top = lines.front().first;
  const int bottom = lines.back().first + static_cast<int>(lines.back().weights.size());

  std::vector<Row> scaledAcross(static_cast<std::size_t>(bottom - top));
  for (int y = top; y < bottom; ++y) {
    const int inside = std::clamp(y, 0, source.height() - 1);
    scaleAcross(source.constScanLine(inside), source.width(), columns,
                scaledAcross[static_cast<std::size_t>(y - top)]);
  }

  QImage piece(size, QImage::Format_RGB32);
  for (int y = 0; y < size.height(); ++y) {
    const Taps& taps = lines[static_cast<std::size_t>(y)];
    Row sum{};
    auto row = scaledAcross.begin() + (taps.first - top);
    for (const float weight : taps.weights) {
      addWeighted(*row++, weight, sum);
    }
    write(sum, size.width(), piece.scanLine(y));
  }
  return piece;
}

}  // namespace veyruna::ui
