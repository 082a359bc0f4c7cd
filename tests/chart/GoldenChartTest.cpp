// Pictures of whole charts against those in golden/.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "chart/ctrlStormwaterReuse.h"
#include "platform/cairo/CairoImageSurface.h"
#include "platform/headless/HeadlessDesktop.h"
#include "support/GoldenPicture.h"

namespace orvik {
namespace {

struct GoldenChart {
  const char* name;
  std::int16_t station;
  Size size;
  const char* R;  // with V: the hotspot; null for none
  const char* V;
};

class Golden : public testing::TestWithParam<GoldenChart> {};

void WritePng(const std::string& path, const Picture& picture) {
  CairoImageSurface surface(picture.size);
  surface.CopyPicture(picture, {0, 0, picture.size.width, picture.size.height});
  std::ofstream(path, std::ios::binary) << surface.Png();
}

// Empty where there is no such picture.
Picture ReadPng(const std::string& path) {
  const CairoHandle<cairo_surface_t> png(cairo_image_surface_create_from_png(path.c_str()));
  if (cairo_surface_status(png.get()) != CAIRO_STATUS_SUCCESS) return {};
  const Size size{cairo_image_surface_get_width(png.get()),
                  cairo_image_surface_get_height(png.get())};
  CairoImageSurface copy(size);
  const CairoHandle<cairo_t> context(cairo_create(copy.Image()));
  cairo_set_source_surface(context.get(), png.get(), 0, 0);
  cairo_paint(context.get());
  return copy.Pixels();
}

Picture PaintChart(const GoldenChart& golden) {
  HeadlessDesktop desktop;
  ctrlStormwaterReuse chart(ORVIK_DATA);
  chart.SetCurveData(golden.station);
  chart.Resize(golden.size.width, golden.size.height);
  std::string E;
  if (golden.R) chart.SetHotspotUsing_RV(golden.R, golden.V, E);
  CairoImageSurface surface(golden.size);
  chart.Paint(surface);
  return surface.Pixels();
}

TEST_P(Golden, IsPaintedAsItWas) {
  test::ExpectGolden(GetParam().name, PaintChart(GetParam()),
                     {ORVIK_GOLDEN, ORVIK_PICTURES, ReadPng, WritePng});
}

INSTANTIATE_TEST_SUITE_P(
    Charts, Golden,
    testing::Values(GoldenChart{"tampa-960x640-hotspot", 23, {960, 640}, "0.15", "3"},
                    GoldenChart{"apalachicola-640x480", 1, {640, 480}, nullptr, nullptr},
                    GoldenChart{"west-palm-beach-480x640", 25, {480, 640}, nullptr, nullptr},
                    GoldenChart{"key-west-320x240-hotspot", 10, {320, 240}, "0.1", "5"},
                    GoldenChart{"nnr2-canal-120x90", 18, {120, 90}, nullptr, nullptr}),
    [](const auto& test) {
      std::string name = test.param.name;
      std::ranges::replace(name, '-', '_');
      return name;
    });

}  // namespace
}  // namespace orvik
