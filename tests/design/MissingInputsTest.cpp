#include <gtest/gtest.h>

#include "design/MissingInputs.h"
#include "design/Project.h"

namespace orvik {
namespace {

constexpr bool kLoaded = true;

Project Complete(SolveFor mode) {
  Project project;
  for (const Field field : {Field::BasinArea, Field::RunoffCoefficient, Field::IrrigationArea,
                            Field::SolveFor1, Field::SolveFor2}) {
    project.Text(field) = "1";
  }
  project.station = 3;
  project.Mode(mode);
  project.point.isShown = true;
  return project;
}

// The sentences that name what is missing, divided by line ends.
std::string Said(const Project& project, bool isLoaded = kLoaded) {
  std::string said;
  for (const Hint& hint : HintsOf(FindMissingInputs(project, isLoaded), project)) {
    said += Sentence(hint) + "\n";
  }
  return said;
}

TEST(MissingInputs, NothingIsSaidWhereAllIsThere) {
  for (const SolveFor mode : kSolveForModes) {
    EXPECT_EQ(Said(Complete(mode)), "") << SolveForItem(mode);
  }
}

TEST(MissingInputs, AnEmptyProjectLacksItsSiteInTheOrderOfTheForm) {
  EXPECT_EQ(Said({}),
            "Still needed for a result: Climate station, Basin area, Runoff coefficient, "
            "Irrigation area.\n");
}

TEST(MissingInputs, ASlotIsNamedByTheQuantityInIt) {
  Project project = Complete(SolveFor::ReuseRate);
  project.Text(Field::SolveFor2) = " ";
  EXPECT_EQ(Said(project), "Still needed for a result: Storage Volume (ac-ft).\n");
}

TEST(MissingInputs, WithoutAModeTheModeIsNamed) {
  EXPECT_EQ(Said(Complete(SolveFor::None)), "Still needed for a result: Solve for.\n");
}

TEST(MissingInputs, ATextThatIsNoNumberIsNotCalledEmpty) {
  Project project = Complete(SolveFor::Efficiency);
  project.Text(Field::BasinArea) = "ten acres";
  project.Text(Field::IrrigationArea) = "";
  EXPECT_EQ(Said(project),
            "Basin area is not a number. Write it with digits and a period only, without units or "
            "thousands separators.\n"
            "Still needed for a result: Irrigation area.\n");
}

TEST(MissingInputs, InTheInteractiveModeThePointIsNeededAndNoSlot) {
  Project project = Complete(SolveFor::Interactive);
  project.Text(Field::SolveFor1) = "";
  EXPECT_EQ(Said(project), "");
  project.point.isShown = false;
  EXPECT_EQ(Said(project),
            "Still needed for a result: a point. Click on the chart, and drag it or move it with "
            "the arrow keys.\n");
  EXPECT_EQ(Said(project, !kLoaded), "") << "there is no curve to place it on";
}

}  // namespace
}  // namespace orvik
