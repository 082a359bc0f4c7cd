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

}  // namespace
}  // namespace orvik
