#include <gtest/gtest.h>

#include "design/Hints.h"

namespace orvik {
namespace {

TEST(Hints, ValuesReplaceTheirPlaceholdersAndAreNotSearchedForMore) {
  EXPECT_EQ(
      Sentence(Hint{HintId::PossiblyCutShort, {"{}.kav"}}),
      "The last line of \"{}.kav\" does not end with a line break: the file may have been cut "
      "short. Check every number against the original.");
}

TEST(Hints, APlaceWithoutAValueStaysEmpty) {
  EXPECT_NE(Sentence(Hint{HintId::PossiblyCutShort}).find("The last line of \"\" does"),
            std::string::npos);
}

}  // namespace
}  // namespace orvik
