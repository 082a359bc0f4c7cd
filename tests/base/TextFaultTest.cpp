#include <gtest/gtest.h>

#include "base/TextFault.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

using std::string_view_literals::operator""sv;

TEST(FindTextFault, AFileThatIsNotThereOrIsAFolder) {
  const test::TempFolder folder;
  EXPECT_EQ(FindTextFault(folder / "none.kav"), TextFault::Missing);
  EXPECT_EQ(FindTextFault(folder.Path()), TextFault::IsFolder);
}

TEST(FindTextFault, RecognisesLinesThatEndWithALineFeedAlone) {
  const test::TempFolder folder;
  EXPECT_EQ(FindTextFault(folder.Write("a", "title\n0\n7\n")), TextFault::HasOnlyLineFeeds);
  for (const char* text : {"title", "title\r\n0\r\n", "title\r0\r", "title\r\n0\n"}) {
    EXPECT_EQ(FindTextFault(folder.Write("a", text)), TextFault::None) << text;
  }
  EXPECT_EQ(FindTextFault(folder.Write("a", "")), TextFault::Empty);
}

TEST(FindTextFault, RecognisesUtf16OfEitherOrderWithAndWithoutAMark) {
  const test::TempFolder folder;
  for (const auto bytes : {"\xFF\xFEK\0A\0"sv, "\xFE\xFF\0K\0A"sv, "K\0A\0"sv, "\0K\0A"sv}) {
    EXPECT_EQ(FindTextFault(folder.Write("a", bytes)), TextFault::IsUtf16);
  }
  for (const auto bytes : {"K"sv, "\0\0"sv, "KA\0V"sv, "\xEF\xBB\xBFK"sv}) {
    EXPECT_EQ(FindTextFault(folder.Write("a", bytes)), TextFault::None);
  }
}

}  // namespace
}  // namespace orvik
