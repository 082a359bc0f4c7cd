// The project as text, line by line, and what a text that is not one leads to.
#include "design/Fields.h"
#include "engine/ClimateStations.h"
#include "stream/clsIOStream.h"
#include "support/FormFixture.h"
#include "support/ProjectText.h"

namespace orvik {
namespace {

using test::FormFixture;
using test::kBasinAreaLine;
using test::kDescriptionLine;
using test::kModeLine;
using test::kStationLine;
using test::kStationNameLine;
using test::kTailLine;
using test::Lines;
using test::ProjectLines;
using test::ProjectText;

class ProjectFileTest : public FormFixture {
 protected:
  bool Read(const std::string& text) { return form_->Files().ReadFile(text); }
  std::string Saved() {
    std::string text;
    EXPECT_TRUE(form_->Files().SaveText(text));
    return text;
  }
  void ExpectOneMessage(const std::string& text) {
    ASSERT_FALSE(desktop_.Messages().empty());
    EXPECT_EQ(desktop_.Messages().front(),
              (HeadlessDesktop::Message{text, "Error", MessageIcon::Exclamation}));
  }

  // Reads and writes the same form as the window's own commands do.
  FormBinding binding_{form_->Fields(), form_->Chart()};
  SolveForWorkflow workflow_{form_->Fields(), form_->Chart(), binding_};
  ProjectFile file_{form_->Fields(), form_->Chart(), binding_, workflow_, desktop_};
};

// --- Writing ---

TEST_F(ProjectFileTest, ATypedModeHasSixteenLines) {
  SolveForEfficiency();
  Choose("cmbSolveFor", "Storage Volume");
  Type("txtSolveFor(1)", "60");
  Type("txtProjectName", "  Pond 7 ");
  Type("txtDescription", "Citrus, 5 acres");
  Type("txtProjectNumber", "07-12");
  Type("txtEngineer", "Peña");
  Type("txtSuervisingEngineer", "Ångström");
  Type("txtDate", "03-14-2026");
  EXPECT_EQ(Saved(),
            "KAV3.3.01\r\nORVIK Stormwater Harvesting Module\r\nPond 7\r\nCitrus, 5 acres\r\n"
            "07-12\r\nPeña\r\nÅngström\r\n03-14-2026\r\n22\r\nTampa\r\n2\r\n10\r\n0.5\r\n5\r\n"
            "60\r\n0.875\r\n");
}

TEST_F(ProjectFileTest, TheInteractiveModeEndsWithTheFlagOrThePoint) {
  EXPECT_EQ(Lines(Saved()).size(), kTailLine + 1);
  EXPECT_EQ(Lines(Saved())[kTailLine], "0");
  SolveForEfficiency();
  Choose("cmbSolveFor", "Interactive");
  const auto lines = Lines(Saved());
  ASSERT_EQ(lines.size(), kTailLine + 3);
  EXPECT_EQ(lines[kTailLine], "1");
  EXPECT_EQ(lines[kTailLine + 1], "0.125");
  EXPECT_EQ(lines[kTailLine + 2], "3");
}

TEST_F(ProjectFileTest, NoStationIsMinusOneAndAnEmptyName) {
  const auto lines = Lines(Saved());
  EXPECT_EQ(lines[kStationLine], "-1");
  EXPECT_EQ(lines[kStationNameLine], "");
}

TEST_F(ProjectFileTest, WithoutAModeTheTailIsMissing) {
  form_->Fields().cmbSolveFor->ListIndex(-1);
  EXPECT_EQ(Lines(Saved()).size(), kTailLine);
  EXPECT_EQ(Lines(Saved())[kModeLine], "-1");
}

TEST_F(ProjectFileTest, ALineEndInsideAValueBecomesABlank) {
  form_->Fields().Box(Field::Description).Text("first\r\nsecond\rthird\nfourth");
  const auto lines = Lines(Saved());
  EXPECT_EQ(lines.size(), kTailLine + 1);
  EXPECT_EQ(lines[kDescriptionLine], "first second third fourth");
}

TEST_F(ProjectFileTest, AStreamThatIsNotOpenForOutputIsAFailure) {
  clsIOStream closed;
  EXPECT_FALSE(file_.SaveDataInBuffer(closed));
}

// --- Reading ---

TEST_F(ProjectFileTest, ReadsAndRecalculates) {
  EXPECT_TRUE(Read(ProjectText()));
  EXPECT_EQ(Text("txtProjectName"), "Pond");
  EXPECT_EQ(Text("txtSuervisingEngineer"), "Chief");
  EXPECT_EQ(toolkit_.Find<HeadlessComboBox>("cmbClimateStation").List(22), "Tampa");
  EXPECT_EQ(form_->Chart().StationName(), "Tampa");
  EXPECT_EQ(Text("txtSolveFor(1)"), "60");
  EXPECT_EQ(Text("txtSolveFor(2)"), "0.875");
  EXPECT_NEAR(Number("txtSolveFor(3)"), std::exp(1.0) * 5 / 12, 3e-4);
  EXPECT_EQ(Message(), "");
  EXPECT_TRUE(desktop_.Messages().empty());
}

TEST_F(ProjectFileTest, TheFirstLineMayHaveBlanksAround) {
  auto lines = ProjectLines();
  lines[0] = "   KAV3.3.01  ";
  EXPECT_TRUE(Read(ProjectText(lines)));
}

TEST_F(ProjectFileTest, TheVersionIsTheLastTwoCharactersAsANumberOfOne) {
  const struct {
    const char* line;
    const char* message;
  } rows[] = {
      {"KAV3.3.001", ""},
      {"KAV3.3.01", ""},
      {"KAV3.3.anything01", ""},
      {"KAV3.3.1", "Invalid file version."},  // ".1" is a tenth
      {"KAV3.3.02", "Invalid file version."},
      {"KAV3.3.11", "Invalid file version."},
      {"KAV3.3.", "Invalid file version."},
      {"KAV3.3.0x", "Invalid file version."},
      {"KAV3.2.01", "The data file does not appear to be a valid ORVIK 3.3 KAV file."},
      {"kav3.3.01", "The data file does not appear to be a valid ORVIK 3.3 KAV file."},
      {"KAV3.3", "The data file does not appear to be a valid ORVIK 3.3 KAV file."},
      {"", "The data file does not appear to be a valid ORVIK 3.3 KAV file."},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.line);
    desktop_.ForgetMessages();
    auto lines = ProjectLines();
    lines[0] = row.line;
    const bool good = std::string_view(row.message).empty();
    EXPECT_EQ(Read(ProjectText(lines)), good);
    if (good) continue;
    ExpectOneMessage(row.message);
    EXPECT_EQ(desktop_.Messages().back().text, "Error reading data.");
  }
}

TEST_F(ProjectFileTest, TheInteractiveModeWithoutATailFailsWithoutAMessageOfItsOwn) {
  auto lines = ProjectLines();
  lines.resize(kTailLine);
  lines[kModeLine] = "0";
  clsIOStream stream;
  stream.OpenFile(ProjectText(lines), enumIOStreamMode::AsciiBufferInput);
  EXPECT_FALSE(file_.ReadDataFromBuffer(stream));
  EXPECT_TRUE(desktop_.Messages().empty());
  EXPECT_EQ(Text("txtIrrigationArea"), "5") << "fields before the fault keep their values";
}

TEST_F(ProjectFileTest, AStationThatIsNotAWholeNumberStopsAfterTheDescription) {
  for (const char* station : {"abc", "2.5", "", "99999", "1E1"}) {
    SCOPED_TRACE(station);
    auto lines = ProjectLines();
    lines[kStationLine] = station;
    EXPECT_FALSE(Read(ProjectText(lines)));
    EXPECT_EQ(Text("txtDate"), "today");
    EXPECT_EQ(Text("txtBasinArea"), "");
    EXPECT_EQ(desktop_.Messages().back().text, "Error reading data.");
  }
}

TEST_F(ProjectFileTest, AModeThatIsNotAWholeNumberStopsAfterTheStation) {
  auto lines = ProjectLines();
  lines[kModeLine] = "two";
  EXPECT_FALSE(Read(ProjectText(lines)));
  EXPECT_EQ(form_->Chart().StationName(), "Tampa");
  EXPECT_EQ(Text("txtBasinArea"), "");
}

TEST_F(ProjectFileTest, AnIndexOutsideItsListChoosesNothing) {
  auto lines = ProjectLines();
  lines[kStationLine] = std::to_string(NumRainfallStations());
  EXPECT_TRUE(Read(ProjectText(lines)));
  EXPECT_EQ(Message(), "The climate station has not been selected.");
  lines = ProjectLines();
  lines[kModeLine] = "4";
  lines.resize(kTailLine);
  EXPECT_TRUE(Read(ProjectText(lines)));
  EXPECT_EQ(form_->Fields().cmbSolveFor->ListIndex(), -1);
}

TEST_F(ProjectFileTest, AnyFlagThatIsNotZeroShowsThePoint) {
  for (const char* flag : {"1", "-1", "7"}) {
    EXPECT_TRUE(Read(ProjectText(ProjectLines("0", {flag, "0.125", "3"})))) << flag;
    EXPECT_EQ(Text("txtR"), "0.125") << flag;
    EXPECT_EQ(Text("txtSolveFor(3)"), "1.25") << flag;
  }
  EXPECT_TRUE(Read(ProjectText(ProjectLines("0", {"0"}))));
  EXPECT_EQ(Text("txtR"), "");
  EXPECT_FALSE(Read(ProjectText(ProjectLines("0", {"yes"}))));
  EXPECT_FALSE(Read(ProjectText(ProjectLines("0", {"1", "0.125"}))));
}

TEST_F(ProjectFileTest, APointOutsideTheChartShowsAMessage) {
  EXPECT_TRUE(Read(ProjectText(ProjectLines("0", {"1", "0.125", "30"}))));
  EXPECT_EQ(Message(), "Normalized storage volume is greater than 7");
}

TEST_F(ProjectFileTest, TextsOfNumbersAreReadUnchanged) {
  auto lines = ProjectLines();
  lines[kBasinAreaLine] = " ten ";
  EXPECT_TRUE(Read(ProjectText(lines)));
  EXPECT_EQ(Text("txtBasinArea"), " ten ");
  EXPECT_EQ(Message(), "The basin area is not numeric.");
}

TEST_F(ProjectFileTest, AnEmptyTextIsRefusedInSilence) {
  SolveForEfficiency();
  EXPECT_FALSE(Read(""));
  EXPECT_TRUE(desktop_.Messages().empty());
  EXPECT_EQ(Text("txtBasinArea"), "") << "cleared";
}

TEST_F(ProjectFileTest, ATextThatCannotBeReadIsRecalculatedAllTheSame) {
  EXPECT_FALSE(Read("noise"));
  EXPECT_EQ(Message(), "The basin area has not been defined.");
}

TEST_F(ProjectFileTest, ClearDataEmptiesTheChartsOutcomeAlsoWithoutAStation) {
  std::string E;
  EXPECT_FALSE(form_->Chart().SetHotspotUsing_RV("1", "1", E));
  EXPECT_NE(form_->Chart().ErrMsg(), "");
  file_.ClearData();
  EXPECT_EQ(form_->Chart().ErrMsg(), "");
  EXPECT_EQ(form_->Chart().HelpTopicIndex(), 0);
}

TEST_F(ProjectFileTest, ClearDataEmptiesEveryField) {
  SolveForEfficiency();
  for (const FieldDesign& field : Fields()) {
    if (field.IsDescription()) Type(field.control, "x");
  }
  toolkit_.ClickMenu("mnuFile_New");
  for (const FieldDesign& field : Fields()) EXPECT_EQ(Text(field.control), "") << field.control;
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(form_->Fields().cmbClimateStation->ListIndex(), -1);
  EXPECT_EQ(form_->Fields().cmbSolveFor->ListIndex(), 0);
  EXPECT_FALSE(form_->Chart().IsLoaded());
  EXPECT_FALSE(HotspotIsVisible());
  EXPECT_EQ(toolkit_.Caption("Form1"), "ORVIK 3.3 Stormwater Harvesting - [untitled]");
  EXPECT_FALSE(toolkit_.IsVisible("picProject"));
  EXPECT_TRUE(toolkit_.IsVisible("picData"));
}

}  // namespace
}  // namespace orvik
