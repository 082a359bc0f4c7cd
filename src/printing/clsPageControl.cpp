#include "printing/clsPageControl.h"

#include <algorithm>
#include <cmath>

#include "base/ModuleVersion.h"
#include "base/NumberText.h"
#include "base/Rounding.h"
#include "base/RuntimeErrors.h"
#include "printing/FitText.h"

namespace orvik {
namespace {

constexpr double kPointsPerInch = 72;
constexpr float kHeaderLines = 5.5F;  // of font 1
constexpr float kFooterLines = 1.5F;  // of font 2
constexpr float kSideMargin = 0.75F;  // inches from the paper's edges to header and body
constexpr float kTopMargin = 0.5F;    // inches to the header, where there is room
constexpr float kRuleGap = 0.3F;      // above the header's rule, in lines of font 2
constexpr float kBodyGap = 1;         // below it to the body, in lines of font 1
constexpr float kRuleWidth = 0.007F;  // inches
constexpr float kFooterGap = 0.3F;    // above the footer, in lines of font 2

constexpr std::string_view kSubtitleLine = "Stormwater Harvesting Module";
constexpr std::string_view kAuthorLine = "Prepared with the ORVIK pond design suite";

// "11-21-2026    06:45:09"
std::string DateAndTime(const ClockTime& time) {
  return MonthDayYear(time.date.month, time.date.day, time.date.year) + "    " +
         WithLeadingZeros(time.hour, 2) + ":" + WithLeadingZeros(time.minute, 2) + ":" +
         WithLeadingZeros(time.second, 2);
}

}  // namespace

clsPageControl::clsPageControl(const ClockTime& time) : time_(time) {}

const clsFont& clsPageControl::Font(int index) const {
  if (index < 1 || index > kFonts) throw SubscriptError();
  return fonts_.at(static_cast<std::size_t>(index - 1));
}

void clsPageControl::SetPrinterFont(Printer& printer, const clsFont& font) {
  orvik::Font applied;
  applied.face = font.name;
  applied.pixelHeight =
      ToInt16(static_cast<double>(font.size) * printer.Resolution() / kPointsPerInch);
  applied.bold = font.bold;
  applied.italic = font.italic;
  applied.underline = font.underline;
  applied.strikethrough = font.strikethrough;
  printer.SetFont(applied);
  currentFont_ = font;
}

void clsPageControl::ReadyFonts(Printer& printer) {
  fonts_ = {clsFont{"Arial", 11, true}, clsFont{"Arial", 8}, clsFont{"Arial", 10, true},
            clsFont{"Arial", 10}};
  for (std::size_t i = 0; i < fonts_.size(); ++i) {
    SetPrinterFont(printer, fonts_[i]);
    heights_[i] = printer.TextHeight("Ag");
  }
}

void clsPageControl::GetPrintableMargins(const Printer& printer) {
  const Area area = printer.PrintableArea();
  const Size paper = printer.PaperSize();
  printable_ = {static_cast<float>(area.left), static_cast<float>(area.right),
                static_cast<float>(area.top), static_cast<float>(area.bottom)};
  printableMargins_ = {printable_.Left, static_cast<float>(paper.width - area.right),
                       printable_.Top, static_cast<float>(paper.height - area.bottom)};
}

void clsPageControl::EstimateFreeMargins(const Printer& printer) {
  freeArea_ = {printable_.Left, printable_.Right,
               printable_.Top + kHeaderLines * HeightOfFont(ReportFont::kHeading),
               printable_.Bottom - kFooterLines * HeightOfFont(ReportFont::kSmall)};
  const float side = kSideMargin * static_cast<float>(printer.Resolution());
  const float paperWidth = printable_.Right + printableMargins_.Right;
  body_ = freeArea_;
  body_.Left = std::max(freeArea_.Left, side);
  body_.Right = std::min(freeArea_.Right, paperWidth - side);
}

bool clsPageControl::Fits(float y, float height) const {
  return y + height < freeArea_.Bottom;
}

// --- Header and footer ---

void clsPageControl::PrintAt(Printer& printer, int font, float x, float y, std::string_view text) {
  SetPrinterFont(printer, Font(font));
  printer.MoveTo(x, y);
  printer.Print(text);
}

void clsPageControl::PrintRight(Printer& printer, int font, float y, std::string_view text) {
  SetPrinterFont(printer, Font(font));
  PrintAt(printer, font, body_.Right - printer.TextWidth(text), y, text);
}

// Below the paper's own margin if the header then still ends above the body.
float clsPageControl::HeaderTop(const Printer& printer) const {
  const float height = (1 + kBodyGap) * HeightOfFont(ReportFont::kHeading) +
                       HeightOfFont(ReportFont::kEmphasis) +
                       (1 + kRuleGap) * HeightOfFont(ReportFont::kSmall);
  const float wanted = kTopMargin * static_cast<float>(printer.Resolution());
  return std::max(printable_.Top, std::min(wanted, freeArea_.Top - height));
}

void clsPageControl::Header_Print(Printer& printer, int page) {
  PrintFooter(printer);
  float y = HeaderTop(printer);
  PrintAt(printer, ReportFont::kHeading, body_.Left, y, kProductName);
  PrintRight(printer, ReportFont::kBody, y, "Page " + std::to_string(page));
  y += HeightOfFont(ReportFont::kHeading);
  PrintAt(printer, ReportFont::kEmphasis, body_.Left, y, kSubtitleLine);
  PrintRight(printer, ReportFont::kBody, y, DateAndTime(time_));
  y += HeightOfFont(ReportFont::kEmphasis);
  PrintAt(printer, ReportFont::kSmall, body_.Left, y, "Version " + std::string(kModuleVersion));
  y += (1 + kRuleGap) * HeightOfFont(ReportFont::kSmall);

  const float ruleWidth = std::max(1.0F, kRuleWidth * static_cast<float>(printer.Resolution()));
  printer.FillArea({ToInt16(body_.Left), ToInt16(y), ToInt16(body_.Right), ToInt16(y + ruleWidth)},
                   kBlack);
  pageIsBlank_ = true;
  printer.MoveTo(body_.Left, freeArea_.Top);
}

// The author's line on the left, and whose report it is on the right, shortened where it is longer
// than the rest of the line: the page's sheet is known by it, the report has it in full.
void clsPageControl::PrintFooter(Printer& printer) {
  const float y = freeArea_.Bottom + kFooterGap * HeightOfFont(ReportFont::kSmall);
  PrintAt(printer, ReportFont::kSmall, body_.Left, y, kAuthorLine);
  const float gap = 2 * HeightOfFont(ReportFont::kSmall);
  const float room = body_.Right - body_.Left - printer.TextWidth(kAuthorLine) - gap;
  const auto width = [&](std::string_view text) { return printer.TextWidth(text); };
  PrintRight(printer, ReportFont::kSmall, y, FitText(creditLine_, room, width));
}

// --- Pages and lines ---

void clsPageControl::NewPage(Printer& printer) {
  const clsFont font = currentFont_;
  if (!pageIsBlank_) printer.NewPage();
  Header_Print(printer, printer.PageNumber());
  SetPrinterFont(printer, font);
}

void clsPageControl::PrintString(Printer& printer, float x, float& y, std::string_view text) {
  if (!Fits(y, printer.TextHeight(text))) {
    NewPage(printer);
    y = printer.CurrentY();
    SetPrinterFont(printer, currentFont_);
  }
  printer.MoveTo(x, y);
  printer.Print(text);
  pageIsBlank_ = false;
}

}  // namespace orvik
