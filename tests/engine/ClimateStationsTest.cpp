#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "base/RuntimeErrors.h"
#include "engine/ClimateStations.h"

namespace orvik {
namespace {

// Their places are what saved projects hold: a new one comes behind these.
TEST(ClimateStations, AreTwentyFiveInTheirOrder) {
  const std::vector<std::string_view> names = {
      "Apalachicola", "Belle Glade", "Daytona Beach", "Fort Meyers",  "Gainesville",
      "Grady",        "Homestead",   "Inglis",        "Jacksonville", "Key West",
      "Lakeland",     "Lisbon",      "Marineland",    "Melbourne",    "Miami",
      "Moore Haven",  "Niceville",   "NNR2 Canal",    "Orange City",  "Orlando",
      "Parrish",      "Tallahassee", "Tampa",         "Vero Beach",   "West Palm Beach"};
  ASSERT_EQ(NumRainfallStations(), 25);
  for (std::int16_t i = 1; i <= 25; ++i) {
    EXPECT_EQ(ClimateStationName(i), names[static_cast<std::size_t>(i) - 1]);
  }
}

TEST(ClimateStations, AnIndexOutsideTheTableIsASubscriptError) {
  for (const int index : {-1, 0, NumRainfallStations() + 1, 32767}) {
    EXPECT_THROW(ClimateStationName(static_cast<std::int16_t>(index)), SubscriptError) << index;
  }
}

TEST(ClimateStations, AreFoundByNameInAnyCase) {
  EXPECT_EQ(FindClimateStation("Tampa"), 23);
  EXPECT_EQ(FindClimateStation(" key west "), 10);
  EXPECT_EQ(FindClimateStation("Fort Myers"), std::nullopt);
  EXPECT_EQ(FindClimateStation(""), std::nullopt);
}

}  // namespace
}  // namespace orvik
