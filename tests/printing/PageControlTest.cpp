// Pages of 2550 x 3300 pixels at 300 to the inch, of which 75 along each edge cannot be printed. In
// the recording printer's fonts a text is as high as its font: 11 points are 45.8, so 46 pixels, 8
// points 33.3, so 33, and 10 points 41.7, so 42.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/RuntimeErrors.h"
#include "platform/headless/HeadlessDesktop.h"
#include "platform/recording/RecordingPrinter.h"
#include "printing/clsPageControl.h"

namespace orvik {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr float kFreeTop = 75 + 5.5F * 46;
constexpr float kFreeBottom = 3225 - 1.5F * 33;

class PageControl : public testing::Test {
 protected:
  PageControl() {
    desktop_.Now({{2026, 4, 7}, 9, 5, 3});
    pages_ = std::make_unique<clsPageControl>(desktop_.Now());
  }

  // As a document begins.
  void Begin() {
    pages_->ReadyFonts(printer_);
    pages_->GetPrintableMargins(printer_);
    pages_->EstimateFreeMargins(printer_);
    pages_->PageIsBlank(true);
    pages_->NewPage(printer_);
  }

  void Use(int font) { pages_->SetPrinterFont(printer_, pages_->Font(font)); }

  static int Count(const std::vector<std::string>& calls, std::string_view part) {
    return static_cast<int>(std::ranges::count_if(
        calls, [&](const auto& call) { return call.find(part) != std::string::npos; }));
  }

  HeadlessDesktop desktop_;
  RecordingPrinter printer_;
  std::unique_ptr<clsPageControl> pages_;
};

TEST_F(PageControl, HasTheFourFonts) {
  pages_->ReadyFonts(printer_);
  EXPECT_EQ(pages_->Font(1), (clsFont{"Arial", 11, true}));
  EXPECT_EQ(pages_->Font(2), (clsFont{"Arial", 8}));
  EXPECT_EQ(pages_->Font(3), (clsFont{"Arial", 10, true}));
  EXPECT_EQ(pages_->Font(4), (clsFont{"Arial", 10}));
  EXPECT_THROW(pages_->Font(0), SubscriptError);
  EXPECT_THROW(pages_->Font(5), SubscriptError);
}

TEST_F(PageControl, ReadyFontsAppliesEachFontOnce) {
  pages_->ReadyFonts(printer_);
  EXPECT_THAT(printer_.Calls(), ElementsAre("font Arial 46 bold", "font Arial 33",
                                            "font Arial 42 bold", "font Arial 42"));
}

TEST_F(PageControl, AppliesEveryStyleOfAFont) {
  pages_->SetPrinterFont(printer_, {"Courier", 24, true, true, true, true});
  EXPECT_THAT(printer_.Calls(),
              ElementsAre("font Courier 100 bold italic underline strikethrough"));
}

TEST_F(PageControl, TheFreeAreaLiesBetweenHeaderAndFooter) {
  Begin();
  EXPECT_EQ(pages_->FreeArea(), (clsRectangle_Single{75, 2475, kFreeTop, kFreeBottom}));
  EXPECT_EQ(pages_->PrintableMargins(), (clsMargins{75, 75, 75, 75}));
}

TEST_F(PageControl, TheBodyKeepsThreeQuartersOfAnInchOffThePapersSides) {
  Begin();
  EXPECT_EQ(pages_->BodyLeft(), 225);
  EXPECT_EQ(pages_->BodyRight(), 2325);
}

// --- The header ---

TEST_F(PageControl, TheHeaderShowsModuleDateTimeAndPage) {
  Begin();
  const auto calls = printer_.Calls();
  for (const char* text : {"\"ORVIK 3.3\" Arial 46 bold", "\"Stormwater Harvesting Module\"",
                           "\"04-07-2026    09:05:03\"", "\"Page 1\"", "\"Version 3.3.1\""}) {
    EXPECT_THAT(calls, Contains(HasSubstr(text)));
  }
}

TEST_F(PageControl, TheHeaderEndsAboveTheBodyOnPapersWithAndWithoutMargins) {
  for (const int unprintable : {0, 50, 75, 150, 300}) {
    RecordingPrinter printer({300, {2550, 3300}, unprintable});
    clsPageControl pages(desktop_.Now());
    pages.ReadyFonts(printer);
    pages.GetPrintableMargins(printer);
    pages.EstimateFreeMargins(printer);
    pages.NewPage(printer);
    for (const std::string& call : printer.Take()) {
      int x = 0;
      int y = 0;
      if (std::sscanf(call.c_str(), "text %d,%d", &x, &y) != 2) continue;
      EXPECT_GE(x, unprintable) << call;
      EXPECT_GE(y, unprintable) << call;
      EXPECT_TRUE(static_cast<float>(y + 46) < pages.FreeArea().Top ||
                  static_cast<float>(y) >= pages.FreeArea().Bottom)
          << unprintable << ": " << call;
      EXPECT_LE(y + 33, 3300 - unprintable) << call;
    }
  }
}

TEST_F(PageControl, AfterTheHeaderThePageIsBlankAndTheBodyBegins) {
  Begin();
  EXPECT_TRUE(pages_->PageIsBlank());
  EXPECT_EQ(printer_.CurrentX(), 225);
  EXPECT_EQ(printer_.CurrentY(), kFreeTop);
}

TEST_F(PageControl, TheCreditLineIsShortenedToItsRoom) {
  const std::string name(400, 'm');
  pages_->CreditLine(name);
  Begin();
  const auto calls = printer_.Calls();
  EXPECT_EQ(Count(calls, name), 0);
  EXPECT_EQ(Count(calls, "mmm...\" Arial 33"), 1);
}

// --- New pages ---

TEST_F(PageControl, TheFirstNewPageEjectsNoBlankSheet) {
  Begin();
  EXPECT_EQ(Count(printer_.Calls(), "new page"), 0);
  EXPECT_EQ(Count(printer_.Calls(), "\"ORVIK 3.3\""), 1);
}

TEST_F(PageControl, ANewPageAfterALineEjectsTheSheet) {
  Begin();
  float y = printer_.CurrentY();
  pages_->PrintString(printer_, 225, y, "A line");
  EXPECT_FALSE(pages_->PageIsBlank());
  pages_->NewPage(printer_);
  EXPECT_EQ(Count(printer_.Calls(), "new page"), 1);
  EXPECT_TRUE(pages_->PageIsBlank());
}

TEST_F(PageControl, ANewPageKeepsTheCurrentFont) {
  Begin();
  for (const int font : {3, 1, 2, 4}) {
    Use(font);
    const std::string before = printer_.Calls().back();
    pages_->PageIsBlank(false);
    pages_->NewPage(printer_);
    EXPECT_EQ(printer_.Calls().back(), before) << font;
  }
}

TEST_F(PageControl, PagesAreNumberedOverTwelvePages) {
  Begin();
  Use(4);
  float y = printer_.CurrentY();
  // (3175.5 - 328) / 42 = 67.8: 67 lines to the page.
  for (int line = 0; line < 67 * 11 + 1; ++line) {
    pages_->PrintString(printer_, 225, y, "line " + std::to_string(line));
    y += 42;
  }
  const auto calls = printer_.Calls();
  EXPECT_EQ(Count(calls, "new page"), 11);
  int page = 0;
  for (const std::string& call : calls) {
    if (call.find("\"Page ") == std::string::npos) continue;
    ++page;
    EXPECT_THAT(call, HasSubstr("\"Page " + std::to_string(page) + "\""));
  }
  EXPECT_EQ(page, 12);
}

// --- Lines ---

TEST_F(PageControl, ALineAboveTheBoundaryStaysAndOneThatTouchesItGoes) {
  const float onBoundary = kFreeBottom - 42;
  const struct {
    float y;
    int ejected;
  } rows[] = {{std::nextafter(onBoundary, 0.0F), 0}, {onBoundary, 1}, {onBoundary + 1, 1}};
  for (const auto& row : rows) {
    RecordingPrinter printer;
    clsPageControl pages(desktop_.Now());
    pages.ReadyFonts(printer);
    pages.GetPrintableMargins(printer);
    pages.EstimateFreeMargins(printer);
    pages.NewPage(printer);
    pages.PageIsBlank(false);
    float y = row.y;
    pages.PrintString(printer, 225, y, "x");
    EXPECT_EQ(Count(printer.Calls(), "new page"), row.ejected) << row.y;
    EXPECT_EQ(y, row.ejected ? kFreeTop : row.y);
  }
}

// 3175 + 0.49999997 is below 3175.5 as a real number, and 3175.5 in single precision.
TEST_F(PageControl, TheBoundaryIsMetInSinglePrecision) {
  Begin();
  pages_->PageIsBlank(false);
  printer_.SetFont({.pixelHeight = 3175});
  float y = std::nextafter(0.5F, 0.0F);
  pages_->PrintString(printer_, 225, y, "x");
  EXPECT_EQ(Count(printer_.Calls(), "new page"), 1);
}

TEST_F(PageControl, ALineOnANewPageIsPrintedInItsOwnFontWhereTheBodyBegins) {
  Begin();
  Use(3);
  pages_->PageIsBlank(false);
  float y = 3200;
  pages_->PrintString(printer_, 300, y, "Moved");
  EXPECT_EQ(printer_.Calls().back(), "text 300,328 \"Moved\" Arial 42 bold colour 0x000000");
  EXPECT_EQ(y, kFreeTop);
  EXPECT_FALSE(pages_->PageIsBlank());
}

TEST_F(PageControl, AFailingPrinterIsNotHidden) {
  Begin();
  printer_.FailAfterPage(1);
  pages_->PageIsBlank(false);
  EXPECT_THROW(pages_->NewPage(printer_), PrinterError);
}

}  // namespace
}  // namespace orvik
