#include <gtest/gtest.h>

#include "base/RuntimeErrors.h"
#include "engine/ClimateStations.h"

namespace orvik {
namespace {

TEST(ClimateStations, AreTwentyFiveInTheirOrder) {
  EXPECT_EQ(NumRainfallStations(), 25);
  EXPECT_EQ(ClimateStationName(1), "Apalachicola");
  EXPECT_EQ(ClimateStationName(13), "Marineland");
  EXPECT_EQ(ClimateStationName(18), "NNR2 Canal");
  EXPECT_EQ(ClimateStationName(25), "West Palm Beach");
}

TEST(ClimateStations, FourthNameKeepsItsSpelling) {
  EXPECT_EQ(ClimateStationName(4), "Fort Meyers");
}

TEST(ClimateStations, AnIndexOutsideTheTableIsASubscriptError) {
  for (const int index : {-1, 0, 26, 32767}) {
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
