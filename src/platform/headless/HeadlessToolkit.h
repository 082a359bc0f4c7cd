// The toolkit without a screen: widgets in memory, found by the names of the form's controls, and
// the things that a user does to them.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "platform/headless/HeadlessWidgets.h"

namespace orvik {

// The operations throw std::out_of_range where there is no widget of the name and kind, and
// std::logic_error where a user could not do it either (the widget is hidden, disabled or locked).
class HeadlessToolkit final : public Toolkit {
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
  std::unique_ptr<Timer> MakeTimer() override;

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
  Kind& Find(std::string_view name) const;

 private:
  Widget& FindWidget(std::string_view name) const;
  void MoveFocus(std::string_view textBox);
  void CommitEdit();

  using Works = std::map<std::string, std::function<void()>, std::less<>>;

  std::shared_ptr<WidgetRegistry> widgets_ = std::make_shared<WidgetRegistry>();
  std::shared_ptr<Works> whenShown_ = std::make_shared<Works>();
  std::string focus_;
};

}  // namespace orvik
