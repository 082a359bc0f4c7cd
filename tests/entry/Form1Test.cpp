#include "engine/ClimateStations.h"
#include "support/FormFixture.h"
#include "support/ProjectText.h"

namespace orvik {
namespace {

constexpr std::int16_t kRightArrow = 39;

using test::FormFixture;

class Form1Test : public FormFixture {};

TEST_F(Form1Test, StartsStandAloneWithTheFileMenu) {
  EXPECT_EQ(form_->Mode(), 1);
  EXPECT_EQ(form_->ReturnCode(), 0);
  EXPECT_TRUE(toolkit_.IsVisible("mnuFile"));
  for (const char* hidden : {"mnuReturn", "cmdSaveExit", "cmdDiscardExit"}) {
    EXPECT_FALSE(toolkit_.IsVisible(hidden)) << hidden;
  }
}

TEST_F(Form1Test, ModeTwoShowsTheReturnCommandsAndBack) {
  form_->Mode(2);
  EXPECT_FALSE(toolkit_.IsVisible("mnuFile"));
  for (const char* shown : {"mnuReturn", "cmdSaveExit", "cmdDiscardExit"}) {
    EXPECT_TRUE(toolkit_.IsVisible(shown)) << shown;
  }
  form_->Mode(1);
  EXPECT_TRUE(toolkit_.IsVisible("mnuFile"));
  EXPECT_FALSE(toolkit_.IsVisible("mnuReturn"));
}

TEST_F(Form1Test, AnyOtherModeIsStoredAndLeavesTheCommands) {
  for (const std::int16_t mode : {std::int16_t{3}, std::int16_t{0}, std::int16_t{-1}}) {
    form_->Mode(2);
    form_->Mode(mode);
    EXPECT_EQ(form_->Mode(), mode);
    EXPECT_TRUE(toolkit_.IsVisible("mnuReturn")) << mode;
    EXPECT_FALSE(toolkit_.IsVisible("mnuFile")) << mode;
  }
}

TEST_F(Form1Test, ListsTheChartsStationsInTheirOrder) {
  const auto& list = toolkit_.Find<HeadlessComboBox>("cmbClimateStation");
  ASSERT_EQ(list.ListCount(), NumRainfallStations());
  for (std::int16_t i = 1; i <= NumRainfallStations(); ++i) {
    EXPECT_EQ(list.List(static_cast<std::int16_t>(i - 1)), ClimateStationName(i));
  }
  EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(Form1Test, ListsTheFourModesAndSelectsInteractive) {
  const auto& list = toolkit_.Find<HeadlessComboBox>("cmbSolveFor");
  ASSERT_EQ(list.ListCount(), 4);
  EXPECT_EQ(list.List(0), "Interactive");
  EXPECT_EQ(list.List(1), "Efficiency");
  EXPECT_EQ(list.List(2), "Storage Volume");
  EXPECT_EQ(list.List(3), "Reuse Rate");
  EXPECT_EQ(list.ListIndex(), 0);
  EXPECT_TRUE(form_->Chart().InteractiveMode());
}

TEST_F(Form1Test, TheTitleShowsTheVersionWithFourDigitsOfBuildNumber) {
  EXPECT_EQ(toolkit_.Caption("Form1"),
            "KAV - ORVIK 3.3 Stormwater Harvesting Module (Ver 3.3.0001)");
}

// --- The status line ---

TEST_F(Form1Test, TheStatusLineTellsOfUnsavedChangesAndOfSaving) {
  const auto saved = [this] { return toolkit_.Caption("lblSaved"); };
  const auto file = [this] { return toolkit_.Caption("lblFile"); };
  EXPECT_EQ(saved(), "");
  EXPECT_EQ(file(), "untitled");
  Type("txtProjectName", "Lake");
  EXPECT_EQ(saved(), "Unsaved changes");
  desktop_.Now({{2026, 3, 9}, 14, 5, 0});
  ASSERT_TRUE(form_->Files().SaveFile(folder_ / "Lake.kav"));
  EXPECT_EQ(saved(), "Saved 14:05");
  EXPECT_EQ(file(), "Lake.kav");
  Choose("cmbClimateStation", "Tampa");
  EXPECT_EQ(saved(), "Unsaved changes");
  form_->Files().OpenProject(folder_ / "Lake.kav");
  EXPECT_EQ(saved(), "") << "it was not saved since it was opened";
  EXPECT_EQ(file(), "Lake.kav");
}

TEST_F(Form1Test, TheStatusLineCountsAMovedPointAsAChange) {
  TypeSite();
  Enter("txtBasinArea");
  ASSERT_TRUE(form_->Files().SaveFile(folder_ / "Lake.kav"));
  auto& chart = form_->Chart();
  chart.MouseDown(1, chart.Geometry().XPlotToXFrame(3), chart.Geometry().YPlotToYFrame(0.12));
  chart.MouseUp();
  EXPECT_EQ(toolkit_.Caption("lblSaved"), "Unsaved changes");
}

TEST_F(Form1Test, AHostsProjectHasNoFile) {
  form_->Mode(2);
  EXPECT_EQ(toolkit_.Caption("lblFile"), "");
}

// --- What leaves the window belongs together ---

// R = 4 and V = 5: E = 50 + 10 (4 + ln 5 - 4) = 66.09438; before, with R = 3, it was 56.09438.
class TypedPoint : public Form1Test {
 protected:
  TypedPoint() {
    TypeSite("Orlando");
    Type("txtR", "3");
    TypeAndEnter("txtV", "5");
    EXPECT_NEAR(Number("txtE"), 56.09438, 0.06) << "to the pixel";
    Type("txtR", "4");
  }
};

TEST_F(TypedPoint, IsPlacedBeforePrinting) {
  form_->PrintCurrentProject();
  EXPECT_NEAR(Number("txtE"), 66.09438, 0.06);
  EXPECT_NEAR(Number("txtSolveFor(1)"), 4 * 7, 1e-4) << "inches per week";
}

TEST_F(TypedPoint, IsPlacedBeforeTheHostGetsTheProject) {
  std::string project;
  ASSERT_TRUE(form_->Files().SaveText(project));
  EXPECT_NEAR(ParseNumber(form_->Efficiency()), 66.09438, 0.06);
  EXPECT_NE(project.find("\r\n4\r\n5\r\n"), std::string::npos) << project;
}

// 30 acres: EIA 15, V = 1.25 x 12 / 15 = 1 in, R = 5 x 0.875 / 15 / 7 = 0.0416667 in/day, which is
// below the curve of 50 %: a message, and no efficiency.
TEST_F(Form1Test, ATypedBasinIsCalculatedBeforePrinting) {
  SolveForEfficiency();
  Type("txtBasinArea", "30");
  form_->PrintCurrentProject();
  EXPECT_EQ(Text("txtV"), "1");
  EXPECT_EQ(Text("txtE"), "");
  EXPECT_NE(Message(), "");
}

// The EIA of the basin before would stand beside it.
TEST_F(Form1Test, WhatCannotBeCalculatedIsNotPrintedOutOfDate) {
  SolveForEfficiency();
  Type("txtBasinArea", "abc");
  EXPECT_EQ(Text("txtEquivalentImperviousArea"), "5");
  form_->PrintCurrentProject();
  EXPECT_EQ(Text("txtEquivalentImperviousArea"), "");
  EXPECT_EQ(Message(), "The basin area is not numeric.");
}

// The EIA is that of the basin before, and with it the site values of a point that is moved.
TEST_F(Form1Test, AHostGetsNoResultsThatAreOutOfDate) {
  form_->Mode(2);
  TypeSite("Orlando");
  Type("txtR", "3");
  Type("txtV", "5");
  Enter("txtV");
  Type("txtBasinArea", "abc");
  Enter("txtBasinArea");
  form_->Chart().KeyDown(kRightArrow);
  ASSERT_NE(Text("txtSolveFor(1)"), "");
  std::string text;
  EXPECT_TRUE(form_->Files().SaveText(text));
  EXPECT_EQ(Text("txtSolveFor(1)"), "");
  EXPECT_EQ(Message(), "The basin area is not numeric.");
}

TEST_F(Form1Test, TheChartSaysThatItsPointIsOutOfDate) {
  SolveForEfficiency();
  const auto value = [this] {
    return toolkit_.Find<ControlHost>("ctrlStormwaterReuse1").Announcement().value;
  };
  const std::string solved = value();
  Type("txtBasinArea", "30");
  EXPECT_EQ(value(), solved + ", out of date");
  Type("txtBasinArea", "10");
  EXPECT_EQ(value(), solved);
}

// --- Leaving ---

TEST_F(Form1Test, SaveExitAndDiscardExitHideTheWindow) {
  const struct {
    const char* menu;
    const char* button;
    int code;
  } rows[] = {{"mnuReturn_Save", "cmdSaveExit", 1}, {"mnuReturn_Discard", "cmdDiscardExit", 0}};
  for (const auto& row : rows) {
    for (const bool byMenu : {true, false}) {
      form_ = std::make_unique<Form1>(toolkit_, desktop_, folder_.Path());
      form_->Mode(2);
      form_->ReturnCode(5);
      byMenu ? toolkit_.ClickMenu(row.menu) : toolkit_.ClickButton(row.button);
      EXPECT_EQ(form_->ReturnCode(), row.code) << row.menu;
      EXPECT_FALSE(toolkit_.IsVisible("Form1")) << row.menu;
    }
  }
}

TEST_F(Form1Test, ClosingInAHostAsksAndNoDiscards) {
  form_->Mode(2);
  form_->ReturnCode(1);
  desktop_.AnswerYes(false);
  EXPECT_FALSE(toolkit_.CloseByFrame("Form1")) << "hidden, not destroyed";
  EXPECT_EQ(form_->ReturnCode(), 0);
  EXPECT_FALSE(toolkit_.IsVisible("Form1"));
  ASSERT_EQ(desktop_.Messages().size(), 1U);
  EXPECT_EQ(desktop_.Messages()[0],
            (HeadlessDesktop::Message{"Do you want to save the current data?",
                                      "Exit Stormwater Harvesting", MessageIcon::None}));
}

TEST_F(Form1Test, ClosingInAHostAsksAndYesSaves) {
  form_->Mode(2);
  desktop_.AnswerYes(true);
  EXPECT_FALSE(toolkit_.CloseByFrame("Form1"));
  EXPECT_EQ(form_->ReturnCode(), 1);
}

TEST_F(Form1Test, AfterSaveExitALaterCloseAsksNothing) {
  form_->Mode(2);
  toolkit_.ClickButton("cmdSaveExit");
  form_->Fields().window->Visible(true);
  EXPECT_TRUE(toolkit_.CloseByFrame("Form1"));
  EXPECT_TRUE(desktop_.Messages().empty());
  EXPECT_EQ(form_->ReturnCode(), 1);
}

TEST_F(Form1Test, ClosingStandAloneAsksNothingAndKeepsTheReturnCode) {
  EXPECT_TRUE(toolkit_.CloseByFrame("Form1"));
  EXPECT_TRUE(desktop_.Messages().empty());
  EXPECT_EQ(form_->ReturnCode(), 0);
}

TEST_F(Form1Test, ClosingInAnotherModeAsksNothing) {
  form_->Mode(3);
  EXPECT_TRUE(toolkit_.CloseByFrame("Form1"));
  EXPECT_TRUE(desktop_.Messages().empty());
}

// What was typed last counts, although the field is not left: a host must not get the results of
// other numbers.
TEST_F(Form1Test, LeavingByTheMenuOrTheFrameSolvesForWhatWasTypedLast) {
  for (const bool byMenu : {true, false}) {
    form_ = std::make_unique<Form1>(toolkit_, desktop_, folder_.Path());
    form_->Mode(2);
    SolveForEfficiency();
    const std::string before = form_->Efficiency();
    Type("txtSolveFor(1)", "1.5");
    desktop_.AnswerYes(true);
    byMenu ? toolkit_.ClickMenu("mnuReturn_Save") : void(toolkit_.CloseByFrame("Form1"));
    EXPECT_EQ(form_->ReturnCode(), 1);
    EXPECT_EQ(form_->StorageVolume(), "1.5");
    EXPECT_EQ(Text("txtV"), "3.6");  // 1.5 ac-ft x 12 / 5 ac
    EXPECT_NE(form_->Efficiency(), before);
  }
}

// --- Dropped files ---

TEST_F(Form1Test, ADroppedProjectIsOpened) {
  for (const char* name : {"pond.kav", "POND2.KAV"}) {
    const std::string path = folder_.Write(name, test::ProjectText());
    toolkit_.DropFile("Form1", path);
    EXPECT_EQ(form_->Files().CurrentPath(), path);
    EXPECT_EQ(Text("txtBasinArea"), "10");
  }
  EXPECT_TRUE(desktop_.Messages().empty());
}

TEST_F(Form1Test, AnotherDroppedFileIsRefusedAndLosesNothing) {
  Type("txtBasinArea", "7");
  for (const char* name : {"pond.txt", "kav", "", "pond.kav.bak"}) {
    desktop_.ForgetMessages();
    toolkit_.DropFile("Form1", name);
    EXPECT_EQ(Text("txtBasinArea"), "7") << name;
    ASSERT_EQ(desktop_.Messages().size(), 1U) << name;
    EXPECT_EQ(desktop_.Messages()[0].text, "Only a project file (*.kav) can be opened here.");
  }
}

TEST_F(Form1Test, InAHostProjectNothingCanBeDropped) {
  form_->Mode(2);
  Type("txtBasinArea", "7");
  toolkit_.DropFile("Form1", folder_.Write("pond.kav", test::ProjectText()));
  EXPECT_EQ(Text("txtBasinArea"), "7");
  EXPECT_TRUE(desktop_.Messages().empty());
}

// --- Results for the host ---

TEST_F(Form1Test, ResultsOfEachMode) {
  SolveForEfficiency();
  const std::string E = Text("txtSolveFor(3)");
  // 0.875 in/week over 5 ac: 0.875 / 84 ft/day x 5 x 43560 sq ft x 7.480519 gal/cu ft = 16971.43
  EXPECT_NEAR(ParseNumber(form_->ReuseRate()), 0.875 / 84 * 5 * 43560 * 7.480519, 0.01);
  EXPECT_EQ(form_->Efficiency(), E);
  EXPECT_EQ(form_->StorageVolume(), "1.25");
  for (const char* mode : {"Interactive", "Storage Volume", "Reuse Rate"}) {
    Choose("cmbSolveFor", mode);
    EXPECT_NEAR(ParseNumber(form_->ReuseRate()), 16971.43, 5) << mode;
    EXPECT_EQ(form_->Efficiency(), E) << mode;
    EXPECT_NEAR(ParseNumber(form_->StorageVolume()), 1.25, 1e-3) << mode;
  }
}

TEST_F(Form1Test, EscDuringADragOverTheChartBringsTheNumbersBack) {
  TypeSite();
  auto& chart = toolkit_.Find<HeadlessControlHost>("ctrlStormwaterReuse1");
  chart.OnMouseDown(1, 480, 434);
  chart.OnMouseUp(1, 480, 434);
  const std::vector fields{"txtR",           "txtV",           "txtE",
                           "txtSolveFor(1)", "txtSolveFor(2)", "txtSolveFor(3)"};
  const auto texts = [&] {
    std::vector<std::string> shown;
    shown.reserve(fields.size());
    for (const char* field : fields) shown.push_back(Text(field));
    return shown;
  };
  const std::vector<std::string> before = texts();
  EXPECT_THAT(before, testing::Not(testing::Contains("")));
  chart.OnMouseDown(1, 600, 450);
  chart.OnMouseMove(640, 470);
  EXPECT_NE(Text("txtR"), before.front());
  chart.OnKeyDown(27);
  EXPECT_EQ(texts(), before);
  EXPECT_EQ(Message(), "");
}

TEST_F(Form1Test, ResultsHaveNoBlanksAround) {
  SolveForEfficiency();
  Type("txtSolveFor(1)", " 1.25 ");
  EXPECT_EQ(form_->StorageVolume(), "1.25");
}

TEST_F(Form1Test, ResultsAreEmptyWithoutAMode) {
  SolveForEfficiency();
  form_->Fields().cmbSolveFor->ListIndex(-1);
  EXPECT_EQ(form_->ReuseRate() + form_->Efficiency() + form_->StorageVolume(), "");
}

TEST_F(Form1Test, TheReuseRateIsEmptyWhereItCannotBeConverted) {
  SolveForEfficiency();
  for (const char* area : {"", "abc", "1E38"}) {
    Type("txtIrrigationArea", area);
    EXPECT_EQ(form_->ReuseRate(), "") << area;
  }
}

}  // namespace
}  // namespace orvik
