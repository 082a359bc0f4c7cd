// The regions between the curves are made once for a layout; no answer may show it.
#include "ChartFixture.h"

namespace orvik {
namespace {

using namespace test;

class Regions : public ChartFixture {
 protected:
  // Every answer of the chart on a raster of points, as text.
  std::vector<std::string> Answers(ctrlStormwaterReuse& chart) {
    std::vector<std::string> answers;
    for (int i = 0; i <= 20; ++i) {
      for (int j = 0; j <= 20; ++j) {
        std::string E;
        chart.SetHotspotUsing_RV(std::to_string(0.02 * i), std::to_string(0.35 * j), E);
        answers.push_back(E + "/" + chart.ErrMsg());
      }
    }
    return answers;
  }

  std::vector<std::string> FreshAnswers(int width, int height) {
    ctrlStormwaterReuse fresh(folder_.Path());
    fresh.SetCurveData(kTampa);
    fresh.Resize(width, height);
    return Answers(fresh);
  }
};

TEST_F(Regions, FollowANewLayout) {
  Load(LogarithmicCurves());
  for (const auto& [width, height] : {std::pair(960, 640), {200, 150}, {1500, 300}, {960, 640}}) {
    chart_.Resize(width, height);
    EXPECT_EQ(Answers(chart_), FreshAnswers(width, height)) << width;
  }
}

TEST_F(Regions, FollowOtherCurves) {
  Load(LogarithmicCurves());
  Answers(chart_);
  CurveFileText file = LogarithmicCurves();
  for (auto& curve : file.curves) curve.A = std::to_string(std::stod(curve.A) + 0.05);
  file.curves.push_back({"95", "2", "7", "0.35", "-0.05", "0", "0"});
  Load(file);
  EXPECT_EQ(Answers(chart_), FreshAnswers(960, 640));
}

TEST_F(Regions, GiveTheSameAnswersTwice) {
  Load(LogarithmicCurves());
  const auto first = Answers(chart_);
  EXPECT_EQ(Answers(chart_), first);
}

}  // namespace
}  // namespace orvik
