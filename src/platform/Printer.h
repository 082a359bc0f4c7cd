// The printing seam: a surface that has pages, a current font and a current position.
//
// Coordinates are pixels of the printer, counted from the upper left corner of the paper; what lies
// outside the printable area is lost. A printer that is destroyed before its document is ended
// discards the document.
#pragma once

#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <string_view>

#include "platform/Surface.h"

namespace orvik {

// The printer has failed while it printed a document.
class PrinterError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class DocumentStart : std::uint8_t {
  Started,
  CalledOff,    // the user cancelled
  Unreachable,  // there is no connection with the printer
};

// Drawing and the page operations throw PrinterError where the printer fails.
class Printer : public Surface {
 public:
  // --- The paper; the same on all pages ---

  virtual int Resolution() const = 0;  // pixels per inch, the same both ways
  virtual Size PaperSize() const = 0;
  virtual Area PrintableArea() const = 0;

  // --- The document ---

  // `title` is what viewers and print queues call the document. Everything else comes after it.
  virtual DocumentStart StartDocument(std::string_view title) = 0;
  virtual int PageNumber() const = 0;  // of the present page, 1 for the first
  virtual void NewPage() = 0;          // ejects the present page
  virtual void EndDocument() = 0;

  // --- Text at the current position ---

  virtual void SetFont(const Font& font) { font_ = font; }

  // A new page leaves the position as it is.
  void MoveTo(float x, float y) {
    x_ = x;
    y_ = y;
  }
  float CurrentX() const { return x_; }
  float CurrentY() const { return y_; }

  // Of the text in the current font.
  float TextHeight(std::string_view text) {
    return static_cast<float>(MeasureText(text, font_).height);
  }
  float TextWidth(std::string_view text) {
    return static_cast<float>(MeasureText(text, font_).width);
  }

  // Writes one line of text in black with its upper left corner at the current position, which
  // moves down to the next line.
  void Print(std::string_view text) {
    WriteText({static_cast<int>(std::lround(x_)), static_cast<int>(std::lround(y_))}, text, font_,
              kBlack);
    y_ += TextHeight(text);
  }

 private:
  Font font_;
  float x_ = 0;
  float y_ = 0;
};

}  // namespace orvik
