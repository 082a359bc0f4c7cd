// The main window, worked by mouse and keyboard.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "FormOnScreen.h"
#include "ParentWindow.h"
#include "shell/StatusLine.h"

namespace orvik {
namespace {

using test::FormOnScreen;

// Basin 10 ac, C 0.5: EIA 5 ac. Storage 1.25 ac-ft: V = 1.25 x 12 / 5 = 3 in. Reuse 0.91 in/week
// over 5 ac: R = 5 x 0.91 / 5 / 7 = 0.13 in/day. E = 50 + 400 (0.13 + 0.05 ln 3 - 0.15) = 63.97225,
// in single precision 63.97224.
void TypeSite(FormOnScreen& form) {
  form.Choose("cmbClimateStation", "Tampa");
  form.Type("txtBasinArea", "10");
  form.Type("txtRunoffCoefficient", "0.5");
  form.Type("txtIrrigationArea", "5");
}

void SolveForEfficiency(FormOnScreen& form) {
  form.Choose("cmbSolveFor", "Efficiency");
  TypeSite(form);
  form.Type("txtSolveFor(1)", "1.25");
  form.Type("txtSolveFor(2)", "0.91");
  form.Press({VK_RETURN, {}});
}

TEST(MainWindow, TypedValuesAndEnterSolveForTheEfficiency) {
  FormOnScreen form(1);
  SolveForEfficiency(form);
  EXPECT_TRUE(form.UntilText("txtSolveFor(3)", "63.97224")) << form.Text("txtErrMsg");
  EXPECT_EQ(form.Text("txtEquivalentImperviousArea"), "5");
  EXPECT_EQ(form.Text("txtR"), "0.13");
  EXPECT_EQ(form.Text("txtV"), "3");
  EXPECT_EQ(form.Text("txtE"), "63.97224");
  EXPECT_EQ(form.Text("txtErrMsg"), "");
  EXPECT_EQ(form.Text("ctrlStormwaterReuse1"),
            "Design chart of Tampa: R 0.13 in/day, V 3 in, E 63.97224 %");
}

TEST(MainWindow, LeavingAChangedFieldSolvesAgain) {
  FormOnScreen form(1);
  SolveForEfficiency(form);
  ASSERT_TRUE(form.UntilText("txtV", "3"));
  form.Type("txtSolveFor(1)", "2.5");
  EXPECT_EQ(form.Text("txtV"), "3");
  form.Press({VK_TAB, {}});
  EXPECT_TRUE(form.UntilText("txtV", "6"));
}

TEST(MainWindow, TypingUndoingAndPastingMarkTheResultsOutOfDate) {
  FormOnScreen form(1);
  SolveForEfficiency(form);
  ASSERT_TRUE(form.UntilText("txtE", "63.97224"));
  const std::string outOfDate(StatusText::kOutOfDate);
  EXPECT_EQ(form.Text("lblOutOfDate"), "");
  form.Type("txtSolveFor(2)", "0.98");
  EXPECT_TRUE(form.UntilText("lblOutOfDate", outOfDate));
  form.Press({VK_RETURN, {}});
  EXPECT_TRUE(form.UntilText("lblOutOfDate", ""));
  form.Press({'Z', {VK_CONTROL}});
  EXPECT_TRUE(form.UntilText("lblOutOfDate", outOfDate)) << "undone";
  form.Press({VK_RETURN, {}});
  EXPECT_TRUE(form.UntilText("lblOutOfDate", ""));
  form.Press({'A', {VK_CONTROL}});
  form.Press({'X', {VK_CONTROL}});
  EXPECT_TRUE(form.UntilText("lblOutOfDate", outOfDate)) << "cut";
  form.Press({'V', {VK_CONTROL}});
  EXPECT_TRUE(form.UntilText("lblOutOfDate", "")) << "what was cut is pasted again";
}

TEST(MainWindow, TheFirstFaultIsShownOnTheBar) {
  FormOnScreen form(1);
  form.Type("txtBasinArea", "x");
  form.Press({VK_F5, {}});
  EXPECT_TRUE(form.UntilText("txtErrMsg", "The basin area is not numeric."));
}

TEST(MainWindow, EnterInAListRecalculates) {
  FormOnScreen form(1);
  form.Click("cmbSolveFor");
  form.Press({VK_ESCAPE, {}});
  ASSERT_TRUE(form.Until([&] { return form.Focus() == "cmbSolveFor"; }));
  form.Press({VK_RETURN, {}});
  form.Press({VK_RETURN, {}});
  EXPECT_TRUE(form.UntilText("txtErrMsg", "The basin area has not been defined."));
}

TEST(MainWindow, TabWalksTheDataPageInTheOrderOfReading) {
  FormOnScreen form(2);
  EXPECT_TRUE(form.Until([&] { return form.Focus() == "cmbClimateStation"; }));
  for (const char* next :
       {"txtBasinArea", "txtRunoffCoefficient", "txtEquivalentImperviousArea", "txtIrrigationArea",
        "cmbSolveFor", "txtSolveFor(1)", "txtSolveFor(2)", "txtSolveFor(3)", "txtR", "txtE", "txtV",
        "ctrlStormwaterReuse1", "txtErrMsg", "optPage(2)", "cmdReCalc", "cmdMap", "cmdSaveExit",
        "cmdDiscardExit", "cmbClimateStation"}) {
    form.Press({VK_TAB, {}});
    EXPECT_TRUE(form.Until([&] { return form.Focus() == next; })) << next << ", " << form.Focus();
  }
  form.Press({VK_TAB, {VK_SHIFT}});
  EXPECT_TRUE(form.Until([&] { return form.Focus() == "cmdDiscardExit"; })) << form.Focus();
}

TEST(MainWindow, TabWalksTheProjectPageInTheOrderOfReading) {
  FormOnScreen form(1);
  form.Press({'1', {VK_CONTROL}});
  ASSERT_TRUE(form.Until([&] { return form.IsVisible("txtProjectName"); }));
  EXPECT_TRUE(form.Until([&] { return form.Focus() == "txtProjectName"; })) << form.Focus();
  for (const char* next :
       {"txtDescription", "txtProjectNumber", "txtEngineer", "txtSuervisingEngineer", "txtDate",
        "cmdToday", "optPage(1)", "cmdReCalc", "cmdMap", "txtProjectName"}) {
    form.Press({VK_TAB, {}});
    EXPECT_TRUE(form.Until([&] { return form.Focus() == next; })) << next << ", " << form.Focus();
  }
}

TEST(MainWindow, PagesTurnByButtonsMenuKeysAndMnemonics) {
  FormOnScreen form(1);
  const auto shows = [&](bool project) {
    return form.Until([&] {
      return form.IsVisible("picProject") == project && form.IsVisible("picData") == !project;
    });
  };
  EXPECT_TRUE(shows(false));
  form.Click("optPage(1)");
  EXPECT_TRUE(shows(true));
  form.Click("optPage(2)");
  EXPECT_TRUE(shows(false));
  form.Press({'P', {VK_MENU}});
  EXPECT_TRUE(shows(true));
  form.Press({'D', {VK_MENU}});
  EXPECT_TRUE(shows(false));
  form.ClickMenu("mnuProject");
  EXPECT_TRUE(shows(true));
  form.Press({'2', {VK_CONTROL}});
  EXPECT_TRUE(shows(false));
}

TEST(MainWindow, MnemonicsLeadIntoTheFieldsAndWorkTheButtons) {
  FormOnScreen form(2);
  form.Press({'B', {VK_MENU}});
  EXPECT_TRUE(form.Until([&] { return form.Focus() == "txtBasinArea"; })) << form.Focus();
  form.Press({'G', {VK_MENU}});
  EXPECT_TRUE(form.Until([&] { return form.Focus() == "txtIrrigationArea"; })) << form.Focus();
  form.Press({'C', {VK_MENU}});
  EXPECT_TRUE(form.UntilText("txtErrMsg", "The basin area has not been defined."));
  form.Press({'S', {VK_MENU}});
  EXPECT_EQ(form.Leave(), 1);
}

// V = 5 ac-ft x 12 / 5 ac = 12 in, which no curve reaches: the message has a page that explains it.
// Recalculating takes the message away at first, and the button with it.
TEST(MainWindow, AButtonThatCannotBeUsedAnyMoreGivesTheKeyboardOn) {
  FormOnScreen form(1);
  SolveForEfficiency(form);
  form.Type("txtSolveFor(1)", "5");
  form.Press({VK_RETURN, {}});
  ASSERT_TRUE(form.UntilText("txtErrMsg", "Normalized storage volume is greater than 7"));
  form.Click("cmdErrorHelp");
  ASSERT_TRUE(form.Until([&] { return form.Focus() == "cmdErrorHelp"; })) << form.Focus();
  form.Press({VK_F5, {}});
  EXPECT_TRUE(form.Until([&] { return form.Focus() == "optPage(2)"; })) << form.Focus();
}

TEST(MainWindow, TheKeyboardFollowsThePageAlsoAfterADialog) {
  FormOnScreen form(1);
  form.Type("txtBasinArea", "7");
  form.Press({'O', {VK_CONTROL}});
  form.AnswerDialog(IDCANCEL);
  ASSERT_TRUE(form.Until([&] { return !form.Dialog() && form.Focus() == "txtBasinArea"; }));
  form.Press({'1', {VK_CONTROL}});
  EXPECT_TRUE(form.Until([&] { return form.Focus() == "txtProjectName"; })) << form.Focus();
}

// An option that is up would turn its page again as soon as the window comes back to it.
TEST(MainWindow, ThePageThatKeysTurnedToStaysWhenTheWindowComesBack) {
  FormOnScreen form(1);
  form.Click("optPage(1)");
  ASSERT_TRUE(form.Until([&] { return form.Focus() == "optPage(1)"; }));
  form.Press({'2', {VK_CONTROL}});
  EXPECT_TRUE(form.Until([&] { return form.Focus() == "optPage(2)"; })) << form.Focus();
  const test::ParentWindow other;
  ASSERT_TRUE(test::Activate(other.Handle()));
  ASSERT_TRUE(test::Activate(form.Window()));
  ASSERT_TRUE(test::Until([&] { return form.Focus().starts_with("optPage"); })) << form.Focus();
  // A key can get lost while the window manager still changes windows: the user presses it again.
  const auto isCalculated = [&] {
    return form.Text("txtErrMsg") == "The basin area has not been defined.";
  };
  for (int i = 0; i < 5 && !isCalculated(); ++i) {
    form.Press({VK_F5, {}});
    test::Until(isCalculated, std::chrono::seconds(4));
  }
  EXPECT_TRUE(isCalculated());
  EXPECT_TRUE(form.IsVisible("picData"));
}

// Leaving the field solves; Esc does not leave it.
TEST(MainWindow, EscLeavesAHalfTypedFieldAlone) {
  FormOnScreen form(1);
  SolveForEfficiency(form);
  ASSERT_TRUE(form.UntilText("txtV", "3"));
  form.Type("txtSolveFor(1)", "2.");
  form.Press({VK_ESCAPE, {}});
  form.TypeText("5");
  ASSERT_TRUE(form.UntilText("txtSolveFor(1)", "2.5"));
  EXPECT_EQ(form.Text("txtV"), "3");
  form.Press({VK_TAB, {}});
  EXPECT_TRUE(form.UntilText("txtV", "6"));
}

TEST(MainWindow, TodayGoesIntoTheDateField) {
  FormOnScreen form(1);
  form.Press({'1', {VK_CONTROL}});
  ASSERT_TRUE(form.Until([&] { return form.IsVisible("cmdToday"); }));
  SYSTEMTIME now{};
  ::GetLocalTime(&now);
  char expected[11]{};
  std::snprintf(expected, sizeof expected, "%02u-%02u-%04u", now.wMonth % 100U, now.wDay % 100U,
                now.wYear % 10000U);
  form.Click("cmdToday");
  EXPECT_TRUE(form.UntilText("txtDate", expected)) << form.Text("txtDate");
}

TEST(MainWindow, AChangeOfModeCarriesTheValuesOver) {
  FormOnScreen form(1);
  SolveForEfficiency(form);
  ASSERT_TRUE(form.UntilText("txtSolveFor(3)", "63.97224"));
  form.Choose("cmbSolveFor", "Storage Volume");
  EXPECT_TRUE(form.UntilText("lblSolveFor(1)", "Efficiency (%)"));
  EXPECT_TRUE(form.UntilText("txtSolveFor(1)", "63.97224"));
  EXPECT_TRUE(form.UntilText("txtSolveFor(2)", "0.91"));
  EXPECT_TRUE(form.Until([&] { return form.Text("txtSolveFor(3)").starts_with("1.2"); }));
}

// The fields are those of the item that the list stands on before anything is made of them.
TEST(MainWindow, F5OverAnOpenListSolvesForTheItemThatItMarks) {
  FormOnScreen form(1);
  SolveForEfficiency(form);
  ASSERT_TRUE(form.UntilText("txtSolveFor(3)", "63.97224"));
  form.DropDown("cmbSolveFor");
  form.Press({VK_DOWN, {}});
  form.Press({VK_F5, {}});
  EXPECT_TRUE(form.UntilText("lblSolveFor(1)", "Efficiency (%)"));
  EXPECT_TRUE(form.UntilText("txtSolveFor(1)", "63.97224"));
  EXPECT_TRUE(form.UntilText("txtSolveFor(2)", "0.91"));
  EXPECT_TRUE(form.Until([&] { return form.Text("txtSolveFor(3)").starts_with("1.2"); }));
}

// --- The chart ---

// What a field shows; 0 where it is empty.
double Number(const FormOnScreen& form, const char* field) {
  return std::strtod(form.Text(field).c_str(), nullptr);
}

TEST(MainWindow, ADragOnTheChartFillsTheFields) {
  FormOnScreen form(1);
  TypeSite(form);
  form.Press({VK_TAB, {}});
  RECT inner{};
  ::GetClientRect(form.Find("ctrlStormwaterReuse1"), &inner);
  form.Drag("ctrlStormwaterReuse1", {inner.right / 2, inner.bottom / 2},
            {inner.right / 2 + 20, inner.bottom / 2});
  // The site values follow from the normalized ones: S = V x 5 / 12, Q = R x 7 (EIA = IA = 5 ac).
  // While the mouse is still on its way, a reader may see fields of two places.
  const auto number = [&](const char* field) { return Number(form, field); };
  EXPECT_TRUE(form.Until([&] {
    return number("txtSolveFor(3)") > 0 &&
           std::abs(number("txtSolveFor(3)") - number("txtV") * 5 / 12) < 1e-5 &&
           std::abs(number("txtSolveFor(1)") - number("txtR") * 7) < 1e-5;
  })) << form.Text("txtV")
      << " in, " << form.Text("txtSolveFor(3)") << " ac-ft, " << form.Text("txtR") << " in/day, "
      << form.Text("txtSolveFor(1)") << " in/week";
}

TEST(MainWindow, ArrowKeysMoveThePointOfAChartReachedByTab) {
  FormOnScreen form(1);
  TypeSite(form);
  RECT inner{};
  ::GetClientRect(form.Find("ctrlStormwaterReuse1"), &inner);
  form.Drag("ctrlStormwaterReuse1", {inner.right / 2, inner.bottom / 2},
            {inner.right / 2, inner.bottom / 2});
  ASSERT_TRUE(form.Until([&] { return !form.Text("txtV").empty(); }));
  const double V = Number(form, "txtV");
  form.Press({VK_RIGHT, {}});
  EXPECT_TRUE(form.Until([&] { return Number(form, "txtV") > V; }));
}

}  // namespace
}  // namespace orvik
