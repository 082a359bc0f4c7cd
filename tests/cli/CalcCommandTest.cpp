// kav calc on good, incomplete and unreadable projects.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "support/CurveFileText.h"
#include "support/KavRun.h"
#include "support/ProjectText.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

using test::KavRun;
using test::kDescriptionLine;
using test::kProjectNameLine;
using test::kStationLine;
using test::kStationNameLine;
using test::kTailLine;
using test::ProjectLines;
using test::ProjectText;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

class Calc : public testing::Test {
 protected:
  Calc() { folder_.Write("KAV Data/Tampa.crv", test::LogarithmicCurves().Text()); }

  KavRun Calculate(const std::string& project, bool json = false) {
    const std::string path = folder_.Write("pond é.kav", project);
    return Run({"calc", path}, json);
  }
  KavRun Run(std::vector<std::string> arguments, bool json = false) {
    if (json) arguments.emplace_back("--json");
    return test::RunKavWith(arguments, folder_.Path());
  }

  test::TempFolder folder_;
};

TEST_F(Calc, ShowsEveryFieldAsATable) {
  const KavRun run = Calculate(ProjectText());
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.err, "");
  EXPECT_THAT(run.out, HasSubstr("Project name                 Pond\n"));
  EXPECT_THAT(run.out, HasSubstr("Equivalent impervious area   5           ac\n"));
  EXPECT_THAT(run.out, HasSubstr("Solve for                    Storage Volume\n"));
  EXPECT_THAT(run.out, HasSubstr("Efficiency (%)               60\n"));
  EXPECT_THAT(run.out, HasSubstr("Normalized reuse rate R      0.125       in/day on the EIA\n"));
}

TEST_F(Calc, PrintsOneJsonObjectWithTheNamesOfTheForm) {
  const KavRun run = Calculate(ProjectText(), true);
  EXPECT_EQ(run.exitCode, 0);
  const auto fields = nlohmann::json::parse(run.out);
  for (const FieldDesign& field : Fields()) {
    EXPECT_TRUE(fields.contains(field.control)) << field.control;
  }
  EXPECT_EQ(fields["txtProjectName"], "Pond");
  EXPECT_EQ(fields["cmbSolveFor"], "Storage Volume");
  EXPECT_EQ(fields["cmbClimateStation"], "Tampa");
  EXPECT_EQ(fields["txtSolveFor(1)"], "60");
  EXPECT_EQ(fields["txtErrMsg"], "");
}

TEST_F(Calc, AMessageOnTheBarIsPrintedAsAnErrorAndExitsOne) {
  auto lines = ProjectLines();
  lines[kTailLine] = "99.9";
  const KavRun run = Calculate(ProjectText(lines), true);
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.err, "Design efficiency is greater than 90%.\n");
  const auto fields = nlohmann::json::parse(run.out);
  EXPECT_EQ(fields["txtErrMsg"], "Design efficiency is greater than 90%.");
  EXPECT_EQ(fields["helpTopic"], 1);
  EXPECT_EQ(fields["txtE"], "99.9");
}

TEST_F(Calc, AProjectWithoutAStationExitsOne) {
  auto lines = ProjectLines();
  lines[kStationLine] = "-1";
  lines[kStationNameLine] = "";
  const KavRun run = Calculate(ProjectText(lines));
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.err, "The climate station has not been selected.\n");
}

TEST_F(Calc, AFileThatCannotBeReadExitsThreeWithTheCommandsOwnSentences) {
  const KavRun missing = Run({"calc", folder_ / "missing.kav"});
  EXPECT_EQ(missing.exitCode, 3);
  EXPECT_EQ(missing.out, "");
  EXPECT_EQ(missing.err, "Error reading data file.\nhint: There is no file \"" +
                             (folder_ / "missing.kav") + "\".\n");
  const KavRun foreign = Calculate("Dear Sir,\r\n");
  EXPECT_EQ(foreign.exitCode, 3);
  EXPECT_THAT(foreign.err,
              AllOf(StartsWith("The data file does not appear to be a valid ORVIK 3.3 KAV file.\n"
                               "Error reading data file.\nhint: The first line of "),
                    HasSubstr("but is \"Dear Sir,\".\n")));
  const KavRun newer = Calculate("KAV3.3.99\r\n" + ProjectText().substr(11));
  EXPECT_THAT(newer.err, StartsWith("Invalid file version.\nError reading data file.\nhint: "));
  auto lines = ProjectLines();
  lines.pop_back();
  EXPECT_EQ(Calculate(ProjectText(lines)).exitCode, 3);
  EXPECT_EQ(Run({"calc", folder_.Path()}).exitCode, 3) << "a folder";
}

TEST_F(Calc, CurvesThatCannotBeReadExitThree) {
  auto lines = ProjectLines();
  lines[kStationLine] = "9";
  lines[kStationNameLine] = "Key West";
  const KavRun missing = Calculate(ProjectText(lines));
  EXPECT_EQ(missing.exitCode, 3);
  EXPECT_EQ(missing.out, "");
  EXPECT_THAT(missing.err,
              AllOf(StartsWith("Can't find data for Key West\nhint: "), HasSubstr("Key West.crv")));
  folder_.Write("KAV Data/Key West.crv", "cut off");
  const KavRun damaged = Calculate(ProjectText(lines));
  EXPECT_EQ(damaged.exitCode, 3);
  EXPECT_THAT(damaged.err,
              AllOf(StartsWith("The curve file of Key West is damaged or cannot be read.\nhint: "),
                    HasSubstr("Key West.crv\" ends before its first curve")));
}

// Calculated as ever; standard error and JSON have the hint.
TEST_F(Calc, AHintStandsBesideTheResult) {
  auto lines = ProjectLines();
  lines[kStationNameLine] = "My place";
  const KavRun run = Calculate(ProjectText(lines), true);
  EXPECT_EQ(run.exitCode, 0);
  const std::string hint =
      "Station number 22 is Tampa, but the project names it \"My place\". The number counts: the "
      "curves are those of Tampa. Choose the station again if that is wrong.";
  EXPECT_EQ(run.err, "hint: " + hint + "\n");
  const auto fields = nlohmann::json::parse(run.out);
  EXPECT_THAT(fields["hints"], testing::ElementsAre(hint));
  EXPECT_EQ(fields["cmbClimateStation"], "Tampa");
  EXPECT_EQ(fields["txtSolveFor(3)"],
            nlohmann::json::parse(Calculate(ProjectText(), true).out)["txtSolveFor(3)"]);
}

TEST_F(Calc, ACurveFileWithUnixLineEndsIsReportedAsSuch) {
  std::string curves = test::LogarithmicCurves().Text();
  std::erase(curves, '\r');
  folder_.Write("KAV Data/Tampa.crv", curves);
  const KavRun run = Calculate(ProjectText());
  EXPECT_EQ(run.exitCode, 3);
  EXPECT_THAT(run.err, HasSubstr("The curve file of Tampa cannot be read: "));
}

TEST_F(Calc, ControlCharactersDoNotReachTheTerminal) {
  auto lines = ProjectLines();
  lines[kProjectNameLine] = "Pond\x1B[31m\a\tred";
  const KavRun run = Calculate(ProjectText(lines));
  EXPECT_THAT(run.out, HasSubstr("Project name                 Pond [31m  red\n"));
}

TEST_F(Calc, AnEmptyFieldLeavesNoBlanksAtTheEndOfItsLine) {
  auto lines = ProjectLines();
  lines[kDescriptionLine] = "";
  EXPECT_THAT(Calculate(ProjectText(lines)).out, HasSubstr("\nDescription\n"));
}

TEST_F(Calc, WithoutAProjectTheUsageIsWrong) {
  EXPECT_EQ(Run({"calc"}).exitCode, 2);
}

}  // namespace
}  // namespace orvik
