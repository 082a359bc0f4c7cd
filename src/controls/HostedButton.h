// A flat button in the window that shows it.
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "controls/ctrlButton.h"
#include "platform/Toolkit.h"

namespace orvik {

class HostedButton {
 public:
  HostedButton(Toolkit& toolkit, std::string_view name, std::string_view caption,
               std::function<void()> onClick);
  HostedButton(const HostedButton&) = delete;
  HostedButton& operator=(const HostedButton&) = delete;
  ~HostedButton();

  ctrlButton& Button() { return button_; }
  Widget& Place() { return *host_; }  // the button's place, visibility and enabled state

 private:
  std::unique_ptr<ControlHost> host_;
  ctrlButton button_;
};

}  // namespace orvik
