#include <gtest/gtest.h>

#include "rain/CsvText.h"

namespace orvik {
namespace {

TEST(CsvLines, EndAtLfOrCrLf) {
  CsvLines lines("a\r\nb\n\nc");
  EXPECT_EQ(lines.Next(), "a");
  EXPECT_EQ(lines.Next(), "b");
  EXPECT_EQ(lines.Next(), "");
  EXPECT_EQ(lines.Next(), "c");
  EXPECT_EQ(lines.LineNumber(), 4);
  EXPECT_EQ(lines.Next(), std::nullopt);
}

TEST(SplitCsvLine, SeparatesQuotedFields) {
  struct Case {
    const char* line;
    std::vector<std::string> fields;
  };
  const Case cases[] = {
      {"a,b", {"a", "b"}},
      {" a , b ", {"a", "b"}},
      {"\"GAINESVILLE, FL US\",1", {"GAINESVILLE, FL US", "1"}},
      {"\"say \"\"x\"\"\",", {"say \"x\"", ""}},
      {",,", {"", "", ""}},
      {"", {""}},
  };
  for (const auto& [line, expected] : cases) {
    std::vector<std::string> fields{"left", "over", "from", "before"};
    EXPECT_TRUE(SplitCsvLine(line, fields)) << line;
    EXPECT_EQ(fields, expected) << line;
  }
}

TEST(SplitCsvLine, RefusesAQuoteThatIsNotClosed) {
  std::vector<std::string> fields;
  EXPECT_FALSE(SplitCsvLine("1,\"open", fields));
}

}  // namespace
}  // namespace orvik
