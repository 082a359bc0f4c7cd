// When a recalculation runs, counted as the user would notice it.
#include "engine/ClimateStations.h"
#include "support/FormFixture.h"
#include "support/ProjectText.h"

namespace orvik {
namespace {

using test::FormFixture;
using test::UserFixture;

// The fields and the chart without the window around them.
class RecalculationTriggersTest : public UserFixture {
 protected:
  RecalculationTriggersTest() {
    for (std::int16_t i = 1; i <= NumRainfallStations(); ++i) {
      form_.cmbClimateStation->AddItem(ClimateStationName(i));
    }
    for (const SolveFor mode : kSolveForModes) form_.cmbSolveFor->AddItem(SolveForItem(mode));
    SolveForEfficiency();
    // Counts from here on; the triggers' own listener goes on working.
    workflow_.OnRecalculated = [this, before = workflow_.OnRecalculated] {
      ++runs_;
      before();
    };
  }

  bool HotspotIsVisible() { return chart_.HotSpotVisibile(); }

  ProjectForm form_{toolkit_, desktop_};
  ctrlStormwaterReuse chart_{folder_.Path()};
  FormBinding binding_{form_, chart_};
  InteractiveSynchronisation interactive_{form_, chart_, binding_};
  SolveForWorkflow workflow_{form_, chart_, binding_};
  RecalculationTriggers triggers_{form_, chart_, desktop_, binding_, workflow_, interactive_};
  int runs_ = 0;
};

const char* const kFields[] = {"txtBasinArea", "txtRunoffCoefficient", "txtIrrigationArea",
                               "txtSolveFor(1)", "txtSolveFor(2)"};

TEST_F(RecalculationTriggersTest, EnterRecalculates) {
  int expected = 0;
  for (const char* field : kFields) {
    Enter(field);
    EXPECT_EQ(runs_, ++expected) << field;
  }
  Enter("txtSolveFor(3)");
  EXPECT_EQ(runs_, ++expected) << "the result's field";
}

TEST_F(RecalculationTriggersTest, LeavingAChangedFieldRecalculatesOnce) {
  int expected = 0;
  for (const char* field : kFields) {
    Type(field, Text(field) + "1");
    toolkit_.Leave(field);
    EXPECT_EQ(runs_, ++expected) << field;
  }
}

TEST_F(RecalculationTriggersTest, EnterFollowedByLeavingRecalculatesOnce) {
  TypeAndEnter("txtSolveFor(1)", "1.3");
  toolkit_.Leave("txtSolveFor(1)");
  EXPECT_EQ(runs_, 1);
}

TEST_F(RecalculationTriggersTest, LeavingAnUnchangedFieldDoesNothing) {
  Enter("txtBasinArea");
  runs_ = 0;
  toolkit_.Leave("txtBasinArea");
  toolkit_.PressKey("txtSolveFor(2)", 'x');  // typed, and taken back
  Type("txtSolveFor(2)", "0.875");
  Enter("txtSolveFor(2)");
  runs_ = 0;
  toolkit_.Leave("txtSolveFor(2)");
  EXPECT_EQ(runs_, 0);
}

TEST_F(RecalculationTriggersTest, AnotherFieldsResultDoesNotCountAsAChange) {
  TypeAndEnter("txtBasinArea", "11");
  runs_ = 0;
  for (const char* field : {"txtSolveFor(3)", "txtSolveFor(1)"}) {
    toolkit_.PressKey(field, '\t');
    toolkit_.Leave(field);
  }
  EXPECT_EQ(runs_, 0);
}

TEST_F(RecalculationTriggersTest, ChangingTheStationRecalculates) {
  Choose("cmbClimateStation", "Orlando");
  EXPECT_EQ(runs_, 1);
}

TEST_F(RecalculationTriggersTest, ChangingTheModeRecalculates) {
  Choose("cmbSolveFor", "Storage Volume");
  EXPECT_EQ(runs_, 1);
  toolkit_.Type("txtSolveFor(1)", "61");
  toolkit_.Leave("txtSolveFor(1)");
  EXPECT_EQ(runs_, 2);
}

class RecalculationInTheWindow : public FormFixture {
 protected:
  // Stays in the result's field until it is calculated or emptied.
  void MarkResult() { form_->Fields().Box(Field::R).Text("mark"); }
};

TEST_F(RecalculationInTheWindow, TheButtonRecalculatesAlways) {
  SolveForEfficiency();
  MarkResult();
  PressReCalc();
  EXPECT_EQ(Text("txtR"), "0.125");
  Type("txtBasinArea", "");
  toolkit_.Leave("txtBasinArea");
  EXPECT_EQ(Message(), "");
  PressReCalc();
  EXPECT_EQ(Message(), "The basin area has not been defined.");
}

TEST_F(RecalculationTriggersTest, IncompleteDataTakeTheSolutionAwayInsteadOfLeavingAStaleOne) {
  TypeAndEnter("txtSolveFor(2)", "");
  EXPECT_EQ(runs_, 0);
  EXPECT_FALSE(HotspotIsVisible());
  EXPECT_EQ(Text("txtSolveFor(3)"), "");
  EXPECT_EQ(Text("txtR") + Text("txtE") + Text("txtV"), "");
  EXPECT_EQ(Message(), "") << "quietly: the user is still typing";
}

TEST_F(RecalculationTriggersTest, AStationWithoutCurvesTakesTheSolutionAway) {
  Choose("cmbClimateStation", "Key West");
  EXPECT_EQ(desktop_.Messages().back().text, "Can't find data for Key West");
  EXPECT_EQ(Text("txtSolveFor(3)"), "");
  EXPECT_EQ(Text("txtE"), "");
  EXPECT_FALSE(HotspotIsVisible());
}

TEST_F(RecalculationInTheWindow, LeavingAFieldThatAFileFilledDoesNothing) {
  SolveForEfficiency();
  auto lines = test::ProjectLines();
  lines.pop_back();  // read up to the last field, then refused
  EXPECT_FALSE(form_->Files().LoadFile(folder_.Write("cut.kav", test::ProjectText(lines))));
  EXPECT_EQ(Text("txtBasinArea"), "10");
  MarkResult();
  toolkit_.PressKey("txtBasinArea", '\t');
  toolkit_.Leave("txtBasinArea");
  EXPECT_EQ(Text("txtR"), "mark");
}

TEST_F(RecalculationTriggersTest, EnterIsTakenByTheFieldAndLeavesItsText) {
  const auto& basinArea = toolkit_.Find<HeadlessTextBox>("txtBasinArea");
  std::int16_t key = 13;
  basinArea.OnKeyPress(key);
  EXPECT_EQ(key, 0);
  EXPECT_EQ(Text("txtBasinArea"), "10");
  key = '1';
  basinArea.OnKeyPress(key);
  EXPECT_EQ(key, '1');
}

}  // namespace
}  // namespace orvik
