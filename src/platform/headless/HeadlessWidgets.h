// The widgets of the headless toolkit: plain values in memory that behave as the native controls
// do.
#pragma once

#include <string>
#include <vector>

#include "platform/Toolkit.h"

namespace orvik {

// What every widget has, over one of the widget interfaces.
template <typename Interface>
class HeadlessWidget : public Interface {
 public:
  bool Visible() const override { return visible_; }
  void Visible(bool visible) override { visible_ = visible; }
  bool Enabled() const override { return enabled_; }
  void Enabled(bool enabled) override { enabled_ = enabled; }
  void Move(int, int, int, int) override {}

 private:
  bool visible_ = true;
  bool enabled_ = true;
};

class HeadlessTextBox : public HeadlessWidget<TextBox> {
 public:
  std::string Text() const override { return text_; }
  void Text(std::string_view text) override;
  bool Locked() const override { return locked_; }
  void Locked(bool locked) override { locked_ = locked; }
  Colour ForeColor() const override { return foreColor_; }
  void ForeColor(Colour colour) override { foreColor_ = colour; }
  Colour BackColor() const override { return backColor_; }
  void BackColor(Colour colour) override { backColor_ = colour; }
  std::string Description() const override { return description_; }
  void Description(std::string_view description) override { description_ = description; }

 private:
  std::string text_;
  std::string description_;
  bool locked_ = false;
  Colour foreColor_ = kWindowText;
  Colour backColor_ = kWindowBackground;
};

class HeadlessComboBox : public HeadlessWidget<ComboBox> {
 public:
  void Clear() override;
  void AddItem(std::string_view text) override { items_.emplace_back(text); }
  std::int16_t ListCount() const override { return static_cast<std::int16_t>(items_.size()); }
  std::string List(std::int16_t index) const override;
  std::int16_t ListIndex() const override { return index_; }
  void ListIndex(std::int16_t index) override;

 private:
  bool IsItem(std::int16_t index) const { return index >= 0 && index < ListCount(); }

  std::vector<std::string> items_;
  std::int16_t index_ = -1;
};

// A widget with a caption: label, menu item, window.
template <typename Interface>
class HeadlessCaptioned : public HeadlessWidget<Interface> {
 public:
  std::string Caption() const override { return caption_; }
  void Caption(std::string_view caption) override { caption_ = caption; }

 private:
  std::string caption_;
};

using HeadlessLabel = HeadlessCaptioned<Label>;

class HeadlessMenuItem : public HeadlessCaptioned<MenuItem> {
 public:
  bool Checked() const override { return checked_; }
  void Checked(bool checked) override { checked_ = checked; }

 private:
  bool checked_ = false;
};

class HeadlessOptionButton : public HeadlessCaptioned<OptionButton> {
 public:
  bool Value() const override { return value_; }
  void Value(bool value) override { value_ = value; }

 private:
  bool value_ = false;
};

class HeadlessPanel : public HeadlessWidget<Panel> {
 public:
  using HeadlessWidget::Visible;
  void Visible(bool visible) override {
    if (visible == Visible()) return;
    HeadlessWidget::Visible(visible);
    if (visible && OnShow) OnShow();
  }
};

// No user is there to close it: ShowModally returns at once.
class HeadlessWindow : public HeadlessCaptioned<Window> {
 public:
  void ShowModally() override;
};

// Shows nothing; tests operate a drawn control through its events.
class HeadlessControlHost : public HeadlessWidget<ControlHost> {
 public:
  void Invalidate() override {}
  void CaptureMouse() override {}
  void ReleaseMouse() override {}
  Surface* DrawNow() override { return nullptr; }
};

// Ticks only when a test raises OnTick.
class HeadlessTimer final : public Timer {
 public:
  bool Running() const override { return running_; }
  void Start(int) override { running_ = true; }
  void Stop() override { running_ = false; }

 private:
  bool running_ = false;
};

}  // namespace orvik
