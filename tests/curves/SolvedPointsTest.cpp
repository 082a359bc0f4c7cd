// What a user solves from the shipped curves, against a simulation of the same pond.
#include <gtest/gtest.h>

#include <cmath>

#include "base/NumberText.h"
#include "chart/ctrlStormwaterReuse.h"
#include "engine/ClimateStations.h"
#include "platform/headless/HeadlessDesktop.h"
#include "pond/PondDays.h"
#include "pond/PondSimulation.h"
#include "rain/RainYears.h"

namespace orvik {
namespace {

struct SolvedPoint {
  PondCell cell;
  double E;
};

// The points of a grid over the chart that lie between the curves.
std::vector<SolvedPoint> SolveGrid(ctrlStormwaterReuse& chart) {
  std::vector<SolvedPoint> points;
  for (int v = 3; v <= 35; ++v) {
    for (int r = 3; r <= 20; ++r) {
      const double V = 0.2 * v;
      const double R = 0.02 * r;
      std::string E;
      if (chart.SetHotspotUsing_RV(ConvertToString(R), ConvertToString(V), E)) {
        points.push_back({{V, R}, ParseNumber(E)});
      }
    }
  }
  return points;
}

TEST(SolvedPoints, AgreeWithASimulationBetweenTheCurvesToo) {
  double sum = 0;
  std::size_t count = 0;
  for (std::int16_t i = 1; i <= NumRainfallStations(); ++i) {
    const std::string name(ClimateStationName(i));
    HeadlessDesktop desktop;
    ctrlStormwaterReuse chart(ORVIK_DATA_DIR);
    chart.SetCurveData(i);
    ASSERT_TRUE(chart.IsLoaded()) << name;
    const PondDays days =
        BuildPondDays(SelectRainYears(ReadRainRecord(
                          std::string(ORVIK_DATA_DIR) + "Rain/" + name + ".csv", RainUnit::Inches)),
                      {});
    const auto points = SolveGrid(chart);
    EXPECT_GT(points.size(), 100U) << name;
    std::vector<PondCell> cells;
    for (const SolvedPoint& point : points) cells.push_back(point.cell);
    const auto simulated = SimulateEfficiencies(days, cells);
    for (std::size_t k = 0; k < points.size(); ++k) {
      EXPECT_NEAR(points[k].E, simulated[k], 1.5)
          << name << " V=" << cells[k].V << " R=" << cells[k].R;
      sum += std::fabs(points[k].E - simulated[k]);
    }
    count += points.size();
  }
  EXPECT_LT(sum / static_cast<double>(count), 0.45);
}

}  // namespace
}  // namespace orvik
