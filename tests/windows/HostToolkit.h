// A toolkit whose drawn controls have real windows; everything else is headless.
#pragma once

#include "platform/headless/HeadlessToolkit.h"
#include "platform/win32/NativeControlHost.h"

namespace orvik::test {

class HostToolkit final : public Toolkit {
 public:
  explicit HostToolkit(HWND parent) : parent_(parent) {}

  HWND lastHost = nullptr;  // the window made last

  std::unique_ptr<ControlHost> MakeControlHost(std::string_view) override {
    auto host = std::make_unique<NativeControlHost>(::GetModuleHandleW(nullptr), parent_);
    lastHost = host->Handle();
    return host;
  }
  void Design(const FormDesign&) override {}
  std::unique_ptr<Toolkit> ForAnotherWindow() const override {
    return std::make_unique<HostToolkit>(parent_);
  }
  std::unique_ptr<Window> MakeWindow(std::string_view name) override {
    return headless_.MakeWindow(name);
  }
  std::unique_ptr<TextBox> MakeTextBox(std::string_view name) override {
    return headless_.MakeTextBox(name);
  }
  std::unique_ptr<ComboBox> MakeComboBox(std::string_view name) override {
    return headless_.MakeComboBox(name);
  }
  std::unique_ptr<Label> MakeLabel(std::string_view name) override {
    return headless_.MakeLabel(name);
  }
  std::unique_ptr<Panel> MakePanel(std::string_view name) override {
    return headless_.MakePanel(name);
  }
  std::unique_ptr<OptionButton> MakeOptionButton(std::string_view name) override {
    return headless_.MakeOptionButton(name);
  }
  std::unique_ptr<MenuItem> MakeMenuItem(std::string_view name) override {
    return headless_.MakeMenuItem(name);
  }
  std::unique_ptr<Timer> MakeTimer() override { return headless_.MakeTimer(); }

 private:
  HWND parent_;
  HeadlessToolkit headless_;
};

}  // namespace orvik::test
