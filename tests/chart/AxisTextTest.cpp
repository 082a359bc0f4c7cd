// Which numbers and titles are written where not all of them fit.
#include <gmock/gmock.h>

#include "ChartFixture.h"
#include "platform/recording/RecordingSurface.h"

namespace orvik {
namespace {

using namespace test;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class AxisText : public ChartFixture {
 protected:
  // The texts written in a control of this size, in order; without the station's name.
  std::vector<std::string> Texts(const std::vector<std::string>& header, int width, int height) {
    CurveFileText file = LogarithmicCurves();
    file.header = header;
    file.labels.clear();
    Load(file);
    chart_.Resize(width, height);
    RecordingSurface surface;
    chart_.Paint(surface);
    std::vector<std::string> texts;
    for (const std::string& call : surface.Take()) {
      if (!call.starts_with("text")) continue;
      const std::size_t begin = call.find('"') + 1;
      texts.push_back(call.substr(begin, call.rfind('"') - begin));
    }
    texts.erase(texts.begin());
    return texts;
  }
};

constexpr const char* kV = "V, Reuse Volume (inches on equivalent impervious area)";
constexpr const char* kR = "R, Reuse Rate (in/day on equiv. impervious area)";

TEST_F(AxisText, EveryStepHasItsNumberWhereThereIsRoom) {
  EXPECT_THAT(
      Texts({"0", "7", "1", "0", "0.4", "0.1"}, 960, 640),
      ElementsAre("0", "1", "2", "3", "4", "5", "6", "7", kV, "0", "0.1", "0.2", "0.3", "0.4", kR));
}

// 56 steps of 13.3 pixels: neighbours as wide as "0.125" (25 pixels, 5 between them) would touch;
// quarters, 26.6 apart, are at most 20 wide.
TEST_F(AxisText, NumbersThatWouldTouchAreThinnedEvenly) {
  const auto texts = Texts({"0", "7", "0.125", "0", "0.4", "0.1"}, 960, 640);
  ASSERT_GT(texts.size(), 29U);
  EXPECT_THAT(std::vector(texts.begin(), texts.begin() + 4),
              ElementsAre("0", "0.25", "0.5", "0.75"));
  EXPECT_EQ(texts[28], "7");
}

// Limited by its width, the frame of 560 pixels begins at column 20. Its labels are 8 pixels high,
// 4 for each character, and end at column 17: "0.1" fits, "0.05" does not, nor does the title.
// At 900 the labels are 13 pixels high: there is room for one character only.
TEST_F(AxisText, BesideANarrowFrameTheNumbersThatFitRemain) {
  const std::vector<std::string> header = {"0", "7", "7", "0", "0.4", "0.05"};
  EXPECT_THAT(Texts(header, 560, 900), ElementsAre("0", "7", kV, "0", "0.1", "0.2", "0.3", "0.4"));
  EXPECT_THAT(Texts(header, 900, 1400), ElementsAre("0", "7", kV));
}

TEST_F(AxisText, ASingleNumberIsLeftOut) {
  EXPECT_THAT(Texts({"0", "7", "100", "0", "0.4", "0.4"}, 960, 640),
              ElementsAre(kV, "0", "0.4", kR));
}

// With 0...0.1 in/day text is four times as high against the frame: a title of 54 characters would
// be 54 x 20 pixels long, more than the control.
TEST_F(AxisText, ATitleThatDoesNotFitIsLeftOut) {
  const auto texts = Texts({"0", "7", "1", "0", "0.05", "0.05"}, 960, 640);
  EXPECT_THAT(texts, Not(Contains(kV)));
  EXPECT_THAT(texts, Not(Contains(kR)));
  EXPECT_THAT(texts, Contains("0.05"));
}

}  // namespace
}  // namespace orvik
