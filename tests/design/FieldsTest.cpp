#include <gtest/gtest.h>

#include <set>

#include "design/Fields.h"
#include "design/SolveFor.h"

namespace orvik {
namespace {

// Users, hosts and printed reports know these by the letter.
TEST(Fields, HaveTheirCaptionsAndNames) {
  const struct {
    Field field;
    const char* control;
    const char* caption;
  } rows[] = {
      {Field::ProjectName, "txtProjectName", "Project name"},
      {Field::Description, "txtDescription", "Description"},
      {Field::ProjectNumber, "txtProjectNumber", "Project number"},
      {Field::Engineer, "txtEngineer", "Engineer"},
      {Field::SupervisingEngineer, "txtSuervisingEngineer", "Supervising engineer"},
      {Field::Date, "txtDate", "Date"},
      {Field::BasinArea, "txtBasinArea", "Basin area"},
      {Field::RunoffCoefficient, "txtRunoffCoefficient", "Runoff coefficient"},
      {Field::EquivalentImperviousArea, "txtEquivalentImperviousArea",
       "Equivalent impervious area"},
      {Field::IrrigationArea, "txtIrrigationArea", "Irrigation area"},
      {Field::SolveFor1, "txtSolveFor(1)", ""},
      {Field::SolveFor3, "txtSolveFor(3)", ""},
      {Field::R, "txtR", "Reuse rate R"},
      {Field::E, "txtE", "Efficiency E"},
      {Field::V, "txtV", "Storage volume V"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(DesignOf(row.field).control, row.control);
    EXPECT_EQ(PlainCaption(row.field), row.caption);
  }
  EXPECT_EQ(PlainCaption(ListField::ClimateStation), "Climate station");
  EXPECT_EQ(PlainCaption(ListField::SolveForMode), "Solve for");
}

TEST(Fields, AreInTheTableAtTheirOwnPlaces) {
  for (std::size_t i = 0; i < kFields; ++i) {
    EXPECT_EQ(static_cast<std::size_t>(Fields()[i].id), i) << Fields()[i].control;
  }
}

TEST(SolveForModes, PutEachQuantityIntoOneSlot) {
  for (const SolveFor mode : kSolveForModes) {
    std::set<SiteQuantity> quantities;
    for (int slot = 1; slot <= kSolveForSlots; ++slot) {
      const SiteQuantity quantity = QuantityInSlot(mode, slot);
      quantities.insert(quantity);
      EXPECT_EQ(SlotOfQuantity(mode, quantity), slot);
      EXPECT_EQ(FieldOfQuantity(mode, quantity), SlotField(slot));
    }
    EXPECT_EQ(quantities.size(), kSiteQuantities) << SolveForItem(mode);
  }
}

TEST(SolveForModes, AnIndexOutsideTheListIsNone) {
  EXPECT_EQ(SolveForOfIndex(-1), SolveFor::None);
  EXPECT_EQ(SolveForOfIndex(4), SolveFor::None);
  EXPECT_EQ(SolveForOfIndex(0), SolveFor::Interactive);
  EXPECT_EQ(SolveForOfIndex(3), SolveFor::ReuseRate);
}

}  // namespace
}  // namespace orvik
