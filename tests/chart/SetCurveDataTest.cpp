#include <gtest/gtest.h>

#include "ChartFixture.h"
#include "base/Paths.h"
#include "base/RuntimeErrors.h"
#include "engine/ClimateStations.h"
#include "engine/CurveLoading.h"

namespace orvik {
namespace {

using test::CurveFileText;
using test::kTampa;
using test::LogarithmicCurves;

class SetCurveData : public test::ChartFixture {};

TEST_F(SetCurveData, NothingIsLoadedAtFirst) {
  EXPECT_FALSE(chart_.IsLoaded());
  EXPECT_EQ(chart_.StationIndex(), 0);
  EXPECT_EQ(chart_.StationName(), "");
  EXPECT_EQ(chart_.MinX(), std::nullopt);
  EXPECT_EQ(chart_.MaxX(), std::nullopt);
  EXPECT_EQ(chart_.MinY(), std::nullopt);
  EXPECT_EQ(chart_.MaxY(), std::nullopt);
}

TEST_F(SetCurveData, LoadsTheStationsFile) {
  Load(LogarithmicCurves());
  EXPECT_TRUE(chart_.IsLoaded());
  EXPECT_EQ(chart_.StationIndex(), kTampa);
  EXPECT_EQ(chart_.StationName(), "Tampa");
  EXPECT_EQ(chart_.Curves().title, "Test station");
  EXPECT_EQ(chart_.MinX(), 0);
  EXPECT_EQ(chart_.MaxX(), 7);
  EXPECT_EQ(chart_.MinY(), 0);
  EXPECT_EQ(chart_.MaxY(), 0.4);
  EXPECT_EQ(chart_.Layout().frame, (clsRectangle_Integer{108, 852, 34, 592}));
}

TEST_F(SetCurveData, SaysWhyNothingIsLoaded) {
  chart_.SetCurveData(kTampa);
  ASSERT_EQ(chart_.LoadHints().size(), 1U);
  EXPECT_EQ(chart_.LoadHints()[0].id, HintId::CurveFolderMissing);
  Load(LogarithmicCurves());
  EXPECT_TRUE(chart_.LoadHints().empty());
  folder_.Write("KAV Data/Tampa.crv", "cut off");
  const std::string path = folder_ / "KAV Data" + kPathSeparator + "Tampa.crv";
  chart_.SetCurveData(kTampa);
  EXPECT_EQ(chart_.LoadHints(), (std::vector<Hint>{{HintId::CurveFileEndsBeforeCurves, {path}}}));
  chart_.Clear();
  EXPECT_TRUE(chart_.LoadHints().empty());
}

TEST_F(SetCurveData, StationFourReadsTheFileOfItsOwnSpelling) {
  folder_.Write("KAV Data/Fort Meyers.crv", LogarithmicCurves().Text());
  chart_.SetCurveData(4);
  EXPECT_TRUE(chart_.IsLoaded());
}

TEST_F(SetCurveData, AMissingFolderKeepsIndexAndName) {
  EXPECT_EQ(chart_.SetCurveData(kTampa), LoadOutcome::FolderMissing);
  EXPECT_FALSE(chart_.IsLoaded());
  EXPECT_EQ(chart_.StationIndex(), kTampa);
  EXPECT_EQ(chart_.StationName(), "Tampa");
}

TEST_F(SetCurveData, AMissingFileForgetsTheStation) {
  folder_.Write("KAV Data/Miami.crv", LogarithmicCurves().Text());
  EXPECT_EQ(chart_.SetCurveData(kTampa), LoadOutcome::FileMissing);
  EXPECT_FALSE(chart_.IsLoaded());
  EXPECT_EQ(chart_.StationIndex(), 0);
  EXPECT_EQ(chart_.StationName(), "");
}

TEST_F(SetCurveData, ADamagedFileForgetsTheStation) {
  CurveFileText file = LogarithmicCurves();
  file.labels[1] = "no comma";
  Load(file);
  EXPECT_FALSE(chart_.IsLoaded());
  EXPECT_EQ(chart_.StationIndex(), 0);
  EXPECT_EQ(chart_.SetCurveData(kTampa), LoadOutcome::Unreadable);
}

TEST_F(SetCurveData, AFailedReloadLeavesNoCurvesInUse) {
  Load(LogarithmicCurves());
  ASSERT_TRUE(chart_.IsLoaded());
  chart_.SetCurveData(1);  // Apalachicola has no file here
  EXPECT_FALSE(chart_.IsLoaded());
  EXPECT_EQ(chart_.MaxX(), std::nullopt);
  std::string result = "old";
  EXPECT_FALSE(chart_.SetHotspotUsing_RV("0.12", "3", result));
  EXPECT_EQ(result, "");
}

TEST_F(SetCurveData, AHotspotFarOffTheNewAxesIsHidden) {
  Load(LogarithmicCurves());
  std::string result;
  ASSERT_TRUE(chart_.SetHotspotUsing_RV("0.12", "3", result));
  CurveFileText tiny = LogarithmicCurves();
  tiny.header = {"0", "0.001", "0.001",
                 "0", "0.4",   "0.1"};  // V = 3 would lie 3,000 frame widths to the right
  Load(tiny);
  EXPECT_TRUE(chart_.IsLoaded());
  EXPECT_FALSE(chart_.HotSpotVisibile());
}

TEST_F(SetCurveData, UsesDesignDataDirectoryAsGiven) {
  folder_.Write("own/Tampa.crv", LogarithmicCurves().Text());
  chart_.DesignDataDirectory(folder_.Path() + "own" + kPathSeparator);
  chart_.SetCurveData(kTampa);
  EXPECT_TRUE(chart_.IsLoaded());
}

TEST_F(SetCurveData, ZeroClears) {
  Load(LogarithmicCurves());
  std::string result;
  ASSERT_TRUE(chart_.SetHotspotUsing_EV("50", "3", result));
  chart_.SetCurveData(0);
  EXPECT_FALSE(chart_.IsLoaded());
  EXPECT_EQ(chart_.ErrMsg(), "");
  EXPECT_EQ(chart_.HelpTopicIndex(), 0);
  EXPECT_FALSE(chart_.HotSpotVisibile());
}

TEST_F(SetCurveData, RefusesAStationOutsideTheTable) {
  EXPECT_THROW(chart_.SetCurveData(static_cast<std::int16_t>(NumRainfallStations() + 1)),
               SubscriptError);
  EXPECT_THROW(chart_.SetCurveData(-1), SubscriptError);
}

TEST_F(SetCurveData, ResizeLaysOutAgainAndKeepsTheHotspotsPlace) {
  Load(LogarithmicCurves());
  std::string result;
  ASSERT_TRUE(chart_.SetHotspotUsing_RV("0.12", "3", result));
  EXPECT_EQ(chart_.Point().pixel.x, 427);  // 108 + 744 x 3 / 7 = 426.86
  chart_.Resize(340, 640);
  EXPECT_EQ(chart_.Layout().frame, (clsRectangle_Integer{20, 320, 205, 430}));
  EXPECT_EQ(chart_.Point().pixel.x, 149);  // 20 + 300 x 3 / 7 = 148.57
  EXPECT_EQ(chart_.Point().pixel.y, 362);  // 430 - 225 x 0.3 = 362.5: to the even neighbour
  float V = 0;
  ASSERT_TRUE(chart_.GetV(V));
  EXPECT_EQ(V, 3.0F);
}

}  // namespace
}  // namespace orvik
