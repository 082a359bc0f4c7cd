#include <gtest/gtest.h>

#include "engine/CurveFileDiagnosis.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

TEST(DiagnoseCurveFile, RecognisesLinesThatEndWithALineFeedAlone) {
  const test::TempFolder folder;
  EXPECT_EQ(DiagnoseCurveFile(folder.Write("a.crv", "title\n0\n7\n")),
            "its lines must end with CR LF");
}

TEST(DiagnoseCurveFile, IsEmptyForOtherDamage) {
  const test::TempFolder folder;
  for (const char* text : {"", "title", "title\r\n0\r\n", "title\r0\r", "title\r\n0\n"}) {
    EXPECT_EQ(DiagnoseCurveFile(folder.Write("a.crv", text)), "") << text;
  }
  EXPECT_EQ(DiagnoseCurveFile(folder / "none.crv"), "");
}

}  // namespace
}  // namespace orvik
