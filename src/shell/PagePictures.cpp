#include "shell/PagePictures.h"

#include <algorithm>

namespace orvik {
namespace {

constexpr int kShade = 4;  // pixel rows of the toolbar's shade on the page

// 0x00RRGGBB, part of the way from one to the other.
std::uint32_t Between(std::uint32_t from, std::uint32_t to, int part, int whole) {
  std::uint32_t mixed = 0;
  for (unsigned shift = 0; shift <= 16; shift += 8) {
    const int a = static_cast<int>(from >> shift & 0xFFU);
    const int b = static_cast<int>(to >> shift & 0xFFU);
    mixed |= static_cast<std::uint32_t>(a + (b - a) * part / whole) << shift;
  }
  return mixed;
}

Picture Band(Size size, std::uint32_t above, std::uint32_t below) {
  Picture picture{size, {}};
  picture.pixels.reserve(static_cast<std::size_t>(std::max(0, size.width)) *
                         static_cast<std::size_t>(std::max(0, size.height)));
  for (int row = 0; row < size.height; ++row) {
    const std::uint32_t colour = Between(above, below, row, std::max(1, size.height - 1));
    picture.pixels.insert(picture.pixels.end(), static_cast<std::size_t>(std::max(0, size.width)),
                          colour);
  }
  return picture;
}

}  // namespace

Picture Image1(Size size) {
  constexpr std::uint32_t kAbove = 0xFAFCFD;
  constexpr std::uint32_t kBelow = 0xDCE7EE;
  return Band(size, kAbove, kBelow);
}

Picture Image2(Size size) {
  constexpr std::uint32_t kAbove = 0xC4CED4;
  constexpr std::uint32_t kBelow = 0xF0F0F0;
  return Band(size, kAbove, kBelow);
}

void PaintToolbar(Surface& surface, Size size) {
  surface.CopyPicture(Image1(size), {0, 0, size.width, size.height});
}

void PaintPage(Surface& surface, Size size) {
  surface.FillArea({0, 0, size.width, size.height}, kButtonFace);
  const int shade = std::min(kShade, size.height);
  surface.CopyPicture(Image2({size.width, shade}), {0, 0, size.width, shade});
}

}  // namespace orvik
