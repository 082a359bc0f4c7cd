// A window that only writes down what its control asks and draws, in one log with the control's
// events.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Host.h"
#include "platform/recording/RecordingSurface.h"

namespace orvik::test {

class RecordingHost final : public Host {
 public:
  RecordingSurface screen;
  bool isShown = true;
  std::function<void()> onRelease;  // what the system does when the mouse is given back

  void Invalidate() override { Log("invalidate"); }
  void CaptureMouse() override { Log("capture"); }
  void ReleaseMouse() override {
    Log("release");
    if (onRelease) onRelease();
  }
  Surface* DrawNow() override { return isShown ? &screen : nullptr; }

  // Writes what was drawn until now, then the entry.
  void Log(std::string entry) {
    TakeDrawing();
    log_.push_back(std::move(entry));
  }

  // Everything since the last call.
  std::vector<std::string> Take() {
    TakeDrawing();
    return std::exchange(log_, {});
  }

 private:
  void TakeDrawing() {
    for (std::string& call : screen.Take()) log_.push_back(std::move(call));
  }

  std::vector<std::string> log_;
};

}  // namespace orvik::test
