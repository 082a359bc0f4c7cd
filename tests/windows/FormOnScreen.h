// The real main window on a thread of its own, worked from the test's thread as a user works it:
// with the mouse and the keyboard.
#pragma once

#include <windows.h>

#include <atomic>
#include <exception>
#include <functional>
#include <thread>

#include "FormUser.h"
#include "entry/Form1.h"
#include "support/TempFolder.h"

namespace orvik::test {

class FormOnScreen : public FormUser {
 public:
  // What runs on the window's thread: the form before it is shown and after it is left.
  struct Work {
    std::function<void(Form1& form)> before;
    std::function<void(Form1& form)> after;
  };

  // Returns once the window is shown and active. Its data folder has Tampa's curves E = 50 + 400 (R
  // + 0.05 ln V - 0.15), V to 7 and R to 0.4. Throws where it does not come up.
  explicit FormOnScreen(std::int16_t mode, Work work = {});
  FormOnScreen(const FormOnScreen&) = delete;
  FormOnScreen& operator=(const FormOnScreen&) = delete;
  ~FormOnScreen();  // leaves the window if it is still open

  const TempFolder& Folder() const { return folder_; }

  // Waits until the window is left. The return code of the form; -1 where the window does not end.
  int Leave();
  bool IsOpen() const { return !isLeft_; }

 private:
  void Run(std::int16_t mode, const Work& work);
  void Show(Form1& form, const Work& work);

  TempFolder folder_;
  std::atomic<bool> isLeft_{false};
  std::atomic<int> returnCode_{-1};
  std::exception_ptr failure_;
  std::thread thread_;
};

}  // namespace orvik::test
