#include "FormOnScreen.h"

#include <ole2.h>

#include <stdexcept>

#include "platform/win32/NativeDesktop.h"
#include "platform/win32/NativeToolkit.h"
#include "support/CurveFileText.h"

namespace orvik::test {

// --- Life ---

FormOnScreen::FormOnScreen(std::int16_t mode, Work work) {
  folder_.Write("KAV Data/Tampa.crv", LogarithmicCurves().Text());
  thread_ = std::thread([this, mode, work = std::move(work)] { Run(mode, work); });
  const bool isShown = Until([this] {
    return isLeft_ ||
           (Window() && ::IsWindowVisible(Window()) && ::GetForegroundWindow() == Window());
  });
  if (isShown && !isLeft_) return;
  isLeft_ ? thread_.join() : thread_.detach();
  if (failure_) std::rethrow_exception(failure_);
  throw std::runtime_error("The window does not come up.");
}

FormOnScreen::~FormOnScreen() {
  if (!thread_.joinable()) return;
  const bool isLeft = Until([this] {
    const HWND dialog = Dialog();
    if (dialog) ::PostMessageW(dialog, WM_COMMAND, IDNO, 0);
    if (dialog) ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    if (!dialog) ::PostMessageW(Window(), WM_CLOSE, 0, 0);
    return isLeft_.load();
  });
  isLeft ? thread_.join() : thread_.detach();
}

void FormOnScreen::Run(std::int16_t mode, const Work& work) {
  ::OleInitialize(nullptr);
  try {
    const HINSTANCE module = ::GetModuleHandleW(nullptr);
    NativeToolkit toolkit(module);
    NativeDesktop desktop(module);
    Form1 form(toolkit, desktop, folder_.Path());
    form.Mode(mode);
    Show(form, work);
  } catch (...) {
    failure_ = std::current_exception();
  }
  ::OleUninitialize();
  isLeft_ = true;
}

void FormOnScreen::Show(Form1& form, const Work& work) {
  auto& window = dynamic_cast<NativeWindow&>(*form.Fields().window);
  Watch(window.Handle());
  if (work.before) work.before(form);
  form.ShowModally();
  if (work.after) work.after(form);
  returnCode_ = form.ReturnCode();
}

int FormOnScreen::Leave() {
  if (!Until([this] { return isLeft_.load(); })) return -1;
  if (thread_.joinable()) thread_.join();
  if (failure_) std::rethrow_exception(failure_);
  return returnCode_;
}

}  // namespace orvik::test
