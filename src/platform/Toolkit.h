// The few widgets that the form needs. On Windows each is a native control, which is the only store
// of its value; without a screen it is a small twin in memory. No code above keeps a second copy of
// a value.
//
// Handlers are called on the user interface's thread. An empty handler is not called. Setting a
// value from code raises the same change handlers as the user's own change does; setting the value
// that a widget already has raises none.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Colour.h"
#include "platform/FormDesign.h"
#include "platform/Host.h"
#include "platform/Surface.h"

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

  // What a screen reader says of the field besides its name and text ("out of date"); empty for
  // nothing.
  virtual std::string Description() const = 0;
  virtual void Description(std::string_view description) = 0;

  std::function<void()> OnChange;  // after every change of the text, typed or assigned
  // A character typed (13 = Enter); 0 swallows it, another value replaces it.
  std::function<void(std::int16_t& keyAscii)> OnKeyPress;
  // The keyboard focus has left the field, or a command from the menu or the window's frame is
  // about to run, which uses what was typed.
  std::function<void()> OnLeave;
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
class Panel : public Widget {
 public:
  std::function<void()> OnShow;  // it was hidden and is visible now
  // What lies under its widgets; the whole of it is painted over.
  std::function<void(Surface& surface, Size size)> OnPaint;
};

// One of several buttons of which one is down. Pressing one does not release the others by itself.
class OptionButton : public Widget {
 public:
  virtual std::string Caption() const = 0;
  virtual void Caption(std::string_view caption) = 0;
  virtual bool Value() const = 0;
  virtual void Value(bool value) = 0;

  std::function<void()> OnClick;  // the user chose it
};

// A menu, or an item of one. "&" in the caption marks the mnemonic; what follows a tab is the
// shortcut key, which works anywhere in the window ("&Open...\tCtrl+O"), while the item is visible
// and enabled.
class MenuItem : public Widget {
 public:
  virtual std::string Caption() const = 0;
  virtual void Caption(std::string_view caption) = 0;
  virtual bool Checked() const = 0;
  virtual void Checked(bool checked) = 0;

  std::function<void()> OnClick;
};

// What a screen reader says about a drawn control.
struct Spoken {
  std::string name;        // what it is; "&" marks a button's mnemonic
  std::string value;       // what it shows, empty for nothing
  bool isPicture = false;  // else it is a chart or a button
};

enum class PointerShape : std::uint8_t { Arrow, Hand };

// The window of a drawn control (chart, flat button): what the control asks of it, and the events
// that it raises for the control. Positions in pixels of the control. A control with OnMnemonic is
// a button.
class ControlHost : public Widget, public Host {
 public:
  static constexpr std::int16_t kLeftButton = 1;

  std::function<void(Surface& surface)> OnPaint;
  std::function<void(int width, int height)> OnResize;
  std::function<void(std::int16_t button, double x, double y)> OnMouseDown;
  std::function<void(double x, double y)> OnMouseMove;
  std::function<void(std::int16_t button, double x, double y)> OnMouseUp;
  std::function<void()> OnDoubleClick;  // of the left button; empty: a second press
  // The wheel was turned by this many notches away from the user; empty: the message is left to the
  // parent window.
  std::function<void(double notches, double x, double y)> OnMouseWheel;
  std::function<void()> OnCaptureLost;  // the system took the mouse away
  std::function<void(std::int16_t keyCode)> OnKeyDown;
  std::function<void(std::int16_t keyCode)> OnKeyUp;
  std::function<void()> OnGotFocus;
  std::function<void()> OnLostFocus;
  std::function<void()> OnCopy;                  // the keys for copying (Ctrl+C)
  std::function<void()> OnMnemonic;              // a button's own letter was pressed with Alt
  std::function<void(const Font& font)> OnFont;  // the window's font, at first and when it changes
  std::function<Spoken()> ReadAloud;             // asked again after each repaint
  // True for keys that the control handles itself; others move the focus or press the window's
  // buttons.
  std::function<bool(std::int16_t keyCode)> WantsKey;
  std::function<PointerShape()> Pointer;  // of the mouse over the control; empty: an arrow

  Spoken Announcement() const { return ReadAloud ? ReadAloud() : Spoken{}; }
};

class Timer {
 public:
  Timer() = default;
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;
  virtual ~Timer() = default;

  virtual bool Running() const = 0;
  virtual void Start(int milliseconds) = 0;  // a running timer is restarted
  virtual void Stop() = 0;

  std::function<void()> OnTick;
};

// The top-level window. Hiding it ends its modal showing.
class Window : public Widget {
 public:
  virtual std::string Caption() const = 0;
  virtual void Caption(std::string_view caption) = 0;

  // Shows the window over the program's active one and returns when it is hidden or closed.
  virtual void ShowModally() = 0;

  // The user closes the window by its frame or the system menu; true in `cancel` keeps it from
  // being destroyed.
  std::function<void(bool& cancel)> OnQueryUnload;
  std::function<void()> OnAccept;  // Enter, where the widget with the focus has no use for it
  std::function<void()> OnCancel;  // Esc, likewise
  std::function<void(const std::string& path)> OnDropFile;  // a file was dropped on the window
};

// Makes widgets by the names of the form's controls ("txtBasinArea"), which a toolkit with a screen
// also uses to place them.
class Toolkit {
 public:
  Toolkit() = default;
  Toolkit(const Toolkit&) = delete;
  Toolkit& operator=(const Toolkit&) = delete;
  virtual ~Toolkit() = default;

  // Where the widgets made from now on lie. The design outlives them.
  virtual void Design(const FormDesign& design) = 0;

  // A toolkit for a window that is shown over this one's: each window has its own.
  virtual std::unique_ptr<Toolkit> ForAnotherWindow() const = 0;

  virtual std::unique_ptr<Window> MakeWindow(std::string_view name) = 0;
  virtual std::unique_ptr<TextBox> MakeTextBox(std::string_view name) = 0;
  virtual std::unique_ptr<ComboBox> MakeComboBox(std::string_view name) = 0;
  virtual std::unique_ptr<Label> MakeLabel(std::string_view name) = 0;
  virtual std::unique_ptr<Panel> MakePanel(std::string_view name) = 0;
  virtual std::unique_ptr<OptionButton> MakeOptionButton(std::string_view name) = 0;
  virtual std::unique_ptr<MenuItem> MakeMenuItem(std::string_view name) = 0;
  virtual std::unique_ptr<ControlHost> MakeControlHost(std::string_view name) = 0;
  virtual std::unique_ptr<Timer> MakeTimer() = 0;
};

}  // namespace orvik
