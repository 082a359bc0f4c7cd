// Between a keystroke and the recalculation, the window says which results are those of other
// numbers.
#include "chart/ctrlStormwaterReuse.h"
#include "support/FormFixture.h"

namespace orvik {
namespace {

constexpr std::int16_t kRightArrow = 39;

class OutOfDateMarksTest : public test::FormFixture {
 protected:
  // Its text is grey, and a screen reader says so.
  bool IsMarked(std::string_view field) const {
    const auto& box = toolkit_.Find<TextBox>(field);
    EXPECT_EQ(box.ForeColor() == kGreyText, box.Description() == "out of date") << field;
    return box.ForeColor() == kGreyText;
  }
  std::string Marked() const {
    std::string names;
    for (const FieldDesign& field : Fields()) {
      if (IsMarked(field.control)) names += (names.empty() ? "" : " ") + std::string(field.control);
    }
    return names;
  }
};

TEST_F(OutOfDateMarksTest, TheFirstKeystrokeMarksAndEnterTakesTheMarksAway) {
  SolveForEfficiency();
  EXPECT_EQ(Marked(), "");
  Type("txtSolveFor(1)", "2");
  EXPECT_EQ(Marked(), "txtSolveFor(3) txtE txtV");
  Enter("txtSolveFor(1)");
  EXPECT_EQ(Marked(), "");
}

// As in the review of use: 30 acres beside the efficiency of 10. The EIA follows each keystroke,
// so it is that of the basin beside it.
TEST_F(OutOfDateMarksTest, ATypedBasinAreaLeavesNoResultUnmarkedButTheEIA) {
  SolveForEfficiency();
  Type("txtBasinArea", "30");
  EXPECT_EQ(Text("txtEquivalentImperviousArea"), "15");
  EXPECT_EQ(Marked(), "txtSolveFor(3) txtR txtE txtV");
}

TEST_F(OutOfDateMarksTest, AnEIAThatCannotFollowIsMarkedToo) {
  SolveForEfficiency();
  Type("txtBasinArea", "abc");
  EXPECT_EQ(Text("txtEquivalentImperviousArea"), "5") << "it is left as it is";
  EXPECT_EQ(Marked(), "txtEquivalentImperviousArea txtSolveFor(3) txtR txtE txtV");
  Enter("txtBasinArea");
  EXPECT_EQ(Marked(), "txtEquivalentImperviousArea") << "the others are taken away";
  TypeAndEnter("txtBasinArea", "10");
  EXPECT_EQ(Marked(), "");
}

TEST_F(OutOfDateMarksTest, TypingTheFormerTextBackTakesTheMarksAway) {
  SolveForEfficiency();
  Type("txtBasinArea", "30");
  Type("txtBasinArea", "10");
  EXPECT_EQ(Marked(), "");
}

// Pasting, cutting and Ctrl+Z change the text without a key that the form sees.
TEST_F(OutOfDateMarksTest, ATextThatChangesWithoutAKeyMarksToo) {
  SolveForEfficiency();
  toolkit_.Find<TextBox>("txtIrrigationArea").Text("9");
  EXPECT_EQ(Marked(), "txtSolveFor(3) txtR txtE");
}

TEST_F(OutOfDateMarksTest, AfterEnterTheFormerTextIsAnotherOne) {
  SolveForEfficiency();
  TypeAndEnter("txtBasinArea", "11");
  toolkit_.Find<TextBox>("txtBasinArea").Text("10");  // Ctrl+Z
  EXPECT_EQ(Marked(), "txtSolveFor(3) txtR txtE txtV");
}

TEST_F(OutOfDateMarksTest, ANumberTypedForThePointMarksThoseOfThePointBefore) {
  TypeSite("Orlando");
  Type("txtR", "3");
  Type("txtV", "5");
  Enter("txtV");
  ASSERT_TRUE(HotspotIsVisible());
  EXPECT_EQ(Marked(), "");
  Type("txtR", "4");
  EXPECT_EQ(Marked(), "txtSolveFor(1) txtSolveFor(2) txtSolveFor(3) txtE txtV");
  Enter("txtR");
  EXPECT_EQ(Marked(), "");
}

// The point moves, but the EIA from which its site values are made is that of another basin.
TEST_F(OutOfDateMarksTest, APointThatMovesOverAnEIAOutOfDateHasSiteValuesOutOfDate) {
  TypeSite("Orlando");
  Type("txtR", "3");
  Type("txtV", "5");
  Enter("txtV");
  Type("txtBasinArea", "abc");
  form_->Chart().KeyDown(kRightArrow);
  EXPECT_EQ(Marked(), "txtEquivalentImperviousArea txtSolveFor(1) txtSolveFor(3)");
}

TEST_F(OutOfDateMarksTest, ANewProjectHasNoMarks) {
  SolveForEfficiency();
  Type("txtBasinArea", "30");
  toolkit_.ClickMenu("mnuFile_New");
  EXPECT_EQ(Marked(), "");
}

TEST_F(OutOfDateMarksTest, TheStatusLineSaysWhatToDo) {
  SolveForEfficiency();
  EXPECT_EQ(toolkit_.Caption("lblOutOfDate"), "");
  Type("txtBasinArea", "30");
  EXPECT_EQ(toolkit_.Caption("lblOutOfDate"), "Grey results are out of date: press Enter or F5");
  PressReCalc();
  EXPECT_EQ(toolkit_.Caption("lblOutOfDate"), "");
}

}  // namespace
}  // namespace orvik
