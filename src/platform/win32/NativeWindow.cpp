#include "platform/win32/NativeWindow.h"

#include <shellapi.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "platform/win32/Dpi.h"
#include "platform/win32/FormLayout.h"
#include "platform/win32/Reflection.h"
#include "platform/win32/SystemError.h"
#include "platform/win32/WideText.h"
#include "platform/win32/WindowState.h"
#include "platform/win32/WindowWall.h"

namespace orvik {
namespace {

constexpr int kUsualDpi = 96;

RECT WorkAreaOf(HWND window) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  ::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
  return monitor.rcWork;
}

// What a user asks of the window. Another program can send it too while a message box is open over
// the window; the box has to be answered first.
bool IsUserRequest(UINT message) {
  return message == WM_COMMAND || message == WM_CLOSE || message == WM_DROPFILES;
}

BOOL CALLBACK Forward(HWND child, LPARAM message) {
  ::SendMessageW(child, static_cast<UINT>(message), 0, 0);
  return TRUE;
}

DWORD StyleOf(WindowFrame frame) {
  switch (frame) {
    case WindowFrame::Main:
      return WS_OVERLAPPEDWINDOW;
    case WindowFrame::Sizable:
      return WS_OVERLAPPEDWINDOW & ~static_cast<DWORD>(WS_MINIMIZEBOX);
    case WindowFrame::FixedSize:
      return WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU;
  }
  return WS_OVERLAPPEDWINDOW;
}

SIZE SizeOf(const RECT& area) {
  return {area.right - area.left, area.bottom - area.top};
}

SIZE Smaller(SIZE a, SIZE b) {
  return {std::min(a.cx, b.cx), std::min(a.cy, b.cy)};
}

}  // namespace

// --- Life ---

NativeWindow::NativeWindow(HINSTANCE module, const FormDesign& design)
    : design_(design), class_(Describe(module)), font_(kUsualDpi) {
  window_ =
      ::CreateWindowExW(WS_EX_CONTROLPARENT | WS_EX_NOINHERITLAYOUT, class_.Name(), L"",
                        StyleOf(design.Frame()) | WS_CLIPCHILDREN, CW_USEDEFAULT, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, module, nullptr);
  if (!window_) ThrowSystemError("The window cannot be made");
  ::SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  font_ = MessageFont(DpiOf(window_));
  menu_ = std::make_shared<NativeMenuBar>(window_, design_);
}

NativeWindow::~NativeWindow() {
  menu_->Detach();
  if (!window_) return;
  ::SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  ::DestroyWindow(window_);
}

WNDCLASSEXW NativeWindow::Describe(HINSTANCE module) {
  constexpr int kIcon = 1;
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  description.lpfnWndProc = &Procedure;
  description.hInstance = module;
  description.hIcon = ::LoadIconW(module, MAKEINTRESOURCEW(kIcon));
  description.hCursor = ::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
  description.hbrBackground = ::GetSysColorBrush(COLOR_BTNFACE);
  description.lpszClassName = L"OrvikForm";
  return description;
}

// --- As a widget ---

bool NativeWindow::Visible() const {
  return IsShown(window_);
}

// Hiding ends ShowModally: the host's windows are enabled before ours hides, and the loop is woken.
void NativeWindow::Visible(bool visible) {
  if (!visible && host_) host_->Release();
  ::ShowWindow(window_, visible ? SW_SHOW : SW_HIDE);
  if (!visible) ::PostMessageW(window_, WM_NULL, 0, 0);
}

bool NativeWindow::Enabled() const {
  return IsEnabled(window_);
}

void NativeWindow::Enabled(bool enabled) {
  Enable(window_, enabled);
}

void NativeWindow::Move(int left, int top, int width, int height) {
  Place(window_, left, top, width, height);
}

std::string NativeWindow::Caption() const {
  std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window_)), L'\0');
  const int length = ::GetWindowTextW(window_, text.data(), static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(length));
  return Utf8FromWide(text);
}

void NativeWindow::Caption(std::string_view caption) {
  ::SetWindowTextW(window_, WideFromUtf8(caption).c_str());
}

// --- Modal showing ---

void NativeWindow::ShowModally() {
  if (host_) throw std::logic_error("The window is shown already.");
  const ThreadDpiScope scaling;
  host_ = std::make_unique<ModalHost>(window_);
  try {
    Prepare();
    CentreOver(host_->Owner());
    LayOut();
    ::ShowWindow(window_, SW_SHOW);
    ::SetForegroundWindow(window_);
    FocusFirst();
    Loop();
  } catch (...) {
    Visible(false);
    std::exchange(host_, nullptr)->RestoreFocus();
    throw;
  }
  std::exchange(host_, nullptr)->RestoreFocus();
}

void NativeWindow::Prepare() {
  ApplyOrder(window_, design_);
  menu_->Attach();
  ::DragAcceptFiles(window_, OnDropFile ? TRUE : FALSE);
  SetFont(DpiOf(window_));
}

void NativeWindow::CentreOver(HWND owner) {
  const RECT room = WorkAreaOf(owner ? owner : window_);
  // On the owner's monitor first, whose scaling may be another.
  Move(room.left, room.top, room.right - room.left, room.bottom - room.top);
  if (const int dpi = DpiOf(window_); dpi != font_.Dpi()) SetFont(dpi);
  const Size inner = design_.InitialSize(font_.Measures());
  const SIZE size =
      Smaller(OuterSize(window_, {inner.width, inner.height}, font_.Dpi()), SizeOf(room));
  RECT over = room;
  if (owner && !::IsIconic(owner)) ::GetWindowRect(owner, &over);
  const auto place = [](LONG from, LONG to, LONG length, LONG least, LONG most) {
    return static_cast<int>(std::clamp((from + to - length) / 2, least, std::max(least, most)));
  };
  Move(place(over.left, over.right, size.cx, room.left, room.right - size.cx),
       place(over.top, over.bottom, size.cy, room.top, room.bottom - size.cy),
       static_cast<int>(size.cx), static_cast<int>(size.cy));
}

// If the design names none, the first field of the page that shows; the toolbar above it is reached
// backwards.
void NativeWindow::FocusFirst() const {
  if (const HWND named = FindControl(window_, design_, design_.FirstFocus())) {
    ::SetFocus(named);
    return;
  }
  for (HWND panel = ::GetWindow(window_, GW_CHILD); panel;
       panel = ::GetWindow(panel, GW_HWNDNEXT)) {
    if (::IsWindowVisible(panel)) {
      const HWND first = ::GetNextDlgTabItem(panel, nullptr, FALSE);
      if (first) ::SetFocus(first);
    }
  }
}

void NativeWindow::Loop() {
  MSG message{};
  while (window_ && Visible()) {
    const BOOL got = ::GetMessageW(&message, nullptr, 0, 0);
    if (got <= 0) {  // WM_QUIT: left to the thread's own loop
      Visible(false);
      if (got == 0) ::PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    if (IsOurs(message)) {
      if (const WORD command = menu_->CommandOfKey(message)) {
        ::SendMessageW(window_, WM_COMMAND, command, 0);
        continue;
      }
      if (::IsDialogMessageW(window_, &message)) continue;
    }
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}

bool NativeWindow::IsOurs(const MSG& message) const {
  return message.hwnd == window_ || ::IsChild(window_, message.hwnd);
}

// --- Messages ---

LRESULT CALLBACK NativeWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* self = reinterpret_cast<NativeWindow*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!self) return ::DefWindowProcW(window, message, wParam, lParam);
  return WindowWall(window, [&] { return self->Answer(message, wParam, lParam); });
}

LRESULT NativeWindow::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto answer = Reflect(message, wParam, lParam)) return *answer;
  if (IsUserRequest(message) && !Enabled()) return Refuse(message, wParam);
  switch (message) {
    case WM_COMMAND:
      AnswerCommand(LOWORD(wParam));
      return 0;
    case WM_CLOSE:
      AnswerClose();
      return 0;
    case WM_SIZE:
      if (wParam != SIZE_MINIMIZED && Visible()) LayOut();
      return 0;
    case WM_GETMINMAXINFO:
      LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam));
      return 0;
    case WM_ACTIVATE:
      if (AnswerActivation(LOWORD(wParam) != WA_INACTIVE)) return 0;  // else the system takes it
      break;
    case WM_SETFOCUS:
      // From one of our own controls, as when its page is hidden, this is no return from another
      // window.
      if (!::IsChild(window_, reinterpret_cast<HWND>(wParam))) AnswerActivation(true);
      return 0;
    case WM_NEXTDLGCTL:
      MoveFocus(wParam, LOWORD(lParam) != 0);
      return 0;
    case WM_DPICHANGED:
      AnswerScaling(HIWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
      return 0;
    case WM_SETTINGCHANGE:
      SetFont(font_.Dpi());
      LayOut();
      break;
    case WM_SYSCOLORCHANGE:
      ForwardToDescendants(message);
      break;
    case WM_DROPFILES:
      AnswerDrop(wParam);
      return 0;
    case WM_NCDESTROY:
      menu_->Detach();
      ::SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
      ::PostThreadMessageW(::GetCurrentThreadId(), WM_NULL, 0, 0);  // wakes the loop
      return ::DefWindowProcW(std::exchange(window_, nullptr), message, wParam, lParam);
    default:
      break;
  }
  return ::DefWindowProcW(window_, message, wParam, lParam);
}

// The system sends such notices to top-level windows only.
void NativeWindow::ForwardToDescendants(UINT message) const {
  ::EnumChildWindows(window_, &Forward, static_cast<LPARAM>(message));
}

// The receiver frees the names of dropped files, even if it has no use for them.
LRESULT NativeWindow::Refuse(UINT message, WPARAM wParam) {
  if (message == WM_DROPFILES) ::DragFinish(reinterpret_cast<HDROP>(wParam));
  return 0;
}

void NativeWindow::AnswerCommand(WORD command) {
  if (command == IDOK) {
    if (OnAccept) OnAccept();
    return;
  }
  if (command == IDCANCEL) {  // Esc
    if (OnCancel) OnCancel();
    return;
  }
  CommitEdit();
  menu_->Run(command);
}

// A command uses the fields' texts, including what was typed last: the field being edited counts as
// left.
void NativeWindow::CommitEdit() const {
  const HWND focus = ::GetFocus();
  if (::IsChild(window_, focus)) ::SendMessageW(focus, kCommitEdit, 0, 0);
}

// Closing only hides the window, since its fields hold the project; the destructor destroys it.
void NativeWindow::AnswerClose() {
  CommitEdit();
  bool cancel = false;
  if (OnQueryUnload) OnQueryUnload(cancel);
  if (!cancel) Visible(false);
}

// True where the focus was returned to the control that had it.
bool NativeWindow::AnswerActivation(bool active) {
  if (!active) {
    const HWND focus = ::GetFocus();
    if (::IsChild(window_, focus)) lastFocus_ = focus;
    return false;
  }
  const bool canReturn = ::IsChild(window_, lastFocus_) && ::IsWindowVisible(lastFocus_) &&
                         ::IsWindowEnabled(lastFocus_);
  if (canReturn) ::SetFocus(lastFocus_);
  return canReturn;
}

// A mnemonic moves the focus to its label, and from there to the field after it. `target` is a
// control, or whether to go backwards.
void NativeWindow::MoveFocus(WPARAM target, bool isControl) const {
  const HWND control = isControl ? reinterpret_cast<HWND>(target)
                                 : ::GetNextDlgTabItem(window_, ::GetFocus(), target != 0);
  if (!control) return;
  ::SetFocus(control);
  if ((::SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0) {
    ::SendMessageW(control, EM_SETSEL, 0, -1);
  }
}

void NativeWindow::AnswerDrop(WPARAM parameter) {
  const auto drop = reinterpret_cast<HDROP>(parameter);
  std::wstring path(::DragQueryFileW(drop, 0, nullptr, 0) + std::size_t{1}, L'\0');
  const UINT length = ::DragQueryFileW(drop, 0, path.data(), static_cast<UINT>(path.size()));
  path.resize(length);
  ::DragFinish(drop);
  CommitEdit();
  if (!path.empty() && OnDropFile) OnDropFile(Utf8FromWide(path));
}

// --- Size and scaling ---

void NativeWindow::AnswerScaling(int dpi, const RECT& suggested) {
  SetFont(dpi);
  Move(suggested.left, suggested.top, suggested.right - suggested.left,
       suggested.bottom - suggested.top);
  LayOut();
}

// The controls get the new font before the old one is deleted.
void NativeWindow::SetFont(int dpi) {
  MessageFont next(dpi);
  ApplyFont(window_, design_, next);
  font_ = std::move(next);
}

// A window may be no smaller than its contents need, nor larger than the screen because of it.
void NativeWindow::LimitSize(MINMAXINFO& limits) const {
  const Size inner = design_.MinimumSize(font_.Measures());
  const SIZE least = Smaller(OuterSize(window_, {inner.width, inner.height}, font_.Dpi()),
                             SizeOf(WorkAreaOf(window_)));
  limits.ptMinTrackSize = {least.cx, least.cy};
}

void NativeWindow::LayOut() const {
  ApplyLayout(window_, design_, font_);
}

}  // namespace orvik
