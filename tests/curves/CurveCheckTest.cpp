#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "curves/CurveCheck.h"
#include "engine/CurveSet.h"

namespace orvik {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

EfficiencyCurve Curve(float E, double VStart, double A, double B) {
  EfficiencyCurve curve;
  curve.E = E;
  curve.VStart = VStart;
  curve.VEnd = 7;
  curve.A = A;
  curve.B = B;
  return curve;
}

// Three curves that fall and keep their distance.
CurveSet GoodSet() {
  CurveSet set;
  set.VMax = 7;
  set.VInterval = 1;
  set.RMax = 0.4;
  set.RInterval = 0.05;
  set.curves = {Curve(50, 1, 0.2, -0.05), Curve(60, 1.5, 0.25, -0.05), Curve(70, 2, 0.3, -0.05)};
  set.labels = {{"E=50%", 3, 0.2}};
  return set;
}

std::vector<std::string> Check(CurveSet set, std::optional<double> meanRunoff = std::nullopt) {
  for (EfficiencyCurve& curve : set.curves) SampleCurve(curve);
  return CheckCurves(set, meanRunoff);
}

TEST(CheckCurves, PassesAGoodSet) {
  EXPECT_THAT(Check(GoodSet()), IsEmpty());
}

TEST(CheckCurves, NamesEachRuleThatIsBroken) {
  struct Case {
    const char* sentence;
    std::function<void(CurveSet&)> breakIt;
  };
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const Case cases[] = {
      {"interval of the V axis", [](CurveSet& s) { s.VInterval = 0; }},
      {"interval of the R axis", [](CurveSet& s) { s.RInterval = 0.07; }},
      {"Curve 2 (E = 60%) has numbers that are not finite",
       [=](CurveSet& s) { s.curves[1].C = nan; }},
      {"Curve 1 (E = 50%) must begin above V = 0 and end at a larger volume",
       [](CurveSet& s) { s.curves[0].VEnd = 1; }},
      {"Curve 3 (E = 170%) has an efficiency that is not between 0 and 100%",
       [](CurveSet& s) { s.curves[2].E = 170; }},
      {"Curve 3 (E = 60%) does not have a higher efficiency",
       [](CurveSet& s) { s.curves[2].E = 60; }},
      {"Curve 3 (E = 70%) does not fall everywhere", [](CurveSet& s) { s.curves[2].D = 0.02; }},
      {"Curve 1 (E = 50%) goes beyond the V axis", [](CurveSet& s) { s.curves[0].VEnd = 7.1; }},
      {"Curve 3 (E = 70%) goes beyond the R axis", [](CurveSet& s) { s.curves[2].A = 0.45; }},
      {"Curve 2 (E = 60%) crosses the curve before it", [](CurveSet& s) { s.curves[1].B = -0.09; }},
      {"Curve 2 (E = 60%) comes too close", [](CurveSet& s) { s.curves[1].A = 0.201; }},
      {"label \"E=50%\" lies outside", [](CurveSet& s) { s.labels[0].R = 0.41; }},
  };
  for (const auto& [sentence, breakIt] : cases) {
    CurveSet set = GoodSet();
    breakIt(set);
    EXPECT_THAT(Check(set), testing::Contains(HasSubstr(sentence)));
  }
}

TEST(CheckCurves, FindsACrossingBeforeTheUpperCurveBegins) {
  // Curve 2 begins at 3 but is evaluated from 1 on, where it lies below curve 1.
  CurveSet set = GoodSet();
  set.curves = {Curve(50, 1, 0.3, -0.1), Curve(60, 3, 0.27, -0.05)};
  EXPECT_THAT(Check(set), ElementsAre(HasSubstr("crosses the curve before it at V = 1.00 in")));
}

TEST(CheckCurves, RefusesACurveWithLessReuseThanItsEfficiencyNeeds) {
  // Curve 1 ends at 0.1027 in/day: enough for 50% of 0.2 in/day, not of 0.21.
  EXPECT_THAT(Check(GoodSet(), 0.2), IsEmpty());
  EXPECT_THAT(Check(GoodSet(), 0.21),
              ElementsAre("Curve 1 (E = 50%) asks for 0.1027 in/day at V = 7.00 in, but its "
                          "efficiency needs more than 0.1050 in/day of this rainfall."));
}

}  // namespace
}  // namespace orvik
