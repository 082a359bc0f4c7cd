#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "base/Paths.h"
#include "curves/CurveMaker.h"
#include "engine/ClimateStations.h"
#include "support/KavRun.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

const std::string kSample = std::string(ORVIK_DATA_DIR) + "samples/synthetic-rain.csv";
const std::string kTampa = std::string(ORVIK_DATA_DIR) + "KAV Data/Tampa.crv";

using test::KavRun;

KavRun RunCommand(const std::vector<std::string>& arguments) {
  return test::RunKavWith(arguments, ORVIK_DATA_DIR);
}

std::vector<std::string> MakeArguments(const std::string& rain, const std::string& file) {
  return {"curves", "make", "--rain", rain, "--unit", "in", "--name", "Sampleville", "-o", file};
}

// Ten years of the same depth every fourth day.
std::string RainEveryFourthDay(const std::string& depth) {
  std::string text = "date,precipitation_in\n";
  int count = 0;
  for (int year = 2001; year <= 2010; ++year) {
    for (int month = 1; month <= 12; ++month) {
      for (int day = 1; day <= (month == 2 ? 28 : 30); ++day) {
        text += std::to_string(month) + "/" + std::to_string(day) + "/" + std::to_string(year) +
                "," + (count++ % 4 == 0 ? depth : "0") + "\n";
      }
      const bool has31 = month == 1 || month == 3 || month == 5 || month == 7 || month == 8 ||
                         month == 10 || month == 12;
      if (has31) text += std::to_string(month) + "/31/" + std::to_string(year) + ",0\n";
    }
  }
  return text;
}

TEST(CurvesMake, WritesAFileThatSolvesAndPrintsItsErrors) {
  const test::TempFolder folder;
  const KavRun made = RunCommand(MakeArguments(kSample, folder / "made.crv"));
  EXPECT_EQ(made.exitCode, 0) << made.err;
  EXPECT_THAT(made.out, HasSubstr("Sampleville - computed by ORVIK from daily rainfall "
                                  "synthetic-rain.csv, 2001-2010, 10 usable years"));
  EXPECT_THAT(made.out, HasSubstr("largest error   mean error"));
  EXPECT_THAT(made.out, HasSubstr("\n95 "));
  EXPECT_THAT(made.err, HasSubstr("The record runs from 2001-01-01 to 2010-12-31"));

  folder.Write("KAV Data/Tampa.crv", test::ReadBytes(folder / "made.crv"));
  const KavRun solved = RunCommand(
      {"--data", folder.Path(), "solve", "--station", "Tampa", "--rate", "0.2", "--volume", "3"});
  EXPECT_EQ(solved.exitCode, 0) << solved.err;
  EXPECT_THAT(solved.out, HasSubstr("Sampleville"));
}

TEST(CurvesMake, PrintsOneJsonObject) {
  const test::TempFolder folder;
  auto arguments = MakeArguments(kSample, folder / "a.crv");
  arguments.insert(arguments.end(), {"--source", "gauge 7", "--json"});
  const KavRun made = RunCommand(arguments);
  ASSERT_EQ(made.exitCode, 0) << made.err;
  const auto object = nlohmann::json::parse(made.out);
  EXPECT_EQ(object["usableYears"], 10);
  EXPECT_EQ(object["curves"].size(), 10U);
  EXPECT_EQ(object["curves"][9]["E"], 95);
  EXPECT_LE(object["curves"][9]["maxError"], 1.0);
  EXPECT_THAT(object["title"].get<std::string>(), HasSubstr("from gauge 7, 2001"));
}

TEST(CurvesMake, RequiresTheUnit) {
  const test::TempFolder folder;
  const KavRun none =
      RunCommand({"curves", "make", "--rain", kSample, "--name", "x", "-o", folder / "a"});
  EXPECT_EQ(none.exitCode, 2);
  EXPECT_THAT(none.err, HasSubstr("--unit"));
  auto arguments = MakeArguments(kSample, folder / "a.crv");
  arguments[5] = "inches";
  const KavRun wrong = RunCommand(arguments);
  EXPECT_EQ(wrong.exitCode, 2);
  EXPECT_THAT(wrong.err, HasSubstr("the units are in, hundredths-in, mm, tenths-mm"));
  EXPECT_FALSE(FileExists(folder / "a.crv"));
}

TEST(CurvesMake, RefusesAUnitThatGivesAnImpossibleClimate) {
  const test::TempFolder folder;
  auto arguments = MakeArguments(kSample, folder / "a.crv");
  arguments[5] = "tenths-mm";
  const KavRun result = RunCommand(arguments);
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.err, HasSubstr("--unit in (58.7 inches a year)"));
  EXPECT_THAT(result.out, IsEmpty());
  EXPECT_FALSE(FileExists(folder / "a.crv"));
}

TEST(CurvesMake, SaysWhyAFileCannotBeReadOrWritten) {
  const test::TempFolder folder;
  const KavRun missing = RunCommand(MakeArguments(folder / "none.csv", folder / "a.crv"));
  EXPECT_EQ(missing.exitCode, 3);
  EXPECT_THAT(missing.err, HasSubstr("none.csv cannot be read"));
  const KavRun broken = RunCommand(
      MakeArguments(folder.Write("b.csv", "date,prcp\nyesterday,1\n"), folder / "a.crv"));
  EXPECT_EQ(broken.exitCode, 3);
  EXPECT_THAT(broken.err, HasSubstr("Line 2: \"yesterday\" is not a date."));
  const KavRun unwritable = RunCommand(MakeArguments(kSample, folder / "no/such/a.crv"));
  EXPECT_EQ(unwritable.exitCode, 3);
  EXPECT_THAT(unwritable.err, HasSubstr("cannot be written"));
  EXPECT_THAT(unwritable.out, IsEmpty());
}

TEST(CurvesMake, RefusesOptionsThatMakeNoSense) {
  const test::TempFolder folder;
  struct Case {
    std::vector<std::string> options;
    const char* message;
  };
  const Case cases[] = {
      {{"--hold-off", "-1"}, "is not a number of days"},
      {{"--hold-off", "1.5"}, "is not a number of days"},
      {{"--hold-off", "1e300"}, "is not a number of days from 0 to 365"},
      {{"--abstraction", "-.1"}, "is below zero"},
      {{"--abstraction", "1e300"}, "is more than 10 inches"},
      {{"--abstraction", "1e999"}, "is not a number"},
      {{"--v-interval", "1e-300"},
       "--v-interval must divide the axis into whole steps, 100 at most"},
      {{"--r-interval", "0.001"},
       "--r-interval must divide the axis into whole steps, 100 at most"},
      {{"--v-max", "1e300"}, "--v-max must be 2 to 100 inches"},
      {{"--r-max", "1e308"}, "--r-max must be 0.05 to 10"},
      {{"--r-max", "0"}, "is not above zero"},
      {{"--v-max", "wide"}, "is not a number"},
      {{"--v-max", "1"}, "--v-max must be 2 to 100 inches"},
      {{"--r-max", "20"}, "--r-max must be 0.05 to 10"},
      {{"--v-interval", "3"}, "--v-interval must divide the axis into whole steps"},
      {{"--r-max", "0.777"}, "--r-interval must divide the axis into whole steps"},
      {{"--name", "two\nlines"}, "must each be one line of text"},
  };
  for (const auto& [options, message] : cases) {
    auto arguments = MakeArguments(kSample, folder / "a.crv");
    if (options[0] == "--name") arguments.erase(arguments.begin() + 6, arguments.begin() + 8);
    arguments.insert(arguments.end(), options.begin(), options.end());
    const KavRun result = RunCommand(arguments);
    EXPECT_EQ(result.exitCode, 2) << options[0];
    EXPECT_THAT(result.err, HasSubstr(message)) << options[0];
  }
}

TEST(CurvesMake, NeverWritesOverTheRecord) {
  const test::TempFolder folder;
  const std::string text = test::ReadBytes(kSample);
  const std::string rain = folder.Write("mine.csv", text);
  for (const std::string& output : {rain, folder / "./mine.csv"}) {
    const KavRun result = RunCommand(MakeArguments(rain, output));
    EXPECT_EQ(result.exitCode, 2) << output;
    EXPECT_EQ(result.err, "--rain and --output are the same file; the record would be lost.\n");
    EXPECT_EQ(test::ReadBytes(rain), text);
  }
}

TEST(CurvesMake, RequiresANameAndAFileBeforeAnyWork) {
  const test::TempFolder folder;
  for (const std::size_t place : {7U, 9U}) {
    for (const char* blank : {"", " "}) {
      // The record does not exist: reading it would be exit 3.
      auto arguments = MakeArguments(folder / "none.csv", folder / "a.crv");
      arguments[place] = blank;
      const KavRun result = RunCommand(arguments);
      EXPECT_EQ(result.exitCode, 2) << arguments[place - 1];
      EXPECT_THAT(result.err, HasSubstr("must not be empty")) << arguments[place - 1];
    }
  }
}

TEST(CurvesMake, SaysThatTheOutputIsAFolderBeforeAnyWork) {
  const test::TempFolder folder;
  const KavRun result = RunCommand(MakeArguments(folder / "none.csv", folder.Path()));
  EXPECT_EQ(result.exitCode, 3);
  EXPECT_THAT(result.err, HasSubstr("cannot be written: it is a folder."));
}

TEST(CurvesMake, NamesHoldOffAndAbstractionInTheTitleAndInJson) {
  const test::TempFolder folder;
  auto arguments = MakeArguments(kSample, folder / "a.crv");
  arguments.insert(arguments.end(),
                   {"--hold-off", "2", "--abstraction", "0.1", "--r-max", "0.8", "--json"});
  const KavRun made = RunCommand(arguments);
  ASSERT_EQ(made.exitCode, 0) << made.err;
  EXPECT_THAT(test::ReadBytes(folder / "a.crv"),
              HasSubstr(", 10 usable years, hold-off 2 days, abstraction 0.1 in\r\n"));
  const auto object = nlohmann::json::parse(made.out);
  EXPECT_EQ(object["holdOffDays"], 2);
  EXPECT_EQ(object["abstractionIn"], 0.1);
}

TEST(CurvesMake, PrintsTheWettestDayAndWarnsOfACodeForAMissingValue) {
  const test::TempFolder folder;
  std::string text = test::ReadBytes(kSample);
  for (const char* date : {"\n2003-05-05,", "\n2006-07-08,"}) {
    const auto place = text.find(date);
    ASSERT_NE(place, std::string::npos);
    const auto depth = place + std::string(date).size();
    text.replace(depth, text.find_first_of("\r\n", depth) - depth, "16");
  }
  const std::string rain = folder.Write("coded.csv", text);
  auto arguments = MakeArguments(rain, folder / "a.crv");
  arguments.insert(arguments.end(), {"--r-max", "0.8"});
  const KavRun made = RunCommand(arguments);
  EXPECT_THAT(made.err,
              HasSubstr("16.00 inches, occurs on 2 days, first on 2003-05-05. Is it a code"));
  EXPECT_EQ(made.exitCode, 0) << made.err;
  EXPECT_THAT(made.out, HasSubstr("wettest day 16.00 inches on 2003-05-05"));

  const KavRun plain = RunCommand(MakeArguments(kSample, folder / "b.crv"));
  EXPECT_THAT(plain.out, HasSubstr("inches a year, wettest day "));
  EXPECT_THAT(plain.err, testing::Not(HasSubstr("missing value")));
}

TEST(CurvesMake, ARainTooWetForTheAxesIsRefused) {
  const test::TempFolder folder;
  const KavRun result =
      RunCommand(MakeArguments(folder.Write("r.csv", RainEveryFourthDay("2")), folder / "a.crv"));
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.err, HasSubstr("No curve for E = "));
  EXPECT_THAT(result.err, HasSubstr("Choose a larger --r-max."));
  EXPECT_FALSE(FileExists(folder / "a.crv"));
}

TEST(CurvesMake, HelpStatesTheDefinition) {
  const KavRun help = RunCommand({"curves", "make", "--help"});
  EXPECT_EQ(help.exitCode, 0);
  EXPECT_THAT(help.out, HasSubstr("used / runoff over the record"));
  EXPECT_THAT(help.out, HasSubstr("Example:"));
}

TEST(CurvesMakeAll, WritesNothingUnlessAllStationsAreThere) {
  const test::TempFolder folder;
  folder.Write("rain/Apalachicola.csv", test::ReadBytes(kSample));
  const KavRun result =
      RunCommand({"curves", "make-all", "--rain-dir", folder / "rain", "-o", folder / "out"});
  EXPECT_EQ(result.exitCode, 3);
  EXPECT_THAT(result.err, HasSubstr("Belle Glade.csv cannot be read"));
  EXPECT_FALSE(FolderExists(folder / "out"));
}

TEST(CurvesMakeAll, TablesNameTheMethodAndTheGapsInTheRecords) {
  const test::TempFolder folder;
  const std::string rain = test::ReadBytes(kSample);
  const std::string tail = "2012-01-01,0\n2012-01-01,0.5\n2012-01-02,-1\n2012-01-05,\n";
  for (std::int16_t i = 1; i <= NumRainfallStations(); ++i) {
    folder.Write("rain/" + std::string(ClimateStationName(i)) + ".csv", rain + tail);
  }
  const KavRun result = RunCommand({"curves", "make-all", "--rain-dir", folder / "rain", "-o",
                                    folder / "out", "--hold-off", "1", "--r-max", "0.8", "--json"});
  ASSERT_EQ(result.exitCode, 0) << result.err;
  const std::string sources = test::ReadBytes(folder / "out/SOURCES.md");
  EXPECT_THAT(sources, HasSubstr("All curves: hold-off 1 day, abstraction 0 in.\n"));
  // Left out 2011 and 2012; the row without a depth; two gaps, 2011 and January 3 and 4.
  EXPECT_THAT(sources, HasSubstr("| Tampa | 2 | 0 | 1 | 2 | 367 | 1 | 1 | 1 |\n"));
  EXPECT_THAT(test::ReadBytes(folder / "out/Tampa.crv"),
              HasSubstr(" usable years, hold-off 1 day\r\n"));
  const auto station = nlohmann::json::parse(result.out)["stations"][22];
  EXPECT_EQ(station["holdOffDays"], 1);
  EXPECT_EQ(station["abstractionIn"], 0);
  EXPECT_EQ(station["findings"]["gapDays"], 367);
  EXPECT_EQ(station["findings"]["duplicates"], 1);
  EXPECT_EQ(station["findings"]["negatives"], 1);
}

// Of the options that help, a refusal names those which the command has.
TEST(CurvesMakeAll, ARefusalNamesTheStationAndItsOwnOptions) {
  const test::TempFolder folder;
  const auto refusalOf = [&](const std::string& apalachicola) {
    folder.Write("rain/Apalachicola.csv", apalachicola);
    const KavRun result =
        RunCommand({"curves", "make-all", "--rain-dir", folder / "rain", "-o", folder / "out"});
    EXPECT_EQ(result.exitCode, 1);
    return result.err;
  };
  EXPECT_THAT(
      refusalOf(RainEveryFourthDay("2")),
      testing::MatchesRegex("Apalachicola: No curve for E = .* Choose a larger --r-max.*\n"));
  // 895 days of 20 inches in ten years.
  EXPECT_EQ(
      refusalOf(RainEveryFourthDay("20")),
      "Apalachicola: Read as \"in\", the mean annual rainfall is 1790 inches; 5 to 200 inches "
      "are expected.\n");
}

TEST(CurvesMakeAll, MakesTheShippedCurvesAgainByteForByte) {
  const test::TempFolder folder;
  const std::string data(ORVIK_DATA_DIR);
  const KavRun made = RunCommand(
      {"curves", "make-all", "--rain-dir", data + "Rain", "-o", folder.Path(), "--json"});
  ASSERT_EQ(made.exitCode, 0) << made.err;
  const auto stations = nlohmann::json::parse(made.out)["stations"];
  ASSERT_EQ(stations.size(), static_cast<std::size_t>(NumRainfallStations()));
  for (const auto& station : stations) {
    const auto name = station["station"].get<std::string>();
    const std::string file = name + ".crv";
    EXPECT_EQ(test::ReadBytes(folder / file), test::ReadBytes(data + "KAV Data/" + file)) << name;
    for (const auto& curve : station["curves"]) {
      EXPECT_LE(curve["maxError"], kMostError) << name;
      EXPECT_LE(curve["meanError"], kMostMeanError) << name;
    }
  }
  EXPECT_EQ(test::ReadBytes(folder / "SOURCES.md"), test::ReadBytes(data + "KAV Data/SOURCES.md"));
}

TEST(CurvesMakeAll, RequiresItsFolders) {
  EXPECT_EQ(RunCommand({"curves", "make-all", "--rain-dir", "x", "-o", ""}).exitCode, 2);
  EXPECT_EQ(RunCommand({"curves", "make-all", "--rain-dir", "", "-o", "x"}).exitCode, 2);
}

TEST(CurvesCheck, PassesAShippedFile) {
  const KavRun result = RunCommand({"curves", "check", kTampa});
  EXPECT_EQ(result.exitCode, 0) << result.err;
  EXPECT_THAT(result.out, HasSubstr("All checks passed."));
  EXPECT_THAT(result.err, IsEmpty());
}

TEST(CurvesCheck, WithRainfallShowsTheErrorsAndWhatTheRunoffForbids) {
  // A far wetter place than Tampa: its curves ask for less than its efficiencies need there.
  const test::TempFolder folder;
  const std::string wet = folder.Write("wet.csv", RainEveryFourthDay("2"));
  const KavRun result = RunCommand({"curves", "check", kTampa, "--rain", wet, "--unit", "in"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.out, HasSubstr("largest error"));
  EXPECT_THAT(result.err, HasSubstr("Curve 1 (E = 50%) asks for"));
}

// A curve that ends where it begins has no volumes to simulate at: an error of 0.00 would praise
// it.
TEST(CurvesCheck, ShowsNoErrorForACurveThatItDidNotJudge) {
  std::string text = test::ReadBytes(kTampa);
  const auto end = text.find("\r\n0.65\r\n7\r\n");  // of the curve for 50%
  ASSERT_NE(end, std::string::npos);
  text.replace(end, 11, "\r\n0.65\r\n0.65\r\n");
  const test::TempFolder folder;
  const std::vector<std::string> arguments{
      "curves", "check", folder.Write("a.crv", text), "--rain", kSample, "--unit", "in", "--json"};
  const KavRun json = RunCommand(arguments);
  EXPECT_EQ(json.exitCode, 1);
  const auto curves = nlohmann::json::parse(json.out)["curves"];
  for (const char* error : {"maxError", "meanError"}) {
    EXPECT_TRUE(curves[0].contains(error) && curves[0][error].is_null()) << error;
    EXPECT_GT(curves[1][error], 0) << error;
  }
  const KavRun shown = RunCommand({arguments.begin(), arguments.end() - 1});
  EXPECT_THAT(
      shown.out,
      HasSubstr(
          "\n50        0.65     0.65        0.1480      0.1480               -            -\n"));
  EXPECT_THAT(shown.out, testing::Not(HasSubstr("0.00")));
}

TEST(CurvesCheck, NamesTheFaultsOfAFile) {
  std::string text = test::ReadBytes(kTampa);
  const auto E = text.find("\r\n55\r\n");
  ASSERT_NE(E, std::string::npos);
  text.replace(E, 6, "\r\n45\r\n");
  const test::TempFolder folder;
  const KavRun result = RunCommand({"curves", "check", folder.Write("a.crv", text), "--json"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.err, HasSubstr("Curve 2 (E = 45%) does not have a higher efficiency"));
  EXPECT_EQ(nlohmann::json::parse(result.out)["faults"].size(), 1U);
}

TEST(CurvesCheck, AFileThatCannotBeReadExitsThree) {
  const test::TempFolder folder;
  EXPECT_EQ(RunCommand({"curves", "check", folder / "none.crv"}).exitCode, 3);
  const std::string half = test::ReadBytes(kTampa).substr(0, 300);
  const KavRun result = RunCommand({"curves", "check", folder.Write("half.crv", half)});
  EXPECT_EQ(result.exitCode, 3);
  EXPECT_THAT(result.err, HasSubstr("is damaged"));
  EXPECT_THAT(result.err, HasSubstr("\nhint: No design curves are loaded: \"" + folder.Path() +
                                    "half.crv\" ends within its curves."));
}

TEST(CurvesCheck, SaysThatLinesMustEndWithCrLf) {
  std::string text = test::ReadBytes(kTampa);
  std::erase(text, '\r');
  const test::TempFolder folder;
  const std::string path = folder.Write("lf.crv", text);
  const KavRun result = RunCommand({"curves", "check", path});
  EXPECT_EQ(result.exitCode, 3);
  EXPECT_THAT(result.err, testing::StartsWith("The curve file " + path +
                                              " cannot be read: its lines must end with CR LF.\n"
                                              "hint: The lines of "));
}

TEST(CurvesCheck, NumbersOfAnAxisThatHaveNoRoomAreAFault) {
  std::string text = test::ReadBytes(kTampa);
  const auto interval = text.find("\r\n7\r\n1\r\n");
  ASSERT_NE(interval, std::string::npos);
  text.replace(interval, 8, "\r\n7\r\n1e-300\r\n");
  const test::TempFolder folder;
  const KavRun result = RunCommand({"curves", "check", folder.Write("a.crv", text)});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.err, HasSubstr("The interval of the V axis does not divide its range into "
                                    "whole steps, 100 at most."));
}

TEST(Curves, HelpShowsTheirOwnExamples) {
  const KavRun help = RunCommand({"curves", "--help"});
  EXPECT_EQ(help.exitCode, 0);
  EXPECT_THAT(help.out, HasSubstr("kav curves make --rain"));
  EXPECT_THAT(help.out, testing::Not(HasSubstr("kav solve")));
}

TEST(Curves, RequireASubcommand) {
  EXPECT_EQ(RunCommand({"curves"}).exitCode, 2);
  EXPECT_EQ(RunCommand({"curves", "draw"}).exitCode, 2);
}

}  // namespace
}  // namespace orvik
