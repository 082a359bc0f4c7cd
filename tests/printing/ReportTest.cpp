// The report on the recording printer.
#include <algorithm>

#include "chart/ChartText.h"
#include "design/Project.h"
#include "platform/PrinterPixels.h"
#include "platform/recording/RecordingPrinter.h"
#include "printing/ProjectReport.h"
#include "support/FormFixture.h"
#include "support/PrintedPages.h"

namespace orvik {
namespace {

using namespace test;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class Report : public FormFixture {
 protected:
  void TypeDescription() {
    Type("txtProjectName", "Citrus Grove");
    Type("txtDescription", "Pond and pumps");
    Type("txtProjectNumber", "07-12");
    Type("txtEngineer", "M. Pe\u00F1a");
    Type("txtSuervisingEngineer", "R. Holloway");
    Type("txtDate", "03-09-2026");
  }

  // R = 0.125 in/day and V = 3 in: as in the mode "Efficiency".
  void PlacePoint() {
    TypeSite();
    std::string E;
    form_->Chart().SetHotspotUsing_RV("0.125", "3", E);
    form_->Chart().OnChange();
  }

  std::vector<PrintedPage> Print(RecordingPrinter& printer) {
    form_->PrintDoc(printer);
    return PrintedPages(printer.Take());
  }
  std::vector<PrintedPage> Print() {
    RecordingPrinter printer;
    return Print(printer);
  }

  // The places of these texts in the report, each after the one before; fails for one that is not
  // there.
  static void ExpectInOrder(const std::vector<std::string>& texts,
                            const std::vector<std::string>& wanted) {
    auto at = texts.begin();
    for (const std::string& text : wanted) {
      const auto found = std::find(at, texts.end(), text);
      EXPECT_NE(found, texts.end()) << text;
      if (found != texts.end()) at = found + 1;
    }
  }

  static const PrintedText& Find(const PrintedPage& page, std::string_view text) {
    const auto found = std::ranges::find(page, text, &PrintedText::text);
    if (found == page.end()) throw std::logic_error("not printed: " + std::string(text));
    return *found;
  }
};

TEST_F(Report, InTheInteractiveModeTheChartComesBeforeTheResult) {
  TypeDescription();
  PlacePoint();
  const auto pages = Print();
  ASSERT_EQ(pages.size(), 2U);
  ExpectInOrder(TextsOf({pages[0]}), {"Project Data:",
                                      "Project name",
                                      "Citrus Grove",
                                      "Description",
                                      "Pond and pumps",
                                      "Project number",
                                      "07-12",
                                      "Engineer",
                                      "M. Pe\u00F1a",
                                      "Supervising engineer",
                                      "R. Holloway",
                                      "Date",
                                      "03-09-2026",
                                      "Basin Data:",
                                      "Basin area",
                                      "10 acres",
                                      "Runoff coefficient",
                                      "0.5",
                                      "Equivalent impervious area",
                                      "5 acres (EIA)",
                                      "Irrigation area",
                                      "5 acres",
                                      "Solution Parameters:",
                                      "Climate station",
                                      "Tampa",
                                      "Source of the curves",
                                      "Test station",
                                      "Solve for",
                                      "Interactive",
                                      "Design Chart:",
                                      "R: Normalized Reuse Rate (in./day on EIA)",
                                      "0.125",
                                      "E: Efficiency",
                                      Text("txtE") + " percent",
                                      "V: Normalized Storage Volume (in. on EIA)",
                                      "3",
                                      "Tampa"});
  ExpectInOrder(TextsOf({pages[1]}),
                {"Result:", "Reuse Rate (in/week)", Text("txtSolveFor(1)"), "Efficiency (%)",
                 Text("txtSolveFor(2)"), "Storage Volume (ac-ft)", Text("txtSolveFor(3)")});
  EXPECT_THAT(TextsOf({pages[0]}), Not(Contains("Result:")));
}

TEST_F(Report, InTheOtherModesTheResultComesBeforeTheChart) {
  TypeDescription();
  SolveForEfficiency();
  const auto pages = Print();
  ASSERT_EQ(pages.size(), 2U);
  ExpectInOrder(TextsOf({pages[0]}),
                {"Project Data:", "Basin Data:", "Solution Parameters:", "Solve for", "Efficiency",
                 "Storage Volume (ac-ft)", "1.25", "Reuse Rate (in/week)", "0.875",
                 "Efficiency (%)", Text("txtSolveFor(3)"), "Result:"});
  ExpectInOrder(TextsOf({pages[1]}), {"Design Chart:", "R: Normalized Reuse Rate (in./day on EIA)",
                                      "0.125", "E: Efficiency", Text("txtE") + " percent",
                                      "V: Normalized Storage Volume (in. on EIA)", "3", "Tampa"});
  EXPECT_THAT(TextsOf({pages[0]}), Not(Contains("Design Chart:")));
}

TEST_F(Report, EveryPageHasItsHeaderAndTheProjectAtItsFoot) {
  TypeDescription();
  SolveForEfficiency();
  const auto pages = Print();
  for (std::size_t i = 0; i < pages.size(); ++i) {
    const auto texts = TextsOf({pages[i]});
    EXPECT_THAT(texts, Contains("ORVIK 3.3"));
    EXPECT_THAT(texts, Contains("Page " + std::to_string(i + 1)));
    EXPECT_THAT(texts, Contains("07-12  Citrus Grove"));
  }
}

TEST_F(Report, BlanksAroundAValueAreNotPrinted) {
  TypeDescription();
  SolveForEfficiency();
  Type("txtProjectName", "  Citrus Grove ");
  TypeAndEnter("txtBasinArea", "  10  ");
  const auto texts = TextsOf(Print());
  EXPECT_THAT(texts, Contains("Citrus Grove"));
  EXPECT_THAT(texts, Contains("10 acres"));
}

TEST_F(Report, CaptionsAndValuesAreInTwoColumns) {
  TypeDescription();
  SolveForEfficiency();
  const auto pages = Print();
  const PrintedPage& page = pages[0];
  const Area caption = Find(page, "Project name").area;
  const Area value = Find(page, "Citrus Grove").area;
  for (const char* text : {"Description", "Date", "Basin area", "Climate station", "Solve for",
                           "Storage Volume (ac-ft)", "Efficiency (%)"}) {
    EXPECT_EQ(Find(page, text).area.left, caption.left) << text;
    EXPECT_LT(Find(page, text).area.right, value.left) << text;
  }
  for (const char* text : {"Pond and pumps", "10 acres", "Tampa", "1.25", "0.875"}) {
    EXPECT_EQ(Find(page, text).area.left, value.left) << text;
  }
  EXPECT_EQ(Find(page, "Description").area.top, Find(page, "Pond and pumps").area.top);
}

// --- The result in words ---

std::string Words(const std::vector<PrintedPage>& pages) {
  std::string words;
  for (const auto& text : TextsOf(pages)) words += text + " ";
  return words;
}

TEST_F(Report, NamesEachResultInASentenceWithUnits) {
  SolveForEfficiency();
  EXPECT_THAT(Words(Print()), HasSubstr("A pond that stores 1.25 acre-feet and irrigates 5 acres "
                                        "with 0.875 inches per week uses " +
                                        Text("txtSolveFor(3)") + " percent of the runoff."));
  // 0.875 / 84 ft/day x 5 x 43560 sq ft x 7.480519 gal/cu ft = 16971.4 gal/day
  EXPECT_THAT(Words(Print()), HasSubstr("This reuse rate is 16971.4"));

  Choose("cmbSolveFor", "Storage Volume");
  EXPECT_THAT(Words(Print()), HasSubstr("To use " + Text("txtSolveFor(1)") +
                                        " percent of the runoff by irrigating 5 acres with 0.875 "
                                        "inches per week, the pond must store " +
                                        Text("txtSolveFor(3)") + " acre-feet."));
  Choose("cmbSolveFor", "Reuse Rate");
  EXPECT_THAT(Words(Print()),
              HasSubstr("To use " + Text("txtSolveFor(1)") +
                        " percent of the runoff from a pond that stores " + Text("txtSolveFor(2)") +
                        " acre-feet, irrigation must apply " + Text("txtSolveFor(3)") +
                        " inches per week to 5 acres."));
}

TEST_F(Report, AProjectWithoutAResultSaysWhy) {
  TypeSite();
  EXPECT_THAT(Words(Print()), HasSubstr("No result: No point is placed on the chart."));
  SolveForEfficiency();
  TypeAndEnter("txtSolveFor(1)", "50");  // V = 120, far beyond the chart
  EXPECT_THAT(Words(Print()), HasSubstr("No result: Normalized storage volume is greater than 7"));
  EXPECT_THAT(Words(Print()), Not(HasSubstr("gallons")));
}

TEST_F(Report, AnEmptyProjectIsAReportWithoutAChart) {
  const auto words = Words(Print());
  EXPECT_THAT(words, HasSubstr("There is no chart: no design curves are loaded."));
  EXPECT_THAT(words, HasSubstr("No result: "));
}

// --- Long values ---

// No text leaves the printable area or runs into another one, on any page.
void ExpectTidy(const std::vector<PrintedPage>& pages, const Area& printable) {
  for (const PrintedPage& page : pages) {
    for (std::size_t i = 0; i < page.size(); ++i) {
      const PrintedText& a = page[i];
      EXPECT_TRUE(printable.left <= a.area.left && a.area.right <= printable.right &&
                  printable.top <= a.area.top && a.area.bottom <= printable.bottom)
          << a.text;
      for (std::size_t j = i + 1; j < page.size(); ++j) {
        EXPECT_FALSE(Overlap(a.area, page[j].area)) << a.text << " and " << page[j].text;
      }
    }
  }
}

// The lines of the value that stands in this column, joined again.
std::string ValueAt(const std::vector<PrintedPage>& pages, int left, std::string_view first,
                    std::string_view behind) {
  std::string joined;
  bool isIn = false;
  for (const PrintedPage& page : pages) {
    for (const PrintedText& printed : page) {
      if (printed.text == behind) return joined;
      if (printed.text == first) isIn = true;
      if (!isIn || printed.area.left != left || printed.text == first) continue;
      joined += (joined.empty() ? "" : " ") + printed.text;
    }
  }
  return joined;
}

TEST_F(Report, ADescriptionOf10000CharactersIsPrintedWhole) {
  TypeDescription();
  SolveForEfficiency();
  std::string description;
  for (int i = 0; description.size() < 10000; ++i) {
    description += (i > 0 ? " word" : "word") + std::to_string(i);
  }
  Type("txtDescription", description);
  RecordingPrinter printer;
  const auto pages = Print(printer);
  EXPECT_GE(pages.size(), 4U);
  ExpectTidy(pages, printer.PrintableArea());
  const int column = Find(pages[0], "Citrus Grove").area.left;
  EXPECT_EQ(ValueAt(pages, column, "Description", "Project number"), description);
}

TEST_F(Report, LongWordsAndForeignLettersStayInTheirColumn) {
  TypeDescription();
  SolveForEfficiency();
  Type("txtProjectName", std::string(200, 'W'));
  Type("txtEngineer",
       "\u0141\u00F3d\u017A \u6C34\u5229 \u0412\u043E\u0434\u0430 Ing. Mu\u00F1oz de "
       "la Pe\u00F1a y \u00C1lvarez-Buylla, P.E., D.WRE, CFM, LEED AP");
  form_->Fields().Box(Field::Description).Text("tabs\tand\rline\nends");
  RecordingPrinter printer;
  const auto pages = Print(printer);
  ExpectTidy(pages, printer.PrintableArea());
  EXPECT_THAT(TextsOf(pages), Contains("tabs and line ends"));
}

struct PaperOfDevice {
  int resolution;
  double width;  // inches, as the height is
  double height;
};

// Letter, A4 and a plotter's largest sheet.
constexpr PaperOfDevice kPapers[] = {
    {300, 8.5, 11},    {360, 8.5, 11},     {600, 8.5, 11},    {720, 8.5, 11},
    {1200, 8.5, 11},   {300, 8.27, 11.7},  {360, 8.27, 11.7}, {600, 8.27, 11.7},
    {720, 8.27, 11.7}, {1200, 8.27, 11.7}, {300, 36, 48},     {1200, 36, 48},
};

TEST_F(Report, IsTidyOnEveryPaperAtEveryResolution) {
  TypeDescription();
  SolveForEfficiency();
  Type("txtProjectName", "Sixty characters of a project name that will not fit a line");
  for (const char* mode : {"Efficiency", "Interactive"}) {
    Choose("cmbSolveFor", mode);
    for (const auto& [device, width, height] : kPapers) {
      const int dpi = PrinterPixelsPerInch(device, height);
      const Size paper{static_cast<int>(width * dpi), static_cast<int>(height * dpi)};
      for (const int unprintable : {0, dpi / 6, dpi / 4}) {
        RecordingPrinter printer({dpi, paper, unprintable});
        const auto pages = Print(printer);
        EXPECT_EQ(pages.size(), 2U) << mode << " " << dpi << " " << height << " " << unprintable;
        ExpectTidy(pages, printer.PrintableArea());
        EXPECT_THAT(TextsOf(pages),
                    Contains("V, Reuse Volume (inches on equivalent impervious area)"));
        EXPECT_THAT(TextsOf(pages), Contains("R, Reuse Rate (in/day on equiv. impervious area)"));
      }
    }
  }
}

TEST_F(Report, AChartThatFindsTooLittleRoomGoesToTheNextPageWithItsLegend) {
  TypeDescription();
  PlacePoint();
  std::string description;
  for (int i = 0; i < 200; ++i) description += "word ";
  Type("txtDescription", description);
  const auto pages = Print();
  ASSERT_EQ(pages.size(), 3U);
  EXPECT_THAT(TextsOf({pages[0]}), Not(Contains("Design Chart:")));
  ExpectInOrder(TextsOf({pages[1]}), {"Design Chart:", "E: Efficiency", "Tampa"});
  ExpectInOrder(TextsOf({pages[2]}), {"Result:"});
}

// --- What printing leaves alone ---

TEST_F(Report, ChangesNeitherTheFieldsNorTheChart) {
  PlacePoint();
  std::string before;
  std::string after;
  ASSERT_TRUE(form_->Files().SaveText(before));
  RecordingSurface screenBefore;
  RecordingSurface screenAfter;
  form_->Chart().Paint(screenBefore);
  const auto box = std::pair(form_->Chart().Point().pixel.x, form_->Chart().Point().pixel.y);
  Print();
  form_->Chart().Paint(screenAfter);
  ASSERT_TRUE(form_->Files().SaveText(after));
  EXPECT_EQ(before, after);
  EXPECT_EQ(screenBefore.Calls(), screenAfter.Calls());
  EXPECT_EQ(std::pair(form_->Chart().Point().pixel.x, form_->Chart().Point().pixel.y), box);
}

TEST_F(Report, ASecondDocumentBeginsWithoutABlankSheet) {
  Project project;
  project.Text(Field::ProjectName) = "Pond";
  const std::string noMessage;
  ProjectReport report(project, noMessage, nullptr, desktop_.Now());
  RecordingPrinter first;
  RecordingPrinter second;
  report.PrintDoc(first);
  report.PrintDoc(second);
  EXPECT_EQ(first.Calls(), second.Calls());
}

TEST_F(Report, IsTheSameWhenItIsPrintedAgain) {
  SolveForEfficiency();
  RecordingPrinter first;
  RecordingPrinter second;
  form_->PrintDoc(first);
  form_->PrintDoc(second);
  EXPECT_EQ(first.Calls(), second.Calls());
}

// --- The Print command ---

class PrintCommand : public Report {
 protected:
  RecordingPrinter& Connect() {
    auto printer = std::make_unique<PrinterProxy>(log_);
    desktop_.AnswerPrinter(std::move(printer));
    return log_;
  }

  // The desktop's printer goes with the command; what it was told stays here.
  class PrinterProxy final : public PagePrinter {
   public:
    explicit PrinterProxy(RecordingPrinter& printer) : printer_(printer) {}
    int Resolution() const override { return printer_.Resolution(); }
    Size PaperSize() const override { return printer_.PaperSize(); }
    Area PrintableArea() const override { return printer_.PrintableArea(); }
    DocumentStart StartDocument(std::string_view title) override {
      return printer_.StartDocument(title);
    }
    int PageNumber() const override { return printer_.PageNumber(); }
    void NewPage() override { printer_.NewPage(); }
    void EndDocument() override { printer_.EndDocument(); }

   protected:
    Surface& Page() override { return printer_; }
    Surface& ToMeasure() const override { return printer_; }

   private:
    RecordingPrinter& printer_;
  };

  RecordingPrinter log_;
};

TEST_F(PrintCommand, PrintsOneDocumentAndEndsIt) {
  Type("txtProjectName", "Citrus Grove");
  SolveForEfficiency();
  RecordingPrinter& printer = Connect();
  toolkit_.ClickMenu("mnuFile_Print");
  EXPECT_EQ(printer.Calls().front(), "document \"Stormwater Harvesting Report - Citrus Grove\"");
  EXPECT_EQ(printer.Calls().back(), "end of document");
  EXPECT_TRUE(desktop_.Messages().empty());
}

TEST_F(PrintCommand, WithoutAPrinterThereIsAMessage) {
  toolkit_.ClickMenu("mnuFile_Print");
  EXPECT_THAT(desktop_.Messages(),
              ElementsAre(HeadlessDesktop::Message{"Unable to establish connection with printer.",
                                                   "Error", MessageIcon::Exclamation}));
}

TEST_F(PrintCommand, APrinterThatTakesNoDocumentIsNoPrinter) {
  RecordingPrinter& printer = Connect();
  printer.AnswerStart(DocumentStart::Unreachable);
  toolkit_.ClickMenu("mnuFile_Print");
  EXPECT_EQ(desktop_.Messages().size(), 1U);
  EXPECT_TRUE(printer.Calls().empty());
}

TEST_F(PrintCommand, ADocumentThatTheUserCancelsIsNoFault) {
  RecordingPrinter& printer = Connect();
  printer.AnswerStart(DocumentStart::CalledOff);
  toolkit_.ClickMenu("mnuFile_Print");
  EXPECT_TRUE(desktop_.Messages().empty());
  EXPECT_TRUE(printer.Calls().empty());
}

TEST_F(PrintCommand, APrinterThatFailsInTheMiddleEndsTheJobSilently) {
  SolveForEfficiency();
  for (const int page : {1, 2}) {
    RecordingPrinter& printer = Connect();
    printer.FailAfterPage(page);
    toolkit_.ClickMenu("mnuFile_Print");
    EXPECT_FALSE(printer.HasEnded()) << page;
    EXPECT_TRUE(desktop_.Messages().empty()) << page;
  }
}

TEST_F(PrintCommand, APageBeyond16BitsEndsTheJobWithAMessage) {
  SolveForEfficiency();
  RecordingPrinter beyond({1200, {36 * 1200, 48 * 1200}, 0});
  desktop_.AnswerPrinter(std::make_unique<PrinterProxy>(beyond));
  toolkit_.ClickMenu("mnuFile_Print");
  EXPECT_FALSE(beyond.HasEnded());
  EXPECT_THAT(desktop_.Messages(),
              ElementsAre(HeadlessDesktop::Message{
                  "The report cannot be printed. A number is too large for the calculation.",
                  "Error", MessageIcon::Exclamation}));
}

// The caret may still stand in the field when Ctrl+P is pressed.
TEST_F(PrintCommand, CalculatesWhatWasTypedAndNotYetCalculated) {
  SolveForEfficiency();
  const std::string before = Text("txtSolveFor(3)");
  Type("txtSolveFor(1)", "1.5");
  ASSERT_EQ(Text("txtSolveFor(3)"), before) << "the field has not been left yet";
  RecordingPrinter& printer = Connect();
  toolkit_.ClickMenu("mnuFile_Print");
  EXPECT_NE(Text("txtSolveFor(3)"), before);
  EXPECT_THAT(Words(PrintedPages(printer.Calls())),
              HasSubstr("A pond that stores 1.5 acre-feet and irrigates 5 acres with 0.875 inches "
                        "per week uses " +
                        Text("txtSolveFor(3)") + " percent"));
}

}  // namespace
}  // namespace orvik
