#include "platform/win32/NativeToolkit.h"

#include <algorithm>
#include <stdexcept>

#include "platform/win32/Dpi.h"
#include "platform/win32/FormLayout.h"
#include "platform/win32/NativeComboBox.h"
#include "platform/win32/NativeControlHost.h"
#include "platform/win32/NativeLabel.h"
#include "platform/win32/NativeOptionButton.h"
#include "platform/win32/NativePanel.h"
#include "platform/win32/NativeTextBox.h"
#include "platform/win32/NativeTimer.h"
#include "platform/win32/VisualStyles.h"

namespace orvik {
namespace {

WidgetStyle StyleOf(const FormDesign& design, std::string_view name) {
  const auto widgets = design.Widgets();
  const auto row = std::ranges::find(widgets, name, &WidgetDesign::name);
  return row == widgets.end() ? WidgetStyle::Plain : row->style;
}

}  // namespace

NativeWindow& NativeToolkit::CurrentWindow() const {
  if (!window_) throw std::logic_error("A widget needs a window, which is made first.");
  return *window_;
}

// A control in its parent, with the number and the font by which the window finds and shows it.
template <typename Widget, typename... Arguments>
std::unique_ptr<Widget> NativeToolkit::MakeControl(std::string_view name, Arguments... arguments) {
  const ThreadDpiScope scaling;
  const VisualStyles look(module_);
  const NativeWindow& window = CurrentWindow();
  const HWND parent = ParentOf(window.Handle(), window.Design(), name);
  auto widget = std::make_unique<Widget>(module_, parent, arguments...);
  if (const auto number = ControlNumber(window.Design(), name)) {
    ::SetWindowLongPtrW(widget->Handle(), GWLP_ID, *number);
  }
  return widget;
}

std::unique_ptr<Toolkit> NativeToolkit::ForAnotherWindow() const {
  return std::make_unique<NativeToolkit>(module_);
}

std::unique_ptr<Window> NativeToolkit::MakeWindow(std::string_view) {
  if (!design_) throw std::logic_error("A window needs a design.");
  const ThreadDpiScope scaling;
  const VisualStyles look(module_);
  auto window = std::make_unique<NativeWindow>(module_, *design_);
  window_ = window.get();
  return window;
}

std::unique_ptr<TextBox> NativeToolkit::MakeTextBox(std::string_view name) {
  return MakeControl<NativeTextBox>(name, StyleOf(CurrentWindow().Design(), name));
}

std::unique_ptr<ComboBox> NativeToolkit::MakeComboBox(std::string_view name) {
  return MakeControl<NativeComboBox>(name);
}

std::unique_ptr<Label> NativeToolkit::MakeLabel(std::string_view name) {
  return MakeControl<NativeLabel>(name, StyleOf(CurrentWindow().Design(), name));
}

std::unique_ptr<Panel> NativeToolkit::MakePanel(std::string_view name) {
  return MakeControl<NativePanel>(name);
}

std::unique_ptr<OptionButton> NativeToolkit::MakeOptionButton(std::string_view name) {
  return MakeControl<NativeOptionButton>(name);
}

std::unique_ptr<MenuItem> NativeToolkit::MakeMenuItem(std::string_view name) {
  return std::make_unique<NativeMenuItem>(CurrentWindow().MenuBar(), name);
}

std::unique_ptr<ControlHost> NativeToolkit::MakeControlHost(std::string_view name) {
  return MakeControl<NativeControlHost>(name);
}

std::unique_ptr<Timer> NativeToolkit::MakeTimer() {
  return std::make_unique<NativeTimer>(module_);
}

}  // namespace orvik
