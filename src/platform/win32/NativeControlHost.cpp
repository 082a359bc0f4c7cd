#include "platform/win32/NativeControlHost.h"

#include <windowsx.h>

#include <algorithm>

#include "platform/win32/ExceptionText.h"
#include "platform/win32/SystemError.h"
#include "platform/win32/WideText.h"
#include "platform/win32/WindowState.h"
#include "platform/win32/WindowWall.h"

namespace orvik {
namespace {

constexpr std::int16_t kRightButton = 2;
constexpr std::int16_t kMiddleButton = 4;
constexpr UINT kRaiseEvents = WM_USER;

SIZE InnerSize(HWND window) {
  RECT inner{};
  ::GetClientRect(window, &inner);
  return {inner.right, inner.bottom};
}

// A control that cannot paint itself says why in its place. (A message box would uncover the
// control when it closes, which would paint again, fail again, and show the box again.)
void PaintException(HDC dc, const SIZE& size) {
  RECT area{0, 0, size.cx, size.cy};
  ::FillRect(dc, &area, ::GetSysColorBrush(COLOR_WINDOW));
  ::SetTextColor(dc, ::GetSysColor(COLOR_WINDOWTEXT));
  ::SetBkMode(dc, TRANSPARENT);
  const Selection font(dc, ::GetStockObject(DEFAULT_GUI_FONT));
  const std::wstring sentence = ExceptionText();
  ::DrawTextW(dc, sentence.c_str(), -1, &area, DT_WORDBREAK | DT_NOPREFIX);
}

}  // namespace

// --- Life ---

NativeControlHost::NativeControlHost(HINSTANCE module, HWND parent) : class_(Describe(module)) {
  window_ = ::CreateWindowExW(WS_EX_NOINHERITLAYOUT, class_.Name(), L"",
                              WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, 0, 0, parent, nullptr,
                              module, nullptr);
  if (!window_) ThrowSystemError("A control's window cannot be made");
  ::SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

NativeControlHost::~NativeControlHost() {
  if (!window_) return;
  ::SetWindowLongPtrW(window_, GWLP_USERDATA, 0);  // messages that still arrive are not for us
  accessible_.Close();
  screen_.reset();
  ::DestroyWindow(window_);
}

// The device context is the window's own, so that what is drawn between two paintings needs none
// to be fetched. No background: the control paints all of it.
WNDCLASSEXW NativeControlHost::Describe(HINSTANCE module) {
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  description.style = CS_OWNDC | CS_DBLCLKS;
  description.lpfnWndProc = &Procedure;
  description.hInstance = module;
  description.hCursor = ::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
  description.lpszClassName = L"OrvikDrawnControl";
  return description;
}

// --- As a widget ---

bool NativeControlHost::Visible() const {
  return IsShown(window_);
}

void NativeControlHost::Visible(bool visible) {
  Show(window_, visible);
}

bool NativeControlHost::Enabled() const {
  return IsEnabled(window_);
}

// The focus moves on first: a disabled window would keep it and no key would reach anything.
void NativeControlHost::Enabled(bool enabled) {
  if (!enabled && window_ && ::GetFocus() == window_) {
    ::SendMessageW(::GetAncestor(window_, GA_ROOT), WM_NEXTDLGCTL, FALSE, FALSE);
  }
  Enable(window_, enabled);
}

void NativeControlHost::Move(int left, int top, int width, int height) {
  Place(window_, left, top, width, height);
}

// --- What the control asks ---

void NativeControlHost::Invalidate() {
  HasChanged();
  ::InvalidateRect(window_, nullptr, FALSE);
}

void NativeControlHost::CaptureMouse() {
  ::SetCapture(window_);
}

void NativeControlHost::ReleaseMouse() {
  if (!window_ || ::GetCapture() != window_) return;
  isReleasing_ = true;
  ::ReleaseCapture();
  isReleasing_ = false;
}

Surface* NativeControlHost::DrawNow() {
  if (!window_ || !::IsWindowVisible(window_)) return nullptr;
  HasChanged();
  if (!screen_) screen_.emplace(::GetDC(window_));
  return &*screen_;
}

// --- Messages ---

LRESULT CALLBACK NativeControlHost::Procedure(HWND window, UINT message, WPARAM wParam,
                                              LPARAM lParam) {
  auto* host = reinterpret_cast<NativeControlHost*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!host) return ::DefWindowProcW(window, message, wParam, lParam);
  return WindowWall(window, [&] { return host->Answer(message, wParam, lParam); });
}

LRESULT NativeControlHost::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND window = window_;  // the handler may destroy the host
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_ERASEBKGND:
      return 1;  // painting covers all of it
    case WM_SIZE:
      if (OnResize) OnResize(LOWORD(lParam), HIWORD(lParam));
      Invalidate();
      return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      return AnswerFocus(message == WM_SETFOCUS);
    case WM_GETDLGCODE:
      return AnswerKeyQuestion(reinterpret_cast<const MSG*>(lParam));
    case WM_KEYDOWN:
      AnswerKeyDown(wParam, lParam);
      return 0;
    case WM_COPY:
      if (OnCopy) OnCopy();
      return 0;
    case BM_CLICK:
      Click();
      return 0;
    case kRaiseEvents:
      RaiseEvents();
      return 0;
    case WM_GETOBJECT:
      if (const auto object = accessible_.AnswerObject(window_, wParam, lParam)) return *object;
      break;
    case WM_SETFONT:
      AnswerFont(reinterpret_cast<HFONT>(wParam));
      return 0;
    case WM_GETFONT:
      return reinterpret_cast<LRESULT>(font_);
    case WM_GETTEXT:
    case WM_GETTEXTLENGTH:
      return AnswerText(message, wParam, lParam);
    case WM_KEYUP:
      if (OnKeyUp) OnKeyUp(static_cast<std::int16_t>(wParam));
      break;
    case WM_CAPTURECHANGED:
      if (!isReleasing_ && reinterpret_cast<HWND>(lParam) != window_ && OnCaptureLost) {
        OnCaptureLost();
      }
      return 0;
    case WM_ENABLE:
    case WM_UPDATEUISTATE:
      Invalidate();
      break;
    case WM_NCDESTROY:
      accessible_.Close();
      screen_.reset();
      ::SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
      window_ = nullptr;
      break;
    case WM_MOUSEWHEEL:
      if (AnswerWheel(wParam, lParam)) return 0;
      break;
    case WM_SETCURSOR:
      if (LOWORD(lParam) == HTCLIENT && ShowPointer()) return TRUE;
      break;
    default:
      if (WM_MOUSEMOVE <= message && message <= WM_MBUTTONDBLCLK) {
        AnswerMouse(message, lParam);
        // The system does not ask for the pointer while the mouse is captured.
        if (::GetWindowLongPtrW(window, GWLP_USERDATA) != 0) ShowPointer();
        return 0;
      }
      break;
  }
  return ::DefWindowProcW(window, message, wParam, lParam);
}

void NativeControlHost::AnswerMouse(UINT message, LPARAM position) {
  const double x = GET_X_LPARAM(position);
  const double y = GET_Y_LPARAM(position);
  switch (message) {
    case WM_MOUSEMOVE:
      if (OnMouseMove) OnMouseMove(x, y);
      break;
    case WM_LBUTTONDOWN:
      ::SetFocus(window_);
      Press(kLeftButton, x, y);
      break;
    case WM_LBUTTONDBLCLK:
      PressAgain(x, y);
      break;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
      Press(kRightButton, x, y);
      break;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
      Press(kMiddleButton, x, y);
      break;
    case WM_LBUTTONUP:
      Release(kLeftButton, x, y);
      break;
    case WM_RBUTTONUP:
      Release(kRightButton, x, y);
      break;
    case WM_MBUTTONUP:
      Release(kMiddleButton, x, y);
      break;
    default:
      break;
  }
}

// For a control without a double-click handler, two quick presses are two presses.
void NativeControlHost::PressAgain(double x, double y) {
  ::SetFocus(window_);
  if (OnDoubleClick) {
    OnDoubleClick();
  } else {
    Press(kLeftButton, x, y);
  }
}

// The message carries screen coordinates.
bool NativeControlHost::AnswerWheel(WPARAM turn, LPARAM position) {
  if (!OnMouseWheel) return false;
  POINT at{GET_X_LPARAM(position), GET_Y_LPARAM(position)};
  ::ScreenToClient(window_, &at);
  OnMouseWheel(GET_WHEEL_DELTA_WPARAM(turn) / double{WHEEL_DELTA}, at.x, at.y);
  if (window_ && ::ChildWindowFromPoint(window_, at)) ShowPointer();
  return true;
}

// The pointer, for a control that chooses its own.
bool NativeControlHost::ShowPointer() const {
  if (!Pointer) return false;
  const bool isHand = Pointer() == PointerShape::Hand;
  ::SetCursor(::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(isHand ? IDC_HAND : IDC_ARROW)));
  return true;
}

void NativeControlHost::Press(std::int16_t button, double x, double y) {
  if (OnMouseDown) OnMouseDown(button, x, y);
}

void NativeControlHost::Release(std::int16_t button, double x, double y) {
  if (OnMouseUp) OnMouseUp(button, x, y);
}

LRESULT NativeControlHost::AnswerFocus(bool gained) {
  if (gained && OnGotFocus) OnGotFocus();
  if (!gained && OnLostFocus) OnLostFocus();
  Invalidate();  // the focus is marked
  return 0;
}

// Which keys come here instead of moving the focus on: asked in general, or for one key message.
LRESULT NativeControlHost::AnswerKeyQuestion(const MSG* key) const {
  LRESULT code = Wants(VK_LEFT) ? DLGC_WANTARROWS : 0;
  if (OnMnemonic) code |= DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
  if (Wants(VK_SPACE)) code |= DLGC_WANTCHARS;
  if (key && (key->message == WM_KEYDOWN || key->message == WM_KEYUP) && Wants(key->wParam)) {
    code |= DLGC_WANTMESSAGE;
  }
  return code;
}

// A key that is held down presses a button once, but keeps moving a point.
void NativeControlHost::AnswerKeyDown(WPARAM keyCode, LPARAM details) {
  const bool isRepeated = (details & (LPARAM{KF_REPEAT} << 16)) != 0;
  if (isRepeated && OnMnemonic) return;
  const auto isDown = [](int key) { return ::GetKeyState(key) < 0; };
  if (keyCode == 'C' && isDown(VK_CONTROL) && !isDown(VK_SHIFT) && !isDown(VK_MENU)) {
    ::SendMessageW(window_, WM_COPY, 0, 0);
  } else if (OnKeyDown) {
    OnKeyDown(static_cast<std::int16_t>(keyCode));
  }
}

bool NativeControlHost::Wants(WPARAM keyCode) const {
  return WantsKey && WantsKey(static_cast<std::int16_t>(keyCode));
}

// A press without the mouse takes the focus as well, so that the field that loses it is processed
// first.
void NativeControlHost::Click() {
  if (!OnMnemonic || !Enabled()) return;
  ::SetFocus(window_);
  if (OnMnemonic && Enabled()) OnMnemonic();  // leaving a field may have disabled it
}

// --- For listeners ---

// Repainted, the control may describe itself differently; it is enough to ask once all is painted.
void NativeControlHost::HasChanged() {
  if (window_ && !isRaisingPosted_) isRaisingPosted_ = ::PostMessageW(window_, kRaiseEvents, 0, 0);
}

void NativeControlHost::RaiseEvents() {
  isRaisingPosted_ = false;
  accessible_.RaiseEvents(window_);
}

// --- Texts ---

void NativeControlHost::AnswerFont(HFONT font) {
  font_ = font;
  LOGFONTW description{};
  if (!OnFont || ::GetObjectW(font, sizeof description, &description) == 0) return;
  Font reported;
  reported.face = Utf8FromWide(description.lfFaceName);
  reported.pixelHeight = description.lfHeight < 0 ? -description.lfHeight : description.lfHeight;
  OnFont(reported);
}

// Read by the search for mnemonics, and by programs that know no more of the window than its text.
LRESULT NativeControlHost::AnswerText(UINT message, WPARAM size, LPARAM buffer) const {
  const Spoken spoken = Announcement();
  const std::wstring text =
      WideFromUtf8(spoken.value.empty() ? spoken.name : spoken.name + ": " + spoken.value);
  if (message == WM_GETTEXTLENGTH) return static_cast<LRESULT>(text.size());
  if (size == 0) return 0;
  auto* place = reinterpret_cast<wchar_t*>(buffer);
  const std::size_t length = text.copy(place, size - 1);
  place[length] = L'\0';
  return static_cast<LRESULT>(length);
}

// --- Painting ---

// Always the whole control: transient marks outside the update region would stay.
void NativeControlHost::Paint() {
  Invalidate();
  const PaintScope paint(window_);
  const SIZE size = InnerSize(window_);
  const MemoryDc memory(::CreateCompatibleDC(paint.Dc()));
  const GdiObject<HBITMAP> picture(
      ::CreateCompatibleBitmap(paint.Dc(), std::max(size.cx, 1L), std::max(size.cy, 1L)));
  if (!memory || !picture) return PaintOn(paint.Dc(), size);
  const Selection selected(memory.get(), picture.get());
  PaintOn(memory.get(), size);
  ::BitBlt(paint.Dc(), 0, 0, size.cx, size.cy, memory.get(), 0, 0, SRCCOPY);
}

void NativeControlHost::PaintOn(HDC dc, const SIZE& size) {
  try {
    GdiSurface surface(dc);
    if (OnPaint) OnPaint(surface);
  } catch (...) {
    PaintException(dc, size);
  }
  DrawFocus(dc, size);
}

// Inside the two rings of a control's edge, where the user works with keys. A control alone in its
// window needs no mark.
void NativeControlHost::DrawFocus(HDC dc, const SIZE& size) const {
  constexpr int kEdge = 2;
  if (::GetFocus() != window_) return;
  if (::GetNextDlgTabItem(::GetAncestor(window_, GA_ROOT), window_, FALSE) == window_) return;
  if ((::SendMessageW(window_, WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS) != 0) return;
  const RECT area{kEdge, kEdge, size.cx - kEdge, size.cy - kEdge};
  ::DrawFocusRect(dc, &area);
}

}  // namespace orvik
