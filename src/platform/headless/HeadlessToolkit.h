// The toolkit without a screen: widgets in memory, for forms that only code operates.
#pragma once

#include <memory>
#include <string_view>

#include "platform/Toolkit.h"

namespace orvik {

class HeadlessToolkit final : public Toolkit {
 public:
  std::unique_ptr<Toolkit> ForAnotherWindow() const override;
  void Design(const FormDesign&) override {}
  std::unique_ptr<Window> MakeWindow(std::string_view name) override;
  std::unique_ptr<TextBox> MakeTextBox(std::string_view name) override;
  std::unique_ptr<ComboBox> MakeComboBox(std::string_view name) override;
  std::unique_ptr<Label> MakeLabel(std::string_view name) override;
  std::unique_ptr<Panel> MakePanel(std::string_view name) override;
  std::unique_ptr<OptionButton> MakeOptionButton(std::string_view name) override;
  std::unique_ptr<MenuItem> MakeMenuItem(std::string_view name) override;
  std::unique_ptr<ControlHost> MakeControlHost(std::string_view name) override;
  std::unique_ptr<Timer> MakeTimer() override;
};

}  // namespace orvik
