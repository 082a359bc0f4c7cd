// How the widgets of a form are laid out in its window, as data for a toolkit that has a screen.
//
// The toolkit asks for the layout again whenever the window's size, scaling or font changes.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "platform/Surface.h"

namespace orvik {

enum class WidgetStyle : std::uint8_t {
  Plain,
  Heading,    // a label in bold letters
  Wrapped,    // a text box over several lines of the screen; its text stays one line
  Separated,  // a menu item with a line above it
  Bare,       // a text box without a frame: looks like a label, and its text can be copied
  Notice,  // in the colours for information: a label, or a bare text box over several lines, whose
           // new texts are announced to those who listen
};

// What a user can do to the window's frame.
enum class WindowFrame : std::uint8_t {
  Main,      // any size; can be maximised and minimised
  Sizable,   // any size; can be maximised
  FixedSize  // keeps its initial size
};

// The rows of a form: widgets in the order in which the Tab key and a reader meet them (a label
// directly before its field names it), menus in the order of the menu bar.
struct WidgetDesign {
  std::string_view name;
  std::string_view parent;  // a panel or menu made before it; empty: the window
  WidgetStyle style = WidgetStyle::Plain;
};

// Measures of the window's text at its scaling.
struct TextMeasures {
  int dpi = 96;
  int lineHeight = 13;                         // pixels
  std::function<int(std::string_view)> width;  // pixels of a text of one line, in UTF-8

  // Pixels of a length given for 96 dots per inch.
  int Scale(int length) const { return (length * dpi + 48) / 96; }
};

// A widget's place in its parent's inner area, pixels.
struct Placement {
  std::string_view name;
  Area area;
  bool operator==(const Placement&) const = default;
};

class FormDesign {
 public:
  FormDesign() = default;
  FormDesign(const FormDesign&) = delete;
  FormDesign& operator=(const FormDesign&) = delete;
  virtual ~FormDesign() = default;

  virtual WindowFrame Frame() const { return WindowFrame::Main; }
  virtual std::span<const WidgetDesign> Widgets() const = 0;

  // The widget that has the keyboard when the window opens; empty: the first field of its page.
  virtual std::string_view FirstFocus() const { return {}; }

  // Sizes of the window's inner area, pixels: the smallest in which everything has its place, and
  // the one that the window opens with where the screen has room.
  virtual Size MinimumSize(const TextMeasures& measures) const = 0;
  virtual Size InitialSize(const TextMeasures& measures) const = 0;

  // A place for each widget, in a window whose inner area has this size.
  virtual std::vector<Placement> LayOut(Size inner, const TextMeasures& measures) const = 0;
};

}  // namespace orvik
