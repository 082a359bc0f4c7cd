// The few widgets that the form needs. On Windows each stands on a native control, which is the
// only store of its value; without a screen a small twin in memory serves. Nothing above keeps a
// second copy of a value.
//
// Handlers are called on the thread of the user interface. An empty handler is not called. Setting
// a value from code raises the same change handlers as the user's own change does; setting the
// value that a widget already has raises none.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Colour.h"
#include "platform/Host.h"

namespace orvik {

class Widget {
 public:
  Widget() = default;
  Widget(const Widget&) = delete;
  Widget& operator=(const Widget&) = delete;
  virtual ~Widget() = default;

  virtual bool Visible() const = 0;
  virtual void Visible(bool visible) = 0;
  virtual bool Enabled() const = 0;
  virtual void Enabled(bool enabled) = 0;

  // Pixels of the parent's inner area.
  virtual void Move(int left, int top, int width, int height) = 0;
};

// A field of one line of text, or a read-only one while it is locked. Text is UTF-8.
class TextBox : public Widget {
 public:
  virtual std::string Text() const = 0;
  virtual void Text(std::string_view text) = 0;
  virtual bool Locked() const = 0;
  virtual void Locked(bool locked) = 0;
  virtual Colour ForeColor() const = 0;
  virtual void ForeColor(Colour colour) = 0;
  virtual Colour BackColor() const = 0;
  virtual void BackColor(Colour colour) = 0;

  std::function<void()> OnChange;  // after every change of the text, typed or assigned
  // A character typed (13 = Enter); 0 swallows it, another value replaces it.
  std::function<void(std::int16_t& keyAscii)> OnKeyPress;
  std::function<void()> OnLeave;  // the keyboard focus has left the field
};

// A drop-down list without free text. The index is 0-based, -1 for none; an index outside the list
// is stored as -1.
class ComboBox : public Widget {
 public:
  virtual void Clear() = 0;  // no items, index -1; raises nothing
  virtual void AddItem(std::string_view text) = 0;
  virtual std::int16_t ListCount() const = 0;
  virtual std::string List(std::int16_t index) const = 0;  // empty outside the list
  virtual std::int16_t ListIndex() const = 0;
  virtual void ListIndex(std::int16_t index) = 0;

  std::function<void()> OnClick;  // another item was chosen, by the user or by code
};

class Label : public Widget {
 public:
  virtual std::string Caption() const = 0;
  virtual void Caption(std::string_view caption) = 0;
};

// An area that holds other widgets and is shown or hidden as a whole.
class Panel : public Widget {};

// A menu, or an item of one. "&" in the caption marks the mnemonic.
class MenuItem : public Widget {
 public:
  virtual std::string Caption() const = 0;
  virtual void Caption(std::string_view caption) = 0;

  std::function<void()> OnClick;
};

// The window of a drawn control (chart, flat button): what the control asks of it, and what it
// tells the control. Positions in pixels of the control.
class ControlHost : public Widget, public Host {
 public:
  static constexpr std::int16_t kLeftButton = 1;

  std::function<void(Surface& surface)> OnPaint;
  std::function<void(int width, int height)> OnResize;
  std::function<void(std::int16_t button, double x, double y)> OnMouseDown;
  std::function<void(double x, double y)> OnMouseMove;
  std::function<void(double x, double y)> OnMouseUp;
  std::function<void()> OnCaptureLost;  // the system took the mouse away
  std::function<void(std::int16_t keyCode)> OnKeyDown;
  std::function<void(std::int16_t keyCode)> OnKeyUp;
  std::function<void()> OnGotFocus;
  std::function<void()> OnLostFocus;
};

class Timer {
 public:
  Timer() = default;
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;
  virtual ~Timer() = default;

  virtual bool Running() const = 0;
  virtual void Start(int milliseconds) = 0;  // a running timer starts anew
  virtual void Stop() = 0;

  std::function<void()> OnTick;
};

// The top-level window. Hiding it ends its modal showing.
class Window : public Widget {
 public:
  virtual std::string Caption() const = 0;
  virtual void Caption(std::string_view caption) = 0;

  // The user closes the window by its frame or the system menu; true in `cancel` keeps it from
  // being destroyed.
  std::function<void(bool& cancel)> OnQueryUnload;
};

// Makes widgets by the names of the form's controls ("txtBasinArea"), which the native toolkit also
// uses to place them.
class Toolkit {
 public:
  Toolkit() = default;
  Toolkit(const Toolkit&) = delete;
  Toolkit& operator=(const Toolkit&) = delete;
  virtual ~Toolkit() = default;

  virtual std::unique_ptr<Window> MakeWindow(std::string_view name) = 0;
  virtual std::unique_ptr<TextBox> MakeTextBox(std::string_view name) = 0;
  virtual std::unique_ptr<ComboBox> MakeComboBox(std::string_view name) = 0;
  virtual std::unique_ptr<Label> MakeLabel(std::string_view name) = 0;
  virtual std::unique_ptr<Panel> MakePanel(std::string_view name) = 0;
  virtual std::unique_ptr<MenuItem> MakeMenuItem(std::string_view name) = 0;
  virtual std::unique_ptr<ControlHost> MakeControlHost(std::string_view name) = 0;
  virtual std::unique_ptr<Timer> MakeTimer() = 0;
};

}  // namespace orvik
