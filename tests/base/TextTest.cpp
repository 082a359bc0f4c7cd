#include <gtest/gtest.h>

#include "base/Text.h"

namespace orvik {
namespace {

TEST(Text, FoldsEachLineEndToOneBlank) {
  const struct {
    const char* text;
    const char* folded;
  } rows[] = {{"", ""},           {"one line", "one line"}, {"a\r\nb", "a b"},  {"a\rb", "a b"},
              {"a\nb", "a b"},    {"a\n\rb", "a  b"},       {"\r\n\r\n", "  "}, {"a\r", "a "},
              {"ñ\r\n中", "ñ 中"}};
  for (const auto& row : rows) EXPECT_EQ(FoldLineEnds(row.text), row.folded) << row.text;
}

TEST(Text, ComparesTheLettersAToZWithoutTheirCase) {
  EXPECT_TRUE(EqualIgnoringCase("West Palm Beach", "wEST pALM bEACH"));
  EXPECT_TRUE(EqualIgnoringCase("", ""));
  EXPECT_FALSE(EqualIgnoringCase("Tampa", "Tampa "));
  EXPECT_FALSE(EqualIgnoringCase("É", "é"));    // no letters of A to Z
  EXPECT_FALSE(EqualIgnoringCase("@[", "`{"));  // the neighbours of A and Z, of a and z
}

TEST(Text, FindsABeginningAndAnEndingInAnyCase) {
  EXPECT_TRUE(StartsWithIgnoringCase("FONT=Arial", "Font="));
  EXPECT_FALSE(StartsWithIgnoringCase("Fon", "Font="));
  EXPECT_TRUE(EndsWithIgnoringCase("pond.KAV", ".kav"));
  EXPECT_TRUE(EndsWithIgnoringCase(".kav", ".kav"));
  EXPECT_FALSE(EndsWithIgnoringCase("kav", ".kav"));
  EXPECT_FALSE(EndsWithIgnoringCase("pond.kav.txt", ".kav"));
}

}  // namespace
}  // namespace orvik
