// Pictures of whole charts against those in golden/. A picture may differ in at most one of 500
// pixels by more than 32 of 255 in a channel: other versions of the font library smooth letters a
// little differently, nothing else may.
//
// A picture that differs is left in the build's folder pictures/, beside its reference and the
// difference. To take the new pictures as the references, look at them first, then:
//   ORVIK_UPDATE_GOLDEN=1 ctest --preset native -R test_chart_pictures
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "chart/ctrlStormwaterReuse.h"
#include "platform/cairo/CairoImageSurface.h"
#include "platform/headless/HeadlessDesktop.h"

namespace orvik {
namespace {

constexpr int kMostDifference = 32;
constexpr std::size_t kOneOf = 500;

struct GoldenChart {
  const char* name;
  std::int16_t station;
  Size size;
  const char* R;  // with V: the hotspot; null for none
  const char* V;
};

class Golden : public testing::TestWithParam<GoldenChart> {};

void Save(const std::string& path, const std::string& bytes) {
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string PngOf(const Picture& picture) {
  CairoImageSurface surface(picture.size);
  surface.CopyPicture(picture, {0, 0, picture.size.width, picture.size.height});
  return surface.Png();
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

bool Differ(std::uint32_t a, std::uint32_t b) {
  for (const int shift : {0, 8, 16}) {
    const int difference =
        static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF);
    if (std::abs(difference) > kMostDifference) return true;
  }
  return false;
}

// Red where the two differ, white elsewhere.
Picture Difference(const Picture& a, const Picture& b) {
  Picture difference{a.size, std::vector<std::uint32_t>(a.pixels.size(), 0xFFFFFF)};
  for (std::size_t i = 0; i < a.pixels.size(); ++i) {
    if (Differ(a.pixels[i], b.pixels[i])) difference.pixels[i] = 0xFF0000;
  }
  return difference;
}

Picture PaintChart(const GoldenChart& golden) {
  HeadlessDesktop desktop;
  ctrlStormwaterReuse chart(desktop, ORVIK_DATA);
  chart.SetCurveData(golden.station);
  chart.Resize(golden.size.width, golden.size.height);
  std::string E;
  if (golden.R) chart.SetHotspotUsing_RV(golden.R, golden.V, E);
  CairoImageSurface surface(golden.size);
  chart.Paint(surface);
  return surface.Pixels();
}

void ReportDifference(const std::string& name, const Picture& output, const Picture& reference) {
  const std::string folder = std::string(ORVIK_PICTURES) + name + "/";
  Save(folder + "output.png", PngOf(output));
  if (reference.size == output.size) {
    Save(folder + "reference.png", PngOf(reference));
    Save(folder + "difference.png", PngOf(Difference(output, reference)));
  }
  ADD_FAILURE() << "The picture differs from golden/" << name << ".png; see " << folder;
}

TEST_P(Golden, IsPaintedAsItWas) {
  const std::string name = GetParam().name;
  const std::string path = std::string(ORVIK_GOLDEN) + name + ".png";
  const Picture output = PaintChart(GetParam());
  if (std::getenv("ORVIK_UPDATE_GOLDEN")) Save(path, PngOf(output));
  const Picture reference = ReadPng(path);
  if (reference.size != output.size) return ReportDifference(name, output, reference);
  const Picture difference = Difference(output, reference);
  const auto count = static_cast<std::size_t>(std::ranges::count(difference.pixels, 0xFF0000U));
  if (count * kOneOf > output.pixels.size()) ReportDifference(name, output, reference);
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
