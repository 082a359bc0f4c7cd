#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "base/Paths.h"
#include "engine/ClimateStations.h"
#include "support/CurveFileText.h"
#include "support/KavRun.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

using test::KavRun;
using test::LogarithmicCurves;
using testing::HasSubstr;
using testing::StartsWith;

class Kav : public testing::Test {
 protected:
  KavRun Run(const std::vector<std::string>& arguments) {
    return test::RunKavWith(arguments, folder_.Path());
  }
  void WriteTampa(const std::string& text) { folder_.Write("KAV Data/Tampa.crv", text); }

  test::TempFolder folder_;
};

TEST_F(Kav, SolvesForEachQuantity) {
  WriteTampa(LogarithmicCurves().Text());
  const KavRun R = Run({"solve", "--station", "Tampa", "--efficiency", "60", "--volume", "3"});
  EXPECT_EQ(R.exitCode, 0);
  EXPECT_EQ(R.err, "");
  EXPECT_THAT(R.out, HasSubstr("Reuse rate R       0.1200694   in/day on the EIA   <- found\n"));
  const KavRun E =
      Run({"solve", "--station", "Tampa", "--rate", "0.1200694", "--volume", "3", "--json"});
  EXPECT_NEAR(nlohmann::json::parse(E.out)["E"].get<double>(), 60, 1e-4);
  const KavRun V =
      Run({"solve", "--station", "Tampa", "--rate", "0.1200694", "--efficiency", "60", "--json"});
  EXPECT_NEAR(nlohmann::json::parse(V.out)["V"].get<double>(), 3,
              6e-4);  // 1E-5 in R is 6E-4 in V here
  EXPECT_EQ(E.exitCode + V.exitCode, 0);
}

// The three questions of the README: each answer, asked back, gives what was asked.
TEST(KavWithTheShippedCurves, AgreesWithItselfOnGainesville) {
  const auto solve = [](const std::vector<std::string>& given, const char* wanted) {
    std::vector<std::string> arguments = {"solve", "--station", "Gainesville", "--json"};
    arguments.insert(arguments.end(), given.begin(), given.end());
    const KavRun run = test::RunKavWith(arguments, ORVIK_DATA_DIR "/");
    EXPECT_EQ(run.exitCode, 0) << run.err;
    return nlohmann::json::parse(run.out)[wanted].dump();
  };
  const std::string E = solve({"--rate", "0.15", "--volume", "3"}, "E");
  EXPECT_NEAR(std::stod(solve({"--efficiency", E, "--volume", "3"}, "R")), 0.15, 1e-5);
  const std::string V = solve({"--efficiency", "80", "--rate", "0.15"}, "V");
  EXPECT_NEAR(std::stod(solve({"--rate", "0.15", "--volume", V}, "E")), 80, 0.01);
  const std::string R = solve({"--efficiency", "80", "--volume", "3"}, "R");
  EXPECT_NEAR(std::stod(solve({"--rate", R, "--volume", "3"}, "E")), 80, 0.01);
}

TEST_F(Kav, NamesACommandThatDoesNotExist) {
  EXPECT_EQ(Run({"foo"}).err, "There is no command \"foo\". kav --help lists them.\n");
}

TEST_F(Kav, AFullDiskOnStandardOutputIsAFailure) {
  std::ostringstream out;
  std::ostringstream err;
  out.setstate(std::ios::badbit);
  Console console{out, err, false, folder_.Path()};
  EXPECT_EQ(RunKavAndFlush({"stations"}, console), 3);
  EXPECT_EQ(err.str(), "Standard output cannot be written.\n");
}

TEST_F(Kav, PrintsOneJsonObject) {
  WriteTampa(LogarithmicCurves().Text());
  const KavRun run =
      Run({"solve", "--station", "tampa", "--efficiency", "60", "--volume", "3", "--json"});
  EXPECT_EQ(run.exitCode, 0);
  const auto object = nlohmann::json::parse(run.out);
  EXPECT_EQ(object["station"], "Tampa");
  EXPECT_EQ(object["R"], 0.1200694);
  EXPECT_EQ(object["V"], 3);
  EXPECT_EQ(object["E"], 60);
  EXPECT_EQ(object["message"], "");
  EXPECT_EQ(object["helpTopic"], 0);
}

TEST_F(Kav, WithoutAResultTheMessageIsPrintedAndTheExitCodeIsOne) {
  WriteTampa(LogarithmicCurves().Text());
  const KavRun run = Run({"solve", "--station", "Tampa", "--efficiency", "99.9", "--rate", "0.1"});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, "Design efficiency is greater than 90%.\n");
}

TEST_F(Kav, ARefusalInJsonHasMessageAndTopicToo) {
  WriteTampa(LogarithmicCurves().Text());
  const KavRun run =
      Run({"--json", "solve", "--station", "Tampa", "--efficiency", "10", "--rate", "0.1"});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.err, "Design efficiency is less than 50%.\n");
  const auto object = nlohmann::json::parse(run.out);
  EXPECT_TRUE(object["V"].is_null());
  EXPECT_EQ(object["message"], "Design efficiency is less than 50%.");
  EXPECT_EQ(object["helpTopic"], 1);
}

TEST_F(Kav, NegativeNumbersReachTheRangeCheck) {
  WriteTampa(LogarithmicCurves().Text());
  const KavRun run = Run({"solve", "--station", "Tampa", "--rate", "-1", "--volume", "3"});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.err, "Normalized reuse rate is less than 0\n");
}

TEST_F(Kav, AFolderWithoutDataExitsThree) {
  const KavRun run = Run({"solve", "--station", "Tampa", "--rate", "0.1", "--volume", "3"});
  EXPECT_EQ(run.exitCode, 3);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.err, StartsWith("Can't find data path:\n" + folder_.Path() + "KAV Data" +
                                  kPathSeparator + "\nhint: No design curves are loaded: "));
}

TEST_F(Kav, AStationWithoutAFileExitsThree) {
  WriteTampa(LogarithmicCurves().Text());
  const KavRun run = Run({"solve", "--station", "Miami", "--rate", "0.1", "--volume", "3"});
  EXPECT_EQ(run.exitCode, 3);
  EXPECT_THAT(run.err,
              StartsWith("Can't find data for Miami\nhint: No design curves are loaded: "));
}

TEST_F(Kav, ADamagedFileExitsThree) {
  WriteTampa("damaged");
  const KavRun run = Run({"solve", "--station", "Tampa", "--rate", "0.1", "--volume", "3"});
  EXPECT_EQ(run.exitCode, 3);
  EXPECT_THAT(run.err, StartsWith("The curve file of Tampa is damaged or cannot be read.\nhint: "));
}

TEST_F(Kav, AFileWithoutCarriageReturnsHasAMessageOfItsOwn) {
  std::string text = LogarithmicCurves().Text();
  std::erase(text, '\r');
  WriteTampa(text);
  const KavRun run = Run({"solve", "--station", "Tampa", "--rate", "0.1", "--volume", "3"});
  EXPECT_EQ(run.exitCode, 3);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.err,
              StartsWith("The curve file of Tampa cannot be read: its lines must end with CR LF.\n"
                         "hint: The lines of "));
}

TEST_F(Kav, CurvesWithoutLabelsAreUsedAndSaid) {
  const std::string text = LogarithmicCurves().Text();
  WriteTampa(text.substr(0, text.find("2\r\nE=50%")));
  const KavRun run =
      Run({"solve", "--station", "Tampa", "--efficiency", "60", "--volume", "3", "--json"});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_THAT(run.err, HasSubstr("hint: \"" + (folder_ / "KAV Data")));
  EXPECT_THAT(run.err, HasSubstr("Tampa.crv\" ends right after its last curve"));
  EXPECT_EQ(nlohmann::json::parse(run.out)["hints"].size(), 1U);
  EXPECT_EQ(nlohmann::json::parse(run.out)["R"], 0.1200694);
}

TEST_F(Kav, CurvesThatMeetExitThree) {
  auto file = LogarithmicCurves();
  file.curves[1].E = "50";
  WriteTampa(file.Text());
  const KavRun run = Run({"solve", "--station", "Tampa", "--rate", "0.12", "--volume", "3"});
  EXPECT_EQ(run.exitCode, 3);
  EXPECT_EQ(run.err,
            "The design curves of Tampa cannot be used: two of them meet or leave the chart.\n");
}

TEST_F(Kav, TakesTheDataFolderFromItsOption) {
  folder_.Write("elsewhere/KAV Data/Tampa.crv", LogarithmicCurves().Text());
  for (const std::string& data : {folder_ / "elsewhere", folder_ / "elsewhere" + kPathSeparator}) {
    const KavRun run =
        Run({"solve", "--data", data, "--station", "Tampa", "--efficiency", "60", "--volume", "3"});
    EXPECT_EQ(run.exitCode, 0) << data << run.err;
  }
}

TEST_F(Kav, WrongUsageExitsTwoWithASentence) {
  WriteTampa(LogarithmicCurves().Text());
  const std::vector<std::vector<std::string>> cases = {
      {},
      {"nonsense"},
      {"solve"},
      {"solve", "--station", "Tampa"},
      {"solve", "--station", "Tampa", "--rate", "0.1"},
      {"solve", "--station", "Tampa", "--rate", "0.1", "--volume", "3", "--efficiency", "60"},
      {"solve", "--station", "Atlantis", "--rate", "0.1", "--volume", "3"},
      {"solve", "--station", "Tampa", "--rate", "0,1", "--volume", "3"},
      {"solve", "--station", "Tampa", "--rate", "60abc", "--volume", "3"},
      {"solve", "--station", "Tampa", "--rate", "", "--volume", "3", "--efficiency", "60"},
      {"solve", "--station", "Tampa", "--rate", "0.1", "--volume", "3", "--colour", "red"},
  };
  for (const auto& arguments : cases) {
    const KavRun run = Run(arguments);
    EXPECT_EQ(run.exitCode, 2) << testing::PrintToString(arguments);
    EXPECT_EQ(run.out, "") << testing::PrintToString(arguments);
    EXPECT_NE(run.err, "") << testing::PrintToString(arguments);
  }
}

TEST_F(Kav, HelpGoesToStandardOutputWithAnExample) {
  for (const char* command : {"solve", "stations"}) {
    const KavRun run = Run({command, "--help"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, HasSubstr(std::string("kav ") + command));
    EXPECT_THAT(run.out, testing::EndsWith("\n"));
  }
}

TEST_F(Kav, VersionIsTheBuilds) {
  EXPECT_EQ(Run({"--version"}).out, "kav " ORVIK_VERSION "\n");
}

TEST_F(Kav, StationsListsAllAndWhichHaveCurves) {
  WriteTampa(LogarithmicCurves().Text());
  const KavRun text = Run({"stations"});
  EXPECT_EQ(text.exitCode, 0);
  EXPECT_THAT(text.out, HasSubstr(" 23  Tampa            yes\n"));
  EXPECT_THAT(text.out, HasSubstr("  1  Apalachicola     no\n"));
  EXPECT_EQ(std::ranges::count(text.out, '\n'), 1 + NumRainfallStations());
  const auto object = nlohmann::json::parse(Run({"stations", "--json"}).out);
  ASSERT_EQ(object["stations"].size(), static_cast<std::size_t>(NumRainfallStations()));
  EXPECT_EQ(object["stations"][22]["station"], "Tampa");
  EXPECT_EQ(object["stations"][22]["curves"], true);
  EXPECT_EQ(object["stations"][0]["curves"], false);
}

}  // namespace
}  // namespace orvik
