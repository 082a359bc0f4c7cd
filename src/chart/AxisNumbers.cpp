#include "chart/AxisNumbers.h"

#include <algorithm>
#include <vector>

#include "base/NumberText.h"
#include "chart/AxisSteps.h"

namespace orvik {
namespace {

using PlacedTexts = std::vector<PlacedText>;

// Texts, evenly chosen, of which two neighbours keep this distance.
struct Gap {
  int across = 0;  // pixels
  int down = 0;
};

Area Widen(const Area& area, Gap gap) {
  return {area.left - gap.across, area.top - gap.down, area.right + gap.across,
          area.bottom + gap.down};
}

PlacedTexts EveryOf(const PlacedTexts& numbers, std::size_t stride) {
  PlacedTexts chosen;
  for (std::size_t i = 0; i < numbers.size(); i += stride) chosen.push_back(numbers[i]);
  return chosen;
}

bool Fit(const PlacedTexts& numbers, Gap gap, const TextRoom& room) {
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (!room.Has(numbers[i].area)) return false;
    if (i > 0 && Overlap(Widen(numbers[i - 1].area, gap), numbers[i].area)) return false;
  }
  return true;
}

// The most numbers that fit, evenly chosen from the first on; one alone is no scale.
PlacedTexts ChooseNumbers(const PlacedTexts& numbers, Gap gap, const TextRoom& room) {
  for (std::size_t stride = 1; stride < numbers.size(); ++stride) {
    PlacedTexts chosen = EveryOf(numbers, stride);
    if (Fit(chosen, gap, room)) return chosen;
  }
  return {};
}

PlacedTexts HorizontalNumbers(Surface& surface, const ChartScene& scene, const Font& font) {
  const clsPlotWindow& window = scene.geometry.Window();
  const clsRectangle_Integer& frame = scene.layout.frame;
  const auto values =
      AxisValues(window.XMin, window.XMax, scene.curves.VInterval, frame.Right - frame.Left);
  const bool endsAtRight =
      ReachesEnd(values.size(), window.XMin, window.XMax, scene.curves.VInterval);
  PlacedTexts numbers;
  for (std::size_t i = 0; i < values.size(); ++i) {
    std::string text = ConvertToString(values[i]);
    const Size size = surface.MeasureText(text, font);
    int left = scene.geometry.XPlotToXFrame(values[i]);
    if (i + 1 == values.size() && endsAtRight) {
      left -= size.width;
    } else if (i > 0) {
      left -= size.width / 2;
    }
    numbers.push_back(
        PlaceLevel(std::move(text), font, size, {left, scene.layout.horizontalAxis.Top}));
  }
  return numbers;
}

PlacedTexts VerticalNumbers(Surface& surface, const ChartScene& scene, const Font& font) {
  const clsPlotWindow& window = scene.geometry.Window();
  const clsRectangle_Integer& frame = scene.layout.frame;
  PlacedTexts numbers;
  for (const double value :
       AxisValues(window.YMin, window.YMax, scene.curves.RInterval, frame.Bottom - frame.Top)) {
    std::string text = ConvertToString(value);
    const Size size = surface.MeasureText(text, font);
    const Point at{scene.layout.verticalAxis.Right - size.width,
                   scene.geometry.YPlotToYFrame(value) - size.height / 2};
    numbers.push_back(PlaceLevel(std::move(text), font, size, at));
  }
  return numbers;
}

PlacedTexts WriteNumbers(Surface& surface, const PlacedTexts& all, Gap gap, TextRoom& room) {
  PlacedTexts chosen = ChooseNumbers(all, gap, room);
  for (const PlacedText& number : chosen) room.Write(surface, number);
  return chosen;
}

}  // namespace

void DrawHorizontalAxisText(Surface& surface, const ChartScene& scene, TextRoom& room) {
  const int height = scene.PixelHeightOf(scene.heights.label);
  if (!IsReadable(height)) return;
  const Font font = ChartFont(height);
  const PlacedTexts numbers = HorizontalNumbers(surface, scene, font);
  const PlacedTexts written = WriteNumbers(surface, numbers, {height / 2, 0}, room);

  const clsRectangle_Integer& band = scene.layout.horizontalAxis;
  const Size size = surface.MeasureText(kHorizontalAxisTitle, font);
  const int row = written.empty() ? band.Top : written.front().area.bottom + height / 5;
  room.Write(surface, PlaceLevel(std::string(kHorizontalAxisTitle), font, size,
                                 {(band.Left + band.Right) / 2 - size.width / 2, row}));
}

void DrawVerticalAxisText(Surface& surface, const ChartScene& scene, TextRoom& room) {
  const int height = scene.PixelHeightOf(scene.heights.label);
  if (!IsReadable(height)) return;
  const Font font = ChartFont(height);
  const PlacedTexts numbers = VerticalNumbers(surface, scene, font);
  const PlacedTexts written = WriteNumbers(surface, numbers, {0, 0}, room);

  const clsRectangle_Integer& band = scene.layout.verticalAxis;
  int right = band.Right;
  for (const PlacedText& number : written) right = std::min(right, number.area.left - height / 2);
  const Size size = surface.MeasureText(kVerticalAxisTitle, font);
  const Point corner{right - size.height, (band.Top + band.Bottom) / 2 - size.width / 2};
  room.Write(surface, PlaceUpwards(std::string(kVerticalAxisTitle), font, size, corner));
}

}  // namespace orvik
