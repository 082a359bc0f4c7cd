// The interactive mode: the chart's point into the fields, and numbers in the fields to the point.
#include "design/PointByNumbers.h"
#include "support/FormFixture.h"

namespace orvik {
namespace {

using test::FormFixture;

class Interactive : public FormFixture {
 protected:
  // Places the point at (V, R) as the mouse does; the pixel that is hit lies within half a pixel.
  void PressAt(double V, double R) {
    auto& chart = form_->Chart();
    const auto& geometry = chart.Geometry();
    chart.MouseDown(1, geometry.XPlotToXFrame(V), geometry.YPlotToYFrame(R));
  }
  void Release() { form_->Chart().MouseUp(); }
  void PlaceAt(double V, double R) {
    PressAt(V, R);
    Release();
  }
  void TypeNumbers(const char* R, const char* E, const char* V) {
    Type("txtR", R);
    Type("txtE", E);
    Type("txtV", V);
  }
  std::int16_t Guess() {
    const Project project = FormBinding(form_->Fields(), form_->Chart()).Snapshot();
    return GuessBestInteractiveSolution(project, form_->Chart().IsLoaded());
  }
};

// --- The answer to a change ---

TEST_F(Interactive, AChangeFillsNormalizedAndSiteValues) {
  TypeSite();
  PlaceAt(3, 0.12);
  EXPECT_EQ(Message(), "");
  EXPECT_NEAR(Number("txtV"), 3, 0.01);
  EXPECT_NEAR(Number("txtR"), 0.12, 0.001);
  EXPECT_NEAR(Number("txtE"), 50 + 400 * (Number("txtR") + 0.05 * std::log(Number("txtV")) - 0.15),
              0.01);
  EXPECT_NEAR(Number("txtSolveFor(1)"), Number("txtR") * 7, 1e-6) << "inches per week";
  EXPECT_EQ(Text("txtSolveFor(2)"), Text("txtE"));
  EXPECT_NEAR(Number("txtSolveFor(3)"), Number("txtV") / 2.4, 1e-6) << "acre-feet";
}

TEST_F(Interactive, WithoutAnIrrigationAreaThePointShowsAndMissingDataIsSilent) {
  TypeSite();
  TypeAndEnter("txtIrrigationArea", "");
  const int beeps = desktop_.Beeps();
  PlaceAt(3, 0.12);
  EXPECT_NE(Text("txtR"), "");
  EXPECT_NE(Text("txtE"), "");
  EXPECT_NE(Text("txtV"), "");
  EXPECT_EQ(Text("txtSolveFor(1)") + Text("txtSolveFor(2)") + Text("txtSolveFor(3)"), "");
  EXPECT_EQ(Message(), "Missing data.");
  EXPECT_EQ(desktop_.Beeps(), beeps);
  EXPECT_TRUE(form_->Fields().txtErrMsg.BeepOn());
}

TEST_F(Interactive, WithoutAnEiaThePointHasNoSiteValuesEither) {
  Choose("cmbClimateStation", "Tampa");
  Type("txtIrrigationArea", "5");
  PlaceAt(3, 0.12);
  EXPECT_NE(Text("txtE"), "");
  EXPECT_EQ(Text("txtSolveFor(1)") + Text("txtSolveFor(2)") + Text("txtSolveFor(3)"), "");
  EXPECT_EQ(Message(), "Missing data.");
}

TEST_F(Interactive, MissingDataLeaveTheBeepOffWhileThePointIsDragged) {
  Choose("cmbClimateStation", "Tampa");
  PressAt(3, 0.12);
  const auto& geometry = form_->Chart().Geometry();
  form_->Chart().MouseMove(geometry.XPlotToXFrame(4), geometry.YPlotToYFrame(0.12));
  EXPECT_EQ(Message(), "Missing data.");
  EXPECT_FALSE(form_->Fields().txtErrMsg.BeepOn());
  Release();
  EXPECT_TRUE(form_->Fields().txtErrMsg.BeepOn());
}

TEST_F(Interactive, AChangeRemovesTheLastMessage) {
  TypeSite();
  PlaceAt(6.5, 0.38);
  ASSERT_EQ(Message(), "Out of range");
  PlaceAt(3, 0.12);
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(form_->Fields().txtErrMsg.ExtendedHelpTopic(), 0);
}

// R's site value fails before E does, V has nothing to say.
TEST_F(Interactive, TheLastOfSeveralMessagesRemains) {
  TypeSite();
  Type("txtIrrigationArea", "0");
  toolkit_.Leave("txtIrrigationArea");
  PlaceAt(6.5, 0.38);
  EXPECT_EQ(Message(), "Out of range");
  EXPECT_EQ(form_->Fields().txtErrMsg.ExtendedHelpTopic(), 1);
  PlaceAt(3, 0.12);
  EXPECT_EQ(Message(), "The calculation divides by zero.");
  EXPECT_EQ(Text("txtSolveFor(1)"), "");
  EXPECT_NEAR(Number("txtSolveFor(3)"), Number("txtV") / 2.4, 1e-6) << "does not need the area";
}

TEST_F(Interactive, APointOutsideTheCurvesHasAMessageAndNoEfficiency) {
  TypeSite();
  PlaceAt(6.5, 0.38);
  EXPECT_NE(Text("txtR"), "");
  EXPECT_EQ(Text("txtE"), "");
  EXPECT_EQ(Text("txtSolveFor(2)"), "");
  EXPECT_NE(Text("txtSolveFor(3)"), "");
  EXPECT_EQ(Message(), "Out of range");
  EXPECT_EQ(form_->Fields().txtErrMsg.ExtendedHelpTopic(), 1);
}

TEST_F(Interactive, TheBarIsSilentWhileThePointIsDragged) {
  TypeSite();
  const int beeps = desktop_.Beeps();
  PressAt(3, 0.12);
  EXPECT_FALSE(form_->Fields().txtErrMsg.BeepOn());
  const auto& geometry = form_->Chart().Geometry();
  form_->Chart().MouseMove(geometry.XPlotToXFrame(6.5), geometry.YPlotToYFrame(0.38));
  EXPECT_EQ(Message(), "Out of range");
  EXPECT_EQ(desktop_.Beeps(), beeps);
  Release();
  EXPECT_TRUE(form_->Fields().txtErrMsg.BeepOn());
}

TEST_F(Interactive, AChangeInATypedModeLeavesTheSlots) {
  SolveForEfficiency();
  form_->Chart().OnChange();
  EXPECT_EQ(Text("txtSolveFor(1)"), "1.25");
  EXPECT_EQ(Text("txtSolveFor(2)"), "0.875");
  EXPECT_EQ(Text("txtR"), "0.125");
}

TEST_F(Interactive, AChangeInATypedModeShowsMissingDataToo) {
  SolveForEfficiency();
  Type("txtIrrigationArea", "");
  form_->Chart().OnChange();
  EXPECT_EQ(Text("txtR"), "0.125");
  EXPECT_EQ(Message(), "Missing data.");
}

TEST_F(Interactive, WithoutAModeAChangeFillsTheSlotsAsInTheInteractiveOne) {
  SolveForEfficiency();
  form_->Fields().cmbSolveFor->ListIndex(-1);
  form_->Chart().OnChange();
  EXPECT_EQ(Text("txtSolveFor(1)"), "0.875");
  EXPECT_EQ(Text("txtSolveFor(2)"), Text("txtE"));
  EXPECT_EQ(Text("txtSolveFor(3)"), "1.25");
}

TEST_F(Interactive, ARecalculationDoesNotFollowAChartThatIsNotInteractive) {
  TypeSite();
  PlaceAt(3, 0.12);
  form_->Chart().InteractiveMode(false);
  PressReCalc();
  EXPECT_EQ(Text("txtEquivalentImperviousArea"), "5");
  EXPECT_EQ(Text("txtR") + Text("txtE") + Text("txtV"), "");
  EXPECT_EQ(Message(), "");
}

TEST_F(Interactive, ARecalculationFollowsThePoint) {
  TypeSite();
  PlaceAt(3, 0.12);
  const std::string V = Text("txtV");
  TypeAndEnter("txtBasinArea", "20");  // EIA 10 ac
  EXPECT_EQ(Text("txtV"), V);
  EXPECT_NEAR(Number("txtSolveFor(3)"), Number("txtV") * 10 / 12, 1e-5);
}

TEST_F(Interactive, ARecalculationWithoutAPointShowsNoMessage) {
  TypeSite();
  PressReCalc();
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Text("txtR"), "");
}

TEST_F(Interactive, AFailedValidationLeavesNoSiteValuesBehind) {
  TypeSite();
  PlaceAt(3, 0.12);
  Type("txtIrrigationArea", "0");
  PressReCalc();
  EXPECT_EQ(Message(), "The irrigation area must be greater than zero.");
  EXPECT_EQ(Text("txtSolveFor(1)") + Text("txtSolveFor(2)") + Text("txtSolveFor(3)"), "");
  TypeAndEnter("txtIrrigationArea", "5");
  EXPECT_NEAR(Number("txtV"), 3, 0.01) << "the point itself was kept";
}

TEST_F(Interactive, IncompleteDataKeepThePoint) {
  TypeSite();
  PlaceAt(3, 0.12);
  const std::string V = Text("txtV");
  TypeAndEnter("txtBasinArea", "");
  EXPECT_TRUE(HotspotIsVisible());
  EXPECT_EQ(Text("txtV"), V);
  EXPECT_EQ(Text("txtSolveFor(3)"), "");
  TypeAndEnter("txtBasinArea", "10");
  EXPECT_EQ(Text("txtV"), V);
  EXPECT_NEAR(Number("txtSolveFor(3)"), Number("txtV") / 2.4, 1e-6);
}

TEST_F(Interactive, ASiteValueBeyondSinglePrecisionIsAFaultOnTheBar) {
  TypeSite();
  PlaceAt(3, 0.12);
  Type("txtIrrigationArea", "1E-40");
  PressReCalc();
  EXPECT_EQ(Message(), "A number is too large for the calculation.");
  EXPECT_NE(Text("txtE"), "");  // the point's own numbers are shown all the same
  EXPECT_NE(Text("txtV"), "");
}

// --- Which pair can place the point ---

TEST_F(Interactive, GuessesThePairByItsCommonBinaryDigits) {
  Choose("cmbClimateStation", "Orlando");
  const struct {
    const char* R;
    const char* E;
    const char* V;
    int code;
  } rows[] = {
      {"3", "", "5", 1},       // 3 and 5 share 1
      {"1", "3", "2", 2},      // 1 and 2 share nothing, 3 and 1 do
      {"0.2", "60", "12", 3},  // R counts as 0; 60 and 12 share 12
      {"0.1", "", "12", 0},    // a small rate counts as absent
      {"1", "", "2", 0},       // both are there, but share no digit
      {"", "", "", 0},
      {"3", "x", "5 in", 0},    // texts that are not numbers count as 0
      {"0.5", "60", "0.5", 0},  // a half rounds to the even 0
      {"1.5", "", "2.5", 1},    // 2 and 2
      {" 3 ", "", " 5 ", 1},
      {"-1", "", "4", 1},  // every digit of -1 is set
      {"1E300", "3", "1E300", 0},
  };
  for (const auto& row : rows) {
    TypeNumbers(row.R, row.E, row.V);
    EXPECT_EQ(Guess(), row.code) << row.R << ", " << row.E << ", " << row.V;
  }
}

TEST_F(Interactive, GuessesNothingWithoutCurves) {
  TypeNumbers("3", "", "5");
  EXPECT_EQ(Guess(), 0);
}

// --- Numbers place the point ---

TEST_F(Interactive, EnteringTheModeKeepsTheSolvedPointExactly) {
  SolveForEfficiency();
  const std::string E = Text("txtE");
  Choose("cmbSolveFor", "Interactive");
  EXPECT_EQ(Text("txtR"), "0.125");
  EXPECT_EQ(Text("txtV"), "3");
  EXPECT_EQ(Text("txtE"), E);
  EXPECT_EQ(Text("txtSolveFor(1)"), "0.875");
  EXPECT_EQ(Text("txtSolveFor(2)"), E);
  EXPECT_EQ(Text("txtSolveFor(3)"), "1.25");
}

TEST_F(Interactive, EnteringTheModePlacesAHiddenPointByRAndV) {
  TypeSite("Orlando");
  TypeNumbers("3", "", "5");
  Choose("cmbSolveFor", "Efficiency");
  ASSERT_FALSE(HotspotIsVisible());
  Choose("cmbSolveFor", "Interactive");
  EXPECT_TRUE(HotspotIsVisible());
  EXPECT_EQ(Text("txtR"), "3");
  EXPECT_EQ(Text("txtV"), "5");
  EXPECT_NEAR(Number("txtE"), 50 + 10 * (3 + std::log(5.0) - 4), 1e-3);
}

TEST_F(Interactive, EnteringTheModePlacesAHiddenPointByEAndR) {
  TypeSite("Orlando");
  TypeNumbers("5", "85", "");
  Choose("cmbSolveFor", "Efficiency");
  Choose("cmbSolveFor", "Interactive");
  EXPECT_EQ(Text("txtR"), "5");
  EXPECT_EQ(Text("txtE"), "85");
  EXPECT_NEAR(Number("txtV"), std::exp(2.5), 1e-3);  // R = 7.5 - ln V
}

TEST_F(Interactive, EnteringTheModePlacesAHiddenPointByEAndVWhereRIsSmall) {
  TypeSite("Orlando");
  TypeNumbers("0.2", "60", "12");
  Choose("cmbSolveFor", "Efficiency");
  Choose("cmbSolveFor", "Interactive");
  EXPECT_EQ(Text("txtE"), "60");
  EXPECT_EQ(Text("txtV"), "12");
  EXPECT_NEAR(Number("txtR"), 5 - std::log(12.0), 1e-6);
}

TEST_F(Interactive, EnteringTheModeWithIncompleteDataStillPlacesThePoint) {
  Choose("cmbClimateStation", "Orlando");
  TypeNumbers("3", "", "5");
  Choose("cmbSolveFor", "Efficiency");
  Choose("cmbSolveFor", "Interactive");
  EXPECT_TRUE(HotspotIsVisible());
  EXPECT_NE(Text("txtE"), "");
  EXPECT_EQ(Message(), "Missing data.");
}

TEST_F(Interactive, TypedNumbersMoveThePointOnARecalculation) {
  TypeSite("Orlando");
  PlaceAt(10, 4);
  TypeNumbers("3", "", "5");
  PressReCalc();
  EXPECT_EQ(Text("txtR"), "3");
  EXPECT_EQ(Text("txtV"), "5");
  EXPECT_EQ(Message(), "");
  TypeNumbers("3", "", "7");
  Enter("txtV");
  EXPECT_EQ(Text("txtV"), "7");
  EXPECT_NEAR(Number("txtE"), 50 + 10 * (3 + std::log(7.0) - 4), 1e-3);
}

TEST_F(Interactive, EnterPlacesThePointWhereTheSiteIsNotKnownYet) {
  Choose("cmbClimateStation", "Orlando");
  TypeNumbers("3", "", "5");
  Enter("txtV");
  EXPECT_TRUE(HotspotIsVisible());
  EXPECT_EQ(Text("txtR"), "3");
  EXPECT_EQ(Text("txtV"), "5");
  EXPECT_NEAR(Number("txtE"), 50 + 10 * (3 + std::log(5.0) - 4), 1e-3);
  EXPECT_EQ(Message(), "Missing data.");
}

TEST_F(Interactive, TypedNumbersOutOfRangeShowAMessage) {
  TypeSite("Orlando");
  TypeNumbers("3", "", "27");
  PressReCalc();
  EXPECT_EQ(Message(), "Normalized storage volume is greater than 20");
  EXPECT_FALSE(HotspotIsVisible());
}

TEST_F(Interactive, RecalculatingAgainAndAgainDoesNotMoveThePoint) {
  TypeSite("Orlando");
  PlaceAt(12, 2.7);
  const std::string R = Text("txtR");
  const std::string V = Text("txtV");
  for (int i = 0; i < 5; ++i) PressReCalc();
  EXPECT_EQ(Text("txtR"), R);
  EXPECT_EQ(Text("txtV"), V);
}

TEST_F(Interactive, AnotherStationKeepsThePointAndGivesItItsOwnEfficiency) {
  TypeSite();
  PlaceAt(3, 0.12);
  const std::string R = Text("txtR");
  const std::string V = Text("txtV");
  auto other = test::LogarithmicCurves();
  for (auto& curve : other.curves) curve.E = std::to_string(std::stoi(curve.E) + 5);
  folder_.Write("KAV Data/Grady.crv", other.Text());
  const double E = Number("txtE");
  Choose("cmbClimateStation", "Grady");
  EXPECT_EQ(Text("txtR"), R);
  EXPECT_EQ(Text("txtV"), V);
  EXPECT_NEAR(Number("txtE"), E + 5, 1e-3);
  EXPECT_EQ(Text("txtSolveFor(2)"), Text("txtE"));
}

TEST_F(Interactive, AStationWhoseChartDoesNotReachThePointShowsAMessage) {
  TypeSite("Orlando");
  PlaceAt(12, 2);
  Choose("cmbClimateStation", "Tampa");
  EXPECT_FALSE(HotspotIsVisible());
  EXPECT_EQ(Message(), "Normalized storage volume is greater than 7");
  EXPECT_EQ(Text("txtR") + Text("txtE") + Text("txtV"), "");
}

TEST_F(Interactive, AHotspotThatWasOnlyHiddenShowsNoMessage) {
  SolveForEfficiency();
  TypeAndEnter("txtSolveFor(1)", "");
  Choose("cmbSolveFor", "Interactive");
  EXPECT_EQ(Message(), "");
}

}  // namespace
}  // namespace orvik
