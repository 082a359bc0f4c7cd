#include "platform/win32/NativeTextBox.h"

#include "base/Text.h"
#include "platform/win32/Annotation.h"
#include "platform/win32/GdiSurface.h"
#include "platform/win32/Reflection.h"
#include "platform/win32/WideText.h"

namespace orvik {
namespace {

constexpr WPARAM kSelectAll = 1;  // Ctrl+A as a character

bool IsWrapped(WidgetStyle style) {
  return style == WidgetStyle::Wrapped || style == WidgetStyle::Notice;
}

bool IsBare(WidgetStyle style) {
  return style == WidgetStyle::Bare || style == WidgetStyle::Notice;
}

ChildStyle ChildStyleOf(WidgetStyle style) {
  const DWORD lines = IsWrapped(style) ? ES_MULTILINE | ES_AUTOVSCROLL : ES_AUTOHSCROLL;
  return {L"EDIT", WS_TABSTOP | lines, IsBare(style) ? 0U : DWORD{WS_EX_CLIENTEDGE}};
}

}  // namespace

NativeTextBox::NativeTextBox(HINSTANCE module, HWND parent, WidgetStyle style)
    : NativeWidget(module, parent, ChildStyleOf(style)),
      wrapped_(IsWrapped(style)),
      bare_(IsBare(style)),
      announced_(style == WidgetStyle::Notice) {
  if (announced_) AnnounceChanges(Handle());
  ::SendMessageW(Handle(), EM_SETLIMITTEXT, 0, 0);  // as much as the control can hold
  BackColor(backColor_);
}

// --- Text ---

std::string NativeTextBox::Text() const {
  return WindowText();
}

void NativeTextBox::Text(std::string_view text) {
  if (!Handle() || text == Text()) return;
  isSetting_ = true;
  WindowText(text);
  isSetting_ = false;
  if (wrapped_) ShowScrollBarAsNeeded();
  if (announced_) Announce(Handle());
  if (OnChange) OnChange();
}

void NativeTextBox::FoldPastedLines() {
  const std::string text = Text();
  const std::string line = FoldLineEnds(text);
  if (line == text) return;
  DWORD caret = 0;
  ::SendMessageW(Handle(), EM_GETSEL, 0, reinterpret_cast<LPARAM>(&caret));
  const std::wstring before = WideFromUtf8(text).substr(0, caret);
  const auto at = static_cast<WPARAM>(WideFromUtf8(FoldLineEnds(Utf8FromWide(before))).size());
  isSetting_ = true;
  WindowText(line);
  isSetting_ = false;
  ::SendMessageW(Handle(), EM_SETSEL, at, static_cast<LPARAM>(at));
}

// --- State ---

bool NativeTextBox::Locked() const {
  return HasStyle(Handle(), ES_READONLY);
}

void NativeTextBox::Locked(bool locked) {
  if (locked != Locked()) ::SendMessageW(Handle(), EM_SETREADONLY, locked ? TRUE : FALSE, 0);
}

void NativeTextBox::ForeColor(Colour colour) {
  foreColor_ = colour;
  Repaint();
}

void NativeTextBox::BackColor(Colour colour) {
  backColor_ = colour;
  background_.reset(::CreateSolidBrush(DeviceColour(colour)));
  Repaint();
}

void NativeTextBox::Description(std::string_view description) {
  if (description == description_) return;
  description_ = description;
  Describe(Handle(), description);
}

void NativeTextBox::Repaint() const {
  ::RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}

// --- Frame ---

int NativeTextBox::LineHeight() const {
  const WindowDc dc(Handle());
  const auto font = reinterpret_cast<HFONT>(::SendMessageW(Handle(), WM_GETFONT, 0, 0));
  const Selection selected(dc.Get(), font ? font : ::GetStockObject(SYSTEM_FONT));
  TEXTMETRICW metrics{};
  ::GetTextMetricsW(dc.Get(), &metrics);
  return metrics.tmHeight;
}

LRESULT NativeTextBox::AnswerFrameSize(WPARAM wParam, LPARAM lParam) {
  const LRESULT answer = NativeWidget::Answer(WM_NCCALCSIZE, wParam, lParam);
  RECT& inner = wParam ? reinterpret_cast<NCCALCSIZE_PARAMS*>(lParam)->rgrc[0]
                       : *reinterpret_cast<RECT*>(lParam);
  const LONG room = inner.bottom - inner.top - (LineHeight() + 2);  // the control's own two pixels
  if (room > 0) {
    inner.top += room / 2;
    inner.bottom -= room - room / 2;
  }
  return answer;
}

LRESULT NativeTextBox::AnswerFramePaint(WPARAM wParam, LPARAM lParam) {
  const LRESULT answer = NativeWidget::Answer(WM_NCPAINT, wParam, lParam);
  RECT outer{};
  RECT inner{};
  ::GetWindowRect(Handle(), &outer);
  ::GetClientRect(Handle(), &inner);
  ::MapWindowPoints(Handle(), nullptr, reinterpret_cast<POINT*>(&inner), 2);
  ::OffsetRect(&inner, -outer.left, -outer.top);
  ::OffsetRect(&outer, -outer.left, -outer.top);
  if (!bare_) {
    ::InflateRect(&outer, -::GetSystemMetrics(SM_CXEDGE), -::GetSystemMetrics(SM_CYEDGE));
  }
  const HDC dc = ::GetWindowDC(Handle());
  ::ExcludeClipRect(dc, inner.left, inner.top, inner.right, inner.bottom);
  ::FillRect(dc, &outer, background_.get());
  ::ReleaseDC(Handle(), dc);
  return answer;
}

// A scroll bar with nothing to scroll would only take room.
void NativeTextBox::ShowScrollBarAsNeeded() const {
  RECT inner{};
  ::GetClientRect(Handle(), &inner);
  const LRESULT lines = ::SendMessageW(Handle(), EM_GETLINECOUNT, 0, 0);
  const bool isNeeded = lines * LineHeight() > inner.bottom;
  if (isNeeded != HasStyle(Handle(), WS_VSCROLL)) ::ShowScrollBar(Handle(), SB_VERT, isNeeded);
}

// --- Messages ---

LRESULT NativeTextBox::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CHAR:
      if (!AnswerCharacter(wParam)) return 0;
      break;
    case WM_GETDLGCODE:
      return AnswerKeyQuestion(NativeWidget::Answer(message, wParam, lParam),
                               reinterpret_cast<const MSG*>(lParam));
    case WM_SYSCOLORCHANGE:
      BackColor(backColor_);
      break;
    case kReflectedCommand:
      AnswerCommand(HIWORD(wParam));
      return 0;
    case kReflectedColour:
      return AnswerColour(reinterpret_cast<HDC>(wParam));
    case kCommitEdit:
      if (OnLeave) OnLeave();
      return 0;
    default:
      break;
  }
  return wrapped_ ? AnswerWrapped(message, wParam, lParam) : AnswerSingle(message, wParam, lParam);
}

LRESULT NativeTextBox::AnswerWrapped(UINT message, WPARAM wParam, LPARAM lParam) {
  const LRESULT answer = NativeWidget::Answer(message, wParam, lParam);
  if (message == WM_SIZE || message == WM_SETFONT) ShowScrollBarAsNeeded();
  return answer;
}

LRESULT NativeTextBox::AnswerSingle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCALCSIZE) return AnswerFrameSize(wParam, lParam);
  if (message == WM_NCPAINT) return AnswerFramePaint(wParam, lParam);
  const LRESULT answer = NativeWidget::Answer(message, wParam, lParam);
  if (message == WM_NCHITTEST) return HTCLIENT;  // its frame is part of the field
  if (message == WM_SETFONT) {
    // Its text begins where a label's would.
    if (bare_) ::SendMessageW(Handle(), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
    constexpr UINT kFrameOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;
    ::SetWindowPos(Handle(), nullptr, 0, 0, 0, 0, kFrameOnly | SWP_FRAMECHANGED);
  }
  return answer;
}

// False where the control must not see the character. An Enter that no handler takes is the
// window's.
bool NativeTextBox::AnswerCharacter(WPARAM& character) {
  if (OnKeyPress) {
    auto key = static_cast<std::int16_t>(character);
    OnKeyPress(key);
    character = static_cast<std::uint16_t>(key);
  }
  if (character == kSelectAll) {
    ::SendMessageW(Handle(), EM_SETSEL, 0, -1);
    return false;
  }
  if (character == VK_RETURN) {
    ::SendMessageW(::GetAncestor(Handle(), GA_ROOT), WM_COMMAND, IDOK, 0);
    return false;
  }
  return character != 0;
}

// Enter is a character of this field; Tab and Esc are the window's, also where several lines show.
LRESULT NativeTextBox::AnswerKeyQuestion(LRESULT systemAnswer, const MSG* key) const {
  LRESULT code = systemAnswer & ~static_cast<LRESULT>(DLGC_WANTALLKEYS | DLGC_WANTTAB);
  code |= DLGC_WANTCHARS | DLGC_WANTARROWS | DLGC_HASSETSEL;
  const bool isEnter = key && key->message == WM_KEYDOWN && key->wParam == VK_RETURN;
  return isEnter ? code | DLGC_WANTMESSAGE : code;
}

void NativeTextBox::AnswerCommand(WORD notification) {
  if (notification == EN_CHANGE && !isSetting_) {
    if (wrapped_) FoldPastedLines();
    if (wrapped_) ShowScrollBarAsNeeded();
    if (OnChange) OnChange();
  }
  if (notification == EN_KILLFOCUS && OnLeave) OnLeave();
}

LRESULT NativeTextBox::AnswerColour(HDC dc) const {
  ::SetTextColor(dc, DeviceColour(foreColor_));
  ::SetBkColor(dc, DeviceColour(backColor_));
  return reinterpret_cast<LRESULT>(background_.get());
}

}  // namespace orvik
