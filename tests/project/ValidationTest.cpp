// Every sentence of the validation, provoked as a user provokes it: by typing and recalculating.
#include <functional>

#include "support/FormFixture.h"

namespace orvik {
namespace {

using test::FormFixture;

class Validation : public FormFixture {};

struct BadInput {
  const char* field;
  const char* text;
  const char* message;
};

std::ostream& operator<<(std::ostream& out, const BadInput& input) {
  return out << input.field << " = \"" << input.text << '"';
}

class SiteMessages : public FormFixture, public testing::WithParamInterface<BadInput> {};

TEST_P(SiteMessages, StopTheRecalculation) {
  SolveForEfficiency();
  Type(GetParam().field, GetParam().text);
  PressReCalc();
  EXPECT_EQ(Message(), GetParam().message);
  EXPECT_EQ(Text("txtSolveFor(3)"), "");
  EXPECT_EQ(Text("txtR") + Text("txtE") + Text("txtV"), "");
  EXPECT_EQ(Text("txtEquivalentImperviousArea"),
            std::string_view(GetParam().field) == "txtIrrigationArea" ? "5" : "");
  EXPECT_FALSE(HotspotIsVisible()) << "a result, as the numbers are";
  EXPECT_EQ(form_->Fields().txtErrMsg.ExtendedHelpTopic(), 0);
  EXPECT_TRUE(desktop_.Messages().empty()) << "faults of input never open a message box";
}

INSTANTIATE_TEST_SUITE_P(
    Table, SiteMessages,
    testing::Values(
        BadInput{"txtBasinArea", "", "The basin area has not been defined."},
        BadInput{"txtBasinArea", "   ", "The basin area has not been defined."},
        BadInput{"txtBasinArea", "ten", "The basin area is not numeric."},
        BadInput{"txtBasinArea", "10 ac", "The basin area is not numeric."},
        BadInput{"txtBasinArea", "1,000", "The basin area is not numeric."},
        BadInput{"txtBasinArea", "0", "The basin area must be greater than zero."},
        BadInput{"txtBasinArea", "-3", "The basin area must be greater than zero."},
        BadInput{"txtBasinArea", "1E-60", "The basin area must be greater than zero."},
        BadInput{"txtRunoffCoefficient", "", "The runoff coefficient has not been defined."},
        BadInput{"txtRunoffCoefficient", "half", "The runoff coefficient is not numeric."},
        BadInput{"txtRunoffCoefficient", "0", "The runoff coefficient must be between 0 and 1."},
        BadInput{"txtRunoffCoefficient", "1.01", "The runoff coefficient must be between 0 and 1."},
        BadInput{"txtRunoffCoefficient", "-1", "The runoff coefficient must be between 0 and 1."},
        BadInput{"txtRunoffCoefficient", "1E99", "The runoff coefficient must be between 0 and 1."},
        BadInput{"txtIrrigationArea", "", "The irrigation area has not been defined."},
        BadInput{"txtIrrigationArea", "some", "The irrigation area is not numeric."},
        BadInput{"txtIrrigationArea", "0", "The irrigation area must be greater than zero."},
        BadInput{"txtIrrigationArea", "-.1", "The irrigation area must be greater than zero."}));

struct BadQuantity {
  const char* mode;
  int slot;
  const char* text;
  const char* message;
};

std::ostream& operator<<(std::ostream& out, const BadQuantity& input) {
  return out << input.mode << ", slot " << input.slot << " = \"" << input.text << '"';
}

class QuantityMessages : public FormFixture, public testing::WithParamInterface<BadQuantity> {};

TEST_P(QuantityMessages, StopTheRecalculation) {
  TypeSite();
  Choose("cmbSolveFor", GetParam().mode);
  Type("txtSolveFor(1)", "60");
  Type("txtSolveFor(2)", "0.8");
  Type("txtSolveFor(" + std::to_string(GetParam().slot) + ")", GetParam().text);
  PressReCalc();
  EXPECT_EQ(Message(), GetParam().message);
  EXPECT_EQ(Text("txtSolveFor(3)"), "");
  EXPECT_EQ(Text("txtEquivalentImperviousArea"), "5") << "filled before the fault";
}

constexpr const char* kNoStorage = "The storage volume has not been defined.";
constexpr const char* kBadStorage = "The storage volume is not numeric.";
constexpr const char* kNegativeStorage = "The storage volume must be greater than zero.";
constexpr const char* kNoRate = "The reuse rate has not been defined.";
constexpr const char* kBadRate = "The reuse rate is not numeric.";
constexpr const char* kNegativeRate = "The reuse rate must be greater than zero.";
constexpr const char* kNoEfficiency = "The efficiency has not been defined.";
constexpr const char* kBadEfficiency = "The efficiency is not numeric.";
constexpr const char* kNegativeEfficiency = "The efficiency must be greater than zero.";

INSTANTIATE_TEST_SUITE_P(Table, QuantityMessages,
                         testing::Values(BadQuantity{"Efficiency", 1, "", kNoStorage},
                                         BadQuantity{"Efficiency", 1, "x", kBadStorage},
                                         BadQuantity{"Efficiency", 1, "-1", kNegativeStorage},
                                         BadQuantity{"Efficiency", 2, " ", kNoRate},
                                         BadQuantity{"Efficiency", 2, "1 2", kBadRate},
                                         BadQuantity{"Efficiency", 2, "-0.1", kNegativeRate},
                                         BadQuantity{"Storage Volume", 1, "", kNoEfficiency},
                                         BadQuantity{"Storage Volume", 1, "60%", kBadEfficiency},
                                         BadQuantity{"Storage Volume", 1, "-60",
                                                     kNegativeEfficiency},
                                         BadQuantity{"Storage Volume", 2, "", kNoRate},
                                         BadQuantity{"Storage Volume", 2, "?", kBadRate},
                                         BadQuantity{"Storage Volume", 2, "-1", kNegativeRate},
                                         BadQuantity{"Reuse Rate", 1, "", kNoEfficiency},
                                         BadQuantity{"Reuse Rate", 1, "sixty", kBadEfficiency},
                                         BadQuantity{"Reuse Rate", 1, "-1", kNegativeEfficiency},
                                         BadQuantity{"Reuse Rate", 2, "", kNoStorage},
                                         BadQuantity{"Reuse Rate", 2, "1..2", kBadStorage},
                                         BadQuantity{"Reuse Rate", 2, "-.5", kNegativeStorage}));

TEST_F(Validation, ChecksInItsFixedOrder) {
  Choose("cmbSolveFor", "Efficiency");
  const struct {
    std::function<void()> mend;
    const char* next;
  } steps[] = {
      {[] {}, "The basin area has not been defined."},
      {[&] { Type("txtBasinArea", "10"); }, "The runoff coefficient has not been defined."},
      {[&] { Type("txtRunoffCoefficient", "0.5"); }, "The irrigation area has not been defined."},
      {[&] { Type("txtIrrigationArea", "5"); }, "The climate station has not been selected."},
      {[&] { Choose("cmbClimateStation", "Tampa"); }, kNoStorage},
      {[&] { Type("txtSolveFor(1)", "1.25"); }, kNoRate},
      {[&] { Type("txtSolveFor(2)", "0.875"); }, ""},
  };
  for (const auto& step : steps) {
    step.mend();
    PressReCalc();
    EXPECT_EQ(Message(), step.next);
  }
}

TEST_F(Validation, AStorageVolumeOfZeroPassesAndTheChartAnswersForIt) {
  TypeSite("Orlando");
  Choose("cmbSolveFor", "Efficiency");
  Type("txtSolveFor(1)", "0");
  TypeAndEnter("txtSolveFor(2)", "7");
  EXPECT_EQ(Text("txtV"), "0");
  EXPECT_EQ(Message(), "The specified point is out of range of the design efficiency curves.");
}

TEST_F(Validation, AReuseRateOfZeroAndAnEfficiencyOfZeroPass) {
  TypeSite();
  Choose("cmbSolveFor", "Storage Volume");
  Type("txtSolveFor(1)", "0");
  TypeAndEnter("txtSolveFor(2)", "0");
  EXPECT_EQ(Text("txtE"), "0");
  EXPECT_EQ(Text("txtR"), "0");
  EXPECT_EQ(Message(), "Design efficiency is less than 50%.");
}

TEST_F(Validation, ARunoffCoefficientOfOneIsAccepted) {
  SolveForEfficiency();
  Type("txtBasinArea", "5");
  TypeAndEnter("txtRunoffCoefficient", "1");
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Text("txtEquivalentImperviousArea"), "5");
  EXPECT_NE(Text("txtSolveFor(3)"), "");
}

TEST_F(Validation, BlanksAroundANumberAreAllowed) {
  SolveForEfficiency();
  TypeAndEnter("txtBasinArea", "  10 ");
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Text("txtEquivalentImperviousArea"), "5");
}

TEST_F(Validation, ANumberBeyondSinglePrecisionIsAFaultAndNeverAResult) {
  for (const char* field :
       {"txtBasinArea", "txtIrrigationArea", "txtSolveFor(1)", "txtSolveFor(2)"}) {
    SolveForEfficiency();
    Type(field, "1E39");
    PressReCalc();
    EXPECT_EQ(Message(), "A number is too large for the calculation.") << field;
    EXPECT_EQ(Text("txtSolveFor(3)"), "") << field;
  }
}

TEST_F(Validation, AnEiaThatVanishesInSinglePrecisionIsAFault) {
  SolveForEfficiency();
  Type("txtBasinArea", "1E-30");
  Type("txtRunoffCoefficient", "1E-30");
  PressReCalc();
  EXPECT_EQ(Message(), "The calculation divides by zero.");
  EXPECT_EQ(Text("txtSolveFor(3)"), "");
}

// --- The EIA while typing ---

TEST_F(Validation, TheEiaFollowsBasinAreaAndRunoffCoefficient) {
  Type("txtBasinArea", "10");
  EXPECT_EQ(Text("txtEquivalentImperviousArea"), "");
  Type("txtRunoffCoefficient", "0.5");
  EXPECT_EQ(Text("txtEquivalentImperviousArea"), "5");
  Type("txtBasinArea", "0.5");
  EXPECT_EQ(Text("txtEquivalentImperviousArea"), "0.25") << "with its leading zero";
  Type("txtBasinArea", "-0.5");
  EXPECT_EQ(Text("txtEquivalentImperviousArea"), "-.25") << "no range check, and no zero here";
}

TEST_F(Validation, WithTheBasinAreaEmptyTheRunoffCoefficientLeavesTheEia) {
  Type("txtBasinArea", "10");
  Type("txtRunoffCoefficient", "0.5");
  Type("txtBasinArea", "");
  Type("txtRunoffCoefficient", "0.9");
  EXPECT_EQ(Text("txtEquivalentImperviousArea"), "5");
}

TEST_F(Validation, TheEiaIsMultipliedInSinglePrecision) {
  // In double precision 0.73 x 135.55 = 98.9515; of the singles next to the factors it is 98.95151.
  Type("txtBasinArea", "135.55");
  Type("txtRunoffCoefficient", "0.73");
  EXPECT_EQ(Text("txtEquivalentImperviousArea"), "98.95151");
}

TEST_F(Validation, TheEiaCannotBeTyped) {
  EXPECT_TRUE(form_->Fields().Box(Field::EquivalentImperviousArea).Locked());
}

// --- The quiet test ---

class IsDataDefined : public FormFixture {
 protected:
  bool Asked() {
    FormBinding binding(form_->Fields(), form_->Chart());
    return SolveForWorkflow(form_->Fields(), form_->Chart(), binding).IsDataDefined();
  }
};

TEST_F(IsDataDefined, NeedsTheCurvesAndThreeNumbers) {
  SolveForEfficiency();
  EXPECT_TRUE(Asked());
  for (const char* field : {"txtBasinArea", "txtRunoffCoefficient", "txtIrrigationArea",
                            "txtSolveFor(1)", "txtSolveFor(2)"}) {
    const std::string good = Text(field);
    for (const char* bad : {"", "  ", "abc"}) {
      Type(field, bad);
      EXPECT_FALSE(Asked()) << field << " = \"" << bad << '"';
    }
    Type(field, good);
    EXPECT_TRUE(Asked()) << field;
  }
  Choose("cmbClimateStation", "Miami");
  EXPECT_FALSE(Asked()) << "its curves cannot be read";
}

TEST_F(IsDataDefined, DoesNotJudgeTheNumbers) {
  SolveForEfficiency();
  Type("txtBasinArea", "-10");
  EXPECT_TRUE(Asked());
}

TEST_F(IsDataDefined, ShowsNothing) {
  SolveForEfficiency();
  Type("txtBasinArea", "");
  const int beeps = desktop_.Beeps();
  EXPECT_FALSE(Asked());
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(desktop_.Beeps(), beeps);
}

TEST_F(IsDataDefined, NeedsNoMoreInTheInteractiveModeOnceTheChartIsInIt) {
  TypeSite();
  EXPECT_TRUE(Asked());
}

TEST_F(IsDataDefined, AsksForAPairOfNumbersWhereTheChartIsNotInteractive) {
  TypeSite("Orlando");
  form_->Chart().InteractiveMode(false);
  EXPECT_FALSE(Asked());
  Type("txtR", "3");
  Type("txtV", "5");
  EXPECT_TRUE(Asked());
}

TEST_F(IsDataDefined, IsFalseWithoutAMode) {
  SolveForEfficiency();
  form_->Fields().cmbSolveFor->ListIndex(-1);
  EXPECT_FALSE(Asked());
}

}  // namespace
}  // namespace orvik
