// The colours against the published models of what eyes and printers make of them.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>

#include "chart/ChartColours.h"

namespace orvik {
namespace {

using Channels = std::array<double, 3>;  // red, green, blue, 0...1
using Matrix = std::array<Channels, 3>;

// sRGB to linear light, IEC 61966-2-1.
Channels LinearLight(Colour colour) {
  Channels light{};
  for (std::size_t i = 0; i < 3; ++i) {
    const double c = (colour >> (8 * i) & 0xFF) / 255.0;
    light[i] = c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  }
  return light;
}

Channels Times(const Matrix& matrix, const Channels& v) {
  Channels product{};
  for (std::size_t i = 0; i < 3; ++i) {
    product[i] = matrix[i][0] * v[0] + matrix[i][1] * v[1] + matrix[i][2] * v[2];
  }
  return product;
}

double Luminance(const Channels& light) {
  return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2];
}

double CubeRootOfLab(double t) {
  return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116;
}

double Lightness(const Channels& light) {
  return 116 * CubeRootOfLab(Luminance(light)) - 16;
}

// CIE 1976 L*a*b*, white D65.
Channels Lab(const Channels& light) {
  const Matrix toXyz = {
      {{0.4124, 0.3576, 0.1805}, {0.2126, 0.7152, 0.0722}, {0.0193, 0.1192, 0.9505}}};
  const Channels xyz = Times(toXyz, light);
  const double x = CubeRootOfLab(xyz[0] / 0.9505);
  const double y = CubeRootOfLab(xyz[1]);
  const double z = CubeRootOfLab(xyz[2] / 1.089);
  return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double Distance(const Channels& a, const Channels& b) {
  return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

// Full colour-vision deficiencies after Machado, Oliveira and Fernandes (2009), on linear light.
const std::array<std::pair<std::string, Matrix>, 4> kEyes = {{
    {"all colours", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
    {"no red",
     {{{0.152286, 1.052583, -0.204868},
       {0.114503, 0.786281, 0.099216},
       {-0.003882, -0.048116, 1.051998}}}},
    {"no green",
     {{{0.367322, 0.860646, -0.227968},
       {0.280085, 0.672501, 0.047413},
       {-0.011820, 0.042940, 0.968881}}}},
    {"no blue",
     {{{1.255528, -0.076749, -0.178779},
       {-0.078411, 0.930809, 0.147602},
       {0.004733, 0.691367, 0.303900}}}},
}};

TEST(ChartColours, NeighboursStayApartForEveryEye) {
  for (const auto& [eye, matrix] : kEyes) {
    for (std::size_t i = 0; i < kCurveColours.size(); ++i) {
      const Channels a = Lab(Times(matrix, LinearLight(CurveColour(i))));
      const Channels b = Lab(Times(matrix, LinearLight(CurveColour(i + 1))));
      EXPECT_GE(Distance(a, b), 25) << eye << ", curves " << i << " and " << i + 1;
    }
  }
}

TEST(ChartColours, NeighboursStayApartInGreyPrint) {
  for (std::size_t i = 0; i < kCurveColours.size(); ++i) {
    EXPECT_GE(std::abs(Lightness(LinearLight(CurveColour(i))) -
                       Lightness(LinearLight(CurveColour(i + 1)))),
              20)
        << i;
  }
}

// Contrast ratio of the Web Content Accessibility Guidelines; 3 is asked of lines.
TEST(ChartColours, EveryCurveStandsOutFromThePaper) {
  const double paper = Luminance(LinearLight(kPaper)) + 0.05;
  for (const Colour colour : kCurveColours) {
    EXPECT_GE(paper / (Luminance(LinearLight(colour)) + 0.05), 3) << std::hex << colour;
  }
}

TEST(ChartColours, TheGridIsFainterThanEveryCurve) {
  for (const Colour colour : kCurveColours) {
    EXPECT_GE(Lightness(LinearLight(kGridLines)) - Lightness(LinearLight(colour)), 25)
        << std::hex << colour;
  }
}

}  // namespace
}  // namespace orvik
