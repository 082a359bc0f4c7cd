// What every command does with --json, and how messages reach the terminal.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/Console.h"
#include "design/Hints.h"
#include "support/KavRun.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

using test::KavRun;
using testing::ElementsAre;

KavRun Kav(const std::vector<std::string>& arguments) {
  return test::RunKavWith(arguments, ORVIK_DATA_DIR "/");
}

TEST(JsonOfFailure, AFileThatCannotBeReadIsAnObjectOnStandardOutputToo) {
  const test::TempFolder folder;
  const KavRun run = Kav({"curves", "check", folder / "none.crv", "--json"});
  EXPECT_EQ(run.exitCode, 3);
  const auto object = nlohmann::json::parse(run.out);
  EXPECT_EQ(object["exitCode"], 3);
  EXPECT_THAT(object["messages"],
              ElementsAre("The curve file " + (folder / "none.crv") + " cannot be read."));
  EXPECT_TRUE(object["hints"].is_array());
}

TEST(JsonOfFailure, WrongUsageIsAnObjectToo) {
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{"--json"},
                                                    {"--json", "foo"},
                                                    {"solve", "--json", "--rate", "x"}}) {
    const KavRun run = Kav(arguments);
    EXPECT_EQ(run.exitCode, 2);
    const auto object = nlohmann::json::parse(run.out);
    EXPECT_EQ(object["exitCode"], 2);
    EXPECT_EQ(object["messages"].size(), 1U);
    EXPECT_NE(run.err, "");
  }
}

TEST(JsonOfFailure, WithoutTheOptionStandardOutputStaysEmpty) {
  EXPECT_EQ(Kav({"foo"}).out, "");
}

TEST(JsonOutput, EveryObjectHasHints) {
  EXPECT_TRUE(nlohmann::json::parse(Kav({"stations", "--json"}).out)["hints"].empty());
}

// Latin-1 arguments, as a script in that encoding gives them: the file is written and so is JSON.
TEST(JsonOutput, TextThatIsNotUtf8IsNoFailure) {
  const test::TempFolder folder;
  const KavRun made =
      Kav({"curves", "make", "--rain", ORVIK_DATA_DIR "/samples/synthetic-rain.csv", "--unit", "in",
           "--name", "Caf\xE9", "--source", "\xF1", "-o", folder / "a.crv", "--json"});
  EXPECT_EQ(made.exitCode, 0) << made.err;
  EXPECT_EQ(nlohmann::json::parse(made.out)["name"], "Caf\xEF\xBF\xBD");
}

TEST(Messages, ReachTheTerminalWithoutControlCharactersAndOfBoundedLength) {
  EXPECT_EQ(Kav({"a\x1B[2Jb"}).err, "There is no command \"a [2Jb\". kav --help lists them.\n");
  EXPECT_LT(Kav({std::string(1'000'000, 'x')}).err.size(), 1100U);
}

TEST(Messages, KeepTheirLines) {
  std::ostringstream out;
  std::ostringstream err;
  Console console{out, err, false, ""};
  PrintMessage(console, "first\r\n\nthird\n");
  EXPECT_EQ(err.str(), "first\n\nthird\n");
  EXPECT_THAT(console.messages, ElementsAre("first\n\nthird"));
}

TEST(Messages, AHintIsALineThatSaysSo) {
  std::ostringstream out;
  std::ostringstream err;
  Console console{out, err, false, ""};
  PrintHints(console, {{HintId::PossiblyCutShort, {"a\n.kav"}}});
  EXPECT_EQ(err.str(),
            "hint: The last line of \"a .kav\" does not end with a line break: the file may have "
            "been cut short. Check every number against the original.\n");
  EXPECT_EQ(err.str(), "hint: " + console.hints.at(0) + "\n");
}

}  // namespace
}  // namespace orvik
