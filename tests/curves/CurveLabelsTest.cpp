#include <gtest/gtest.h>

#include "curves/ChartAxes.h"
#include "curves/CurveLabels.h"
#include "curves/CurveMaker.h"
#include "support/SampleRecords.h"

namespace orvik {
namespace {

TEST(CurveLabels, ArePlacedOnceForEachCurveInsideTheChart) {
  const CurveSet set = MakeCurves(BuildPondDays(test::IrregularRain(), {}), {}, "x").set;
  ASSERT_EQ(set.labels.size(), set.curves.size());
  EXPECT_EQ(set.labels[6].Text, "E=80%");
  for (const CurveLabel& label : set.labels) {
    EXPECT_GE(label.V, set.VMin) << label.Text;
    EXPECT_LE(label.V + 0.2, set.VMax) << label.Text;
    EXPECT_LE(label.R, set.RMax) << label.Text;
    EXPECT_GE(label.R - 0.008, set.RMin) << label.Text;
  }
}

TEST(CurveLabels, ArePlacedAboveTheirCurveAndBelowTheNext) {
  const CurveSet set = MakeCurves(BuildPondDays(test::IrregularRain(), {}), {}, "x").set;
  for (std::size_t i = 0; i < set.labels.size(); ++i) {
    const CurveLabel& label = set.labels[i];
    EXPECT_GT(label.R - 0.008, CurveR(label.V, set.curves[i])) << label.Text;
    if (i + 1 < set.labels.size() && label.V >= set.curves[i + 1].VStart) {
      EXPECT_LT(label.R, CurveR(label.V, set.curves[i + 1])) << label.Text;
    }
  }
}

TEST(CurveLabels, ReplaceTheOldLabels) {
  CurveSet set;
  set.VMax = 7;
  set.RMax = 0.4;
  set.labels = {{"old", 1, 1}, {"old", 2, 2}};
  EfficiencyCurve curve;
  curve.E = 62.5F;
  curve.A = 0.2;
  curve.B = -0.05;
  curve.VStart = 1;
  curve.VEnd = 7;
  set.curves = {curve};
  PlaceLabels(set);
  ASSERT_EQ(set.labels.size(), 1U);
  EXPECT_EQ(set.labels[0].Text, "E=62.5%");
}

}  // namespace
}  // namespace orvik
