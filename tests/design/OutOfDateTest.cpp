#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "design/OutOfDate.h"
#include "design/Project.h"

namespace orvik {
namespace {

using testing::UnorderedElementsAre;

// Every field has a text, as after a recalculation.
Project Solved(SolveFor mode) {
  Project project;
  for (const FieldDesign& field : Fields()) project.Text(field.id) = "1";
  project.station = 3;
  project.Mode(mode);
  return project;
}

// The fields that are out of date once `edit` has changed a project that was solved in the mode.
template <typename Edit>
std::set<std::string> AfterEdit(SolveFor mode, Edit edit) {
  const Project then = Solved(mode);
  Project now = then;
  edit(now);
  std::set<std::string> names;
  for (const FieldDesign& field : Fields()) {
    if (IsOutOfDate(field.id, then, now)) names.emplace(field.control);
  }
  return names;
}

std::set<std::string> AfterTyping(SolveFor mode, Field field) {
  return AfterEdit(mode, [field](Project& project) { project.Text(field) = "12"; });
}

TEST(OutOfDate, NothingIsWhileNothingHasChanged) {
  for (const SolveFor mode : kSolveForModes) {
    EXPECT_TRUE(AfterEdit(mode, [](Project&) {}).empty()) << SolveForItem(mode);
  }
}

// EIA = C A; V = 12 S / EIA; R = IA Q / EIA / 7; E from R and V.
TEST(OutOfDate, TheBasinReachesAllThatIsMadeFromTheEIA) {
  for (const Field field : {Field::BasinArea, Field::RunoffCoefficient}) {
    EXPECT_THAT(AfterTyping(SolveFor::Efficiency, field),
                UnorderedElementsAre("txtEquivalentImperviousArea", "txtV", "txtR", "txtE",
                                     "txtSolveFor(3)"));
    EXPECT_THAT(
        AfterTyping(SolveFor::Interactive, field),
        UnorderedElementsAre("txtEquivalentImperviousArea", "txtSolveFor(1)", "txtSolveFor(3)"))
        << "R, E and V are the point's";
  }
}

TEST(OutOfDate, AGivenEfficiencyIsItsOwnOnEveryBasin) {
  EXPECT_THAT(
      AfterTyping(SolveFor::ReuseRate, Field::BasinArea),
      UnorderedElementsAre("txtEquivalentImperviousArea", "txtV", "txtR", "txtSolveFor(3)"));
}

TEST(OutOfDate, TheIrrigationAreaReachesTheReuseRate) {
  EXPECT_THAT(AfterTyping(SolveFor::Efficiency, Field::IrrigationArea),
              UnorderedElementsAre("txtR", "txtE", "txtSolveFor(3)"));
  EXPECT_THAT(AfterTyping(SolveFor::Interactive, Field::IrrigationArea),
              UnorderedElementsAre("txtSolveFor(1)"));
}

TEST(OutOfDate, AGivenQuantityReachesItsOwnNumberAndTheSolution) {
  EXPECT_THAT(AfterTyping(SolveFor::Efficiency, Field::SolveFor1),
              UnorderedElementsAre("txtV", "txtE", "txtSolveFor(3)"));
  EXPECT_THAT(AfterTyping(SolveFor::StorageVolume, Field::SolveFor1),
              UnorderedElementsAre("txtE", "txtV", "txtSolveFor(3)"));
  EXPECT_THAT(AfterTyping(SolveFor::ReuseRate, Field::SolveFor2),
              UnorderedElementsAre("txtV", "txtR", "txtSolveFor(3)"));
}

TEST(OutOfDate, TheStationReachesWhatIsReadFromItsCurves) {
  const auto other = [](Project& project) { project.station = 4; };
  EXPECT_THAT(AfterEdit(SolveFor::StorageVolume, other),
              UnorderedElementsAre("txtV", "txtSolveFor(3)"));
  EXPECT_THAT(AfterEdit(SolveFor::Interactive, other),
              UnorderedElementsAre("txtE", "txtSolveFor(2)"));
}

TEST(OutOfDate, ANumberTypedForThePointBelongsToAnotherPoint) {
  EXPECT_THAT(
      AfterTyping(SolveFor::Interactive, Field::R),
      UnorderedElementsAre("txtE", "txtV", "txtSolveFor(1)", "txtSolveFor(2)", "txtSolveFor(3)"))
      << "R itself is typed, and no result";
}

TEST(OutOfDate, TheDescriptionReachesNothing) {
  EXPECT_TRUE(AfterTyping(SolveFor::Efficiency, Field::ProjectName).empty());
}

TEST(OutOfDate, AnEmptyFieldShowsNoResult) {
  EXPECT_THAT(AfterEdit(SolveFor::Efficiency,
                        [](Project& project) {
                          project.Text(Field::SolveFor1) = "2";
                          project.Text(Field::E) = "";
                          project.Text(Field::SolveFor3) = " ";
                        }),
              UnorderedElementsAre("txtV"));
}

TEST(OutOfDate, ResultsOfAnotherModeAreNotThoseOfThisOne) {
  EXPECT_THAT(AfterEdit(SolveFor::Interactive,
                        [](Project& project) {
                          project.Mode(SolveFor::Efficiency);
                          for (int slot = 1; slot <= 3; ++slot) project.Text(SlotField(slot)) = "";
                        }),
              UnorderedElementsAre("txtR", "txtE", "txtV"));
}

}  // namespace
}  // namespace orvik
