// Two of R, V and E in, the third out. The curves are R = A - 0.05 ln V with A = 0.15, 0.20, 0.25
// for E = 50, 70, 90 from V = 1, 1.5 and 2 to 7 inches, so that E = 50 + 400 (R + 0.05 ln V - 0.15)
// everywhere between them.
#include <gtest/gtest.h>

#include <cmath>

#include "ChartFixture.h"
#include "base/NumberText.h"
#include "base/RuntimeErrors.h"

namespace orvik {
namespace {

using test::CurveFileText;
using test::LogarithmicCurves;

enum class Pair { RV, ER, EV };

class SetHotspot : public test::ChartFixture {
 protected:
  void SetUp() override { Load(LogarithmicCurves()); }

  bool Ask(Pair pair, const std::string& first, const std::string& second) {
    result_ = "unchanged";
    switch (pair) {
      case Pair::RV:
        return chart_.SetHotspotUsing_RV(first, second, result_);
      case Pair::ER:
        return chart_.SetHotspotUsing_ER(first, second, result_);
      default:
        return chart_.SetHotspotUsing_EV(first, second, result_);
    }
  }

  void ExpectAnswer(Pair pair, const std::string& first, const std::string& second, double expected,
                    double tolerance) {
    ASSERT_TRUE(Ask(pair, first, second)) << first << ", " << second << ": " << chart_.ErrMsg();
    EXPECT_NEAR(ParseNumber(result_), expected, tolerance) << first << ", " << second;
    EXPECT_EQ(chart_.HelpTopicIndex(), 0);
    EXPECT_TRUE(chart_.HotSpotVisibile());
  }

  std::string result_;
};

TEST_F(SetHotspot, FindsEFromRAndV) {
  for (const double V : {2.0, 3.0, 6.5}) {
    for (const double E : {50.5, 57.0, 69.0, 71.0, 89.5}) {
      const double R = 0.15 + (E - 50) / 400 - 0.05 * std::log(V);
      ExpectAnswer(Pair::RV, ConvertToString(R), ConvertToString(V), E, 1e-4);
    }
  }
}

TEST_F(SetHotspot, FindsRFromEAndV) {
  ExpectAnswer(Pair::EV, "50", "1", 0.15, 0);          // ln 1 = 0
  ExpectAnswer(Pair::EV, "60", "3", 0.1200694, 1e-7);  // 0.175 - 0.05 ln 3
  ExpectAnswer(Pair::EV, "90", "7", 0.1527045, 1e-7);  // 0.25 - 0.05 ln 7
}

TEST_F(SetHotspot, FindsVFromEAndR) {
  ExpectAnswer(Pair::ER, "60", "0.12", 3.004166,
               1e-3);  // exp((0.175 - 0.12) / 0.05); 1E-5 in R is 6E-4 in V here
  ExpectAnswer(Pair::ER, "70", "0.15", 2.718282, 6e-4);  // exp(1)
}

// The digits are those of the middle at which the halving of VStart...VEnd stops, worked out by a
// separate program: 1.25...7 after 11 and 12 middles, within 1E-5 in R. On the steep curve the
// first middle known within 5E-6 in V, the 22nd, comes before one that is within 1E-5 in R.
TEST_F(SetHotspot, TheSearchForVStopsAtItsTolerances) {
  ASSERT_TRUE(Ask(Pair::ER, "60", "0.12"));
  EXPECT_EQ(result_, "3.004761");
  ASSERT_TRUE(Ask(Pair::ER, "60", "0.11"));
  EXPECT_EQ(result_, "3.668762");
  CurveFileText file = LogarithmicCurves();
  file.header[4] = "100";
  file.curves[0] = {"50", "1", "7", "100", "-50", "0", "0"};
  Load(file);
  ASSERT_TRUE(Ask(Pair::ER, "50", "77"));
  EXPECT_EQ(result_, "1.584074");
}

TEST_F(SetHotspot, WritesTheResultInSinglePrecision) {
  ASSERT_TRUE(Ask(Pair::EV, "60", "3"));
  EXPECT_EQ(result_, "0.1200694");
  ASSERT_TRUE(Ask(Pair::RV, "0.12", "3"));
  // 50 + 400 (0.05 ln 3 - 0.03) = 59.9722458; the nearest single is 59.9722443.
  EXPECT_EQ(result_, "59.97224");
}

TEST_F(SetHotspot, AStoredEUsesItsCurveUnchanged) {
  ASSERT_TRUE(Ask(Pair::EV, "70", "2"));
  ASSERT_TRUE(chart_.Point().curve);
  EXPECT_EQ(chart_.Point().curve->A, 0.20);
  EXPECT_EQ(chart_.Point().curve->VStart, 1.5);
}

TEST_F(SetHotspot, APointOnACurveGivesTheCurvesE) {
  // At V = 2: 0.2 - 0.05 ln 2 = 0.16534264. Seven digits are closer than 1E-5.
  ASSERT_TRUE(Ask(Pair::RV, "0.1653426", "2"));
  EXPECT_EQ(result_, "70");
}

TEST_F(SetHotspot, ReadsANumericPrefixElseZero) {
  ASSERT_TRUE(Ask(Pair::EV, "60abc", "3 inches"));
  EXPECT_EQ(result_, "0.1200694");
  EXPECT_FALSE(Ask(Pair::EV, "abc", "3"));
  EXPECT_EQ(chart_.ErrMsg(), "Design efficiency is less than 50%.");
}

struct RangeCase {
  Pair pair;
  const char* first;
  const char* second;
  const char* message;
};

TEST_F(SetHotspot, ReportsEveryRangeInItsOrder) {
  CurveFileText file = LogarithmicCurves();
  file.header = {"0.5", "7", "1", ".05", "0.4", "0.1"};
  Load(file);
  const RangeCase cases[] = {
      {Pair::RV, "0.1", "0.4", "Normalized storage volume is less than 0.5"},
      {Pair::RV, "0.1", "7.001", "Normalized storage volume is greater than 7"},
      {Pair::RV, "0.04", "3", "Normalized reuse rate is less than 0.05"},
      {Pair::RV, "0.41", "3", "Normalized reuse rate is greater than 0.4"},
      {Pair::RV, "9", "9", "Normalized storage volume is greater than 7"},  // V before R
      {Pair::ER, "49.9", "0.1", "Design efficiency is less than 50%."},
      {Pair::ER, "90.1", "0.1", "Design efficiency is greater than 90%."},
      {Pair::ER, "60", "0.04", "Normalized reuse rate is less than 0.05"},
      {Pair::ER, "60", "0.41", "Normalized reuse rate is greater than 0.4"},
      {Pair::ER, "99", "9", "Design efficiency is greater than 90%."},  // E before R
      {Pair::EV, "49.9", "3", "Design efficiency is less than 50%."},
      {Pair::EV, "90.1", "3", "Design efficiency is greater than 90%."},
      {Pair::EV, "60", "0.4", "Normalized storage volume is less than 0.5"},
      {Pair::EV, "60", "7.1", "Normalized storage volume is greater than 7"},
      {Pair::EV, "10", "9", "Design efficiency is less than 50%."},  // E before V
      {Pair::RV, "1e999", "3", "Normalized reuse rate is greater than 0.4"},
      {Pair::RV, "-1e999", "3", "Normalized reuse rate is less than 0.05"},
  };
  for (const auto& [pair, first, second, message] : cases) {
    std::string shown;
    ASSERT_TRUE(chart_.SetHotspotUsing_EV("60", "3", shown));  // visible before
    EXPECT_FALSE(Ask(pair, first, second)) << message;
    EXPECT_EQ(chart_.ErrMsg(), message);
    EXPECT_EQ(chart_.HelpTopicIndex(), 1) << message;
    EXPECT_FALSE(chart_.HotSpotVisibile()) << message;
    EXPECT_EQ(result_, "") << message;
  }
}

TEST_F(SetHotspot, AValueOnALimitPasses) {
  CurveFileText file = LogarithmicCurves();
  file.header = {"1", "7", "1", "0", "0.15", "0.1"};  // R's limits met by the first curve at V = 1
  Load(file);
  EXPECT_TRUE(Ask(Pair::EV, "50", "1"));
  EXPECT_TRUE(Ask(Pair::EV, "90", "7"));
  ExpectAnswer(Pair::ER, "50", "0.15", 1,
               2e-4);  // 1E-5 in R is 2E-4 in V at the start of the curve
}

TEST_F(SetHotspot, ReuseRateAtTheMaximumPasses) {
  CurveFileText file = LogarithmicCurves();
  file.header[4] = "0.16";
  Load(file);
  EXPECT_TRUE(Ask(Pair::RV, "0.16", "2"));
  EXPECT_FALSE(Ask(Pair::RV, "0.1600001", "2"));
  EXPECT_EQ(chart_.ErrMsg(), "Normalized reuse rate is greater than 0.16");
}

TEST_F(SetHotspot, AnEfficiencyIsComparedInSinglePrecision) {
  EXPECT_TRUE(Ask(Pair::EV, "90.0000001", "3"));
  EXPECT_TRUE(Ask(Pair::EV, "49.99999999", "3"));
}

TEST_F(SetHotspot, APointOutsideEveryRegionStaysShown) {
  for (const auto& [R, V] :
       {std::pair{"0.35", "3"}, std::pair{"0.01", "3"}, std::pair{"0.1", "0.5"}}) {
    EXPECT_FALSE(Ask(Pair::RV, R, V)) << R << ", " << V;
    EXPECT_EQ(chart_.ErrMsg(),
              "The specified point is out of range of the design efficiency curves.");
    EXPECT_EQ(chart_.HelpTopicIndex(), 1);
    EXPECT_TRUE(chart_.HotSpotVisibile());
    float value = 0;
    EXPECT_FALSE(chart_.GetE(value));
    EXPECT_TRUE(chart_.GetR(value));
    EXPECT_FALSE(chart_.Point().curve);
  }
}

TEST_F(SetHotspot, AVolumeOffTheCurveNamesTheEnd) {
  EXPECT_FALSE(Ask(Pair::EV, "80", "1.7"));  // the curve of 80 begins at 1.75
  EXPECT_EQ(chart_.ErrMsg(),
            "The normalized storage volume is less than the minimum value for the specified "
            "efficiency curve.");
  EXPECT_EQ(chart_.HelpTopicIndex(), 1);
  EXPECT_FALSE(chart_.HotSpotVisibile());
  EXPECT_TRUE(Ask(Pair::EV, "80", "1.75"));

  CurveFileText file = LogarithmicCurves();
  for (auto& curve : file.curves) curve.VEnd = "5";
  Load(file);
  EXPECT_FALSE(Ask(Pair::EV, "80", "5.1"));
  EXPECT_EQ(chart_.ErrMsg(),
            "The normalized storage volume is greater than the maximum value for the specified "
            "efficiency curve.");
}

TEST_F(SetHotspot, ARateOffTheCurveIsOutOfItsRange) {
  // The curve of 70 runs from 0.1797267 at V = 1.5 down to 0.1027045 at V = 7.
  for (const char* R : {"0.18", "0.1"}) {
    EXPECT_FALSE(Ask(Pair::ER, "70", R)) << R;
    EXPECT_EQ(chart_.ErrMsg(),
              "The normalized reuse rate is out of range of the specified efficiency curve.");
    EXPECT_EQ(chart_.HelpTopicIndex(), 1);
    EXPECT_FALSE(chart_.HotSpotVisibile());
  }
}

TEST_F(SetHotspot, WithoutCurvesTheEfficiencyTextIsRepeatedUnchanged) {
  chart_.Clear();
  EXPECT_FALSE(Ask(Pair::ER, " 60abc", "0.1"));
  EXPECT_EQ(chart_.ErrMsg(), "Unable to extract curve data for E= 60abc");
  EXPECT_EQ(chart_.HelpTopicIndex(), 0);
  EXPECT_FALSE(Ask(Pair::EV, "60", "3"));
  EXPECT_EQ(chart_.ErrMsg(), "Unable to extract curve data for E=60");
  EXPECT_FALSE(Ask(Pair::RV, "0.1", "3"));
  EXPECT_EQ(chart_.ErrMsg(),
            "The specified point is out of range of the design efficiency curves.");
}

TEST_F(SetHotspot, CurvesOutOfOrderGiveTheLimitsOfTheFirstAndTheLast) {
  CurveFileText file = LogarithmicCurves();
  file.curves[2].E = "40";  // 50, 70, 40
  Load(file);
  EXPECT_FALSE(Ask(Pair::EV, "45", "3"));
  EXPECT_EQ(chart_.ErrMsg(), "Design efficiency is less than 50%.");
  EXPECT_FALSE(Ask(Pair::EV, "60", "3"));
  EXPECT_EQ(chart_.ErrMsg(), "Design efficiency is greater than 40%.");
}

TEST_F(SetHotspot, ASearchWithoutEndIsARateOutOfTheCurvesRange) {
  // Around 3E299 inches neighbouring doubles lie farther apart than the tolerance on V, and this
  // curve's values jump over R = 1 by far more than the tolerance on R.
  CurveFileText file;
  file.header = {"0", "1e300", "1e299", "0", "2", "1"};
  const std::string A = ConvertToString(1e200 * std::log(3e299));
  file.curves = {{"50", "1e299", "1e300", A, "-1e200", "0", "0"}};
  Load(file);
  ASSERT_TRUE(chart_.IsLoaded());
  EXPECT_FALSE(Ask(Pair::ER, "50", "1"));
  EXPECT_EQ(chart_.ErrMsg(),
            "The normalized reuse rate is out of range of the specified efficiency curve.");
  EXPECT_EQ(chart_.HelpTopicIndex(), 1);
}

TEST_F(SetHotspot, VolumesOnTheLimitsPassTheRangeCheck) {
  CurveFileText file = LogarithmicCurves();
  file.header[0] = "1";
  Load(file);
  for (const char* V : {"1", "7"}) {
    Ask(Pair::RV, "0.39", V);  // above all curves, but within the limits
    EXPECT_EQ(chart_.ErrMsg(),
              "The specified point is out of range of the design efficiency curves.")
        << V;
  }
}

TEST_F(SetHotspot, ThePixelOfTheLowestCurveMayLieOutsideItsRegion) {
  // The region is a polygon of whole pixels whose lower edge is the lowest curve itself. At V = 7
  // the curve of 50 has R = 0.0527045, which EV finds; the pixel of that point is on the polygon's
  // last column, where no region is entered.
  ASSERT_TRUE(Ask(Pair::EV, "50", "7"));
  EXPECT_FALSE(Ask(Pair::RV, result_, "7"));
  EXPECT_EQ(chart_.ErrMsg(),
            "The specified point is out of range of the design efficiency curves.");
}

TEST_F(SetHotspot, ASingleCurveHasNoRegion) {
  CurveFileText file = LogarithmicCurves();
  file.curves.resize(1);
  Load(file);
  EXPECT_FALSE(Ask(Pair::RV, "0.15", "1"));  // a point on the curve itself
  EXPECT_EQ(chart_.ErrMsg(),
            "The specified point is out of range of the design efficiency curves.");
  EXPECT_TRUE(Ask(Pair::EV, "50", "1"));
}

TEST_F(SetHotspot, AFailureKeepsTheLastSolvedPointButNotAsAnAnswer) {
  ASSERT_TRUE(Ask(Pair::EV, "60", "3"));
  EXPECT_FALSE(Ask(Pair::EV, "99", "3"));
  EXPECT_EQ(chart_.Point().E, 60);
  EXPECT_EQ(chart_.Point().V, 3);
  float value = 1;
  EXPECT_FALSE(chart_.GetE(value));  // the hotspot is hidden
  EXPECT_EQ(value, 0);
}

TEST_F(SetHotspot, GivesTheHotspotsValues) {
  ASSERT_TRUE(Ask(Pair::EV, "60", "3"));
  float R = 0;
  float V = 0;
  float E = 0;
  EXPECT_TRUE(chart_.GetR(R));
  EXPECT_TRUE(chart_.GetV(V));
  EXPECT_TRUE(chart_.GetE(E));
  EXPECT_NEAR(R, 0.1200694, 1e-7);
  EXPECT_EQ(V, 3.0F);
  EXPECT_EQ(E, 60.0F);
  EXPECT_EQ(chart_.Point().pixel.x, 427);  // 108 + 744 x 3 / 7
  EXPECT_EQ(chart_.Point().pixel.y, 425);  // 592 - 558 x 0.1200694 / 0.4 = 424.5
}

TEST_F(SetHotspot, CurvesThatMeetAreANumericErrorNotAnAnswer) {
  CurveFileText file = LogarithmicCurves();
  file.curves[1].E = "50";  // two curves with the same E
  Load(file);
  EXPECT_THROW(Ask(Pair::RV, "0.12", "3"), DivisionByZeroError);
}

TEST_F(SetHotspot, CurvesThatLeaveSixteenBitsAreAnOverflow) {
  CurveFileText file = LogarithmicCurves();
  file.curves[1].A = "1e6";
  Load(file);
  EXPECT_THROW(Ask(Pair::RV, "0.12", "3"), OverflowError);
}

TEST_F(SetHotspot, OneArgumentMayBeGivenAsInputAndOutput) {
  std::string text = "60";
  EXPECT_TRUE(chart_.SetHotspotUsing_EV(text, "3", text));
  EXPECT_EQ(text, "0.1200694");
}

}  // namespace
}  // namespace orvik
