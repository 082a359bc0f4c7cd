// A project whose point the curves cannot show: the point is kept beside the lines of the file.
#include <gmock/gmock.h>

#include "base/Paths.h"
#include "design/KeptPoint.h"
#include "files/OpenedProject.h"
#include "support/FormFixture.h"
#include "support/ProjectText.h"

namespace orvik {
namespace {

using test::kStationLine;
using test::kStationNameLine;
using test::kTailLine;
using test::Lines;
using test::ProjectLines;
using test::ProjectText;
using testing::ElementsAre;

constexpr const char* kMiami = "14";  // its curve file is damaged; see the fixture

class KeptPoint : public test::FormFixture {
 protected:
  // An interactive project with its point at R = 0.125 and V = 3.
  static std::vector<std::string> LinesWithPoint(std::string_view V = "3") {
    return ProjectLines("0", {"1", "0.125", std::string(V)});
  }
  static std::vector<std::string> WithoutCurves() {
    auto lines = LinesWithPoint();
    lines[kStationLine] = kMiami;
    lines[kStationNameLine] = "Miami";
    return lines;
  }
  bool Open(const std::vector<std::string>& lines) {
    return form_->Files().LoadFile(folder_.Write("Pond.kav", ProjectText(lines)));
  }
  std::vector<std::string> Saved() {
    EXPECT_TRUE(form_->Files().SaveFile(folder_ / "Saved.kav"));
    return Lines(test::ReadBytes(folder_ / "Saved.kav"));
  }
  // What a saved project has from its tail on.
  std::vector<std::string> SavedTail() {
    const auto lines = Saved();
    return {lines.begin() + static_cast<std::ptrdiff_t>(kTailLine), lines.end()};
  }
  std::optional<Hint> KeptHint() {
    Project project;
    project.keptPoint = form_->Fields().keptPoint;
    return HintOfKeptPoint(project, form_->Chart().IsLoaded());
  }
};

TEST_F(KeptPoint, WithDamagedCurvesTheLinesSayNoPointAndTheBlockAfterThemHoldsIt) {
  ASSERT_TRUE(Open(WithoutCurves()));
  ASSERT_FALSE(form_->Chart().IsLoaded());
  EXPECT_THAT(SavedTail(), ElementsAre("0", "[ORVIK]", "point.R=0.125", "point.V=3", "[end]"));
  EXPECT_EQ(KeptHint(), (Hint{HintId::PointKeptWithoutCurves, {"0.125", "3"}}));
}

TEST_F(KeptPoint, WithoutTheCurveFolderItIsKeptToo) {
  std::filesystem::remove_all(PathFromUtf8(folder_ / "KAV Data"));
  ASSERT_TRUE(Open(LinesWithPoint()));
  EXPECT_THAT(SavedTail(), ElementsAre("0", "[ORVIK]", "point.R=0.125", "point.V=3", "[end]"));
}

TEST_F(KeptPoint, APointOutsideTheAxesIsKept) {
  ASSERT_TRUE(Open(LinesWithPoint("30")));  // Tampa's chart ends at V = 7
  EXPECT_THAT(SavedTail(), ElementsAre("0", "[ORVIK]", "point.R=0.125", "point.V=30", "[end]"));
  EXPECT_EQ(KeptHint(), (Hint{HintId::PointKeptOffChart, {"0.125", "30"}}));
}

// Where the curves answer, the number that a line begins with places the point.
TEST_F(KeptPoint, ALineIsKeptForTheNumberThatItBeginsWith) {
  const struct {
    const char* R;
    const char* kept;  // null: the line begins with no number
  } rows[] = {{"0.15x", "0.15"}, {" .25 in", "0.25"}, {"0x", "0"},
              {"-1e1e", "-10"},  {"x", nullptr},      {"", nullptr},
              {".", nullptr},    {"-.e5", nullptr},   {"1e999", nullptr}};
  for (const auto& row : rows) {
    auto lines = WithoutCurves();
    lines[kTailLine + 1] = row.R;
    ASSERT_TRUE(Open(lines));
    if (row.kept) {
      EXPECT_EQ(form_->Fields().keptPoint, (StoredPoint{row.kept, "3"})) << row.R;
    } else {
      EXPECT_EQ(form_->Fields().keptPoint, std::nullopt) << row.R;
    }
  }
}

TEST_F(KeptPoint, AProjectWhosePointIsShownHasNoBlock) {
  ASSERT_TRUE(Open(LinesWithPoint()));
  EXPECT_THAT(SavedTail(), ElementsAre("1", "0.125", "3"));
  EXPECT_EQ(KeptHint(), std::nullopt);
}

TEST_F(KeptPoint, ItIsPlacedAgainWhenTheCurvesAnswer) {
  ASSERT_TRUE(Open(WithoutCurves()));
  const auto saved = Saved();
  folder_.Write("KAV Data/Miami.crv", test::LogarithmicCurves().Text());
  ASSERT_TRUE(Open(saved));
  EXPECT_EQ(Text("txtR"), "0.125");
  EXPECT_EQ(Text("txtV"), "3");
  EXPECT_EQ(Saved(), WithoutCurves()) << "as the project was at first";
}

TEST_F(KeptPoint, ItStaysOverManySavingsWhileTheCurvesDoNotAnswer) {
  ASSERT_TRUE(Open(WithoutCurves()));
  const auto first = Saved();
  ASSERT_TRUE(Open(first));
  EXPECT_EQ(Saved(), first);
  EXPECT_TRUE(desktop_.Messages().empty());
}

// A project that says "no point" has no message about one.
TEST_F(KeptPoint, APointThatCannotBePlacedAgainPutsNothingOnTheBar) {
  auto lines = ProjectLines("0", {"0", "[ORVIK]", "point.R=0.125", "point.V=30", "[end]"});
  ASSERT_TRUE(Open(ProjectLines("0", {"0"})));
  const std::string without = Message();
  ASSERT_TRUE(Open(lines));
  EXPECT_EQ(Message(), without);
  EXPECT_EQ(Saved(), lines);
}

// --- When it is dropped ---

TEST_F(KeptPoint, IsDroppedWhenTheUserPlacesAPoint) {
  ASSERT_TRUE(Open(LinesWithPoint("30")));
  const auto& geometry = form_->Chart().Geometry();
  form_->Chart().MouseDown(1, geometry.XPlotToXFrame(3), geometry.YPlotToYFrame(0.125));
  form_->Chart().MouseUp();
  EXPECT_EQ(SavedTail().size(), 3U);
  EXPECT_EQ(form_->Fields().keptPoint, std::nullopt);
}

TEST_F(KeptPoint, IsDroppedWithAnotherStationOrMode) {
  ASSERT_TRUE(Open(WithoutCurves()));
  Choose("cmbClimateStation", "Tampa");
  EXPECT_THAT(SavedTail(), ElementsAre("0"));
  ASSERT_TRUE(Open(WithoutCurves()));
  Choose("cmbSolveFor", "Efficiency");
  Choose("cmbSolveFor", "Interactive");
  EXPECT_THAT(SavedTail(), ElementsAre("0"));
}

TEST_F(KeptPoint, IsDroppedByNewAndByAnotherProject) {
  ASSERT_TRUE(Open(WithoutCurves()));
  toolkit_.ClickMenu("mnuFile_New");
  EXPECT_THAT(SavedTail(), ElementsAre("0"));
  ASSERT_TRUE(Open(WithoutCurves()));
  ASSERT_TRUE(Open(ProjectLines("0", {"0"})));
  EXPECT_THAT(SavedTail(), ElementsAre("0"));
}

TEST_F(KeptPoint, TypingInOtherFieldsKeepsIt) {
  ASSERT_TRUE(Open(WithoutCurves()));
  TypeAndEnter("txtBasinArea", "12");
  Type("txtProjectName", "Lake");
  EXPECT_EQ(SavedTail().size(), 5U);
}

// --- The block ---

TEST_F(KeptPoint, ABlockThatIsCutShortOrNoNumberCountsForNothing) {
  const std::vector<std::vector<std::string>> tails{
      {"0", "[ORVIK]", "point.R=0.125", "point.V=3"},
      {"0", "[ORVIK]", "point.R=0.125", "[end]"},
      {"0", "[ORVIK]", "point.R=0.125", "point.V=three", "[end]"},
      {"0", "ORVIK", "point.R=0.125", "point.V=3", "[end]"},
      {"0", "", "[ORVIK]", "point.R=0.125", "point.V=3", "[end]"},
  };
  for (const auto& tail : tails) {
    ASSERT_TRUE(Open(ProjectLines("0", tail)));
    EXPECT_FALSE(HotspotIsVisible()) << testing::PrintToString(tail);
    EXPECT_THAT(SavedTail(), ElementsAre("0")) << testing::PrintToString(tail);
  }
}

TEST_F(KeptPoint, EntriesThatAreNotKnownAreIgnored) {
  ASSERT_TRUE(Open(ProjectLines(
      "0", {"0", "[ORVIK]", "a word", "later=1=2", " point.R = 0.125 ", "point.V=3", "[end]"})));
  EXPECT_EQ(Text("txtV"), "3");
}

TEST_F(KeptPoint, TheLinesCountBeforeTheBlock) {
  ASSERT_TRUE(
      Open(ProjectLines("0", {"1", "0.125", "3", "[ORVIK]", "point.R=0.2", "point.V=5", "[end]"})));
  EXPECT_EQ(Text("txtV"), "3");
  ASSERT_TRUE(
      Open(ProjectLines("2", {"60", "0.875", "[ORVIK]", "point.R=0.2", "point.V=5", "[end]"})));
  EXPECT_THAT(SavedTail(), ElementsAre("60", "0.875"));
}

// --- A host's text ---

TEST_F(KeptPoint, AHostThatPassesNoBlockGetsNoneBackAndTheUserIsTold) {
  ASSERT_TRUE(form_->Files().ReadFile(ProjectText(WithoutCurves())));
  std::string text;
  ASSERT_TRUE(form_->Files().SaveText(text));
  EXPECT_EQ(Lines(text).size(), kTailLine + 1);
  EXPECT_THAT(form_->Files().SavingHints(),
              ElementsAre(Hint{HintId::PointNotKept, {"0.125", "3"}}));
}

TEST_F(KeptPoint, AHostThatPassesABlockGetsItBack) {
  ASSERT_TRUE(Open(WithoutCurves()));
  const std::string withBlock = ProjectText(Saved());
  ASSERT_TRUE(form_->Files().ReadFile(withBlock));
  std::string text;
  ASSERT_TRUE(form_->Files().SaveText(text));
  EXPECT_EQ(text, withBlock);
  EXPECT_THAT(form_->Files().SavingHints(), ElementsAre());
}

// --- Without a window ---

TEST_F(KeptPoint, WithoutAWindowItIsThereTooAndPlacedAgain) {
  const std::string path = folder_.Write("Pond.kav", ProjectText(WithoutCurves()));
  EXPECT_EQ(OpenProjectFile(path, folder_.Path()).project.keptPoint, (StoredPoint{"0.125", "3"}));
  const std::string kept = folder_.Write(
      "Kept.kav",
      ProjectText(ProjectLines("0", {"0", "[ORVIK]", "point.R=0.125", "point.V=3", "[end]"})));
  const OpenedProject opened = OpenProjectFile(kept, folder_.Path());
  EXPECT_EQ(opened.project.keptPoint, std::nullopt);
  EXPECT_EQ(opened.project.Text(Field::V), "3");
}

}  // namespace
}  // namespace orvik
