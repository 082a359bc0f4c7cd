// The three questions on the curves of every station that has them, against an independent
// solution: the cubic summed by Horner's rule, interpolated linearly in E between neighbours, and
// its roots found by Boost.Math's TOMS 748.
#include <gtest/gtest.h>

#include <boost/math/tools/roots.hpp>
#include <cmath>
#include <functional>

#include "base/NumberText.h"
#include "chart/ctrlStormwaterReuse.h"
#include "engine/ClimateStations.h"
#include "platform/headless/HeadlessDesktop.h"

namespace orvik {
namespace {

struct Line {
  double VStart, VEnd, A, B, C, D;
};

double Rate(const Line& line, double V) {
  const double L = std::log(V);
  return ((line.D * L + line.C) * L + line.B) * L + line.A;
}

Line Mix(const EfficiencyCurve& a, const EfficiencyCurve& b, double E) {
  const double s = (E - a.E) / (static_cast<double>(b.E) - a.E);
  const auto mix = [s](double x, double y) { return (1 - s) * x + s * y; };
  return {mix(a.VStart, b.VStart), mix(a.VEnd, b.VEnd), mix(a.A, b.A),
          mix(a.B, b.B),           mix(a.C, b.C),       mix(a.D, b.D)};
}

double Root(const std::function<double(double)>& f, double low, double high) {
  std::uintmax_t most = 200;
  const auto bracket = boost::math::tools::toms748_solve(
      f, low, high, boost::math::tools::eps_tolerance<double>(50), most);
  return (bracket.first + bracket.second) / 2;
}

// The neighbour pair that holds E.
std::size_t PairOf(const CurveSet& set, double E) {
  std::size_t i = 0;
  while (i + 2 < set.curves.size() && E > set.curves[i + 1].E) ++i;
  return i;
}

class SolvingByBoost : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    chart_.SetCurveData(static_cast<std::int16_t>(GetParam()));
    ASSERT_TRUE(chart_.IsLoaded());
  }

  Line At(double E) const {
    const auto& curves = chart_.Curves().curves;
    const std::size_t i = PairOf(chart_.Curves(), E);
    return Mix(curves[i], curves[i + 1], E);
  }

  double LowestE() const { return chart_.Curves().curves.front().E; }
  double HighestE() const { return chart_.Curves().curves.back().E; }

  HeadlessDesktop desktop_;
  ctrlStormwaterReuse chart_{ORVIK_DATA_DIR};
  std::string text_;
};

constexpr double kSingle = 6e-8;  // half a unit of single precision, relative

TEST_P(SolvingByBoost, RateAgreesToSinglePrecision) {
  int solved = 0;
  for (double E = LowestE(); E <= HighestE(); E += 0.37) {
    const Line line = At(E);
    for (double V = line.VStart + 1e-6; V <= line.VEnd; V += 0.0731) {
      ASSERT_TRUE(chart_.SetHotspotUsing_EV(ConvertToString(E), ConvertToString(V), text_))
          << E << " " << V;
      EXPECT_NEAR(chart_.Point().R, Rate(line, V), 1e-12) << E << " " << V;
      // Half a unit of the seventh digit (of a rate from 0.1 to 1) and of single precision.
      EXPECT_NEAR(ParseNumber(text_), Rate(line, V), 5e-8 + kSingle * Rate(line, V))
          << E << " " << V;
      ++solved;
    }
  }
  EXPECT_GT(solved, 1000);
}

TEST_P(SolvingByBoost, VolumeAgreesToTheSearchsTolerances) {
  int solved = 0;
  for (double E = LowestE(); E <= HighestE(); E += 0.37) {
    const Line line = At(E);
    const double highest = std::min(Rate(line, line.VStart), *chart_.MaxY());
    for (double R = Rate(line, line.VEnd) + 1e-6; R < highest; R += 0.0023) {
      ASSERT_TRUE(chart_.SetHotspotUsing_ER(ConvertToString(E), ConvertToString(R), text_))
          << E << " " << R;
      const double V = Root([&](double v) { return Rate(line, v) - R; }, line.VStart, line.VEnd);
      const double found = chart_.Point().V;
      EXPECT_TRUE(std::fabs(found - V) < 5.01e-6 || std::fabs(Rate(line, found) - R) < 1.0001e-5)
          << E << " " << R << ": " << found << " and " << V;
      EXPECT_NEAR(ParseNumber(text_), found, 7 * kSingle * 10);
      ++solved;
    }
  }
  EXPECT_GT(solved, 500);
}

TEST_P(SolvingByBoost, EfficiencyAgreesToTheRatesTolerance) {
  // Between two curves the search stops within 1E-5 in/day. A point within a pixel of a curve may
  // be taken by the neighbouring region, whose straight continuation differs by the change of slope
  // over that pixel: less than 0.1 percentage points.
  int solved = 0;
  int nextDoor = 0;
  const double pixelV = chart_.Geometry().XFrameToXPlot(101) - chart_.Geometry().XFrameToXPlot(100);
  const double pixelR = chart_.Geometry().YFrameToYPlot(100) - chart_.Geometry().YFrameToYPlot(101);
  const auto& curves = chart_.Curves().curves;
  for (std::size_t i = 0; i + 1 < curves.size(); ++i) {
    const int solvedBefore = solved;
    for (double V = curves[i + 1].VStart; V <= 7; V += 0.0917) {
      const double low = CurveR(V, curves[i]);
      const double high = CurveR(V, curves[i + 1]);
      for (double share = 0.02; share < 1; share += 0.12) {
        const double R = low + share * (high - low);
        if (R > *chart_.MaxY()) continue;
        const double E =
            Root([&](double e) { return Rate(Mix(curves[i], curves[i + 1], e), V) - R; },
                 curves[i].E, curves[i + 1].E);
        if (!chart_.SetHotspotUsing_RV(ConvertToString(R), ConvertToString(V), text_)) {
          // Only on the outermost pixels of the curves' region.
          const double stepLow = pixelR + CurveR(V - pixelV, curves[i]) - low;
          const double stepHigh = pixelR + CurveR(V - pixelV, curves[i + 1]) - high;
          const bool lowest = i == 0 && R - low < stepLow;
          const bool highest = i + 2 == curves.size() && high - R < stepHigh;
          const bool atAnEnd = V < curves[i + 1].VStart + pixelV || V > 7 - pixelV;
          EXPECT_TRUE(lowest || highest || atAnEnd) << R << " " << V;
          continue;
        }
        const double perRate = (curves[i + 1].E - curves[i].E) / (high - low);
        const double difference = std::fabs(chart_.Point().E - E);
        if (difference > 1.001e-5 * perRate) ++nextDoor;
        EXPECT_LT(difference, 0.1) << R << " " << V;
        ++solved;
      }
    }
    EXPECT_GT(solved, solvedBefore + 100)
        << "between " << curves[i].E << " and " << curves[i + 1].E;
  }
  EXPECT_GT(solved, 2000);
  EXPECT_LT(nextDoor, solved / 10);
}

INSTANTIATE_TEST_SUITE_P(Stations, SolvingByBoost, testing::Range(1, NumRainfallStations() + 1),
                         [](const auto& station) {
                           std::string name(
                               ClimateStationName(static_cast<std::int16_t>(station.param)));
                           std::erase(name, ' ');
                           return name;
                         });

}  // namespace
}  // namespace orvik
