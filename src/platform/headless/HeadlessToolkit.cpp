#include "platform/headless/HeadlessToolkit.h"

#include <stdexcept>

#include "base/Utf8.h"

namespace orvik {
namespace {

[[noreturn]] void ThrowUnreachable(std::string_view name, const char* why) {
  throw std::logic_error(std::string(name) + " is " + why);
}

void RequireReachable(std::string_view name, const Widget& widget) {
  if (!widget.Visible()) ThrowUnreachable(name, "hidden");
  if (!widget.Enabled()) ThrowUnreachable(name, "disabled");
}

}  // namespace

std::unique_ptr<Toolkit> HeadlessToolkit::ForAnotherWindow() const {
  auto toolkit = std::make_unique<HeadlessToolkit>();
  toolkit->widgets_ = widgets_;
  toolkit->whenShown_ = whenShown_;
  return toolkit;
}

std::unique_ptr<Window> HeadlessToolkit::MakeWindow(std::string_view name) {
  auto window = std::make_unique<HeadlessWindow>(widgets_, name);
  window->OnShown = [works = whenShown_, name = std::string(name)] {
    const auto work = works->find(name);
    if (work != works->end() && work->second) work->second();
  };
  return window;
}
std::unique_ptr<TextBox> HeadlessToolkit::MakeTextBox(std::string_view name) {
  return std::make_unique<HeadlessTextBox>(widgets_, name);
}
std::unique_ptr<ComboBox> HeadlessToolkit::MakeComboBox(std::string_view name) {
  return std::make_unique<HeadlessComboBox>(widgets_, name);
}
std::unique_ptr<Label> HeadlessToolkit::MakeLabel(std::string_view name) {
  return std::make_unique<HeadlessLabel>(widgets_, name);
}
std::unique_ptr<Panel> HeadlessToolkit::MakePanel(std::string_view name) {
  return std::make_unique<HeadlessPanel>(widgets_, name);
}
std::unique_ptr<OptionButton> HeadlessToolkit::MakeOptionButton(std::string_view name) {
  return std::make_unique<HeadlessOptionButton>(widgets_, name);
}
std::unique_ptr<MenuItem> HeadlessToolkit::MakeMenuItem(std::string_view name) {
  return std::make_unique<HeadlessMenuItem>(widgets_, name);
}
std::unique_ptr<ControlHost> HeadlessToolkit::MakeControlHost(std::string_view name) {
  return std::make_unique<HeadlessControlHost>(widgets_, name);
}
std::unique_ptr<Timer> HeadlessToolkit::MakeTimer() {
  return std::make_unique<HeadlessTimer>();
}

Widget& HeadlessToolkit::FindWidget(std::string_view name) const {
  const auto found = widgets_->find(name);
  if (found == widgets_->end()) throw std::out_of_range("There is no " + std::string(name));
  return *found->second;
}

template <typename Kind>
Kind& HeadlessToolkit::Find(std::string_view name) const {
  auto* widget = dynamic_cast<Kind*>(&FindWidget(name));
  if (!widget) throw std::out_of_range(std::string(name) + " is a widget of another kind");
  return *widget;
}

template HeadlessTextBox& HeadlessToolkit::Find(std::string_view) const;
template HeadlessComboBox& HeadlessToolkit::Find(std::string_view) const;
template HeadlessLabel& HeadlessToolkit::Find(std::string_view) const;
template HeadlessOptionButton& HeadlessToolkit::Find(std::string_view) const;
template HeadlessMenuItem& HeadlessToolkit::Find(std::string_view) const;
template HeadlessWindow& HeadlessToolkit::Find(std::string_view) const;
template HeadlessControlHost& HeadlessToolkit::Find(std::string_view) const;
template HeadlessPanel& HeadlessToolkit::Find(std::string_view) const;

void HeadlessToolkit::MoveFocus(std::string_view textBox) {
  if (focus_ == textBox) return;
  const std::string left = std::exchange(focus_, std::string(textBox));
  const auto found = widgets_->find(left);
  if (found == widgets_->end()) return;
  if (auto* field = dynamic_cast<HeadlessTextBox*>(found->second); field && field->OnLeave) {
    field->OnLeave();
  }
}

// The field keeps the focus, but what was typed there counts for the command that follows.
void HeadlessToolkit::CommitEdit() {
  const auto found = widgets_->find(focus_);
  if (found == widgets_->end()) return;
  auto* field = dynamic_cast<HeadlessTextBox*>(found->second);
  if (field && field->OnLeave) field->OnLeave();
}

void HeadlessToolkit::Type(std::string_view textBox, std::string_view text) {
  auto& field = Find<HeadlessTextBox>(textBox);
  RequireReachable(textBox, field);
  if (field.Locked()) ThrowUnreachable(textBox, "locked");
  MoveFocus(textBox);
  field.Text("");
  while (!text.empty()) {
    const std::size_t length = std::min(CharacterLength(text.front()), text.size());
    field.PressKey(text.substr(0, length));
    text.remove_prefix(length);
  }
}

void HeadlessToolkit::PressKey(std::string_view textBox, char key) {
  auto& field = Find<HeadlessTextBox>(textBox);
  RequireReachable(textBox, field);
  MoveFocus(textBox);
  field.PressKey({&key, 1});
}

void HeadlessToolkit::Leave(std::string_view textBox) {
  if (focus_ == textBox) MoveFocus("");
}

void HeadlessToolkit::Choose(std::string_view comboBox, std::int16_t index) {
  auto& list = Find<HeadlessComboBox>(comboBox);
  RequireReachable(comboBox, list);
  MoveFocus(comboBox);
  list.ListIndex(index);
}

void HeadlessToolkit::Choose(std::string_view comboBox, std::string_view item) {
  const auto& list = Find<HeadlessComboBox>(comboBox);
  for (std::int16_t i = 0; i < list.ListCount(); ++i) {
    if (list.List(i) == item) return Choose(comboBox, i);
  }
  throw std::out_of_range("There is no item " + std::string(item));
}

void HeadlessToolkit::ClickMenu(std::string_view menuItem) {
  auto& item = Find<HeadlessMenuItem>(menuItem);
  RequireReachable(menuItem, item);
  const auto parent = menuItem.find('_');
  if (parent != std::string_view::npos) {
    const std::string_view menu = menuItem.substr(0, parent);
    RequireReachable(menu, FindWidget(menu));
  }
  CommitEdit();
  if (item.OnClick) item.OnClick();
}

void HeadlessToolkit::ClickButton(std::string_view button) {
  if (auto* option = dynamic_cast<HeadlessOptionButton*>(&FindWidget(button))) {
    RequireReachable(button, *option);
    MoveFocus(button);
    if (option->OnClick) option->OnClick();
    return;
  }
  auto& host = Find<HeadlessControlHost>(button);
  RequireReachable(button, host);
  MoveFocus(button);
  host.Click();
}

void HeadlessToolkit::DropFile(std::string_view window, const std::string& path) {
  auto& target = Find<HeadlessWindow>(window);
  RequireReachable(window, target);
  if (target.OnDropFile) target.OnDropFile(path);
}

void HeadlessToolkit::WhenShown(std::string_view window, std::function<void()> work) {
  whenShown_->insert_or_assign(std::string(window), std::move(work));
}

bool HeadlessToolkit::CloseByFrame(std::string_view window) {
  auto& closed = Find<HeadlessWindow>(window);
  RequireReachable(window, closed);
  CommitEdit();
  bool cancel = false;
  if (closed.OnQueryUnload) closed.OnQueryUnload(cancel);
  return !cancel;
}

std::string HeadlessToolkit::Text(std::string_view textBox) const {
  return Find<HeadlessTextBox>(textBox).Text();
}

std::string HeadlessToolkit::Caption(std::string_view captioned) const {
  const Widget& widget = FindWidget(captioned);
  if (const auto* label = dynamic_cast<const HeadlessLabel*>(&widget)) return label->Caption();
  if (const auto* item = dynamic_cast<const HeadlessMenuItem*>(&widget)) return item->Caption();
  return Find<HeadlessWindow>(captioned).Caption();
}

bool HeadlessToolkit::IsVisible(std::string_view widget) const {
  return FindWidget(widget).Visible();
}

}  // namespace orvik
