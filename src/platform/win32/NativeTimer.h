// A timer of the user interface's thread.
#pragma once

#include <optional>

#include "platform/Toolkit.h"
#include "platform/win32/WindowClass.h"

namespace orvik {

class NativeTimer final : public Timer {
 public:
  explicit NativeTimer(HINSTANCE module) : module_(module) {}
  NativeTimer(const NativeTimer&) = delete;
  NativeTimer& operator=(const NativeTimer&) = delete;
  ~NativeTimer() override { Stop(); }

  bool Running() const override { return window_ != nullptr; }
  void Start(int milliseconds) override;
  void Stop() override;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HINSTANCE module_;
  std::optional<WindowClass> class_;
  HWND window_ = nullptr;  // takes the ticks, while the timer runs
};

}  // namespace orvik
