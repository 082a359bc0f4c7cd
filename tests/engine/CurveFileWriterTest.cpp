#include <gtest/gtest.h>

#include <limits>

#include "base/RuntimeErrors.h"
#include "engine/CurveFile.h"
#include "engine/CurveFileWriter.h"
#include "engine/CurveSet.h"
#include "stream/clsIOStream.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

CurveSet SampleSet() {
  CurveSet set;
  set.title = "Sampleville - computed, \"quoted\", 2001-2010";
  set.VMax = 7;
  set.VInterval = 1;
  set.RMax = 0.4;
  set.RInterval = 0.05;
  EfficiencyCurve curve;
  curve.E = 50;
  curve.VStart = 0.65;
  curve.VEnd = 7;
  curve.A = 0.101223;
  curve.B = -0.059849;
  curve.C = 0.039198;
  curve.D = -0.00883;
  set.curves.push_back(curve);
  curve.E = 52.5F;
  curve.A = 2;
  set.curves.push_back(curve);
  set.labels.push_back({"E=50%", 2.3125, 0.0838});
  return set;
}

TEST(CurveFileText, HasOneValueOnEachLine) {
  CurveSet set = SampleSet();
  set.curves.pop_back();
  EXPECT_EQ(orvik::CurveFileText(set),
            "Sampleville - computed, \"quoted\", 2001-2010\r\n"
            "0\r\n7\r\n1\r\n0\r\n0.4\r\n0.05\r\n"
            "1\r\n"
            "50\r\n0.65\r\n7\r\n0.101223\r\n-0.059849\r\n0.039198\r\n-0.008830\r\n"
            "1\r\n"
            "E=50%\r\n2.3125,0.0838\r\n");
}

TEST(CurveFileText, ReadsBackToTheSameNumbers) {
  const CurveSet set = SampleSet();
  const test::TempFolder folder;
  clsIOStream stream;
  stream.OpenFile(folder.Write("a.crv", orvik::CurveFileText(set)),
                  enumIOStreamMode::AsciiFileInput);
  CurveSet read;
  ASSERT_TRUE(ReadCurveFile(stream, read).IsUsable());
  EXPECT_EQ(read.title, set.title);
  EXPECT_EQ(read.VMin, set.VMin);
  EXPECT_EQ(read.VMax, set.VMax);
  EXPECT_EQ(read.VInterval, set.VInterval);
  EXPECT_EQ(read.RMin, set.RMin);
  EXPECT_EQ(read.RMax, set.RMax);
  EXPECT_EQ(read.RInterval, set.RInterval);
  ASSERT_EQ(read.curves.size(), set.curves.size());
  for (std::size_t i = 0; i < set.curves.size(); ++i) {
    EXPECT_EQ(read.curves[i].E, set.curves[i].E);
    EXPECT_EQ(read.curves[i].VStart, set.curves[i].VStart);
    EXPECT_EQ(read.curves[i].VEnd, set.curves[i].VEnd);
    EXPECT_EQ(read.curves[i].A, set.curves[i].A);
    EXPECT_EQ(read.curves[i].B, set.curves[i].B);
    EXPECT_EQ(read.curves[i].C, set.curves[i].C);
    EXPECT_EQ(read.curves[i].D, set.curves[i].D);
  }
  ASSERT_EQ(read.labels.size(), 1U);
  EXPECT_EQ(read.labels[0].Text, "E=50%");
  EXPECT_EQ(read.labels[0].V, 2.3125);
  EXPECT_EQ(read.labels[0].R, 0.0838);
}

TEST(RoundCoefficient, IsWhatTheTextReadsBackAs) {
  EXPECT_EQ(RoundCoefficient(0.12345649), 0.123456);
  EXPECT_EQ(RoundCoefficient(-0.0000007), -0.000001);
}

TEST(CurveFileText, NeverWritesANumberThatIsNotFinite) {
  CurveSet set = SampleSet();
  set.curves[0].B = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THROW(orvik::CurveFileText(set), OverflowError);
}

}  // namespace
}  // namespace orvik
