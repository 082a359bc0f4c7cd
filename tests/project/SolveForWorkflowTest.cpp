// The typed modes end to end, and what carries over when the mode changes. The site: EIA 5 ac, 5 ac
// irrigated, so V = 2.4 S and R = Q / 7. Tampa's curves: E = 50 + 400 (R + 0.05 ln V - 0.15).
#include <map>

#include "support/FormFixture.h"

namespace orvik {
namespace {

using test::FormFixture;

class SolveForWorkflowTest : public FormFixture {
 protected:
  void TypeAreas(const char* basin, const char* runoffCoefficient, const char* irrigation) {
    Type("txtBasinArea", basin);
    Type("txtRunoffCoefficient", runoffCoefficient);
    Type("txtIrrigationArea", irrigation);
  }
  void Solve(const char* mode, const char* first, const char* second) {
    Choose("cmbSolveFor", mode);
    Type("txtSolveFor(1)", first);
    TypeAndEnter("txtSolveFor(2)", second);
  }
};

TEST_F(SolveForWorkflowTest, FindsTheEfficiency) {
  SolveForEfficiency();
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Text("txtV"), "3");
  EXPECT_EQ(Text("txtR"), "0.125");
  EXPECT_NEAR(Number("txtE"), 50 + 400 * (0.125 + 0.05 * std::log(3.0) - 0.15), 0.004);
  EXPECT_EQ(Text("txtSolveFor(3)"), Text("txtE"));
}

TEST_F(SolveForWorkflowTest, FindsTheStorageVolume) {
  TypeSite();
  Choose("cmbSolveFor", "Storage Volume");
  Type("txtSolveFor(1)", "60");
  TypeAndEnter("txtSolveFor(2)", "0.875");
  // ln V = (0.15 + (60 - 50) / 400 - 0.125) / 0.05 = 1
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Text("txtE"), "60");
  EXPECT_EQ(Text("txtR"), "0.125");
  EXPECT_NEAR(Number("txtV"), std::exp(1.0), 6e-4);  // the search ends within 1E-5 in/day of R
  EXPECT_NEAR(Number("txtSolveFor(3)"), std::exp(1.0) * 5 / 12, 3e-4);
}

TEST_F(SolveForWorkflowTest, FindsTheReuseRate) {
  TypeSite();
  Choose("cmbSolveFor", "Reuse Rate");
  Type("txtSolveFor(1)", "60");
  TypeAndEnter("txtSolveFor(2)", "1.25");
  const double R = 0.175 - 0.05 * std::log(3.0);
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Text("txtE"), "60");
  EXPECT_EQ(Text("txtV"), "3");
  EXPECT_NEAR(Number("txtR"), R, 1e-7);
  EXPECT_NEAR(Number("txtSolveFor(3)"), R * 7, 7e-7);
}

TEST_F(SolveForWorkflowTest, AGivenEfficiencyIsShownInOurNumberFormat) {
  TypeSite();
  for (const char* mode : {"Storage Volume", "Reuse Rate"}) {
    Solve(mode, " 060.50 ", "0.875");
    EXPECT_EQ(Text("txtE"), "60.5") << mode;
  }
}

TEST_F(SolveForWorkflowTest, FiveAcreFeetAndOneInchPerWeekAreTwelveInchesAndASeventh) {
  TypeSite("Orlando");
  Choose("cmbSolveFor", "Efficiency");
  Type("txtSolveFor(1)", "5");
  TypeAndEnter("txtSolveFor(2)", "1");
  EXPECT_EQ(Text("txtV"), "12");
  EXPECT_EQ(Text("txtR"), "0.1428571");
}

// The digits of single precision at every step, in this order; double precision gives 5.59604 and
// 0.1273065.
TEST_F(SolveForWorkflowTest, NormalizedValuesAreCalculatedInSinglePrecision) {
  TypeSite();
  Choose("cmbSolveFor", "Efficiency");
  Type("txtRunoffCoefficient", "1");
  Type("txtBasinArea", "10.1");
  Type("txtSolveFor(1)", "4.71");
  TypeAndEnter("txtSolveFor(2)", "1.45");
  EXPECT_EQ(Text("txtV"), "5.596039");
  Type("txtBasinArea", "9.6");
  TypeAndEnter("txtIrrigationArea", "5.9");
  EXPECT_EQ(Text("txtR"), "0.1273066");
}

// 0.53 x 12.3 is 6.519 in its text, from which 6.350667 would follow, as in double precision.
TEST_F(SolveForWorkflowTest, TheEiaIsTakenInSinglePrecisionAndNotFromItsText) {
  TypeSite();
  TypeAreas("12.3", "0.53", "5");
  Solve("Efficiency", "3.45", "0.5");
  EXPECT_EQ(Text("txtEquivalentImperviousArea"), "6.519");
  EXPECT_EQ(Text("txtV"), "6.350668");
}

// V = 4 in is the first middle that the search on the curve tries. V / 12 x EIA and double
// precision give 9.6.
TEST_F(SolveForWorkflowTest, TheSolvedStorageIsCalculatedInSinglePrecision) {
  TypeSite();
  TypeAreas("28.8", "1", "28.8");
  Solve("Storage Volume", "50", "0.5647971");  // R = 0.15 - 0.05 ln 4 = 0.0806853 in/day
  EXPECT_EQ(Text("txtV"), "4");
  EXPECT_EQ(Text("txtSolveFor(3)"), "9.599999");
}

// On a flat curve R is the curve's own number. All other orders and double precision give
// 0.7163774.
TEST_F(SolveForWorkflowTest, TheSolvedReuseRateIsCalculatedInSinglePrecision) {
  auto file = test::LogarithmicCurves();
  for (auto& curve : file.curves) {
    curve.A = "0.226";
    curve.B = "0";
  }
  folder_.Write("KAV Data/Grady.crv", file.Text());
  TypeSite("Grady");
  TypeAreas("16.8", "1", "37.1");
  Solve("Reuse Rate", "70", "5");
  EXPECT_EQ(Text("txtR"), "0.226");
  EXPECT_EQ(Text("txtSolveFor(3)"), "0.7163773");
}

// A solution of one mode does not stand, locked, as if it were the next mode's.
TEST_F(SolveForWorkflowTest, AModeThatLacksNumbersShowsNothingOfThePreviousOne) {
  SolveForEfficiency();
  Type("txtSolveFor(1)", "");
  TypeAndEnter("txtSolveFor(2)", "5000");  // lacks the storage volume
  Type("txtSolveFor(1)", "5");
  TypeAndEnter("txtSolveFor(2)", "0.875");
  ASSERT_EQ(Message(), "Normalized storage volume is greater than 7");
  Type("txtSolveFor(2)", "");
  Choose("cmbSolveFor", "Reuse Rate");  // no efficiency to carry over
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(form_->Fields().txtErrMsg.ExtendedHelpTopic(), 0);
  EXPECT_EQ(Text("txtV"), "");
  EXPECT_EQ(Text("txtR"), "");
  EXPECT_FALSE(HotspotIsVisible());
}

TEST_F(SolveForWorkflowTest, AnotherIrrigationAreaChangesTheReuseRateOnly) {
  SolveForEfficiency();
  TypeAndEnter("txtIrrigationArea", "10");
  EXPECT_EQ(Text("txtV"), "3");
  EXPECT_EQ(Text("txtR"), "0.25");
}

TEST_F(SolveForWorkflowTest, AChartFailureShowsItsMessageAndHelpTopic) {
  SolveForEfficiency();
  TypeAndEnter("txtSolveFor(1)", "5");
  EXPECT_EQ(Message(), "Normalized storage volume is greater than 7");
  EXPECT_EQ(form_->Fields().txtErrMsg.ExtendedHelpTopic(), 1);
  EXPECT_EQ(Text("txtV"), "12") << "filled before the failure";
  EXPECT_EQ(Text("txtR"), "0.125");
  EXPECT_EQ(Text("txtE"), "");
  EXPECT_EQ(Text("txtSolveFor(3)"), "");
}

TEST_F(SolveForWorkflowTest, AStorageVolumeOfZeroIsLeftToTheChart) {
  auto file = test::LogarithmicCurves();
  file.header[0] = "0.5";
  folder_.Write("KAV Data/Grady.crv", file.Text());
  TypeSite("Grady");
  Choose("cmbSolveFor", "Efficiency");
  Type("txtSolveFor(1)", "0");
  TypeAndEnter("txtSolveFor(2)", "0.875");
  EXPECT_EQ(Text("txtV"), "0");
  EXPECT_EQ(Message(), "Normalized storage volume is less than 0.5");
}

TEST_F(SolveForWorkflowTest, AFailedReuseRateHidesTheHotspotWhereTheChartIsInteractive) {
  TypeSite();
  Choose("cmbSolveFor", "Reuse Rate");
  Type("txtSolveFor(1)", "60");
  TypeAndEnter("txtSolveFor(2)", "1.25");
  ASSERT_TRUE(HotspotIsVisible());
  form_->Chart().InteractiveMode(true);
  TypeAndEnter("txtSolveFor(2)", "0.5");  // V = 1.2 in, left of the curve's start at 1.25 in
  EXPECT_EQ(Message(),
            "The normalized storage volume is less than the minimum value for the specified "
            "efficiency curve.");
  EXPECT_FALSE(HotspotIsVisible());
  EXPECT_EQ(Text("txtR"), "");
}

TEST_F(SolveForWorkflowTest, WithoutAModeNothingMoreIsDone) {
  SolveForEfficiency();
  form_->Fields().cmbSolveFor->ListIndex(-1);
  PressReCalc();
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Text("txtEquivalentImperviousArea"), "5");
  EXPECT_EQ(Text("txtR"), "");
}

// --- Change of mode ---

class ModeChangeTest : public FormFixture {
 protected:
  std::string Caption(int slot) {
    return toolkit_.Caption("lblSolveFor(" + std::to_string(slot) + ")");
  }
  std::string Slot(int slot) { return Text("txtSolveFor(" + std::to_string(slot) + ")"); }
  bool IsLocked(const std::string& field) { return toolkit_.Find<HeadlessTextBox>(field).Locked(); }
  Colour BackColour(const std::string& field) {
    return toolkit_.Find<HeadlessTextBox>(field).BackColor();
  }
};

constexpr const char* kRate = "Reuse Rate (in/week)";
constexpr const char* kEfficiency = "Efficiency (%)";
constexpr const char* kStorage = "Storage Volume (ac-ft)";

TEST_F(ModeChangeTest, EachModeHasItsCaptions) {
  const struct {
    const char* mode;
    const char* captions[3];
  } rows[] = {{"Efficiency", {kStorage, kRate, kEfficiency}},
              {"Storage Volume", {kEfficiency, kRate, kStorage}},
              {"Reuse Rate", {kEfficiency, kStorage, kRate}},
              {"Interactive", {kRate, kEfficiency, kStorage}}};
  for (const auto& row : rows) {
    Choose("cmbSolveFor", row.mode);
    for (int slot = 1; slot <= 3; ++slot) EXPECT_EQ(Caption(slot), row.captions[slot - 1]);
  }
}

TEST_F(ModeChangeTest, CarriesTypedValuesOverByQuantity) {
  Choose("cmbSolveFor", "Efficiency");
  Type("txtSolveFor(1)", "1.25");
  Type("txtSolveFor(2)", "0.875");
  Choose("cmbSolveFor", "Storage Volume");
  EXPECT_EQ(Slot(1), "");
  EXPECT_EQ(Slot(2), "0.875");
  EXPECT_EQ(Slot(3), "");
  Type("txtSolveFor(1)", "60");
  Choose("cmbSolveFor", "Reuse Rate");
  EXPECT_EQ(Slot(1), "60");
  EXPECT_EQ(Slot(2), "");
  Choose("cmbSolveFor", "Interactive");
  EXPECT_EQ(Slot(1) + Slot(2) + Slot(3), "");
}

TEST_F(ModeChangeTest, CarriesASolvedValueOverAsAGivenOne) {
  SolveForEfficiency();
  const std::string E = Slot(3);
  Choose("cmbSolveFor", "Storage Volume");
  EXPECT_EQ(Slot(1), E);
  EXPECT_EQ(Slot(2), "0.875");
  EXPECT_NEAR(Number("txtSolveFor(3)"), 1.25, 1e-3) << "and solves for the storage we began with";
  Choose("cmbSolveFor", "Reuse Rate");
  EXPECT_EQ(Slot(1), E);
  EXPECT_NEAR(Number("txtSolveFor(3)"), 0.875, 1e-3);
}

// What stands in the slots of one mode stands, by its caption, in those of the other.
TEST_F(ModeChangeTest, EachModeTakesItsGivenValuesFromEachOther) {
  const char* const modes[] = {"Interactive", "Efficiency", "Storage Volume", "Reuse Rate"};
  SolveForEfficiency();
  for (const char* from : modes) {
    for (const char* to : modes) {
      if (from == to) continue;
      Choose("cmbSolveFor", from);
      std::map<std::string, std::string> values;
      for (int slot = 1; slot <= 3; ++slot) values[Caption(slot)] = Slot(slot);
      for (const auto& [caption, value] : values) ASSERT_NE(value, "") << from << ": " << caption;
      Choose("cmbSolveFor", to);
      const int given = to == modes[0] ? 0 : 2;
      for (int slot = 1; slot <= given; ++slot) {
        EXPECT_EQ(Slot(slot), values[Caption(slot)]) << from << " to " << to << ", slot " << slot;
      }
    }
  }
}

TEST_F(ModeChangeTest, CarriesTheInteractivePointOver) {
  SolveForEfficiency();
  Choose("cmbSolveFor", "Interactive");
  Choose("cmbSolveFor", "Efficiency");
  EXPECT_EQ(Slot(1), "1.25");
  EXPECT_EQ(Slot(2), "0.875");
}

TEST_F(ModeChangeTest, LocksAndColoursFollowTheMode) {
  for (const char* mode : {"Efficiency", "Storage Volume", "Reuse Rate"}) {
    Choose("cmbSolveFor", mode);
    for (const char* output : {"txtR", "txtE", "txtV", "txtSolveFor(3)"}) {
      EXPECT_TRUE(IsLocked(output)) << mode << ", " << output;
      EXPECT_EQ(BackColour(output), kButtonFace) << mode << ", " << output;
    }
    for (const char* input : {"txtSolveFor(1)", "txtSolveFor(2)"}) {
      EXPECT_FALSE(IsLocked(input)) << mode << ", " << input;
      EXPECT_EQ(BackColour(input), kWindowBackground) << mode << ", " << input;
    }
    EXPECT_FALSE(form_->Chart().InteractiveMode()) << mode;
  }
  Choose("cmbSolveFor", "Interactive");
  for (const char* field : {"txtR", "txtE", "txtV"}) EXPECT_FALSE(IsLocked(field)) << field;
  for (int slot = 1; slot <= 3; ++slot) {
    EXPECT_TRUE(IsLocked("txtSolveFor(" + std::to_string(slot) + ")")) << slot;
  }
  EXPECT_TRUE(form_->Chart().InteractiveMode());
}

}  // namespace
}  // namespace orvik
