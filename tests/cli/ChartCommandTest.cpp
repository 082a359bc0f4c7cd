#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "base/Paths.h"
#include "support/CurveFileText.h"
#include "support/KavRun.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

using test::KavRun;
using test::LogarithmicCurves;
using test::ReadBytes;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr const char* kTitles[] = {"V, Reuse Volume (inches on equivalent impervious area)",
                                   "R, Reuse Rate (in/day on equiv. impervious area)"};

class ChartCommand : public testing::Test {
 protected:
  KavRun Run(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "chart");
    return test::RunKavWith(arguments, ORVIK_DATA);
  }
  std::string Out(std::string_view name) { return folder_ / name; }
  bool IsEmpty() { return std::filesystem::is_empty(PathFromUtf8(folder_.Path())); }

  test::TempFolder folder_;
};

// What pdftotext reads in the file, words parted by one blank each.
std::string PdfText(const std::string& path) {
  std::string text;
  std::array<char, 4096> part{};
  FILE* pipe = popen(("pdftotext -raw '" + path + "' -").c_str(), "r");
  if (!pipe) return text;
  while (const std::size_t count = std::fread(part.data(), 1, part.size(), pipe)) {
    text.append(part.data(), count);
  }
  pclose(pipe);
  std::ranges::replace(text, '\n', ' ');
  return text;
}

TEST_F(ChartCommand, JsonNamesTheFileAndHoldsTheHints) {
  const KavRun run = Run({"--station", "tampa", "-o", Out("a.png"), "--json"});
  EXPECT_EQ(run.exitCode, 0);
  const auto object = nlohmann::json::parse(run.out);
  EXPECT_EQ(object["file"], Out("a.png"));
  EXPECT_TRUE(object["hints"].empty());
  const std::string project = ReadBytes(ORVIK_SAMPLES_DIR "efficiency.kav");
  const std::string cut = folder_.Write("cut.kav", project.substr(0, project.size() - 2));
  EXPECT_EQ(nlohmann::json::parse(Run({cut, "-o", Out("a.png"), "--json"}).out)["hints"].size(),
            1U);
}

TEST_F(ChartCommand, WritesPngInTheSizeAskedFor) {
  const KavRun run = Run({"--station", "tampa", "-o", Out("a.png"), "--size", "300x200"});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, "");
  const std::string bytes = ReadBytes(Out("a.png"));
  EXPECT_EQ(bytes.substr(16, 8), std::string("\0\0\x01\x2C\0\0\0\xC8", 8)) << "width and height";
}

TEST_F(ChartCommand, TextIsTextInSvg) {
  ASSERT_EQ(Run({"--station", "Tampa", "-o", Out("a.svg")}).exitCode, 0);
  const std::string svg = ReadBytes(Out("a.svg"));
  for (const char* text : kTitles) EXPECT_THAT(svg, HasSubstr(std::string(">") + text + "<"));
  for (const char* text : {">Tampa<", ">E=95%<", ">0.35<", ">7<"})
    EXPECT_THAT(svg, HasSubstr(text));
}

TEST_F(ChartCommand, TextIsTextInPdf) {
  ASSERT_EQ(Run({"--station", "Tampa", "-o", Out("a.pdf")}).exitCode, 0);
  const std::string text = PdfText(Out("a.pdf"));
  ASSERT_NE(text, "") << "is the package poppler-utils installed?";
  for (const char* title : kTitles) EXPECT_THAT(text, HasSubstr(title));
  for (const char* part : {"Tampa", "E=95%", "0.35"}) EXPECT_THAT(text, HasSubstr(part));
}

TEST_F(ChartCommand, MarksTheDesignPoint) {
  ASSERT_EQ(Run({"--station", "Tampa", "-o", Out("without.svg")}).exitCode, 0);
  EXPECT_THAT(ReadBytes(Out("without.svg")), Not(HasSubstr("#ff0000")));
  ASSERT_EQ(Run({"--station", "Tampa", "--rate", "0.15", "--volume", "3", "-o", Out("with.svg")})
                .exitCode,
            0);
  // V = 3 is column 108 + 744 x 3 / 7 = 426.9, R = 0.15 row 592 - 558 x 0.375 = 382.75; the leader
  // from the left ends before the box.
  EXPECT_THAT(ReadBytes(Out("with.svg")),
              HasSubstr("<rect x=\"108\" y=\"383\" width=\"312\" height=\"1\" fill=\"#ff0000\"/>"));
}

TEST_F(ChartCommand, DrawsAProjectWithItsDesignPoint) {
  const KavRun run = Run({ORVIK_SAMPLES_DIR "efficiency.kav", "-o", Out("a.svg")});
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_THAT(ReadBytes(Out("a.svg")), HasSubstr(">Tampa<"));
  EXPECT_THAT(ReadBytes(Out("a.svg")), HasSubstr("#ff0000"));
}

TEST_F(ChartCommand, WithoutAResultNoFileIsWritten) {
  const KavRun run =
      Run({"--station", "Tampa", "--efficiency", "99.9", "--rate", "0.1", "-o", Out("a.png")});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.err, "Design efficiency is greater than 95%.\n");
  EXPECT_TRUE(IsEmpty());
}

TEST_F(ChartCommand, WrongUsageExitsTwoAndWritesNoFile) {
  const std::string out = Out("a.png");
  const std::vector<std::vector<std::string>> cases = {
      {"-o", out},
      {"--station", "Tampa"},
      {"--station", "Atlantis", "-o", out},
      {"p.kav", "--station", "Tampa", "-o", out},
      {"p.kav", "--rate", "0.1", "--volume", "3", "-o", out},
      {"--station", "Tampa", "--rate", "0.1", "-o", out},
      {"--station", "Tampa", "--rate", "0.1", "--volume", "3", "--efficiency", "80", "-o", out},
      {"--station", "Tampa", "-o", Out("a.jpg")},
      {"--station", "Tampa", "-o", out, "--size", "300"},
      {"--station", "Tampa", "-o", out, "--size", "300x"},
      {"--station", "Tampa", "-o", out, "--size", "0x200"},
      {"--station", "Tampa", "-o", out, "--size", "300x20000"},
      {"--station", "Tampa", "-o", out, "--size", "300x200x100"},
  };
  for (const auto& arguments : cases) {
    const KavRun run = Run(arguments);
    EXPECT_EQ(run.exitCode, 2) << testing::PrintToString(arguments);
    EXPECT_NE(run.err, "") << testing::PrintToString(arguments);
  }
  EXPECT_TRUE(IsEmpty());
}

TEST_F(ChartCommand, FilesThatCannotBeReadOrWrittenExitThree) {
  const std::string target = Out("missing/a.png");
  const KavRun write = Run({"--station", "Tampa", "-o", target});
  EXPECT_EQ(write.exitCode, 3);
  EXPECT_EQ(write.err, "The file " + target + " cannot be written: its folder does not exist.\n");
  const KavRun read = Run({Out("missing.kav"), "-o", Out("a.png")});
  EXPECT_EQ(read.exitCode, 3);
  EXPECT_NE(read.err, "");
  EXPECT_TRUE(IsEmpty());
}

TEST_F(ChartCommand, AFailedWriteKeepsTheOldFile) {
  std::filesystem::create_directory(PathFromUtf8(Out("a.png")));  // a folder in the file's place
  EXPECT_EQ(Run({"--station", "Tampa", "-o", Out("a.png")}).exitCode, 3);
  EXPECT_TRUE(std::filesystem::is_directory(PathFromUtf8(Out("a.png"))));
  EXPECT_FALSE(FileExists(Out("a.png.new")));
}

TEST_F(ChartCommand, HelpShowsExamples) {
  const KavRun run = Run({"--help"});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_THAT(run.out, HasSubstr("kav chart --station Tampa"));
}

TEST_F(ChartCommand, TheSameChartIsTheSameFile) {
  for (const char* name : {"1.png", "2.png", "1.svg", "2.svg"}) {
    ASSERT_EQ(Run({"--station", "Tampa", "-o", Out(name)}).exitCode, 0);
  }
  EXPECT_EQ(ReadBytes(Out("1.png")), ReadBytes(Out("2.png")));
  EXPECT_EQ(ReadBytes(Out("1.svg")), ReadBytes(Out("2.svg")));
}

}  // namespace
}  // namespace orvik
