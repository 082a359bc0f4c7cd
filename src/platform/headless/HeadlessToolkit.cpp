#include "platform/headless/HeadlessToolkit.h"

#include "platform/headless/HeadlessWidgets.h"

namespace orvik {

std::unique_ptr<Toolkit> HeadlessToolkit::ForAnotherWindow() const {
  return std::make_unique<HeadlessToolkit>();
}
std::unique_ptr<Window> HeadlessToolkit::MakeWindow(std::string_view) {
  return std::make_unique<HeadlessWindow>();
}
std::unique_ptr<TextBox> HeadlessToolkit::MakeTextBox(std::string_view) {
  return std::make_unique<HeadlessTextBox>();
}
std::unique_ptr<ComboBox> HeadlessToolkit::MakeComboBox(std::string_view) {
  return std::make_unique<HeadlessComboBox>();
}
std::unique_ptr<Label> HeadlessToolkit::MakeLabel(std::string_view) {
  return std::make_unique<HeadlessLabel>();
}
std::unique_ptr<Panel> HeadlessToolkit::MakePanel(std::string_view) {
  return std::make_unique<HeadlessPanel>();
}
std::unique_ptr<OptionButton> HeadlessToolkit::MakeOptionButton(std::string_view) {
  return std::make_unique<HeadlessOptionButton>();
}
std::unique_ptr<MenuItem> HeadlessToolkit::MakeMenuItem(std::string_view) {
  return std::make_unique<HeadlessMenuItem>();
}
std::unique_ptr<ControlHost> HeadlessToolkit::MakeControlHost(std::string_view) {
  return std::make_unique<HeadlessControlHost>();
}
std::unique_ptr<Timer> HeadlessToolkit::MakeTimer() {
  return std::make_unique<HeadlessTimer>();
}

}  // namespace orvik
