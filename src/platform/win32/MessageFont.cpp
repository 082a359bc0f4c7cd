#include "platform/win32/MessageFont.h"

#include "platform/win32/Dpi.h"
#include "platform/win32/WideText.h"

namespace orvik {
namespace {

GdiObject<HFONT> Make(LOGFONTW description, bool bold) {
  if (bold) description.lfWeight = FW_BOLD;
  return GdiObject<HFONT>(::CreateFontIndirectW(&description));
}

int LineHeight(HFONT font) {
  const WindowDc screen(nullptr);
  const Selection selected(screen.Get(), font);
  TEXTMETRICW metrics{};
  ::GetTextMetricsW(screen.Get(), &metrics);
  return metrics.tmHeight;
}

int WidthOf(HFONT font, std::string_view text) {
  const WindowDc screen(nullptr);
  const Selection selected(screen.Get(), font);
  const std::wstring wide = WideFromUtf8(text);
  SIZE extent{};
  ::GetTextExtentPoint32W(screen.Get(), wide.data(), static_cast<int>(wide.size()), &extent);
  return extent.cx;
}

}  // namespace

MessageFont::MessageFont(int dpi) : dpi_(dpi) {
  const LOGFONTW description = NonClientMetrics(dpi).lfMessageFont;
  plain_ = Make(description, false);
  bold_ = Make(description, true);
}

TextMeasures MessageFont::Measures() const {
  return {dpi_, LineHeight(plain_.get()),
          [font = plain_.get()](std::string_view text) { return WidthOf(font, text); }};
}

}  // namespace orvik
