#include "platform/win32/Clipboard.h"

#include <windows.h>

#include <cstring>
#include <memory>
#include <type_traits>

#include "platform/win32/GdiHandles.h"
#include "platform/win32/GdiSurface.h"
#include "platform/win32/WideText.h"

namespace orvik {
namespace {

// Programs that watch the clipboard open it for a moment after each change.
bool OpenWithPatience() {
  constexpr int kTries = 20;
  constexpr DWORD kPause = 10;  // milliseconds
  for (int i = 0; i < kTries; ++i) {
    if (::OpenClipboard(::GetActiveWindow())) return true;
    ::Sleep(kPause);
  }
  return false;
}

// The clipboard is ours while this lives.
class OpenClipboardScope {
 public:
  OpenClipboardScope() : isOpen_(OpenWithPatience()) {}
  ~OpenClipboardScope() {
    if (isOpen_) ::CloseClipboard();
  }
  OpenClipboardScope(const OpenClipboardScope&) = delete;
  OpenClipboardScope& operator=(const OpenClipboardScope&) = delete;

  explicit operator bool() const { return isOpen_; }

 private:
  bool isOpen_;
};

struct FreeGlobal {
  void operator()(HGLOBAL memory) const { ::GlobalFree(memory); }
};
using GlobalMemory = std::unique_ptr<void, FreeGlobal>;

struct DeleteMetafile {
  void operator()(HENHMETAFILE metafile) const { ::DeleteEnhMetaFile(metafile); }
};
using Metafile = std::unique_ptr<std::remove_pointer_t<HENHMETAFILE>, DeleteMetafile>;

GlobalMemory TextOf(const ClipboardContent& content) {
  const std::wstring text = WideFromUtf8(content.text);
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  GlobalMemory memory(::GlobalAlloc(GMEM_MOVEABLE, bytes));
  void* place = memory ? ::GlobalLock(memory.get()) : nullptr;
  if (!place) return nullptr;
  std::memcpy(place, text.c_str(), bytes);
  ::GlobalUnlock(memory.get());
  return memory;
}

// The frame of a metafile is in hundredths of a millimetre.
Metafile MetafileOf(const ClipboardContent& content) {
  const WindowDc screen(nullptr);
  const auto hundredths = [&](int pixels, int millimetres, int pixelsOfScreen) {
    return ::MulDiv(pixels, 100 * ::GetDeviceCaps(screen.Get(), millimetres),
                    ::GetDeviceCaps(screen.Get(), pixelsOfScreen));
  };
  const RECT frame{0, 0, hundredths(content.pictureSize.width, HORZSIZE, HORZRES),
                   hundredths(content.pictureSize.height, VERTSIZE, VERTRES)};
  const HDC dc = ::CreateEnhMetaFileW(screen.Get(), nullptr, &frame, nullptr);
  if (!dc) return nullptr;
  try {
    GdiSurface surface(dc);
    content.paint(surface);
  } catch (...) {
    const Metafile unfinished(::CloseEnhMetaFile(dc));
    throw;
  }
  return Metafile(::CloseEnhMetaFile(dc));
}

GdiObject<HBITMAP> BitmapOf(const ClipboardContent& content) {
  const WindowDc screen(nullptr);
  const MemoryDc memory(::CreateCompatibleDC(screen.Get()));
  GdiObject<HBITMAP> bitmap(::CreateCompatibleBitmap(screen.Get(), content.pictureSize.width,
                                                     content.pictureSize.height));
  if (!memory || !bitmap) return nullptr;
  const Selection selected(memory.get(), bitmap.get());
  GdiSurface surface(memory.get());
  content.paint(surface);
  return bitmap;
}

// From then on the system owns what was put on the clipboard.
template <typename Owner>
void Put(UINT format, Owner owner) {
  if (owner && ::SetClipboardData(format, owner.get())) static_cast<void>(owner.release());
}

}  // namespace

bool PutOnClipboard(const ClipboardContent& content) {
  auto text = TextOf(content);
  auto metafile = MetafileOf(content);
  auto bitmap = BitmapOf(content);
  const OpenClipboardScope clipboard;
  if (!clipboard || !::EmptyClipboard()) return false;
  Put(CF_ENHMETAFILE, std::move(metafile));
  Put(CF_BITMAP, std::move(bitmap));
  Put(CF_UNICODETEXT, std::move(text));
  return true;
}

}  // namespace orvik
