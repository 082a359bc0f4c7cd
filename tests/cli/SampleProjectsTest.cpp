// The sample projects are what our own save command writes, and calculate as by hand. Runs in the
// build folder, where the data lies. ORVIK_WRITE_SAMPLES=1 writes the samples anew.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "base/NumberText.h"
#include "base/Paths.h"
#include "support/AnsweringDesktop.h"
#include "support/KavRun.h"
#include "support/SampleProjects.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

using test::SampleProject;

const std::string kDataFolder = std::string(".") + kPathSeparator;

class SampleFiles : public testing::TestWithParam<SampleProject> {};

TEST_P(SampleFiles, AreWhatTheSaveCommandWrites) {
  test::UserToolkit toolkit;
  test::AnsweringDesktop desktop;
  Form1 window(toolkit, desktop, kDataFolder);
  GetParam().type(toolkit, window);
  const test::TempFolder folder;
  const bool writesAnew = std::getenv("ORVIK_WRITE_SAMPLES") != nullptr;
  const std::string path = writesAnew ? ORVIK_SAMPLES_DIR + GetParam().file : folder / "sample.kav";
  desktop.AnswerFile(path);
  toolkit.ClickMenu("mnuFile_SaveAs");
  EXPECT_EQ(toolkit.Text("txtErrMsg"), "");
  EXPECT_EQ(test::ReadBytes(path), test::ReadBytes(kDataFolder + "samples/" + GetParam().file));
}

INSTANTIATE_TEST_SUITE_P(All, SampleFiles, testing::ValuesIn(test::SampleProjects()),
                         [](const auto& sample) {
                           std::string name = sample.param.file;
                           std::erase_if(name, [](char c) { return c == '-' || c == '.'; });
                           return name;
                         });

// --- The curves as one would read them off the file by hand ---

// E, VStart, VEnd, A, B, C, D of each curve, one to a line behind the title, the six numbers of the
// header and the count of the curves.
std::vector<std::array<double, 7>> CurveLines(const std::string& station) {
  std::ifstream file(kDataFolder + "KAV Data/" + station + ".crv");
  std::string line;
  for (int i = 0; i < 7; ++i) std::getline(file, line);
  std::getline(file, line);
  std::vector<std::array<double, 7>> curves(std::stoul(line));
  for (auto& curve : curves) {
    for (double& value : curve) {
      std::getline(file, line);
      value = std::stod(line);
    }
  }
  return curves;
}

// in/day: ((D L + C) L + B) L + A with L = ln V
double RateOn(const std::array<double, 7>& curve, double V) {
  const double L = std::log(V);
  return ((curve[6] * L + curve[5]) * L + curve[4]) * L + curve[3];
}

// in/day at V on the curve that lies `share` of the way between two stored ones. The rate is linear
// in the coefficients, and so in the share.
double RateBetween(const std::string& station, double lowE, double highE, double share, double V) {
  double low = 0;
  double high = 0;
  for (const auto& curve : CurveLines(station)) {
    if (curve[0] == lowE) low = RateOn(curve, V);
    if (curve[0] == highE) high = RateOn(curve, V);
  }
  return low + share * (high - low);
}

// % at (V, R): between the two neighbours whose rates enclose R.
double EfficiencyAt(const std::string& station, double V, double R) {
  const auto curves = CurveLines(station);
  std::size_t i = 1;
  while (i + 1 < curves.size() && RateOn(curves[i], V) < R) ++i;
  const double low = RateOn(curves[i - 1], V);
  const double high = RateOn(curves[i], V);
  return curves[i - 1][0] + (curves[i][0] - curves[i - 1][0]) * (R - low) / (high - low);
}

class SampleFigures : public testing::Test {
 protected:
  void Calculate(const char* sample) {
    const auto run =
        test::RunKavWith({"calc", std::string("samples/") + sample, "--json"}, kDataFolder);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    fields_ = nlohmann::json::parse(run.out);
  }
  double Number(const char* field) {
    const std::string text = fields_.at(field).get<std::string>();
    EXPECT_TRUE(IsNumericText(text)) << field << " = " << text;
    return ParseNumber(text);
  }

  nlohmann::json fields_;
};

// Tampa. EIA = 0.62 x 18.4 ac = 11.408 ac. V = 2.6 ac-ft x 12 in/ft / 11.408 ac = 2.734923 in.
// R = 7.5 ac x 1.6 in/week / 11.408 ac / 7 days/week = 0.1502705 in/day; E lies between the curves
// that pass below and above that rate.
TEST_F(SampleFigures, OfTheEfficiencySample) {
  Calculate("efficiency.kav");
  EXPECT_EQ(fields_["cmbSolveFor"], "Efficiency");
  EXPECT_NEAR(Number("txtEquivalentImperviousArea"), 11.408, 1e-5);
  EXPECT_NEAR(Number("txtV"), 2.734923, 2e-6);
  EXPECT_NEAR(Number("txtR"), 0.1502705, 2e-7);
  EXPECT_NEAR(Number("txtSolveFor(3)"), EfficiencyAt("Tampa", 2.734923, 0.1502705), 0.005);
  // 1.6 in/week / 12 in/ft / 7 days/week x 7.5 ac x 43560 sq ft/ac x 7.480519 gal/cu ft
  EXPECT_NEAR(Number("ReuseRate"), 46550.2, 0.1);
}

// Orlando. EIA = 0.5 x 25 ac = 12.5 ac. R = 10 ac x 1.2 in/week / 12.5 ac / 7 = 0.1371429 in/day.
// The 78 % curve lies 0.6 of the way from 75 to 80 % and has this rate at the V that is found.
// Storage = V x 12.5 ac / 12 in/ft.
TEST_F(SampleFigures, OfTheStorageVolumeSample) {
  Calculate("storage-volume.kav");
  EXPECT_EQ(fields_["cmbSolveFor"], "Storage Volume");
  EXPECT_NEAR(Number("txtEquivalentImperviousArea"), 12.5, 1e-5);
  EXPECT_NEAR(Number("txtR"), 0.1371429, 2e-7);
  EXPECT_NEAR(RateBetween("Orlando", 75, 80, 0.6, Number("txtV")), 0.1371429, 1.1e-5);
  EXPECT_NEAR(Number("txtSolveFor(3)"), Number("txtV") * 12.5 / 12, 1e-5);
}

// Gainesville. EIA = 0.7 x 12.5 ac = 8.75 ac. V = 2.5 ac-ft x 12 in/ft / 8.75 ac = 3.428571 in. The
// 82 % curve lies 0.4 of the way from 80 to 85 %.
// Site: R x 8.75 ac / 6 ac x 7 days/week.
TEST_F(SampleFigures, OfTheReuseRateSample) {
  Calculate("reuse-rate.kav");
  const double R = RateBetween("Gainesville", 80, 85, 0.4, 3.428571);
  EXPECT_EQ(fields_["cmbSolveFor"], "Reuse Rate");
  EXPECT_NEAR(Number("txtEquivalentImperviousArea"), 8.75, 1e-5);
  EXPECT_NEAR(Number("txtV"), 3.428571, 1e-6);
  EXPECT_NEAR(Number("txtR"), R, 2e-7);
  EXPECT_NEAR(Number("txtSolveFor(3)"), R * 8.75 / 6 * 7, 3e-6);
}

// West Palm Beach, the point at R = 0.2 in/day and V = 3 in. EIA = 0.55 x 30 ac = 16.5 ac.
// Site: 0.2 x 16.5 / 14 x 7 = 1.65 in/week; 3 in / 12 in/ft x 16.5 ac = 4.125 ac-ft.
TEST_F(SampleFigures, OfTheInteractiveSample) {
  Calculate("interactive.kav");
  EXPECT_EQ(fields_["cmbSolveFor"], "Interactive");
  EXPECT_EQ(fields_["txtR"], "0.2");
  EXPECT_EQ(fields_["txtV"], "3");
  EXPECT_NEAR(Number("txtE"), EfficiencyAt("West Palm Beach", 3, 0.2), 0.005);
  EXPECT_NEAR(Number("txtSolveFor(1)"), 1.65, 1e-6);
  EXPECT_EQ(fields_["txtSolveFor(2)"], fields_["txtE"]);
  EXPECT_NEAR(Number("txtSolveFor(3)"), 4.125, 1e-6);
}

}  // namespace
}  // namespace orvik
