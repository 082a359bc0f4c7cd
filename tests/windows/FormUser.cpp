#include "FormUser.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <thread>

#include "MemoryScreen.h"
#include "PngFile.h"
#include "platform/win32/Dpi.h"
#include "platform/win32/FormLayout.h"
#include "platform/win32/WideText.h"
#include "shell/MainWindowDesign.h"
#include "shell/MainWindowTable.h"

namespace orvik::test {
namespace {

constexpr std::chrono::seconds kDeadline = FormUser::kDeadline;
constexpr std::chrono::seconds kPatience{4};  // before a user tries again

INPUT KeyEvent(WORD code, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = (flags & KEYEVENTF_UNICODE) != 0 ? WORD{0} : code;
  input.ki.wScan = (flags & KEYEVENTF_UNICODE) != 0
                       ? code
                       : static_cast<WORD>(::MapVirtualKeyW(code, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = flags;
  return input;
}

// All in one call: between two, the system may set the keys that are held to those of its keyboard.
void Send(std::vector<INPUT> events) {
  ::SendInput(static_cast<UINT>(events.size()), events.data(), sizeof(INPUT));
}

// Moves to a point of the window and presses or lets go a button there, or turns the wheel (0:
// nothing of all this), in one event: after SetCursorPos the system may still report where the
// pointer was before.
void MouseEventAt(HWND window, POINT at, DWORD action, int turn = 0) {
  constexpr int kWhole = 65536;  // of the screen's width and height
  ::ClientToScreen(window, &at);
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = static_cast<LONG>((at.x * kWhole + kWhole / 2) / ::GetSystemMetrics(SM_CXSCREEN));
  input.mi.dy = static_cast<LONG>((at.y * kWhole + kWhole / 2) / ::GetSystemMetrics(SM_CYSCREEN));
  input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | action;
  input.mi.mouseData = static_cast<DWORD>(turn);
  ::SendInput(1, &input, sizeof input);
}

void ClickAt(HWND window, POINT at) {
  MouseEventAt(window, at, MOUSEEVENTF_LEFTDOWN);
  MouseEventAt(window, at, MOUSEEVENTF_LEFTUP);
}

struct DialogSearch {
  HWND owner;
  HWND found = nullptr;
};

BOOL CALLBACK FindDialog(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<DialogSearch*>(parameter);
  std::array<wchar_t, 16> name{};
  ::GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  const std::wstring_view kind(name.data());
  const bool isOurs = kind == L"OrvikForm" && ::GetWindow(window, GW_OWNER) == search.owner;
  if (!::IsWindowVisible(window) || (kind != L"#32770" && !isOurs)) return TRUE;
  search.found = window;
  return FALSE;
}

}  // namespace

std::string TextOf(HWND window) {
  const LRESULT length = ::SendMessageW(window, WM_GETTEXTLENGTH, 0, 0);
  std::wstring text(static_cast<std::size_t>(length), L'\0');
  const LRESULT read = ::SendMessageW(window, WM_GETTEXT, static_cast<WPARAM>(length + 1),
                                      reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(read));
  return Utf8FromWide(text);
}

FormUser::FormUser() : design_(&MainWindowDesign::Get()) {}

FormUser::FormUser(HWND window) : FormUser(window, MainWindowDesign::Get()) {}

FormUser::FormUser(HWND window, const FormDesign& design) : design_(&design) {
  Watch(window);
}

// The pointer of the screen itself, which clicks do not move, goes into a corner: a window or a
// list that came up under it would take it for a move of the mouse.
void FormUser::Watch(HWND window) {
  ::SetCursorPos(0, ::GetSystemMetrics(SM_CYSCREEN) - 1);
  thread_id_ = ::GetWindowThreadProcessId(window, nullptr);
  window_ = window;
}

FormUser FormUser::WaitFor(DWORD process) {
  const auto end = std::chrono::steady_clock::now() + kDeadline;
  while (std::chrono::steady_clock::now() < end) {
    DWORD owner = 0;
    const HWND window = ::FindWindowW(L"OrvikForm", nullptr);
    ::GetWindowThreadProcessId(window, &owner);
    const bool isIt = window && ::IsWindowVisible(window) && ::GetForegroundWindow() == window;
    if (isIt && (process == 0 || owner == process)) return FormUser(window);
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  throw std::runtime_error("The window does not come up.");
}

// --- What a user sees ---

HWND FormUser::Find(std::string_view widget) const {
  return FindControl(window_, *design_, widget);
}

std::string FormUser::Text(std::string_view widget) const {
  return TextOf(Find(widget));
}

bool FormUser::IsVisible(std::string_view widget) const {
  return ::IsWindowVisible(Find(widget)) != FALSE;
}

std::string FormUser::Caption() const {
  return TextOf(window_);
}

std::vector<std::string> FormUser::Menus() const {
  std::vector<std::string> captions;
  const HMENU bar = ::GetMenu(window_);
  for (int i = 0; i < ::GetMenuItemCount(bar); ++i) {
    std::array<wchar_t, 40> caption{};
    ::GetMenuStringW(bar, static_cast<UINT>(i), caption.data(), static_cast<int>(caption.size()),
                     MF_BYPOSITION);
    captions.push_back(Utf8FromWide(caption.data()));
  }
  return captions;
}

std::string FormUser::Focus() const {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  ::GetGUIThreadInfo(thread_id_, &info);
  for (const WidgetDesign& widget : design_->Widgets()) {
    const HWND control = Find(widget.name);
    if (control && control == info.hwndFocus) return std::string(widget.name);
  }
  return {};
}

HWND FormUser::Dialog() const {
  DialogSearch search{window_};
  ::EnumThreadWindows(thread_id_, &FindDialog, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

FormUser FormUser::WaitForWindow(std::string_view caption, const FormDesign& design) const {
  HWND opened = nullptr;
  const bool isOpen = Until([&] {
    opened = Dialog();
    return opened && TextOf(opened) == caption && ::GetForegroundWindow() == opened;
  });
  if (!isOpen) throw std::runtime_error("There is no window " + std::string(caption));
  return FormUser(opened, design);
}

bool FormUser::UntilBack() const {
  return Until([this] {
    return !Dialog() && ::IsWindowEnabled(window_) && ::GetForegroundWindow() == window_;
  });
}

bool FormUser::Until(const std::function<bool()>& isSo, std::chrono::seconds deadline) const {
  const auto end = std::chrono::steady_clock::now() + deadline;
  while (std::chrono::steady_clock::now() < end) {
    if (isSo()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return isSo();
}

bool FormUser::UntilText(std::string_view widget, std::string_view text) const {
  return Until([&] { return Text(widget) == text; });
}

// --- What a user does ---

void FormUser::Click(std::string_view widget) {
  const HWND control = Find(widget);
  RECT inner{};
  ::GetClientRect(control, &inner);
  ClickAt(control, {inner.right / 2, inner.bottom / 2});
}

void FormUser::Press(const Key& key) const {
  std::vector<INPUT> events;
  for (const WORD held : key.held) events.push_back(KeyEvent(held, 0));
  events.push_back(KeyEvent(key.code, 0));
  events.push_back(KeyEvent(key.code, KEYEVENTF_KEYUP));
  for (const WORD held : key.held) events.push_back(KeyEvent(held, KEYEVENTF_KEYUP));
  Send(std::move(events));
}

void FormUser::TypeText(std::string_view text) const {
  std::vector<INPUT> events;
  for (const wchar_t unit : WideFromUtf8(text)) {
    events.push_back(KeyEvent(unit, KEYEVENTF_UNICODE));
    events.push_back(KeyEvent(unit, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP));
  }
  Send(std::move(events));
}

bool FormUser::TryToType(std::string_view field, std::string_view text) {
  Click(field);
  if (!Until([&] { return Focus() == field; }, kPatience)) return false;
  Press({'A', {VK_CONTROL}});
  Press({VK_DELETE, {}});
  TypeText(text);
  return Until([&] { return Text(field) == text; }, kPatience);
}

// Like a user who looks at the field and types again where a click or a key got lost on the way.
void FormUser::Type(std::string_view field, std::string_view text) {
  constexpr int kTries = 5;
  for (int i = 0; i < kTries; ++i) {
    if (TryToType(field, text)) return;
  }
  throw std::runtime_error(std::string(field) + " shows " + Text(field) + ", the keyboard is at " +
                           Focus());
}

void FormUser::DropDown(std::string_view list) {
  Click(list);
  const HWND box = Find(list);
  if (!Until([&] { return ::SendMessageW(box, CB_GETDROPPEDSTATE, 0, 0) != 0; })) {
    throw std::runtime_error(std::string(list) + " does not drop down");
  }
}

// The list drops down, and the arrow keys go to the item, one step after the other has shown.
void FormUser::Choose(std::string_view list, std::string_view item) {
  DropDown(list);
  const HWND box = Find(list);
  const auto marked = [&] { return ::SendMessageW(box, CB_GETCURSEL, 0, 0); };
  const LRESULT index = ::SendMessageW(box, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                       reinterpret_cast<LPARAM>(WideFromUtf8(item).c_str()));
  for (LRESULT at = marked(); at != index; at = marked()) {
    Press({static_cast<WORD>(at < index ? VK_DOWN : VK_UP), {}});
    if (!Until([&] { return marked() != at; })) break;
  }
  Press({VK_RETURN, {}});
  const bool isChosen = Until(
      [&] { return ::SendMessageW(box, CB_GETDROPPEDSTATE, 0, 0) == 0 && Text(list) == item; });
  if (!isChosen) throw std::runtime_error(std::string(list) + " shows " + Text(list));
}

void FormUser::Drag(std::string_view widget, POINT from, POINT to) {
  const HWND control = Find(widget);
  MouseEventAt(control, from, MOUSEEVENTF_LEFTDOWN);
  MouseEventAt(control, {(from.x + to.x) / 2, (from.y + to.y) / 2}, 0);
  MouseEventAt(control, to, 0);
  MouseEventAt(control, to, MOUSEEVENTF_LEFTUP);
}

void FormUser::TurnWheel(std::string_view widget, POINT at, int notches) {
  for (int i = 0; i < std::abs(notches); ++i) {
    MouseEventAt(Find(widget), at, MOUSEEVENTF_WHEEL, notches > 0 ? WHEEL_DELTA : -WHEEL_DELTA);
  }
}

void FormUser::DoubleClick(std::string_view widget) {
  Click(widget);
  Click(widget);
}

void FormUser::ClickMenu(std::string_view item) {
  for (WORD command = 0x1000; command < 0x1200; ++command) {
    const auto index = static_cast<std::size_t>(command - 0x1001);
    if (index >= MainWindowWidgets().size()) continue;
    if (MainWindowWidgets()[index].name == item) {
      ::PostMessageW(window_, WM_COMMAND, command, 0);
      return;
    }
  }
  throw std::out_of_range("There is no menu item " + std::string(item));
}

void FormUser::CloseByFrame() {
  ::PostMessageW(window_, WM_SYSCOMMAND, SC_CLOSE, 0);
}

void FormUser::AnswerDialog(int button, std::string_view fileName) {
  constexpr std::array<int, 2> kNameFields{0x480, 0x47C};  // edt1, cmb13
  if (!Until([this] { return Dialog() != nullptr; })) throw std::runtime_error("No dialog comes.");
  const HWND dialog = Dialog();
  for (const int number : kNameFields) {
    const HWND field = ::GetDlgItem(dialog, number);
    if (fileName.empty() || !field || !::IsWindowVisible(field)) continue;
    ::SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(WideFromUtf8(fileName).c_str()));
    break;
  }
  ::PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
}

std::string ReadMessage(std::string_view title) {
  constexpr int kText = 0xFFFF;  // the number of a message box's text
  const std::wstring wanted = WideFromUtf8(title);
  const auto end = std::chrono::steady_clock::now() + kDeadline;
  while (std::chrono::steady_clock::now() < end) {
    const HWND box = ::FindWindowW(L"#32770", wanted.c_str());
    const HWND text = box ? ::GetDlgItem(box, kText) : nullptr;
    if (text && ::IsWindowVisible(box)) {
      const std::string told = TextOf(text);
      ::PostMessageW(box, WM_COMMAND, IDOK, 0);
      while (::IsWindow(box) && std::chrono::steady_clock::now() < end) ::Sleep(1);
      return told;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return {};
}

// --- Clipboard ---

std::string ClipboardText() {
  if (!::OpenClipboard(nullptr)) return {};
  std::string text;
  const HANDLE memory = ::GetClipboardData(CF_UNICODETEXT);
  if (const auto* wide = static_cast<const wchar_t*>(memory ? ::GlobalLock(memory) : nullptr)) {
    text = Utf8FromWide(wide);
    ::GlobalUnlock(memory);
  }
  ::CloseClipboard();
  return text;
}

// --- Pictures ---

std::uint32_t ColourAt(HWND window, POINT at) {
  const ThreadDpiScope scaling;
  ::ClientToScreen(window, &at);
  const MemoryScreen copy({1, 1});
  const WindowDc screen(nullptr);
  ::BitBlt(copy.Dc(), 0, 0, 1, 1, screen.Get(), at.x, at.y, SRCCOPY);
  return copy.At({0, 0});
}

void Screenshot(HWND window, const std::string& path) {
  const ThreadDpiScope scaling;
  RECT outer{};
  ::GetWindowRect(window, &outer);
  const int width = static_cast<int>(outer.right - outer.left);
  const int height = static_cast<int>(outer.bottom - outer.top);
  const MemoryScreen copy({width, height});
  const WindowDc screen(nullptr);
  ::BitBlt(copy.Dc(), 0, 0, width, height, screen.Get(), outer.left, outer.top, SRCCOPY);
  WritePng(path, copy.Pixels());
}

}  // namespace orvik::test
