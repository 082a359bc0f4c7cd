// The widgets of the headless toolkit: plain values in memory that behave as the native controls
// do.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/Toolkit.h"

namespace orvik {

// The living widgets by name. Shared with each widget, which takes itself out when it goes.
using WidgetRegistry = std::map<std::string, Widget*, std::less<>>;

// What every widget has, over one of the widget interfaces.
template <typename Interface>
class HeadlessWidget : public Interface {
 public:
  HeadlessWidget(std::shared_ptr<WidgetRegistry> registry, std::string_view name)
      : registry_(std::move(registry)), name_(name) {
    registry_->insert_or_assign(name_, this);
  }
  ~HeadlessWidget() override {
    const auto own = registry_->find(name_);
    if (own != registry_->end() && own->second == this) registry_->erase(own);
  }

  bool Visible() const override { return visible_; }
  void Visible(bool visible) override { visible_ = visible; }
  bool Enabled() const override { return enabled_; }
  void Enabled(bool enabled) override { enabled_ = enabled; }
  void Move(int, int, int, int) override {}

 private:
  std::shared_ptr<WidgetRegistry> registry_;
  std::string name_;
  bool visible_ = true;
  bool enabled_ = true;
};

class HeadlessTextBox final : public HeadlessWidget<TextBox> {
 public:
  using HeadlessWidget::HeadlessWidget;

  std::string Text() const override { return text_; }
  void Text(std::string_view text) override;
  bool Locked() const override { return locked_; }
  void Locked(bool locked) override { locked_ = locked; }
  Colour ForeColor() const override { return foreColor_; }
  void ForeColor(Colour colour) override { foreColor_ = colour; }
  Colour BackColor() const override { return backColor_; }
  void BackColor(Colour colour) override { backColor_ = colour; }

  // A character key (a UTF-8 sequence, or a control character such as "\r"); the handler sees
  // characters up to U+FFFF. A locked field and control characters change nothing.
  void PressKey(std::string_view character);

 private:
  std::string text_;
  bool locked_ = false;
  Colour foreColor_ = kWindowText;
  Colour backColor_ = kWindowBackground;
};

class HeadlessComboBox final : public HeadlessWidget<ComboBox> {
 public:
  using HeadlessWidget::HeadlessWidget;

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
  using HeadlessWidget<Interface>::HeadlessWidget;

  std::string Caption() const override { return caption_; }
  void Caption(std::string_view caption) override { caption_ = caption; }

 private:
  std::string caption_;
};

using HeadlessLabel = HeadlessCaptioned<Label>;

class HeadlessMenuItem final : public HeadlessCaptioned<MenuItem> {
 public:
  using HeadlessCaptioned::HeadlessCaptioned;

  bool Checked() const override { return checked_; }
  void Checked(bool checked) override { checked_ = checked; }

 private:
  bool checked_ = false;
};

class HeadlessOptionButton final : public HeadlessCaptioned<OptionButton> {
 public:
  using HeadlessCaptioned::HeadlessCaptioned;

  bool Value() const override { return value_; }
  void Value(bool value) override { value_ = value; }

 private:
  bool value_ = false;
};

class HeadlessPanel final : public HeadlessWidget<Panel> {
 public:
  using HeadlessWidget::HeadlessWidget;

  using HeadlessWidget::Visible;
  void Visible(bool visible) override {
    if (visible == Visible()) return;
    HeadlessWidget::Visible(visible);
    if (visible && OnShow) OnShow();
  }
};

// While it is shown modally, the user does what OnShown does.
class HeadlessWindow final : public HeadlessCaptioned<Window> {
 public:
  using HeadlessCaptioned::HeadlessCaptioned;

  void ShowModally() override;

  std::function<void()> OnShown;
};

// Shows nothing; a drawn control is worked through its events.
class HeadlessControlHost final : public HeadlessWidget<ControlHost> {
 public:
  using HeadlessWidget::HeadlessWidget;

  void Move(int, int, int width, int height) override;
  void Invalidate() override {}
  void CaptureMouse() override {}
  void ReleaseMouse() override {}
  Surface* DrawNow() override { return nullptr; }

  // The left button goes down and up in the middle of the control.
  void Click();

 private:
  int width_ = 80;  // pixels
  int height_ = 24;
};

// Ticks when it is told to, never by itself.
class HeadlessTimer final : public Timer {
 public:
  bool Running() const override { return running_; }
  void Start(int) override { running_ = true; }
  void Stop() override { running_ = false; }

 private:
  bool running_ = false;
};

}  // namespace orvik
