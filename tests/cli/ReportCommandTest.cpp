// kav report, and its PDF read back by Poppler's tools.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>

#include "support/CurveFileText.h"
#include "support/KavRun.h"
#include "support/ProjectText.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

using namespace test;
using testing::AllOf;
using testing::ContainsRegex;
using testing::HasSubstr;

// What a program prints, blanks in a row as one.
std::string OutputOf(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::string output;
  std::array<char, 4096> buffer{};
  while (pipe && std::fgets(buffer.data(), buffer.size(), pipe.get())) output += buffer.data();
  const auto twoBlanks = [](char a, char b) { return a == ' ' && b == ' '; };
  output.erase(std::unique(output.begin(), output.end(), twoBlanks), output.end());
  return output;
}

class ReportCommand : public testing::Test {
 protected:
  ReportCommand() { folder_.Write("KAV Data/Tampa.crv", LogarithmicCurves().Text()); }

  KavRun Run(const std::string& project, std::vector<std::string> options = {}) {
    std::vector<std::string> arguments{"report", project, "-o", Pdf()};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return RunKavWith(arguments, folder_.Path());
  }

  // A project file of these lines.
  std::string Project(const std::vector<std::string>& lines = ProjectLines()) {
    return folder_.Write("project.kav", ProjectText(lines));
  }

  // Efficiency: S = 1.25 ac-ft and Q = 0.875 in/week; V = 3 and R = 0.125.
  static std::vector<std::string> Solved() { return ProjectLines("1", {"1.25", "0.875"}); }

  std::string Pdf() const { return folder_ / "report.pdf"; }
  std::string PdfText() const { return OutputOf("pdftotext -layout '" + Pdf() + "' -"); }
  std::string PdfInfo() const { return OutputOf("pdfinfo '" + Pdf() + "'"); }

  TempFolder folder_;
};

TEST_F(ReportCommand, WritesEveryCaptionAndValueInOrder) {
  const KavRun run = Run(Project(Solved()), {"--date", "2026-04-17 09:30:05"});
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_EQ(run.out + run.err, "");
  const std::string text = PdfText();
  std::size_t at = 0;
  for (const char* line : {"ORVIK 3.3 Page 1",
                           "Stormwater Harvesting Module 04-17-2026 09:30:05",
                           "Version 3.3.1",
                           "Project Data:",
                           "Project name Pond",
                           "Description Citrus",
                           "Project number 07-12",
                           "Engineer Engineer",
                           "Supervising engineer Chief",
                           "Date today",
                           "Basin Data:",
                           "Basin area 10 acres",
                           "Runoff coefficient 0.5",
                           "Equivalent impervious area 5 acres (EIA)",
                           "Irrigation area 5 acres",
                           "Solution Parameters:",
                           "Climate station Tampa",
                           "Source of the curves Test station",
                           "Solve for Efficiency",
                           "Storage Volume (ac-ft) 1.25",
                           "Reuse Rate (in/week) 0.875",
                           "Efficiency (%) 61.97",
                           "Result:",
                           "A pond that stores 1.25 acre-feet",
                           "This reuse rate is 16971.4",
                           "Page 2",
                           "Design Chart:",
                           "R: Normalized Reuse Rate (in./day on EIA) 0.125",
                           "E: Efficiency 61.97",
                           "V: Normalized Storage Volume (in. on EIA) 3",
                           "Tampa",
                           "V, Reuse Volume"}) {
    const std::size_t found = text.find(line, at);
    EXPECT_NE(found, std::string::npos) << line << "\n" << text;
    if (found != std::string::npos) at = found;
  }
}

TEST_F(ReportCommand, ThePdfHasItsTitlePagesPaperAndFonts) {
  Run(Project(Solved()));
  EXPECT_THAT(PdfInfo(), AllOf(HasSubstr("Title: Stormwater Harvesting Report - Pond"),
                               HasSubstr("Pages: 2"), HasSubstr("612 x 792 pts (letter)")));
  Run(Project(Solved()), {"--paper", "A4"});
  EXPECT_THAT(PdfInfo(), HasSubstr("(A4)"));
  // Every font is embedded ("emb yes").
  std::istringstream fonts(OutputOf("pdffonts '" + Pdf() + "'"));
  std::string line;
  std::getline(fonts, line);
  std::getline(fonts, line);
  int count = 0;
  while (std::getline(fonts, line)) {
    EXPECT_THAT(line, HasSubstr(" yes yes yes "));
    ++count;
  }
  EXPECT_GE(count, 2);
}

// A few pages of it are printed, and the footer of each page fits it once.
TEST_F(ReportCommand, ANameOfAMillionLettersIsCutOnPaperAndInTheTitle) {
  auto lines = Solved();
  lines[kProjectNameLine] = std::string(1'000'000, 'x');
  EXPECT_EQ(Run(Project(lines)).exitCode, 0);
  EXPECT_THAT(PdfInfo(), AllOf(HasSubstr("xxx..."), ContainsRegex("Pages: [1-6]\n")));
}

TEST_F(ReportCommand, JsonNamesTheFileAndWhyThereIsNoResult) {
  const auto solved = nlohmann::json::parse(Run(Project(Solved()), {"--json"}).out);
  EXPECT_EQ(solved["file"], Pdf());
  EXPECT_EQ(solved["message"], "");
  EXPECT_TRUE(solved["hints"].empty());
  auto lines = ProjectLines();
  lines[kTailLine] = "99.9";
  const KavRun refused = Run(Project(lines), {"--json"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_EQ(nlohmann::json::parse(refused.out)["message"],
            "Design efficiency is greater than 90%.");
}

TEST_F(ReportCommand, TheSameDateMakesTheSameFile) {
  const std::string project = Project(Solved());
  Run(project, {"--date", "2026-04-17 09:30:05"});
  const std::string first = ReadBytes(Pdf());
  Run(project, {"--date", "2026-04-17 09:30:05"});
  EXPECT_EQ(ReadBytes(Pdf()), first);
  Run(project, {"--date", "2026-04-17 09:30:06"});
  EXPECT_NE(ReadBytes(Pdf()), first);
}

TEST_F(ReportCommand, WithoutADateItIsNow) {
  Run(Project(Solved()));
  EXPECT_THAT(PdfText(), ContainsRegex("[01][0-9]-[0-3][0-9]-20[0-9][0-9] [0-2][0-9]:[0-5][0-9]:"));
}

TEST_F(ReportCommand, AProjectThatCannotBeSolvedIsPrintedWithItsMessage) {
  const KavRun run = Run(Project(ProjectLines("1", {"50", "0.875"})));
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.err, "Normalized storage volume is greater than 7\n");
  EXPECT_THAT(PdfText(), HasSubstr("No result: Normalized storage volume is greater than 7"));
}

TEST_F(ReportCommand, AProjectWithoutAStationIsPrintedWithoutAChart) {
  auto lines = Solved();
  lines[kStationLine] = "-1";
  lines[kStationNameLine] = "";
  const KavRun run = Run(Project(lines));
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.err, "The climate station has not been selected.\n");
  EXPECT_THAT(PdfText(), HasSubstr("There is no chart: no design curves are loaded."));
}

TEST_F(ReportCommand, ADescriptionOf10000CharactersIsWhole) {
  auto lines = Solved();
  lines[kDescriptionLine].clear();
  for (int i = 0; lines[kDescriptionLine].size() < 10000; ++i)
    lines[kDescriptionLine] += "w" + std::to_string(i) + " ";
  const KavRun run = Run(Project(lines));
  EXPECT_EQ(run.exitCode, 0) << run.err;
  const std::string text = PdfText();
  std::size_t at = 0;
  for (int i = 0; i < 1500; ++i) {
    at = text.find("w" + std::to_string(i), at);
    ASSERT_NE(at, std::string::npos) << i;
  }
  EXPECT_THAT(text, HasSubstr("Page 4"));
}

TEST_F(ReportCommand, LettersOfAllLanguagesAreText) {
  auto lines = Solved();
  lines[kProjectNameLine] = "\u0141\u00F3d\u017A \u0412\u043E\u0434\u0430 \u039D\u03B5\u03C1\u03CC";
  Run(Project(lines));
  EXPECT_THAT(PdfText(), HasSubstr(lines[kProjectNameLine]));
  EXPECT_THAT(PdfInfo(), HasSubstr("Report - " + lines[kProjectNameLine]));
}

TEST_F(ReportCommand, AMissingProjectAndAMissingFolderExitThree) {
  const std::string project = Project(Solved());
  const KavRun missing = RunKavWith({"report", folder_ / "no.kav", "-o", Pdf()}, folder_.Path());
  EXPECT_EQ(missing.exitCode, 3);
  const KavRun folder =
      RunKavWith({"report", project, "-o", folder_ / "no/report.pdf"}, folder_.Path());
  EXPECT_EQ(folder.exitCode, 3);
  EXPECT_THAT(folder.err, HasSubstr("cannot be written"));
}

// No file may grow beyond this while it lives: writing fails as it does on a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  void (*handler_)(int);
  rlimit before_{};
};

TEST_F(ReportCommand, AFullDiskLeavesNoHalfFileAndTheOldOneAsItWas) {
  const std::string project = Project(Solved());
  folder_.Write("report.pdf", "the old one");
  const FullDisk full(1000);
  const KavRun run = Run(project);
  EXPECT_EQ(run.exitCode, 3);
  EXPECT_THAT(run.err, HasSubstr("cannot be written"));
  EXPECT_EQ(ReadBytes(Pdf()), "the old one");
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) {
    files.push_back(entry.path().filename().string());
  }
  EXPECT_THAT(files, testing::UnorderedElementsAre("KAV Data", "project.kav", "report.pdf"));
}

TEST_F(ReportCommand, TheExtensionMayBeInCapitals) {
  const std::string project = Project(Solved());
  for (const char* name : {"a.Pdf", "b.PDF", "c.pDf"}) {
    const std::string path = folder_ / name;
    EXPECT_EQ(RunKavWith({"report", project, "-o", path}, folder_.Path()).exitCode, 0) << name;
    EXPECT_EQ(ReadBytes(path).substr(0, 5), "%PDF-") << name;
  }
}

TEST_F(ReportCommand, WrongUsageIsExplained) {
  const std::string project = Project(Solved());
  const struct {
    std::vector<std::string> arguments;
    const char* message;
  } rows[] = {
      {{"report", project}, "--output is required"},
      {{"report", "-o", Pdf()}, "project is required"},
      {{"report", project, "-o", "report.txt"}, "does not end in .pdf"},
      {{"report", project, "-o", Pdf(), "--paper", "legal"}, "--paper"},
      {{"report", project, "-o", Pdf(), "--date", "17.4.2026"}, "is not a date and time like"},
      {{"report", project, "-o", Pdf(), "--date", "2026-02-29 09:30:00"}, "is not a date and time"},
      {{"report", project, "-o", Pdf(), "--date", "2026-04-17 24:00:00"}, "is not a date and time"},
      {{"report", project, "-o", Pdf(), "--date", "2026-04-17T09:30:00"}, "is not a date and time"},
  };
  for (const auto& row : rows) {
    const KavRun run = RunKavWith(row.arguments, folder_.Path());
    EXPECT_EQ(run.exitCode, 2) << row.message;
    EXPECT_THAT(run.err, HasSubstr(row.message));
    EXPECT_EQ(ReadBytes(Pdf()), "") << row.message;
  }
}

TEST_F(ReportCommand, ALeapDayIsADate) {
  EXPECT_EQ(Run(Project(Solved()), {"--date", "2028-02-29 23:59:59"}).exitCode, 0);
}

}  // namespace
}  // namespace orvik
