// A picture in memory that GDI draws upon.
#pragma once

#include <algorithm>
#include <stdexcept>

#include "platform/win32/GdiSurface.h"

namespace orvik::test {

class MemoryScreen {
 public:
  explicit MemoryScreen(Size size, std::uint32_t paper = 0xFFFFFF) : size_(size) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.width;
    info.bmiHeader.biHeight = -size.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    dc_.reset(::CreateCompatibleDC(nullptr));
    bitmap_.reset(::CreateDIBSection(dc_.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!bitmap_) throw std::runtime_error("There is no such picture.");
    before_ = ::SelectObject(dc_.get(), bitmap_.get());
    bits_ = static_cast<std::uint32_t*>(bits);
    std::fill_n(bits_, Count(), paper);
  }
  ~MemoryScreen() { ::SelectObject(dc_.get(), before_); }
  MemoryScreen(const MemoryScreen&) = delete;
  MemoryScreen& operator=(const MemoryScreen&) = delete;

  HDC Dc() const { return dc_.get(); }

  // What has been drawn.
  Picture Pixels() const {
    ::GdiFlush();
    Picture picture{size_, {bits_, bits_ + Count()}};
    for (std::uint32_t& pixel : picture.pixels) pixel &= 0xFFFFFF;
    return picture;
  }

  std::uint32_t At(Point at) const {
    ::GdiFlush();
    return bits_[static_cast<std::size_t>(at.y) * static_cast<std::size_t>(size_.width) +
                 static_cast<std::size_t>(at.x)] &
           0xFFFFFF;
  }

 private:
  std::size_t Count() const {
    return static_cast<std::size_t>(size_.width) * static_cast<std::size_t>(size_.height);
  }

  Size size_;
  MemoryDc dc_;
  GdiObject<HBITMAP> bitmap_;
  HGDIOBJ before_ = nullptr;
  std::uint32_t* bits_ = nullptr;
};

}  // namespace orvik::test
