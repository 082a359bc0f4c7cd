#include <gtest/gtest.h>

#include <functional>

#include "engine/CurveFile.h"
#include "engine/CurveSet.h"
#include "stream/clsIOStream.h"
#include "support/CurveFileText.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

using test::CurveFileText;
using test::LogarithmicCurves;
using test::TempFolder;

CurveReading ReadingOf(std::string_view text, CurveSet& set) {
  const TempFolder folder;
  clsIOStream stream;
  stream.OpenFile(folder.Write("s.crv", text), enumIOStreamMode::AsciiFileInput);
  return ReadCurveFile(stream, set);
}

bool Read(std::string_view text, CurveSet& set) {
  return ReadingOf(text, set).IsUsable();
}

CurveFault FaultOf(std::string_view text) {
  CurveSet set;
  return ReadingOf(text, set).fault;
}

TEST(ReadCurveFile, ReadsEveryValueInItsPlace) {
  CurveSet set;
  ASSERT_TRUE(Read(LogarithmicCurves().Text(), set));
  EXPECT_EQ(set.title, "Test station");
  EXPECT_EQ(set.VMin, 0);
  EXPECT_EQ(set.VMax, 7);
  EXPECT_EQ(set.VInterval, 1);
  EXPECT_EQ(set.RMin, 0);
  EXPECT_EQ(set.RMax, 0.4);
  EXPECT_EQ(set.RInterval, 0.1);
  ASSERT_EQ(set.curves.size(), 3U);
  EXPECT_EQ(set.curves[1].E, 70.0F);
  EXPECT_EQ(set.curves[1].VStart, 1.5);
  EXPECT_EQ(set.curves[1].VEnd, 7);
  EXPECT_EQ(set.curves[1].A, 0.20);
  EXPECT_EQ(set.curves[1].B, -0.05);
  EXPECT_EQ(set.curves[1].NumPoints, 100);
  ASSERT_EQ(set.labels.size(), 2U);
  EXPECT_EQ(set.labels[0].Text, "E=50%");
  EXPECT_EQ(set.labels[0].V, 2.5);
  EXPECT_EQ(set.labels[0].R, 0.12);
  EXPECT_EQ(set.labels[1].R, 0.2);  // the blank behind its comma does not matter
}

TEST(ReadCurveFile, ReadsEAndTheCountsAsFields) {
  CurveFileText file = LogarithmicCurves();
  std::string text = file.Text();
  text.replace(text.find("\r\n3\r\n50\r\n"), 9,
               "\r\n3 50,");  // count, first E and the next line on one line
  CurveSet set;
  ASSERT_TRUE(Read(text, set));
  EXPECT_EQ(set.curves.size(), 3U);
  EXPECT_EQ(set.curves[0].E, 50.0F);
  EXPECT_EQ(set.curves[0].VStart, 1);
}

TEST(ReadCurveFile, ReadsLettersAsZero) {
  CurveFileText file = LogarithmicCurves();
  file.header[2] = "inches";
  file.curves[0].C = "none";
  CurveSet set;
  ASSERT_TRUE(Read(file.Text(), set));
  EXPECT_EQ(set.VInterval, 0);
  EXPECT_EQ(set.curves[0].C, 0);
}

TEST(ReadCurveFile, TakesTheNumericPrefixOfALine) {
  CurveFileText file = LogarithmicCurves();
  file.header[1] = "7 inches";
  CurveSet set;
  ASSERT_TRUE(Read(file.Text(), set));
  EXPECT_EQ(set.VMax, 7);
}

TEST(ReadCurveFile, HasNoLabelsWhereTheCountIsZeroOrLess) {
  for (const char* count : {"0", "-3"}) {
    CurveFileText file = LogarithmicCurves();
    file.labels.clear();
    std::string text = file.Text();
    text.replace(text.rfind("0\r\n"), 1, count);
    CurveSet set;
    ASSERT_TRUE(Read(text, set)) << count;
    EXPECT_TRUE(set.labels.empty()) << count;
  }
}

struct Spoiled {
  const char* what;
  std::function<void(CurveFileText&)> spoil;
};

TEST(ReadCurveFile, RefusesASetThatCannotBeUsed) {
  const Spoiled cases[] = {
      {"no curves", [](CurveFileText& f) { f.curves.clear(); }},
      {"infinite V maximum", [](CurveFileText& f) { f.header[1] = "1e999"; }},
      {"V maximum not above minimum", [](CurveFileText& f) { f.header[1] = "0"; }},
      {"R maximum not above minimum", [](CurveFileText& f) { f.header[4] = "-1"; }},
      {"limits infinitely far apart",
       [](CurveFileText& f) {
         f.header[3] = "-1e308";
         f.header[4] = "1e308";
       }},
      {"infinite coefficient", [](CurveFileText& f) { f.curves[1].D = "1e999"; }},
      {"samples beyond a double",
       [](CurveFileText& f) { f.curves[2].C = f.curves[2].D = "1e308"; }},
      {"E beyond single precision", [](CurveFileText& f) { f.curves[0].E = "1e39"; }},
      {"VStart of zero", [](CurveFileText& f) { f.curves[0].VStart = "0"; }},
      {"VStart below zero", [](CurveFileText& f) { f.curves[0].VStart = "-1"; }},
      {"VStart of letters", [](CurveFileText& f) { f.curves[0].VStart = "x"; }},
      {"VEnd of zero", [](CurveFileText& f) { f.curves[0].VEnd = "0"; }},
      {"label position without a comma", [](CurveFileText& f) { f.labels[1] = "2.5 0.12"; }},
      {"label position with letters", [](CurveFileText& f) { f.labels[3] = "3,high"; }},
      {"label position missing at the end", [](CurveFileText& f) { f.labels[3] = ""; }},
  };
  for (const auto& [what, spoil] : cases) {
    CurveFileText file = LogarithmicCurves();
    spoil(file);
    CurveSet set;
    EXPECT_FALSE(Read(file.Text(), set)) << what;
  }
}

TEST(ReadCurveFile, RefusesACountThatPromisesMoreThanTheFileHolds) {
  std::string text = LogarithmicCurves().Text();
  text.replace(text.find("\r\n3\r\n"), 5, "\r\n30000\r\n");
  CurveSet set;
  EXPECT_FALSE(Read(text, set));
}

TEST(ReadCurveFile, NeverTakesAFileThatWasCutShort) {
  // Cut anywhere before its last number, the file must not load with zeros or cut digits for what
  // is missing.
  CurveFileText file = LogarithmicCurves();
  file.labels = {"E=50%", "2.5,0.12"};
  const std::string text = file.Text();
  const std::size_t lastNumber = text.find("0.12");
  const std::size_t endOfCurves = text.find("\r\n1\r\nE=50%");
  ASSERT_NE(endOfCurves, std::string::npos);
  for (std::size_t length = 0; length <= lastNumber; ++length) {
    // Cut at the end of the last curve's last line, whether within its CR LF or after it, only the
    // labels are missing.
    if (length == endOfCurves + 1 || length == endOfCurves + 2) continue;
    CurveSet set;
    EXPECT_FALSE(Read(text.substr(0, length), set)) << length;
  }
}

TEST(ReadCurveFile, AFileThatEndsRightAfterItsLastCurveHasNoLabels) {
  const std::string text = LogarithmicCurves().Text();
  const std::size_t labels = text.find("2\r\nE=50%");
  ASSERT_NE(labels, std::string::npos);
  CurveSet set;
  const CurveReading reading = ReadingOf(text.substr(0, labels), set);
  EXPECT_TRUE(reading.IsUsable());
  EXPECT_FALSE(reading.hasLabelCount);
  EXPECT_EQ(set.curves.size(), 3U);
  EXPECT_TRUE(set.labels.empty());
  EXPECT_TRUE(ReadingOf(text, set).hasLabelCount);
}

TEST(ReadCurveFile, NamesWhereAFileEnds) {
  const std::string text = LogarithmicCurves().Text();
  const std::size_t count = text.find("\r\n3\r\n");
  const std::size_t labels = text.find("2\r\nE=50%");
  EXPECT_EQ(FaultOf(""), CurveFault::EndsBeforeCurves);
  EXPECT_EQ(FaultOf(text.substr(0, count)), CurveFault::EndsBeforeCurves);
  EXPECT_EQ(FaultOf(text.substr(0, count + 5)), CurveFault::EndsWithinCurves);
  EXPECT_EQ(FaultOf(text.substr(0, labels - 2)), CurveFault::EndsWithinCurves)
      << "the last coefficient may have lost digits";
  EXPECT_EQ(FaultOf(text.substr(0, labels + 1)), CurveFault::EndsWithinLabels);
}

TEST(ReadCurveFile, NamesWhatCannotBeUsed) {
  CurveFileText file = LogarithmicCurves();
  file.header[1] = "0";
  EXPECT_EQ(FaultOf(file.Text()), CurveFault::AxisWithoutExtent);
  file = LogarithmicCurves();
  file.curves.clear();
  EXPECT_EQ(FaultOf(file.Text()), CurveFault::NoCurves);
  file = LogarithmicCurves();
  file.curves[0].VStart = "0";
  EXPECT_EQ(FaultOf(file.Text()), CurveFault::UnusableNumber);
  file.curves[0].VStart = "1";
  file.labels[1] = "2.5 0.12";
  EXPECT_EQ(FaultOf(file.Text()), CurveFault::LabelWithoutPlace);
}

TEST(ReadCurveFile, SaysWhetherTheLastLineHasItsEnd) {
  const std::string text = LogarithmicCurves().Text();
  CurveSet set;
  EXPECT_FALSE(ReadingOf(text, set).endsWithinLine);
  EXPECT_TRUE(ReadingOf(text.substr(0, text.size() - 2), set).endsWithinLine);
}

TEST(ReadCurveFile, RefusesNoise) {
  std::string noise;
  unsigned state = 12345;
  for (int i = 0; i < 100000; ++i) {
    state = state * 1664525U + 1013904223U;
    noise += static_cast<char>(state >> 24);
  }
  CurveSet set;
  EXPECT_FALSE(Read(noise, set));
  EXPECT_FALSE(Read("", set));
  EXPECT_FALSE(Read(std::string(1000, '\0'), set));
}

TEST(ReadCurveFile, RefusesAFileWithLoneLineFeeds) {
  std::string text = LogarithmicCurves().Text();
  std::erase(text, '\r');
  CurveSet set;
  EXPECT_FALSE(Read(text, set));
}

}  // namespace
}  // namespace orvik
