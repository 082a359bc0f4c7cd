#include "controls/PictureScaling.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace orvik {
namespace {

constexpr int kWhole = 1 << 14;  // the sum of a pixel's weights

// The pixels of a row that make one pixel of the scaled row.
struct Source {
  std::size_t first = 0;
  std::vector<int> weights;
};

// Weights fall evenly from the pixel's middle to its neighbours' (or as far as it is wide in the
// picture, if that is more). What rounding takes or gives is put right where it shows least.
Source SourceOf(int index, int size, int scaledSize) {
  const double step = double(size) / scaledSize;
  const double middle = (index + 0.5) * step;
  const double reach = std::max(1.0, step);
  const int first = std::max(0, static_cast<int>(std::floor(middle - reach + 0.5)));
  const int last = std::min(size - 1, static_cast<int>(std::ceil(middle + reach - 0.5)) - 1);
  std::vector<double> shares;
  double sum = 0;
  for (int i = first; i <= last; ++i) {
    shares.push_back(std::max(0.0, 1 - std::abs(i + 0.5 - middle) / reach));
    sum += shares.back();
  }
  Source source{static_cast<std::size_t>(first), {}};
  int left = kWhole;
  for (const double share : shares) {
    source.weights.push_back(static_cast<int>(std::lround(share / sum * kWhole)));
    left -= source.weights.back();
  }
  *std::ranges::max_element(source.weights) += left;
  return source;
}

std::vector<Source> SourcesOf(int from, int to, int size, int scaledSize) {
  std::vector<Source> sources;
  for (int i = from; i < to; ++i) sources.push_back(SourceOf(i, size, scaledSize));
  return sources;
}

// The weighted mean of pixels that lie `stride` apart.
std::uint32_t Mean(const std::uint32_t* pixels, std::size_t stride,
                   const std::vector<int>& weights) {
  int red = kWhole / 2;
  int green = kWhole / 2;
  int blue = kWhole / 2;
  for (const int weight : weights) {
    red += static_cast<int>(*pixels >> 16 & 0xFF) * weight;
    green += static_cast<int>(*pixels >> 8 & 0xFF) * weight;
    blue += static_cast<int>(*pixels & 0xFF) * weight;
    pixels += stride;
  }
  const auto channel = [](int sum) { return static_cast<std::uint32_t>(sum / kWhole); };
  return channel(red) << 16 | channel(green) << 8 | channel(blue);
}

// Rows `top` to `bottom` of the picture, scaled across.
Picture ScaleAcross(const Picture& picture, const std::vector<Source>& columns, std::size_t top,
                    std::size_t bottom) {
  const auto width = static_cast<std::size_t>(picture.size.width);
  Picture scaled{{static_cast<int>(columns.size()), static_cast<int>(bottom - top)}, {}};
  scaled.pixels.reserve(columns.size() * (bottom - top));
  for (std::size_t row = top; row < bottom; ++row) {
    const std::uint32_t* pixels = &picture.pixels[row * width];
    for (const Source& column : columns) {
      scaled.pixels.push_back(Mean(pixels + column.first, 1, column.weights));
    }
  }
  return scaled;
}

}  // namespace

Picture ScalePicture(const Picture& picture, Size size, const Area& cut) {
  if (!IsConsistent(picture)) throw std::invalid_argument("The picture is not of its size.");
  if (picture.pixels.empty() || cut.left >= cut.right || cut.top >= cut.bottom) return {};
  const auto columns = SourcesOf(cut.left, cut.right, picture.size.width, size.width);
  const auto rows = SourcesOf(cut.top, cut.bottom, picture.size.height, size.height);
  const std::size_t top = rows.front().first;
  const Picture across =
      ScaleAcross(picture, columns, top, rows.back().first + rows.back().weights.size());
  const std::size_t width = columns.size();
  Picture scaled{{static_cast<int>(width), static_cast<int>(rows.size())}, {}};
  scaled.pixels.reserve(width * rows.size());
  for (const Source& row : rows) {
    const std::uint32_t* pixels = &across.pixels[(row.first - top) * width];
    for (std::size_t column = 0; column < width; ++column) {
      scaled.pixels.push_back(Mean(pixels + column, width, row.weights));
    }
  }
  return scaled;
}

}  // namespace orvik
