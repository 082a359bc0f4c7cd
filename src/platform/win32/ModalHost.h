// The windows of the host's thread while one of ours is shown modally over them.
#pragma once

#include <windows.h>

#include <vector>

namespace orvik {

class ModalHost {
 public:
  // Every enabled top-level window of the thread, but for `shown`, is disabled. The active one
  // becomes its owner: `shown` stays above it.
  explicit ModalHost(HWND shown);
  ModalHost(const ModalHost&) = delete;
  ModalHost& operator=(const ModalHost&) = delete;
  ~ModalHost() { Release(); }

  // The window that was active, null where the thread has none.
  HWND Owner() const { return owner_; }

  // Enables the windows again. To be called before ours hides, so that the system activates the
  // host and not another program.
  void Release();

  // Gives the host its focus back. To be called once ours is hidden.
  void RestoreFocus() const;

 private:
  HWND shown_;
  HWND owner_ = nullptr;
  HWND focus_ = nullptr;
  std::vector<HWND> disabled_;
};

}  // namespace orvik
