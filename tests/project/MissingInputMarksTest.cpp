// Enter too early: what is missing is named and marked, and nothing is said on the message bar.
#include "support/FormFixture.h"

namespace orvik {
namespace {

class MissingInputMarksTest : public test::FormFixture {
 protected:
  std::string Hint() const { return Text("txtHint"); }
  Colour Background(std::string_view field) const {
    return toolkit_.Find<TextBox>(field).BackColor();
  }
  std::string Spoken(std::string_view field) const {
    return toolkit_.Find<TextBox>(field).Description();
  }
  bool HasMark(std::string_view label) const { return toolkit_.Find<Label>(label).Visible(); }
};

TEST_F(MissingInputMarksTest, EnterNamesAndMarksWhatIsMissing) {
  TypeAndEnter("txtBasinArea", "10");
  EXPECT_EQ(Hint(),
            "Still needed for a result: Climate station, Runoff coefficient, Irrigation area.");
  EXPECT_EQ(Message(), "");
  EXPECT_TRUE(HasMark("lblClimateStationMark"));
  EXPECT_TRUE(HasMark("lblRunoffCoefficientMark"));
  EXPECT_EQ(Background("txtRunoffCoefficient"), kInfoBackground);
  EXPECT_EQ(Spoken("txtRunoffCoefficient"), "still needed");
  EXPECT_FALSE(HasMark("lblBasinAreaMark"));
  EXPECT_EQ(Background("txtBasinArea"), kWindowBackground);
}

TEST_F(MissingInputMarksTest, WhatIsFilledIsNamedNoMore) {
  TypeAndEnter("txtBasinArea", "10");
  Type("txtRunoffCoefficient", "0.5");
  EXPECT_EQ(Hint(), "Still needed for a result: Climate station, Irrigation area.");
  EXPECT_EQ(Background("txtRunoffCoefficient"), kWindowBackground);
  EXPECT_EQ(Spoken("txtRunoffCoefficient"), "");
  EXPECT_FALSE(HasMark("lblRunoffCoefficientMark"));
  Choose("cmbClimateStation", "Tampa");
  EXPECT_FALSE(HasMark("lblClimateStationMark"));
  Choose("cmbSolveFor", "Efficiency");
  EXPECT_EQ(Hint(),
            "Still needed for a result: Irrigation area, Storage Volume (ac-ft), Reuse Rate "
            "(in/week).");
  EXPECT_EQ(Background("txtSolveFor(1)"), kInfoBackground);
  Type("txtIrrigationArea", "5");
  Type("txtSolveFor(1)", "1.25");
  Type("txtSolveFor(2)", "0.875");
  EXPECT_EQ(Hint(), "");
  EXPECT_FALSE(toolkit_.IsVisible("picHint")) << "an empty strip is not seen";
}

TEST_F(MissingInputMarksTest, AMarkedSlotStaysMarkedInTheNextMode) {
  TypeSite();
  Choose("cmbSolveFor", "Efficiency");
  TypeAndEnter("txtSolveFor(1)", "1.25");
  EXPECT_EQ(Background("txtSolveFor(2)"), kInfoBackground);
  Choose("cmbSolveFor", "Storage Volume");
  EXPECT_EQ(Background("txtSolveFor(2)"), kInfoBackground);
  Choose("cmbSolveFor", "Interactive");
  EXPECT_EQ(Background("txtSolveFor(2)"), kButtonFace) << "it shows a result there";
  EXPECT_FALSE(HasMark("lblSolveFor(2)Mark"));
}

TEST_F(MissingInputMarksTest, ATextThatIsNoNumberIsNamed) {
  SolveForEfficiency();
  TypeAndEnter("txtBasinArea", "ten");
  EXPECT_EQ(Hint(),
            "Basin area is not a number. Write it with digits and a period only, without units or "
            "thousands separators.");
  EXPECT_EQ(Spoken("txtBasinArea"), "not a number");
  EXPECT_EQ(Message(), "");
}

// Who fills the form from top to bottom is not told at each field what comes next.
TEST_F(MissingInputMarksTest, LeavingAFieldSaysNothing) {
  Type("txtBasinArea", "10");
  toolkit_.Leave("txtBasinArea");
  EXPECT_EQ(Hint(), "");
}

TEST_F(MissingInputMarksTest, ANewProjectTakesItBack) {
  TypeAndEnter("txtBasinArea", "10");
  toolkit_.ClickMenu("mnuFile_New");
  EXPECT_EQ(Hint(), "");
  EXPECT_EQ(Background("txtRunoffCoefficient"), kWindowBackground);
  EXPECT_FALSE(HasMark("lblClimateStationMark"));
}

TEST_F(MissingInputMarksTest, WithoutAPointEnterSaysHowToPlaceOne) {
  TypeSite();
  Enter("txtBasinArea");
  EXPECT_EQ(Hint(),
            "Still needed for a result: a point. Click on the chart, and drag it or move it with "
            "the arrow keys.");
}

// --- Numbers for the point ---

// R = 0.2 rounds to 0, so it counts for no pair; the point is at R = 3, V = 5.
TEST_F(MissingInputMarksTest, ANumberThatThePointDoesNotTakeIsSaid) {
  TypeSite("Orlando");
  Type("txtR", "3");
  TypeAndEnter("txtV", "5");
  EXPECT_EQ(Hint(), "");
  TypeAndEnter("txtR", "0.2");
  EXPECT_EQ(Text("txtR"), "3");
  EXPECT_EQ(Hint(),
            "Reuse rate R 0.2 was not taken; it is 3 again. Move the point on the chart instead, "
            "or choose what to solve for and give two values of the site.");
  EXPECT_EQ(Message(), "");
  Type("txtR", "4");
  EXPECT_EQ(Hint(), "") << "until the next keystroke";
}

// As above, where the number is processed by something other than Enter in its field.
class NotTakenNumber : public MissingInputMarksTest {
 protected:
  NotTakenNumber() {
    TypeSite("Orlando");
    Type("txtR", "3");
    TypeAndEnter("txtV", "5");
    Type("txtR", "0.2");
  }
  void ExpectItIsSaid() const {
    EXPECT_EQ(Text("txtR"), "3");
    EXPECT_EQ(Hint(),
              "Reuse rate R 0.2 was not taken; it is 3 again. Move the point on the chart instead, "
              "or choose what to solve for and give two values of the site.");
  }
};

TEST_F(NotTakenNumber, IsSaidByTheButtonRecalculate) {
  PressReCalc();
  ExpectItIsSaid();
  PressReCalc();
  EXPECT_EQ(Hint(), "") << "it was typed once";
}

TEST_F(NotTakenNumber, IsSaidByEnterInAnotherFieldAndByLeavingAChangedOne) {
  Enter("txtBasinArea");
  ExpectItIsSaid();
  Type("txtR", "0.2");
  Type("txtBasinArea", "12");
  toolkit_.Leave("txtBasinArea");
  ExpectItIsSaid();
}

TEST_F(NotTakenNumber, IsSaidByEnterInAnotherFieldOfThePoint) {
  Enter("txtV");
  ExpectItIsSaid();
}

TEST_F(NotTakenNumber, IsSaidBySaving) {
  form_->Files().SaveFile(folder_ / "Pond.kav");
  ExpectItIsSaid();
}

TEST_F(NotTakenNumber, IsSaidByPrinting) {
  form_->PrintCurrentProject();
  ExpectItIsSaid();
}

TEST_F(NotTakenNumber, IsSaidByAnotherStation) {
  folder_.Write("KAV Data/Grady.crv", test::WideCurves().Text());
  Choose("cmbClimateStation", "Grady");
  ExpectItIsSaid();
}

TEST_F(NotTakenNumber, IsNotSaidOfAPointThatTheMouseMoves) {
  const auto& geometry = form_->Chart().Geometry();
  form_->Chart().MouseDown(1, geometry.XPlotToXFrame(6), geometry.YPlotToYFrame(4));
  form_->Chart().MouseUp();
  EXPECT_EQ(Hint(), "");
}

TEST_F(NotTakenNumber, IsNotSaidWhereAnotherModeMakesItAResult) {
  Choose("cmbSolveFor", "Efficiency");
  EXPECT_EQ(Hint().find("not taken"), std::string::npos) << Hint();
}

// It stays in its field while the site is incomplete, and is put back when the site is whole again.
TEST_F(NotTakenNumber, IsSaidWhenAnIncompleteSiteBecomesWhole) {
  TypeAndEnter("txtIrrigationArea", "");
  EXPECT_EQ(Text("txtR"), "0.2");
  TypeAndEnter("txtIrrigationArea", "5");
  ExpectItIsSaid();
}

// E = 0.3 rounds to 0 like R, so no pair is left.
TEST_F(NotTakenNumber, IsSaidTogetherWithAnother) {
  Type("txtE", "0.3");
  PressReCalc();
  EXPECT_NE(Hint().find("Reuse rate R 0.2 was not taken"), std::string::npos) << Hint();
  EXPECT_NE(Hint().find("0.3 was not taken"), std::string::npos) << Hint();
}

// E = 60 and V = 5 share a binary digit and place the point: only R is left out.
TEST_F(NotTakenNumber, IsSaidWhereTheNumbersTypedAfterItPlaceThePoint) {
  Type("txtE", "60");
  Enter("txtE");
  EXPECT_EQ(Text("txtE"), "60");
  EXPECT_EQ(Hint().find("60 was not taken"), std::string::npos) << Hint();
  EXPECT_NE(Hint().find("Reuse rate R 0.2 was not taken"), std::string::npos) << Hint();
}

TEST_F(MissingInputMarksTest, NumbersThatPlaceThePointAreNotSaidByARecalculation) {
  TypeSite("Orlando");
  Type("txtR", "3");
  Type("txtV", "5");
  PressReCalc();
  EXPECT_EQ(Text("txtR"), "3");
  EXPECT_EQ(Hint(), "");
}

TEST_F(MissingInputMarksTest, ANumberThatPlacesNoPointIsSaid) {
  TypeSite("Orlando");
  TypeAndEnter("txtR", "0.2");
  EXPECT_EQ(Hint(),
            "Reuse rate R 0.2 was not taken: with the other numbers it places no point. Move the "
            "point on the chart instead, or choose what to solve for and give two values of the "
            "site.");
}

// The curves end at R = 10: the message bar says so.
TEST_F(MissingInputMarksTest, ANumberThatTheMessageBarRefusesNeedsNoHint) {
  TypeSite("Orlando");
  Type("txtR", "31");
  TypeAndEnter("txtV", "5");
  EXPECT_NE(Message(), "");
  EXPECT_EQ(Hint().find("not taken"), std::string::npos) << Hint();
}

// R and V alone place the point; where the site is unknown, "Missing data." does not name it.
TEST_F(MissingInputMarksTest, APointWithoutASiteSaysWhatTheSiteLacks) {
  Choose("cmbClimateStation", "Orlando");
  Type("txtR", "3");
  TypeAndEnter("txtV", "5");
  EXPECT_EQ(Message(), "Missing data.");
  EXPECT_EQ(Hint(), "Still needed for a result: Basin area, Runoff coefficient, Irrigation area.");
}

}  // namespace
}  // namespace orvik
