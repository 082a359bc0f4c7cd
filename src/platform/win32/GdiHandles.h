// Owners of GDI handles: each releases what it holds.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace orvik {

struct GdiObjectDeleter {
  void operator()(HGDIOBJ object) const { ::DeleteObject(object); }
};

// A pen, brush, font or bitmap of our own.
template <typename Handle>
using GdiObject = std::unique_ptr<std::remove_pointer_t<Handle>, GdiObjectDeleter>;

struct MemoryDcDeleter {
  void operator()(HDC dc) const { ::DeleteDC(dc); }
};

// A device context in memory.
using MemoryDc = std::unique_ptr<std::remove_pointer_t<HDC>, MemoryDcDeleter>;

// Selects an object while this lives, then the previous one again.
class Selection {
 public:
  Selection(HDC dc, HGDIOBJ object) : dc_(dc), before_(::SelectObject(dc, object)) {}
  ~Selection() {
    if (before_) ::SelectObject(dc_, before_);
  }
  Selection(const Selection&) = delete;
  Selection& operator=(const Selection&) = delete;

 private:
  HDC dc_;
  HGDIOBJ before_;
};

// The device context of a window's inner area.
class WindowDc {
 public:
  explicit WindowDc(HWND window) : window_(window), dc_(::GetDC(window)) {}
  ~WindowDc() {
    if (dc_) ::ReleaseDC(window_, dc_);
  }
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;

  HDC Get() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

// The painting of a window in answer to WM_PAINT.
class PaintScope {
 public:
  explicit PaintScope(HWND window) : window_(window) { ::BeginPaint(window, &paint_); }
  ~PaintScope() { ::EndPaint(window_, &paint_); }
  PaintScope(const PaintScope&) = delete;
  PaintScope& operator=(const PaintScope&) = delete;

  HDC Dc() const { return paint_.hdc; }

 private:
  HWND window_;
  PAINTSTRUCT paint_{};
};

}  // namespace orvik
