// A user at the main window, whichever process shows it: what one sees there, and what one does
// with the mouse and the keyboard.
#pragma once

#include <windows.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FormDesign.h"

namespace orvik::test {

// A key and what is held with it.
struct Key {
  WORD code;
  std::vector<WORD> held;
};

class FormUser {
 public:
  // Waits for a main window that is shown and active, of the process or (0) of any. Throws where
  // none comes.
  static FormUser WaitFor(DWORD process = 0);

  explicit FormUser(HWND window);
  FormUser(HWND window, const FormDesign& design);
  FormUser(const FormUser& other) : FormUser(other.Window(), *other.design_) {}
  FormUser& operator=(const FormUser&) = delete;
  ~FormUser() = default;

  // --- What a user sees ---

  HWND Window() const { return window_; }
  DWORD Thread() const { return thread_id_; }
  HWND Find(std::string_view widget) const;
  std::string Text(std::string_view widget) const;
  bool IsVisible(std::string_view widget) const;
  std::string Caption() const;
  std::vector<std::string> Menus() const;  // the captions of the menu bar
  std::string Focus() const;  // the widget that has the keyboard; empty for none of ours

  // The dialog or message box that stands over the window, once there is one, or another window of
  // the module.
  HWND Dialog() const;

  // Waits for a window of the module with this caption over this one, shown and active. Throws
  // where none comes.
  FormUser WaitForWindow(std::string_view caption, const FormDesign& design) const;

  // Waits until nothing stands over the window any more: it is active, and works.
  bool UntilBack() const;

  // Waits until it is so; false where it does not come about in time.
  static constexpr std::chrono::seconds kDeadline{20};
  bool Until(const std::function<bool()>& isSo, std::chrono::seconds deadline = kDeadline) const;
  bool UntilText(std::string_view widget, std::string_view text) const;

  // --- What a user does ---

  void Click(std::string_view widget);
  void Press(const Key& key) const;
  void TypeText(std::string_view text) const;                // where the keyboard is
  void Type(std::string_view field, std::string_view text);  // in place of what is there
  void DropDown(std::string_view list);                      // and leaves it open
  void Choose(std::string_view list, std::string_view item);
  void Drag(std::string_view widget, POINT from, POINT to);        // pixels of the widget
  void TurnWheel(std::string_view widget, POINT at, int notches);  // away from the user
  void DoubleClick(std::string_view widget);
  void ClickMenu(std::string_view item);
  void CloseByFrame();

  // Answers a dialog by the number of its button, after writing into its field for a file name.
  void AnswerDialog(int button, std::string_view fileName = {});

 protected:
  FormUser();  // of the main window, before it is made

  void Watch(HWND window);

 private:
  bool TryToType(std::string_view field, std::string_view text);

  const FormDesign* design_;
  std::atomic<HWND> window_{nullptr};
  std::atomic<DWORD> thread_id_{0};
};

// The texts of a window and of one of its menu's items.
std::string TextOf(HWND window);

// Waits for a message box of this title, presses its OK and tells its text; empty where none comes.
std::string ReadMessage(std::string_view title);

// The text on the clipboard; empty while another program has it.
std::string ClipboardText();

// 0x00RRGGBB at a point of the window, as it is on the screen.
std::uint32_t ColourAt(HWND window, POINT at);

// Writes a picture of the window, with its frame, as it is on the screen.
void Screenshot(HWND window, const std::string& path);

}  // namespace orvik::test
