// The basin of 10 ac with C = 0.5 has an EIA of 5 ac, and 5 ac are irrigated: V = 2.4 S and R =
// Q/7. The curves are R = A - 0.05 ln V with A = 0.15, 0.20, 0.25 for E = 50, 70, 90, from V =
// 1, 1.5, 2 to 7.
#include <gtest/gtest.h>

#include <cmath>

#include "base/NumberText.h"
#include "design/Calculate.h"
#include "design/HostResults.h"
#include "design/WithoutResults.h"
#include "engine/FramedCurves.h"

namespace orvik {
namespace {

EfficiencyCurve Curve(float E, double A, double VStart) {
  EfficiencyCurve curve;
  curve.E = E;
  curve.A = A;
  curve.B = -0.05;
  curve.VStart = VStart;
  curve.VEnd = 7;
  SampleCurve(curve);
  return curve;
}

FramedCurves Curves() {
  CurveSet set;
  set.VMax = 7;
  set.RMax = 0.4;
  set.curves = {Curve(50, 0.15, 1), Curve(70, 0.20, 1.5), Curve(90, 0.25, 2)};
  const PlotGeometry geometry = ReferenceGeometry(set);
  return {std::make_shared<const CurveSet>(std::move(set)), geometry};
}

class CalculateTest : public testing::Test {
 protected:
  static Project Site(SolveFor mode, const char* first = "", const char* second = "") {
    Project project;
    project.Text(Field::BasinArea) = "10";
    project.Text(Field::RunoffCoefficient) = "0.5";
    project.Text(Field::IrrigationArea) = "5";
    project.Text(Field::SolveFor1) = first;
    project.Text(Field::SolveFor2) = second;
    project.station = 22;
    project.Mode(mode);
    return project;
  }

  Project Calculated(const Project& project) const {
    return WithResult(project, Calculate(project, &curves_));
  }
  static double Number(const Project& project, Field field) {
    return ParseNumber(project.Text(field));
  }

  FramedCurves curves_ = Curves();
};

TEST_F(CalculateTest, FindsTheEfficiency) {
  const Project found = Calculated(Site(SolveFor::Efficiency, "1.25", "0.875"));
  EXPECT_EQ(found.Text(Field::EquivalentImperviousArea), "5");
  EXPECT_EQ(found.Text(Field::V), "3");
  EXPECT_EQ(found.Text(Field::R), "0.125");
  EXPECT_NEAR(Number(found, Field::E), 50 + 400 * (0.125 + 0.05 * std::log(3.0) - 0.15), 4e-3);
  EXPECT_EQ(found.Text(Field::SolveFor3), found.Text(Field::E));
  EXPECT_TRUE(found.point.HasE());
}

TEST_F(CalculateTest, FindsTheStorageVolume) {
  const Project found = Calculated(Site(SolveFor::StorageVolume, "70", "0.875"));
  EXPECT_NEAR(Number(found, Field::V), std::exp(1.5), 1e-3);
  EXPECT_NEAR(Number(found, Field::SolveFor3), std::exp(1.5) * 5 / 12, 1e-3);
}

TEST_F(CalculateTest, FindsTheReuseRate) {
  const Project found = Calculated(Site(SolveFor::ReuseRate, "70", "1.25"));
  EXPECT_NEAR(Number(found, Field::R), 0.20 - 0.05 * std::log(3.0), 1e-7);
  EXPECT_NEAR(Number(found, Field::SolveFor3), 7 * (0.20 - 0.05 * std::log(3.0)), 1e-6);
}

TEST_F(CalculateTest, TheFirstFaultEndsTheRunAndKeepsWhatWasFilledBeforeIt) {
  Project project = Site(SolveFor::Efficiency, "1.25", "x");
  project.Text(Field::E) = "old";
  const Result result = Calculate(project, &curves_);
  EXPECT_EQ(result.messages, (std::vector<Message>{{MessageId::ReuseRateNotNumeric}}));
  const Project after = WithResult(project, result);
  EXPECT_EQ(after.Text(Field::V), "3");
  EXPECT_EQ(after.Text(Field::R), "");
  EXPECT_EQ(after.Text(Field::E), "");
  EXPECT_EQ(after.Text(Field::SolveFor1), "1.25") << "given";
  EXPECT_FALSE(after.point.isShown);
}

TEST_F(CalculateTest, ARefusalOfTheChartIsTheMessage) {
  const Result result = Calculate(Site(SolveFor::Efficiency, "5", "0.875"), &curves_);
  EXPECT_EQ(result.Shown(), (Message{MessageId::VolumeAboveAxis, "7"}));  // V = 12
}

TEST_F(CalculateTest, ANumberBeyondSinglePrecisionIsAMessage) {
  Project project = Site(SolveFor::Efficiency, "1.25", "0.875");
  project.Text(Field::BasinArea) = "1e39";
  EXPECT_EQ(Calculate(project, &curves_).Shown(), Message{MessageId::NumberTooLarge});
  project.Text(Field::BasinArea) = "1e-30";
  project.Text(Field::RunoffCoefficient) = "1e-30";  // the product is 0 in single precision
  EXPECT_EQ(Calculate(project, &curves_).Shown(), Message{MessageId::DivisionByZero});
}

TEST_F(CalculateTest, WithoutCurvesAQuestionIsRefused) {
  EXPECT_EQ(Calculate(Site(SolveFor::Efficiency, "1.25", "0.875"), nullptr).Shown(),
            Message{MessageId::PointOffCurves});
  EXPECT_EQ(Calculate(Site(SolveFor::ReuseRate, "70", "1.25"), nullptr).Shown(),
            (Message{MessageId::NoCurve, "70"}));
}

TEST_F(CalculateTest, TheSamePointAndCurvesGiveTheSameResultAgain) {
  const Project once = Calculated(Site(SolveFor::StorageVolume, "63.7", "0.9"));
  const Project twice = Calculated(once);
  EXPECT_EQ(once.texts, twice.texts);
  EXPECT_EQ(once.point.V, twice.point.V);
}

// --- The interactive mode ---

TEST_F(CalculateTest, AnInteractivePointGivesTheSiteValues) {
  Project project = Site(SolveFor::Interactive);
  ASSERT_TRUE(PlaceUsingRV(project.point, &curves_, 0.125, 3));
  const Project found = Calculated(project);
  EXPECT_EQ(found.Text(Field::R), "0.125");
  EXPECT_EQ(found.Text(Field::V), "3");
  EXPECT_EQ(found.Text(Field::SolveFor1), "0.875");
  EXPECT_EQ(found.Text(Field::SolveFor2), found.Text(Field::E));
  EXPECT_EQ(found.Text(Field::SolveFor3), "1.25");
}

TEST_F(CalculateTest, APointOutsideTheCurvesKeepsItsPlaceAndHasAMessage) {
  Project project = Site(SolveFor::Interactive);
  EXPECT_FALSE(PlaceUsingRV(project.point, &curves_, 0.39, 0.5));
  const Result result = Calculate(project, &curves_);
  EXPECT_EQ(result.Shown(), Message{MessageId::PointOffCurves});
  EXPECT_TRUE(result.point.isShown);
  EXPECT_EQ(WithResult(project, result).Text(Field::E), "");
}

TEST_F(CalculateTest, FollowingAPointWithoutASiteLacksData) {
  Project project;
  ASSERT_TRUE(PlaceUsingRV(project.point, &curves_, 0.125, 3));
  const Result result = FollowPoint(project);
  EXPECT_EQ(result.messages, (std::vector<Message>{{MessageId::MissingData}}));
  EXPECT_EQ(WithResult(project, result).Text(Field::V), "3");
  EXPECT_EQ(WithResult(project, result).Text(Field::SolveFor3), "");
}

TEST_F(CalculateTest, AHiddenPointRepeatsItsMessageForEachOfItsNumbers) {
  Project project = Site(SolveFor::Interactive);
  project.Text(Field::EquivalentImperviousArea) = "5";
  EXPECT_FALSE(PlaceUsingRV(project.point, &curves_, 0.5, 3));
  const Message message{MessageId::RateAboveAxis, "0.4"};
  EXPECT_EQ(FollowPoint(project).messages, (std::vector<Message>{message, message, message}));
}

// --- Around it ---

TEST_F(CalculateTest, DataAreDefinedWhenEveryGivenFieldIsANumber) {
  const Project project = Site(SolveFor::Efficiency, "1", "2");
  EXPECT_TRUE(IsDataDefined(project, true));
  EXPECT_FALSE(IsDataDefined(project, false));
  for (const Field field : {Field::BasinArea, Field::RunoffCoefficient, Field::IrrigationArea,
                            Field::SolveFor1, Field::SolveFor2}) {
    Project lacking = project;
    lacking.Text(field) = " ";
    EXPECT_FALSE(IsDataDefined(lacking, true)) << DesignOf(field).control;
  }
  EXPECT_FALSE(IsDataDefined(Site(SolveFor::None, "1", "2"), true));
  EXPECT_TRUE(IsDataDefined(Site(SolveFor::Interactive), true));
}

TEST_F(CalculateTest, WithoutAResultThereIsAReason) {
  EXPECT_EQ(WhyNoResult(Site(SolveFor::None), ""), "No solve-for mode is chosen.");
  EXPECT_EQ(WhyNoResult(Site(SolveFor::Interactive), ""), "No point is placed on the chart.");
  EXPECT_EQ(WhyNoResult(Site(SolveFor::Efficiency), "Out"), "Out");
  EXPECT_EQ(WhyNoResult(Site(SolveFor::Efficiency), ""), "");
}

// 0.875 in/week on 5 ac: 0.875 / 12 / 7 x 217800 x 7.480519 = 16971.4 gallons a day.
TEST_F(CalculateTest, AHostGetsGallonsPercentAndAcreFeet) {
  const Project found = Calculated(Site(SolveFor::Efficiency, "1.25", "0.875"));
  EXPECT_NEAR(ParseNumber(ReuseRateResult(found)), 16971.4, 0.1);
  EXPECT_EQ(EfficiencyResult(found), found.Text(Field::E));
  EXPECT_EQ(StorageVolumeResult(found), "1.25");
  EXPECT_EQ(ReuseRateResult(Site(SolveFor::None)), "");
}

}  // namespace
}  // namespace orvik
