// The toolkit on the system's own controls: an EDIT, a COMBOBOX, a STATIC for each field, list and
// label of the form, in a window of its own.
#pragma once

#include <windows.h>

#include "platform/Toolkit.h"
#include "platform/win32/NativeWindow.h"

namespace orvik {

// All calls, and those on the widgets, belong to one thread. The window is made first; every other
// widget belongs to the window made last; of a widget that outlives it only the destructor may be
// called. Making a widget throws std::system_error where the system refuses, and std::logic_error
// without a window.
class NativeToolkit final : public Toolkit {
 public:
  // `module` is the module whose code this is; its resources may hold an icon (1) and a manifest
  // for the controls' look (2).
  explicit NativeToolkit(HINSTANCE module) : module_(module) {}

  std::unique_ptr<Toolkit> ForAnotherWindow() const override;
  void Design(const FormDesign& design) override { design_ = &design; }
  std::unique_ptr<Window> MakeWindow(std::string_view name) override;
  std::unique_ptr<TextBox> MakeTextBox(std::string_view name) override;
  std::unique_ptr<ComboBox> MakeComboBox(std::string_view name) override;
  std::unique_ptr<Label> MakeLabel(std::string_view name) override;
  std::unique_ptr<Panel> MakePanel(std::string_view name) override;
  std::unique_ptr<OptionButton> MakeOptionButton(std::string_view name) override;
  std::unique_ptr<MenuItem> MakeMenuItem(std::string_view name) override;
  std::unique_ptr<ControlHost> MakeControlHost(std::string_view name) override;
  std::unique_ptr<Timer> MakeTimer() override;

 private:
  template <typename Widget, typename... Arguments>
  std::unique_ptr<Widget> MakeControl(std::string_view name, Arguments... arguments);
  NativeWindow& CurrentWindow() const;

  HINSTANCE module_;
  const FormDesign* design_ = nullptr;
  NativeWindow* window_ = nullptr;  // the one made last; the caller owns it
};

}  // namespace orvik
