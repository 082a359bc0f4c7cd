#include "support/UserToolkit.h"

#include "base/Utf8.h"

namespace orvik::test {
namespace {

constexpr unsigned char kBlank = 0x20;

[[noreturn]] void ThrowUnreachable(std::string_view name, const char* why) {
  throw std::logic_error(std::string(name) + " is " + why);
}

void RequireReachable(std::string_view name, const Widget& widget) {
  if (!widget.Visible()) ThrowUnreachable(name, "hidden");
  if (!widget.Enabled()) ThrowUnreachable(name, "disabled");
}

// The code of a one-character text as the key handler gets it; 0 beyond U+FFFF.
std::int16_t KeyCode(std::string_view character) {
  const std::uint32_t code = CodePointAt(character, 0);
  return code <= 0xFFFFU ? static_cast<std::int16_t>(code) : std::int16_t{0};
}

// A character key (a UTF-8 sequence, or a control character such as "\r"); the handler sees
// characters up to U+FFFF. A locked field and control characters change nothing.
void PressCharacter(TextBox& field, std::string_view character) {
  std::string typed(character);
  if (field.OnKeyPress) {
    const std::int16_t pressed = KeyCode(character);
    std::int16_t code = pressed;
    field.OnKeyPress(code);
    if (code == 0 && pressed != 0) return;
    if (code != pressed) {
      typed.clear();
      AppendUtf8(typed, static_cast<std::uint16_t>(code));
    }
  }
  const bool printable = static_cast<unsigned char>(typed.front()) >= kBlank;
  if (printable && !field.Locked()) field.Text(field.Text() + typed);
}

}  // namespace

void UserWindow::ShowModally() {
  Visible(true);
  if (OnShown) OnShown();
  Visible(false);
}

void UserControlHost::Move(int, int, int width, int height) {
  width_ = width;
  height_ = height;
  if (OnResize) OnResize(width, height);
}

void UserControlHost::Click() {
  if (OnResize) OnResize(width_, height_);  // a native window tells its size before the first click
  const double x = width_ / 2.0;
  const double y = height_ / 2.0;
  if (OnMouseDown) OnMouseDown(kLeftButton, x, y);
  if (OnMouseUp) OnMouseUp(kLeftButton, x, y);
}

std::unique_ptr<Toolkit> UserToolkit::ForAnotherWindow() const {
  auto toolkit = std::make_unique<UserToolkit>();
  toolkit->widgets_ = widgets_;
  toolkit->whenShown_ = whenShown_;
  return toolkit;
}

std::unique_ptr<Window> UserToolkit::MakeWindow(std::string_view name) {
  auto window = std::make_unique<UserWindow>(widgets_, name);
  window->OnShown = [works = whenShown_, name = std::string(name)] {
    const auto work = works->find(name);
    if (work != works->end() && work->second) work->second();
  };
  return window;
}
std::unique_ptr<TextBox> UserToolkit::MakeTextBox(std::string_view name) {
  return std::make_unique<Named<HeadlessTextBox>>(widgets_, name);
}
std::unique_ptr<ComboBox> UserToolkit::MakeComboBox(std::string_view name) {
  return std::make_unique<Named<HeadlessComboBox>>(widgets_, name);
}
std::unique_ptr<Label> UserToolkit::MakeLabel(std::string_view name) {
  return std::make_unique<Named<HeadlessLabel>>(widgets_, name);
}
std::unique_ptr<Panel> UserToolkit::MakePanel(std::string_view name) {
  return std::make_unique<Named<HeadlessPanel>>(widgets_, name);
}
std::unique_ptr<OptionButton> UserToolkit::MakeOptionButton(std::string_view name) {
  return std::make_unique<Named<HeadlessOptionButton>>(widgets_, name);
}
std::unique_ptr<MenuItem> UserToolkit::MakeMenuItem(std::string_view name) {
  return std::make_unique<Named<HeadlessMenuItem>>(widgets_, name);
}
std::unique_ptr<ControlHost> UserToolkit::MakeControlHost(std::string_view name) {
  return std::make_unique<UserControlHost>(widgets_, name);
}

Widget& UserToolkit::FindWidget(std::string_view name) const {
  const auto found = widgets_->find(name);
  if (found == widgets_->end()) throw std::out_of_range("There is no " + std::string(name));
  return *found->second;
}

void UserToolkit::MoveFocus(std::string_view textBox) {
  if (focus_ == textBox) return;
  const std::string left = std::exchange(focus_, std::string(textBox));
  const auto found = widgets_->find(left);
  if (found == widgets_->end()) return;
  if (auto* field = dynamic_cast<HeadlessTextBox*>(found->second); field && field->OnLeave) {
    field->OnLeave();
  }
}

// The field keeps the focus, but what was typed there counts for the command that follows.
void UserToolkit::CommitEdit() {
  const auto found = widgets_->find(focus_);
  if (found == widgets_->end()) return;
  auto* field = dynamic_cast<HeadlessTextBox*>(found->second);
  if (field && field->OnLeave) field->OnLeave();
}

void UserToolkit::Type(std::string_view textBox, std::string_view text) {
  auto& field = Find<HeadlessTextBox>(textBox);
  RequireReachable(textBox, field);
  if (field.Locked()) ThrowUnreachable(textBox, "locked");
  MoveFocus(textBox);
  field.Text("");
  while (!text.empty()) {
    const std::size_t length = std::min(CharacterLength(text.front()), text.size());
    PressCharacter(field, text.substr(0, length));
    text.remove_prefix(length);
  }
}

void UserToolkit::PressKey(std::string_view textBox, char key) {
  auto& field = Find<HeadlessTextBox>(textBox);
  RequireReachable(textBox, field);
  MoveFocus(textBox);
  PressCharacter(field, {&key, 1});
}

void UserToolkit::Leave(std::string_view textBox) {
  if (focus_ == textBox) MoveFocus("");
}

void UserToolkit::Choose(std::string_view comboBox, std::int16_t index) {
  auto& list = Find<HeadlessComboBox>(comboBox);
  RequireReachable(comboBox, list);
  MoveFocus(comboBox);
  list.ListIndex(index);
}

void UserToolkit::Choose(std::string_view comboBox, std::string_view item) {
  const auto& list = Find<HeadlessComboBox>(comboBox);
  for (std::int16_t i = 0; i < list.ListCount(); ++i) {
    if (list.List(i) == item) return Choose(comboBox, i);
  }
  throw std::out_of_range("There is no item " + std::string(item));
}

void UserToolkit::ClickMenu(std::string_view menuItem) {
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

void UserToolkit::ClickButton(std::string_view button) {
  if (auto* option = dynamic_cast<HeadlessOptionButton*>(&FindWidget(button))) {
    RequireReachable(button, *option);
    MoveFocus(button);
    if (option->OnClick) option->OnClick();
    return;
  }
  auto& host = Find<UserControlHost>(button);
  RequireReachable(button, host);
  MoveFocus(button);
  host.Click();
}

void UserToolkit::DropFile(std::string_view window, const std::string& path) {
  auto& target = Find<HeadlessWindow>(window);
  RequireReachable(window, target);
  if (target.OnDropFile) target.OnDropFile(path);
}

void UserToolkit::WhenShown(std::string_view window, std::function<void()> work) {
  whenShown_->insert_or_assign(std::string(window), std::move(work));
}

bool UserToolkit::CloseByFrame(std::string_view window) {
  auto& closed = Find<HeadlessWindow>(window);
  RequireReachable(window, closed);
  CommitEdit();
  bool cancel = false;
  if (closed.OnQueryUnload) closed.OnQueryUnload(cancel);
  return !cancel;
}

std::string UserToolkit::Text(std::string_view textBox) const {
  return Find<HeadlessTextBox>(textBox).Text();
}

std::string UserToolkit::Caption(std::string_view captioned) const {
  const Widget& widget = FindWidget(captioned);
  if (const auto* label = dynamic_cast<const HeadlessLabel*>(&widget)) return label->Caption();
  if (const auto* item = dynamic_cast<const HeadlessMenuItem*>(&widget)) return item->Caption();
  return Find<HeadlessWindow>(captioned).Caption();
}

bool UserToolkit::IsVisible(std::string_view widget) const {
  return FindWidget(widget).Visible();
}

}  // namespace orvik::test
