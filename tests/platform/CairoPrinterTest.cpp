#include <gmock/gmock.h>

#include "platform/cairo/CairoPrinter.h"

namespace orvik {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Ne;
using testing::StartsWith;

constexpr ClockTime kDate{{2026, 4, 17}, 9, 30, 5};

std::string TwoPages(PaperFormat paper = PaperFormat::Letter, const ClockTime& date = kDate) {
  std::string bytes;
  CairoPrinter printer(bytes, paper, date);
  EXPECT_EQ(printer.StartDocument("Pond \u00F1"), DocumentStart::Started);
  EXPECT_EQ(printer.PageNumber(), 1);
  printer.SetFont({.pixelHeight = 200});
  printer.MoveTo(1000, 1000);
  printer.Print("first");
  printer.NewPage();
  EXPECT_EQ(printer.PageNumber(), 2);
  printer.Print("second");
  printer.EndDocument();
  return bytes;
}

TEST(CairoPrinter, LetterAndA4InPointsAndPixels) {
  EXPECT_THAT(TwoPages(), HasSubstr("/MediaBox [ 0 0 612 792 ]"));
  EXPECT_THAT(TwoPages(PaperFormat::A4), HasSubstr("/MediaBox [ 0 0 595.26 841.86 ]"));
  std::string bytes;
  const CairoPrinter printer(bytes, PaperFormat::Letter, kDate);
  EXPECT_EQ(printer.Resolution(), 1200);
  EXPECT_EQ(printer.PaperSize(), (Size{10200, 13200}));
  EXPECT_EQ(printer.PrintableArea(), (Area{300, 300, 9900, 12900}));
}

TEST(CairoPrinter, TheDocumentHasItsPagesAndItsDate) {
  const std::string pdf = TwoPages();
  EXPECT_THAT(pdf, StartsWith("%PDF-"));
  EXPECT_THAT(pdf, EndsWith("%%EOF\n"));
  EXPECT_THAT(pdf, HasSubstr("/Count 2"));
  EXPECT_THAT(pdf, HasSubstr("/CreationDate (20260417093005"));
}

TEST(CairoPrinter, TheSameCallsAndDateMakeTheSameBytes) {
  EXPECT_EQ(TwoPages(), TwoPages());
  EXPECT_THAT(TwoPages(PaperFormat::Letter, {{2026, 4, 17}, 9, 30, 6}), Ne(TwoPages()));
}

TEST(CairoPrinter, ADiscardedDocumentHasNoEnd) {
  std::string bytes;
  {
    CairoPrinter printer(bytes, PaperFormat::Letter, kDate);
    printer.StartDocument("Pond");
    printer.FillArea({0, 0, 100, 100}, kRed);
    EXPECT_EQ(bytes.find("%%EOF"), std::string::npos);
  }
}

}  // namespace
}  // namespace orvik
