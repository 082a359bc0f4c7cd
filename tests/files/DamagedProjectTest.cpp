// Damaged project files never crash or hang, and end as the rules of reading say.
#include <random>

#include "support/FormFixture.h"
#include "support/ProjectText.h"
#include "support/SampleProjects.h"

namespace orvik {
namespace {

using test::FormFixture;
using test::kBasinAreaLine;
using test::kDescriptionLine;
using test::kModeLine;
using test::kProjectNameLine;
using test::kStationLine;
using test::kTailLine;
using test::ProjectLines;
using test::ProjectText;

class DamagedProject : public FormFixture {
 protected:
  // Reads the bytes as a file and as a text: both ways must agree.
  bool Load(const std::string& bytes) {
    const bool fromFile = form_->Files().LoadFile(folder_.Write("damaged.kav", bytes));
    EXPECT_EQ(form_->Files().ReadFile(bytes), fromFile);
    return fromFile;
  }
};

bool IsWholeNumber(const std::string& line) {
  return !line.empty() && line.find_first_not_of("0123456789") == std::string::npos;
}

std::string Noise(std::size_t length, unsigned seed) {
  std::mt19937 random(seed);
  std::string noise(length, '\0');
  for (char& c : noise) c = static_cast<char>(random());
  return noise;
}

const std::vector<std::vector<std::string>>& GoodProjects() {
  static const std::vector<std::vector<std::string>> projects{
      ProjectLines("0", {"1", "0.125", "3"}), ProjectLines("1", {"1.25", "0.875"}), ProjectLines(),
      ProjectLines("3", {"60", "1.25"})};
  return projects;
}

TEST_F(DamagedProject, CutAtEveryLineFailsInBothModes) {
  for (const auto& good : GoodProjects()) {
    for (std::size_t count = 0; count < good.size(); ++count) {
      const std::vector<std::string> lines(good.begin(),
                                           good.begin() + static_cast<std::ptrdiff_t>(count));
      EXPECT_FALSE(Load(ProjectText(lines)))
          << "mode " << good[kModeLine] << ", " << count << " lines";
    }
    EXPECT_TRUE(Load(ProjectText(good)));
  }
}

TEST_F(DamagedProject, CutAtEveryByteSucceedsOnlyWithinTheLastLine) {
  for (const auto& good : GoodProjects()) {
    const std::string text = ProjectText(good);
    const std::size_t lastLine = text.size() - good.back().size() - 2;
    for (std::size_t length = 0; length < text.size(); ++length) {
      const std::string cut = text.substr(0, length);
      EXPECT_EQ(Load(cut), length > lastLine)
          << "mode " << good[kModeLine] << ", " << length << " bytes";
    }
  }
}

TEST_F(DamagedProject, AShippedSampleCutAtAnyByteSucceedsOnlyWithinItsLastLine) {
  for (const auto& sample : test::SampleProjects()) {
    const std::string text = test::ReadBytes("samples/" + sample.file);
    ASSERT_GT(text.size(), 100U) << sample.file;
    const std::size_t lastLine = text.rfind("\r\n", text.size() - 3) + 2;
    for (std::size_t length = 0; length <= text.size(); ++length) {
      EXPECT_EQ(Load(text.substr(0, length)), length > lastLine)
          << sample.file << ", " << length << " bytes";
    }
  }
}

// Reading asks only for the first line and for the whole numbers of station and mode; what else
// stands in a wrong field is told when it is calculated with.
TEST_F(DamagedProject, SwappedLinesFailOnlyWhereAnIndexOrTheFirstLineIsGone) {
  const auto good = ProjectLines();
  for (std::size_t i = 0; i < good.size(); ++i) {
    for (std::size_t j = i + 1; j < good.size(); ++j) {
      auto lines = good;
      std::swap(lines[i], lines[j]);
      const bool isReadable = lines[0] == good[0] && IsWholeNumber(lines[kStationLine]) &&
                              IsWholeNumber(lines[kModeLine]);
      EXPECT_EQ(Load(ProjectText(lines)), isReadable) << i << " and " << j;
    }
  }
}

TEST_F(DamagedProject, NoiseIsRefused) {
  const std::string noise = Noise(1 << 20, 7);
  EXPECT_FALSE(Load(noise));
  EXPECT_FALSE(Load("KAV3.3.01\r\n" + noise)) << "no whole number where the station stands";
  EXPECT_FALSE(Load("KAV3.3.01\r\n" + noise.substr(0, 3)));
}

TEST_F(DamagedProject, NoiseAfterAGoodFirstLineNeverCrashes) {
  std::mt19937 random(8);
  for (int round = 0; round < 200; ++round) {
    auto lines = ProjectLines(std::to_string(round % 5 - 1));
    for (int hits = 0; hits < 3; ++hits) {
      std::string& line = lines[1 + random() % (lines.size() - 1)];
      line.assign(random() % 40, ' ');
      for (char& c : line) c = static_cast<char>(random());
    }
    Load(ProjectText(lines));
  }
}

TEST_F(DamagedProject, NulBytesAreTextLikeAnyOther) {
  EXPECT_FALSE(Load(std::string(1000, '\0')));
  auto lines = ProjectLines();
  lines[kProjectNameLine] = std::string("a\0b", 3);
  EXPECT_TRUE(Load(ProjectText(lines)));
  EXPECT_EQ(Text("txtProjectName"), lines[kProjectNameLine]);
  lines[kBasinAreaLine] = std::string("10\0", 3);
  EXPECT_TRUE(Load(ProjectText(lines)));
  EXPECT_EQ(Message(), "The basin area is not numeric.");
}

TEST_F(DamagedProject, ALoneLineFeedIsPartOfItsLine) {
  EXPECT_FALSE(Load("\n"));
  auto lines = ProjectLines();
  lines[kDescriptionLine] = "two\nparts";
  EXPECT_TRUE(Load(ProjectText(lines)));
  EXPECT_EQ(Text("txtDescription"), "two\nparts");
  std::string unixText = ProjectText();
  std::erase(unixText, '\r');
  EXPECT_FALSE(Load(unixText)) << "without a CR the whole file is its first line";
}

TEST_F(DamagedProject, HugeNumbersEndOnTheBar) {
  const std::string huge(5000, '9');
  for (std::size_t line = kBasinAreaLine; line < kTailLine + 2; ++line) {
    auto lines = ProjectLines();
    lines[line] = huge;
    EXPECT_TRUE(Load(ProjectText(lines))) << line;
    EXPECT_NE(Message(), "") << line;
    EXPECT_EQ(Text("txtSolveFor(3)"), "") << line;
  }
}

}  // namespace
}  // namespace orvik
