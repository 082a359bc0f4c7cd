// A chart control over a data folder of its own.
#pragma once

#include <gtest/gtest.h>

#include "base/Paths.h"
#include "chart/ctrlStormwaterReuse.h"
#include "support/CurveFileText.h"
#include "support/TempFolder.h"

namespace orvik::test {

inline constexpr std::int16_t kTampa = 23;

class ChartFixture : public testing::Test {
 protected:
  // Writes the file as Tampa's and loads it.
  void Load(const CurveFileText& file) {
    folder_.Write("KAV Data/Tampa.crv", file.Text());
    chart_.SetCurveData(kTampa);
  }

  TempFolder folder_;
  ctrlStormwaterReuse chart_{folder_.Path()};
};

}  // namespace orvik::test
