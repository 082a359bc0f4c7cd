// The rainfall records that ship: read as they stand in the table that was made from them as
// they came.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>

#include "engine/ClimateStations.h"
#include "rain/RainRecord.h"

namespace orvik {
namespace {

const std::string kRainFolder = std::string(ORVIK_DATA_DIR) + "Rain/";

// A line of CHECKSUMS.txt; scripts/rain-checksums, which shares no code with us, makes and checks
// them.
struct RecordSum {
  int rows = 0;
  int values = 0;
  long hundredths = 0;
  std::string file;
};

std::vector<RecordSum> ReadTable() {
  std::ifstream table(kRainFolder + "CHECKSUMS.txt");
  std::vector<RecordSum> sums;
  std::string line;
  while (std::getline(table, line)) {
    RecordSum sum;
    std::string hash;
    std::istringstream fields(line);
    fields >> sum.rows >> sum.values >> sum.hundredths >> hash >> std::ws;
    std::getline(fields, sum.file);
    sums.push_back(sum);
  }
  return sums;
}

TEST(ShippedRain, EveryStationHasARecord) {
  const auto sums = ReadTable();
  ASSERT_EQ(sums.size(), static_cast<std::size_t>(NumRainfallStations()));
  for (std::int16_t i = 1; i <= NumRainfallStations(); ++i) {
    const std::string file = std::string(ClimateStationName(i)) + ".csv";
    EXPECT_EQ(std::ranges::count(sums, file, &RecordSum::file), 1) << file;
  }
}

TEST(ShippedRain, MatchesTheTableOfChecksums) {
  for (const RecordSum& sum : ReadTable()) {
    const RainRecord record = ReadRainRecord(kRainFolder + sum.file, RainUnit::Inches);
    EXPECT_EQ(record.findings.rows, sum.rows) << sum.file;
    EXPECT_EQ(record.days.size(), static_cast<std::size_t>(sum.values)) << sum.file;
    long hundredths = 0;
    for (const RainDay& day : record.days) hundredths += std::lround(day.depthIn * 100);
    EXPECT_EQ(hundredths, sum.hundredths) << sum.file;
  }
}

}  // namespace
}  // namespace orvik
