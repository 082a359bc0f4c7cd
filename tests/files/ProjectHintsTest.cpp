// What is said of a project beside its messages; its numbers are calculated as ever.
#include <gmock/gmock.h>

#include "base/Paths.h"
#include "files/OpenedProject.h"
#include "support/FormFixture.h"
#include "support/ProjectText.h"

namespace orvik {
namespace {

using test::kBasinAreaLine;
using test::kModeLine;
using test::kStationLine;
using test::kStationNameLine;
using test::Lines;
using test::ProjectLines;
using test::ProjectText;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

class ProjectHints : public test::FormFixture {
 protected:
  // What is said on opening the file without a window and in one, which must agree.
  std::vector<Hint> HintsOf(const std::string& bytes) {
    folder_.Write("Pond.kav", bytes);
    opened_ = OpenProjectFile(path_, folder_.Path());
    form_->Files().OpenProject(path_);
    EXPECT_THAT(form_->Hints(), UnorderedElementsAreArray(opened_.hints));
    return opened_.hints;
  }
  std::vector<Hint> HintsOfText(const std::string& text) {
    form_->Files().ReadFile(text);
    return form_->Hints();
  }
  static std::string With(std::size_t line, const std::string& text) {
    auto lines = ProjectLines();
    lines[line] = text;
    return ProjectText(lines);
  }

  const std::string path_ = folder_ / "Pond.kav";
  OpenedProject opened_;
};

TEST_F(ProjectHints, AWholeProjectHasNone) {
  EXPECT_THAT(HintsOf(ProjectText()), IsEmpty());
}

// Cut in its last number, 0.875 is 0.8: calculated, but said.
TEST_F(ProjectHints, AFileWhoseLastLineHasNoEndMayBeCutShort) {
  const std::string text = ProjectText();
  const std::string cut = text.substr(0, text.size() - 4);
  EXPECT_THAT(HintsOf(cut), ElementsAre(Hint{HintId::PossiblyCutShort, {path_}}));
  EXPECT_TRUE(opened_.isRead);
  EXPECT_EQ(opened_.project.Text(Field::SolveFor2), "0.8");
  EXPECT_THAT(HintsOfText(cut), IsEmpty()) << "a host's text need not end with a line end";
}

// It could be the beginning of what a project holds after its lines.
TEST_F(ProjectHints, ALastLineThatIsNotReadMayBeCutShortToo) {
  EXPECT_THAT(HintsOf(ProjectText() + "a remark\r\n"), IsEmpty());
  EXPECT_THAT(HintsOf(ProjectText() + "[ORV"),
              ElementsAre(Hint{HintId::PossiblyCutShort, {path_}}));
}

// Cut at a line end every line of it looks whole.
TEST_F(ProjectHints, ABlockWithoutItsClosingLineIsSaidToEndEarly) {
  std::vector<std::string> tail{"0", "[ORVIK]", "point.R=0.125", "point.V=3"};
  for (; tail.size() > 1; tail.pop_back()) {
    const std::string text = ProjectText(ProjectLines("0", tail));
    EXPECT_THAT(HintsOf(text), ElementsAre(Hint{HintId::BlockEndsEarly, {path_}})) << text;
    EXPECT_TRUE(opened_.isRead);
    EXPECT_THAT(HintsOfText(text), IsEmpty()) << "only files are cut short";
  }
  EXPECT_THAT(HintsOf(ProjectText(ProjectLines("0", tail))), IsEmpty()) << "no block at all";
  EXPECT_THAT(HintsOf(ProjectText(
                  ProjectLines("0", {"0", "[ORVIK]", "point.R=0.125", "point.V=3", "[end]"}))),
              IsEmpty());
}

TEST_F(ProjectHints, AFileThatEndsEarlyIsSaidToEndThere) {
  auto lines = ProjectLines();
  lines.pop_back();
  EXPECT_THAT(HintsOf(ProjectText(lines)),
              ElementsAre(Hint{HintId::ProjectEndsEarly, {path_, std::to_string(lines.size())}}));
  EXPECT_FALSE(opened_.isRead);
}

TEST_F(ProjectHints, TheReasonWhyAFileIsNoProjectIsSaid) {
  EXPECT_THAT(HintsOf("Dear Sir,\r\n"),
              ElementsAre(Hint{HintId::ProjectFirstLine, {path_, "Dear Sir,"}}));
  EXPECT_THAT(HintsOf(""), ElementsAre(Hint{HintId::FileEmpty, {path_}}));
  EXPECT_THAT(HintsOf(std::string("K\0A\0V\0", 6)),
              ElementsAre(Hint{HintId::FileIsUtf16, {path_}}));
  EXPECT_THAT(
      HintsOf(With(kModeLine, "two")),
      ElementsAre(Hint{HintId::ProjectLineIsNoNumber, {std::to_string(kModeLine + 1), path_}}));
  const std::string none = folder_ / "none.kav";
  EXPECT_THAT(OpenProjectFile(none, folder_.Path()).hints,
              ElementsAre(Hint{HintId::FileMissing, {none}}));
  EXPECT_THAT(OpenProjectFile(folder_.Path(), folder_.Path()).hints,
              ElementsAre(Hint{HintId::FileIsFolder, {folder_.Path()}}));
}

// The line with the first line feed goes on to the next; "Invalid file version." stays for a file
// that has no other line ends.
TEST_F(ProjectHints, LineFeedsAreNamedAsTheCause) {
  EXPECT_THAT(HintsOf(With(kBasinAreaLine, "10\n")),
              ElementsAre(Hint{HintId::LoneLineFeed, {std::to_string(kBasinAreaLine + 1), path_}}));
  std::string text = ProjectText();
  std::erase(text, '\r');
  EXPECT_THAT(HintsOf(text), ElementsAre(Hint{HintId::FileHasOnlyLineFeeds, {path_}}));
  EXPECT_EQ(opened_.messages.at(0).id, MessageId::InvalidFileVersion);
}

// The number decides, as ever: 22 is Tampa, counted from 0.
TEST_F(ProjectHints, AStationWhoseNameContradictsItsNumberIsCalculatedByTheNumberAndSaid) {
  const Hint expected{HintId::StationContradiction, {"22", "Tampa", "My place", "Tampa"}};
  const std::string text = With(kStationNameLine, "My place");
  EXPECT_THAT(HintsOf(text), ElementsAre(expected));
  EXPECT_EQ(opened_.project.StationName(), "Tampa");
  EXPECT_THAT(HintsOfText(text), ElementsAre(expected));
}

TEST_F(ProjectHints, AStationsNameInOtherLettersOrNoneIsNoContradiction) {
  EXPECT_THAT(HintsOf(With(kStationNameLine, " TAMPA ")), IsEmpty());
  EXPECT_THAT(HintsOf(With(kStationNameLine, "")), IsEmpty());
}

TEST_F(ProjectHints, ANameWithANumberThatIsNoStationIsSaid) {
  auto lines = ProjectLines();
  lines[kStationLine] = "99";
  EXPECT_THAT(HintsOf(ProjectText(lines)),
              ElementsAre(Hint{HintId::StationNumberUnknown, {"99", "Tampa"}}));
}

TEST_F(ProjectHints, CurvesThatAreMissingAreSaidWithTheirPath) {
  auto lines = ProjectLines();
  lines[kStationLine] = "9";
  lines[kStationNameLine] = "Key West";
  const std::string file = folder_ / "KAV Data" + kPathSeparator + "Key West.crv";
  EXPECT_THAT(HintsOf(ProjectText(lines)), ElementsAre(Hint{HintId::CurveFileMissing, {file}}));
}

TEST_F(ProjectHints, TheHintLineShowsThemUntilTheProjectIsSaved) {
  HintsOf(With(kStationNameLine, "My place"));
  EXPECT_NE(Text("txtHint").find("\"My place\""), std::string::npos);
  form_->Files().SaveFile(folder_ / "Other.kav");
  EXPECT_EQ(Text("txtHint"), "") << "name and number agree in what was saved";
}

TEST_F(ProjectHints, TheHintLineSaysWhyThereAreNoCurvesAsLongAsThereAreNone) {
  Choose("cmbClimateStation", "Key West");
  EXPECT_THAT(Text("txtHint"),
              testing::StartsWith("No design curves are loaded: there is no file"));
  Choose("cmbClimateStation", "Tampa");
  EXPECT_EQ(Text("txtHint"), "");
}

TEST_F(ProjectHints, WhatIsSaidOfTheStationEndsWithTheChoiceOfAnother) {
  HintsOf(With(kStationNameLine, "My place"));
  Choose("cmbClimateStation", "Orlando");
  EXPECT_THAT(
      form_->Hints(),
      testing::Not(testing::Contains(testing::Field(&Hint::id, HintId::StationContradiction))));
}

TEST_F(ProjectHints, ANewProjectHasNone) {
  HintsOf(With(kStationNameLine, "My place"));
  form_->Files().New();
  EXPECT_THAT(form_->Hints(), IsEmpty());
}

}  // namespace
}  // namespace orvik
