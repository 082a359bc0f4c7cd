// The toolkit without a screen for tests: its widgets are found by the names of the form's
// controls, and a user works them.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "platform/headless/HeadlessWidgets.h"

namespace orvik::test {

// The living widgets by name. Shared with each widget, which takes itself out when it goes.
using WidgetRegistry = std::map<std::string, Widget*, std::less<>>;

// A headless widget that is found by its name.
template <typename Kind>
class Named : public Kind {
 public:
  Named(std::shared_ptr<WidgetRegistry> registry, std::string_view name)
      : registry_(std::move(registry)), name_(name) {
    registry_->insert_or_assign(name_, this);
  }
  ~Named() override {
    const auto own = registry_->find(name_);
    if (own != registry_->end() && own->second == this) registry_->erase(own);
  }

 private:
  std::shared_ptr<WidgetRegistry> registry_;
  std::string name_;
};

// While it is shown modally, the user does what OnShown does.
class UserWindow final : public Named<HeadlessWindow> {
 public:
  using Named::Named;

  void ShowModally() override;

  std::function<void()> OnShown;
};

// Can be clicked.
class UserControlHost final : public Named<HeadlessControlHost> {
 public:
  using Named::Named;

  void Move(int left, int top, int width, int height) override;

  // The left button goes down and up in the middle of the control.
  void Click();

 private:
  int width_ = 80;  // pixels
  int height_ = 24;
};

// The operations throw std::out_of_range where there is no widget of the name and kind, and
// std::logic_error where a user could not do it either (the widget is hidden, disabled or locked).
class UserToolkit final : public Toolkit {
 public:
  // Its widgets are found here, too.
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
  std::unique_ptr<Timer> MakeTimer() override { return std::make_unique<HeadlessTimer>(); }

  // --- What a user does ---

  // Puts the focus into the field, selects all and types the text, key by key. The field that had
  // the focus is left first.
  void Type(std::string_view textBox, std::string_view text);

  // Presses one character key in the field (13 = Enter), after moving the focus there.
  void PressKey(std::string_view textBox, char key);

  // Moves the focus out of the field, if it is there.
  void Leave(std::string_view textBox);

  void Choose(std::string_view comboBox, std::int16_t index);
  void Choose(std::string_view comboBox, std::string_view item);

  // Clicks a menu item. "mnuFile_Open" lies in the menu "mnuFile" and cannot be reached while that
  // is hidden.
  void ClickMenu(std::string_view menuItem);

  // Clicks a drawn button in its middle, or an option button.
  void ClickButton(std::string_view button);

  // Drops a file on the window.
  void DropFile(std::string_view window, const std::string& path);

  // What the user does in the window of this name whenever it is shown modally.
  void WhenShown(std::string_view window, std::function<void()> work);

  // Closes the window by its frame. True when it may be destroyed.
  bool CloseByFrame(std::string_view window);

  // --- What a user sees ---

  std::string Text(std::string_view textBox) const;
  std::string Caption(std::string_view captioned) const;  // of a label, menu item or window
  bool IsVisible(std::string_view widget) const;

  // The widget of this name and kind.
  template <typename Kind>
  Kind& Find(std::string_view name) const {
    auto* widget = dynamic_cast<Kind*>(&FindWidget(name));
    if (!widget) throw std::out_of_range(std::string(name) + " is a widget of another kind");
    return *widget;
  }

 private:
  Widget& FindWidget(std::string_view name) const;
  void MoveFocus(std::string_view textBox);
  void CommitEdit();

  using Works = std::map<std::string, std::function<void()>, std::less<>>;

  std::shared_ptr<WidgetRegistry> widgets_ = std::make_shared<WidgetRegistry>();
  std::shared_ptr<Works> whenShown_ = std::make_shared<Works>();
  std::string focus_;
};

}  // namespace orvik::test
