// Any project that the window can hold, saved and read back, gives the same fields.
#include <map>
#include <random>

#include "base/Text.h"
#include "design/Fields.h"
#include "support/FormFixture.h"

namespace orvik {
namespace {

using test::FormFixture;

class RoundTrip : public FormFixture {
 protected:
  using State = std::map<std::string, std::string>;

  State Shown() {
    State state;
    for (const FieldDesign& field : Fields()) {
      state[std::string(field.control)] = Trim(Text(field.control));
    }
    state["txtErrMsg"] = Message();
    state["station"] = std::to_string(form_->Fields().cmbClimateStation->ListIndex());
    state["mode"] = std::to_string(form_->Fields().cmbSolveFor->ListIndex());
    state["hotspot"] = std::to_string(form_->Chart().HotSpotVisibile());
    return state;
  }

  void ExpectSameAfterSavingAndReading() {
    PressReCalc();  // what is shown belongs to what is typed
    const State before = Shown();
    std::string text;
    ASSERT_TRUE(form_->Files().SaveText(text));
    ASSERT_TRUE(form_->Files().ReadFile(text));
    EXPECT_EQ(Shown(), before);
    const std::string path = folder_ / "trip.kav";
    ASSERT_TRUE(form_->Files().SaveFile(path));
    EXPECT_EQ(test::ReadBytes(path), text);
    Form1 other(otherToolkit_, desktop_, folder_.Path());
    ASSERT_TRUE(other.Files().LoadFile(path));
    for (const auto& field : Fields()) {
      const std::string name(field.control);
      EXPECT_EQ(Trim(otherToolkit_.Text(name)), before.at(name)) << name;
    }
    EXPECT_EQ(otherToolkit_.Text("txtErrMsg"), before.at("txtErrMsg"));
  }

  test::UserToolkit otherToolkit_;
};

class RandomProject {
 public:
  explicit RandomProject(unsigned seed) : random_(seed) {}

  unsigned Below(unsigned limit) { return static_cast<unsigned>(random_()) % limit; }

  std::string Words(unsigned length) {
    static const char* const kLetters[] = {"a",  "Z", " ",  "é", "ñ", "°",
                                           "中", ",", "\"", "0", "\t"};
    std::string text;
    for (unsigned i = 0; i < length; ++i) text += kLetters[Below(11)];
    return text;
  }

  // Mostly a good number, sometimes what else a user may leave in a field.
  std::string Number(double low, double high) {
    static const char* const kOthers[] = {"", "0", "-1", "abc", "1E10", " 5 ", ".5"};
    if (Below(5) == 0) return kOthers[Below(7)];
    return GoodNumber(low, high);
  }

  std::string GoodNumber(double low, double high) {
    const double share = Below(1000) / 1000.0;
    return ConvertToString(static_cast<float>(low + share * (high - low)));
  }

 private:
  std::mt19937 random_;
};

class RandomRoundTrip : public RoundTrip, public testing::WithParamInterface<int> {};

TEST_P(RandomRoundTrip, GivesTheSameFields) {
  const SolveFor mode = SolveForOfIndex(GetParam());
  for (unsigned seed = 0; seed < 60; ++seed) {
    SCOPED_TRACE("mode " + std::to_string(IndexOf(mode)) + ", seed " + std::to_string(seed));
    RandomProject project(seed);
    for (const FieldDesign& field : Fields()) {
      if (field.IsDescription()) Type(field.control, project.Words(project.Below(30)));
    }
    Choose("cmbClimateStation", project.Below(4) == 0 ? "Orlando" : "Tampa");
    Choose("cmbSolveFor", SolveForItem(mode));
    Type("txtBasinArea", project.Number(5, 20));
    Type("txtRunoffCoefficient", project.Number(0.3, 0.9));
    Type("txtIrrigationArea", project.Number(2, 20));
    if (mode == SolveFor::Interactive) {
      if (project.Below(4) != 0) {
        std::string E;
        form_->Chart().SetHotspotUsing_RV(project.GoodNumber(0, 0.4), project.GoodNumber(0.5, 7),
                                          E);
      }
    } else {
      Type("txtSolveFor(1)", project.Number(0.5, 90));
      Type("txtSolveFor(2)", project.Number(0.1, 5));
    }
    ExpectSameAfterSavingAndReading();
  }
}

INSTANTIATE_TEST_SUITE_P(Modes, RandomRoundTrip, testing::Values(0, 1, 2, 3));

TEST_F(RoundTrip, ADescriptionOfTenThousandCharacters) {
  SolveForEfficiency();
  RandomProject project(1);
  form_->Fields().Box(Field::Description).Text("x" + project.Words(9998) + "x");
  ExpectSameAfterSavingAndReading();
}

// The chart keeps a point that was placed by mouse or keys in double precision, the file in single.
// Saving puts the point where the file has it: the seventh digit of the efficiency may change then,
// and never again.
TEST_F(RoundTrip, APointPlacedByMouseAndKeysKeepsItsNumbers) {
  TypeSite();
  auto& chart = form_->Chart();
  const auto& geometry = chart.Geometry();
  RandomProject random(3);
  for (int round = 0; round < 200; ++round) {
    const double V = 2.5 + random.Below(400) / 100.0;
    const double E = 52 + random.Below(3600) / 100.0;
    const double R = (E - 50) / 400 + 0.15 - 0.05 * std::log(V);
    chart.MouseDown(1, geometry.XPlotToXFrame(V), geometry.YPlotToYFrame(R));
    chart.MouseUp();
    chart.KeyDown(static_cast<std::int16_t>(37 + random.Below(4)));
    State placed = Shown();
    ASSERT_NE(placed["txtE"], "") << "V " << V << ", R " << R;
    std::string text;
    ASSERT_TRUE(form_->Files().SaveText(text));
    const State saved = Shown();
    ASSERT_TRUE(form_->Files().ReadFile(text));
    EXPECT_EQ(Shown(), saved);
    EXPECT_NEAR(Number("txtE"), ParseNumber(placed["txtE"]), 1e-4);
    for (const char* efficiency : {"txtE", "txtSolveFor(2)"}) placed[efficiency] = Text(efficiency);
    EXPECT_EQ(Shown(), placed) << "all but the efficiency is as it was placed";
  }
}

TEST_F(RoundTrip, AnEmptyProject) {
  ExpectSameAfterSavingAndReading();
}

}  // namespace
}  // namespace orvik
