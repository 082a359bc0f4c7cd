#include "platform/win32/GdiFont.h"

#include <algorithm>

#include "platform/win32/WideText.h"

namespace orvik {
namespace {

// ASCII text means the same in every code page, so the ANSI calls are used for it. All other text
// goes through the wide form of the same call.
bool IsCarriedByAnsi(std::string_view text) {
  constexpr unsigned char kFirstOther = 0x80;
  return std::ranges::all_of(text,
                             [](char c) { return static_cast<unsigned char>(c) < kFirstOther; });
}

// LOGFONTA or LOGFONTW without the face.
template <typename LogFont>
LogFont Describe(const Font& font) {
  LogFont description{};
  description.lfHeight = -font.pixelHeight;  // negative: of the characters, without the leading
  description.lfEscapement = font.escapement;
  description.lfOrientation = font.escapement;
  description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
  description.lfItalic = font.italic ? TRUE : FALSE;
  description.lfUnderline = font.underline ? TRUE : FALSE;
  description.lfStrikeOut = font.strikethrough ? TRUE : FALSE;
  description.lfCharSet = DEFAULT_CHARSET;
  description.lfOutPrecision = OUT_TT_PRECIS;  // outlines: they turn and take any size
  return description;
}

HFONT Make(const Font& font) {
  if (font.pixelHeight <= 0) return nullptr;  // 0 would be the system's own choice
  if (IsCarriedByAnsi(font.face)) {
    auto description = Describe<LOGFONTA>(font);
    font.face.copy(description.lfFaceName, LF_FACESIZE - 1);
    return ::CreateFontIndirectA(&description);
  }
  auto description = Describe<LOGFONTW>(font);
  WideFromUtf8(font.face).copy(description.lfFaceName, LF_FACESIZE - 1);
  return ::CreateFontIndirectW(&description);
}

}  // namespace

GdiFont::GdiFont(HDC dc, const Font& font) : dc_(dc), font_(Make(font)) {
  if (!font_) return;
  before_ = ::SelectObject(dc_, font_.get());
  if (!before_) font_.reset();
}

GdiFont::~GdiFont() {
  if (before_) ::SelectObject(dc_, before_);
}

Size GdiFont::Measure(std::string_view text) const {
  if (!font_) return {};
  SIZE extent{};
  if (IsCarriedByAnsi(text)) {
    ::GetTextExtentPoint32A(dc_, text.data(), static_cast<int>(text.size()), &extent);
  } else {
    const std::wstring wide = WideFromUtf8(text);
    ::GetTextExtentPoint32W(dc_, wide.data(), static_cast<int>(wide.size()), &extent);
  }
  return {extent.cx, extent.cy};
}

void GdiFont::Write(Point at, std::string_view text) const {
  if (!font_) return;
  if (IsCarriedByAnsi(text)) {
    ::TextOutA(dc_, at.x, at.y, text.data(), static_cast<int>(text.size()));
  } else {
    const std::wstring wide = WideFromUtf8(text);
    ::TextOutW(dc_, at.x, at.y, wide.data(), static_cast<int>(wide.size()));
  }
}

}  // namespace orvik
