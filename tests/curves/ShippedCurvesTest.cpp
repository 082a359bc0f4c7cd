// The curve files that ship: what they promise.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "curves/CurveCheck.h"
#include "curves/StationSources.h"
#include "engine/ClimateStations.h"
#include "engine/CurveFile.h"
#include "engine/CurveSet.h"
#include "stream/clsIOStream.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

const std::string kCurveFolder = std::string(ORVIK_DATA_DIR) + "KAV Data/";

std::string PathOf(std::int16_t station) {
  return kCurveFolder + std::string(ClimateStationName(station)) + ".crv";
}

CurveSet ReadStation(std::int16_t station) {
  clsIOStream stream;
  CurveSet set;
  stream.OpenFile(PathOf(station), enumIOStreamMode::AsciiFileInput);
  EXPECT_TRUE(ReadCurveFile(stream, set).IsUsable()) << PathOf(station);
  EXPECT_TRUE(stream.EndOfFile());
  return set;
}

TEST(ShippedCurves, AllStationsHaveTenCurvesThatPassTheChecks) {
  for (std::int16_t i = 1; i <= NumRainfallStations(); ++i) {
    const CurveSet set = ReadStation(i);
    EXPECT_EQ(set.curves.size(), 10U);
    EXPECT_EQ(set.labels.size(), 10U);
    EXPECT_EQ(set.VMax, 7);
    EXPECT_EQ(set.RMax, 0.4);
    EXPECT_THAT(CheckCurves(set, std::nullopt), testing::IsEmpty()) << ClimateStationName(i);
  }
}

TEST(ShippedCurves, TitlesNameTheStationItsSourceAndThatWeComputedIt) {
  for (std::int16_t i = 1; i <= NumRainfallStations(); ++i) {
    const std::string title = ReadStation(i).title;
    EXPECT_THAT(title, testing::StartsWith(std::string(ClimateStationName(i)) +
                                           " - computed by ORVIK from NOAA daily rainfall " +
                                           std::string(SourceOfStation(i).noaaNumber)));
  }
  EXPECT_THAT(ReadStation(6).title, testing::HasSubstr("085539 (record of Mayo), 1949-2021, 62 "));
}

TEST(ShippedCurves, LinesEndWithCrLf) {
  for (std::int16_t i = 1; i <= NumRainfallStations(); ++i) {
    const std::string bytes = test::ReadBytes(PathOf(i));
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 8 + 7 * 10 + 1 + 2 * 10);
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\r'), 8 + 7 * 10 + 1 + 2 * 10);
  }
}

TEST(ShippedCurves, StationsWithOneRecordHaveTheSameCurves) {
  const std::string one = test::ReadBytes(PathOf(2));     // Belle Glade
  const std::string other = test::ReadBytes(PathOf(18));  // NNR2 Canal
  EXPECT_EQ(one.substr(one.find('\n')), other.substr(other.find('\n')));
}

}  // namespace
}  // namespace orvik
