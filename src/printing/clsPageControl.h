// The pages of a printed report: its fonts, the area between header and footer, the header with the
// page number, and lines that go to a new page where the present one is full.
//
// Positions are in the printer's units, in single precision.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "engine/PlotRecords.h"
#include "platform/Desktop.h"
#include "printing/clsFont.h"

namespace orvik {

class Printer;

// The report's fonts by their use: the numbers that clsPageControl knows them by.
namespace ReportFont {
inline constexpr int kHeading = 1;
inline constexpr int kSmall = 2;
inline constexpr int kEmphasis = 3;
inline constexpr int kBody = 4;
}  // namespace ReportFont

// For one document: ReadyFonts, GetPrintableMargins, EstimateFreeMargins, PageIsBlank(true),
// NewPage, in this order, and then the lines. Ending the document is the caller's.
class clsPageControl {
 public:
  static constexpr int kFonts = 4;

  // All headers of a document show the time at which it was begun.
  explicit clsPageControl(const ClockTime& time);

  // One of ReportFont. Throws SubscriptError.
  const clsFont& Font(int index) const;

  // Applies the font to the printer and remembers it as the current one.
  void SetPrinterFont(Printer& printer, const clsFont& font);

  // Fills the four fonts, and applies and measures each of them once.
  void ReadyFonts(Printer& printer);

  // Reads the printable area of the paper.
  void GetPrintableMargins(const Printer& printer);

  // The free area: as wide as the printable one, with room above for the header (5.5 lines of font
  // 1) and below for the footer (1.5 lines of font 2).
  void EstimateFreeMargins(const Printer& printer);

  // True after a header was printed and before anything else was.
  bool PageIsBlank() const { return pageIsBlank_; }
  void PageIsBlank(bool blank) { pageIsBlank_ = blank; }

  // The page's header and footer. The printer's position is then where the body begins.
  void Header_Print(Printer& printer, int page);

  // Ejects the page unless it is blank, and prints the next one's header. The current font stays.
  void NewPage(Printer& printer);

  // One line with its upper left corner at x, y; on a new page where its lower edge would reach the
  // end of the free area, and y is then that page's.
  void PrintString(Printer& printer, float x, float& y, std::string_view text);

  // True when something this high still fits in the free area.
  bool Fits(float y, float height) const;

  const clsMargins& PrintableMargins() const { return printableMargins_; }
  const clsRectangle_Single& FreeArea() const { return freeArea_; }

  // Header and body keep off the paper's edges: the columns for them in the free area.
  float BodyLeft() const { return body_.Left; }
  float BodyRight() const { return body_.Right; }

  // The height of a line of text in a font of the report, once the fonts are ready.
  float HeightOfFont(int font) const { return heights_.at(static_cast<std::size_t>(font - 1)); }

  // The second credit line, at the foot of each page: whose report it is.
  void CreditLine(std::string line) { creditLine_ = std::move(line); }

 private:
  void PrintAt(Printer& printer, int font, float x, float y, std::string_view text);
  void PrintRight(Printer& printer, int font, float y, std::string_view text);
  float HeaderTop(const Printer& printer) const;
  void PrintFooter(Printer& printer);

  ClockTime time_;
  std::string creditLine_;
  std::array<clsFont, kFonts> fonts_;
  std::array<float, kFonts> heights_{};  // of a line of text
  clsFont currentFont_;
  clsMargins printableMargins_;
  clsRectangle_Single printable_;
  clsRectangle_Single freeArea_;
  clsRectangle_Single body_;
  bool pageIsBlank_ = true;
};

}  // namespace orvik
