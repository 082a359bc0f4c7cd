#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/FileError.h"
#include "rain/RainDate.h"
#include "rain/RainRecord.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

using testing::HasSubstr;

std::string ErrorOf(std::string_view text, const RainColumns& columns = {}) {
  try {
    ParseRainRecord(text, RainUnit::Inches, columns);
  } catch (const FileError& error) {
    return error.what();
  }
  return "no error";
}

TEST(RainRecord, ReadsDatesAndDepths) {
  const RainRecord record =
      ParseRainRecord("date,precipitation_in\n2001-01-01,0.5\n2001-01-02,0\n", RainUnit::Inches);
  ASSERT_EQ(record.days.size(), 2U);
  EXPECT_EQ(IsoDate(record.days[0].date), "2001-01-01");
  EXPECT_EQ(record.days[0].depthIn, 0.5);
  EXPECT_EQ(IsoDate(record.last), "2001-01-02");
}

TEST(RainRecord, ConvertsEachUnitToInches) {
  struct Case {
    const char* unit;
    double inches;
  };
  for (const auto& [unit, inches] :
       {Case{"in", 254}, Case{"hundredths-in", 2.54}, Case{"mm", 10}, Case{"tenths-mm", 1}}) {
    const auto found = FindRainUnit(unit);
    ASSERT_TRUE(found) << unit;
    const RainRecord record = ParseRainRecord("date,rain\n2001-01-01,254\n", *found);
    EXPECT_DOUBLE_EQ(record.days[0].depthIn, inches) << unit;
  }
  EXPECT_FALSE(FindRainUnit("cm"));
}

TEST(RainRecord, FindsColumnsByNameInAnyCaseAndOrder) {
  for (const char* text :
       {"STATION,DATE,NAME,PRCP\nX,5/1/1960,\"A, B\",7\n", "PRCP,DATE\r\n7,5/1/1960\r\n",
        "\xEF\xBB\xBF"
        "date,rainfall\n1960-05-01,7\n"}) {
    test::TempFolder folder;
    const RainRecord record = ReadRainRecord(folder.Write("r.csv", text), RainUnit::Inches);
    ASSERT_EQ(record.days.size(), 1U) << text;
    EXPECT_EQ(record.days[0].depthIn, 7) << text;
  }
}

TEST(RainRecord, TakesTheColumnsThatTheUserNames) {
  const RainRecord record = ParseRainRecord("d,a,date,prcp\n2001-01-01,1,2002-02-02,2\n",
                                            RainUnit::Inches, {.date = "D", .depth = "a"});
  EXPECT_EQ(IsoDate(record.first), "2001-01-01");
  EXPECT_EQ(record.days[0].depthIn, 1);
}

TEST(RainRecord, ColumnsThatAreNotFoundAreNamed) {
  EXPECT_THAT(ErrorOf("when,prcp\n"),
              HasSubstr("no column with a known name for the date. Its columns are: when, prcp."));
  EXPECT_THAT(ErrorOf("date,snow\n"), HasSubstr("a known name for the rainfall depth"));
  EXPECT_THAT(ErrorOf("date,prcp\n", {.date = "", .depth = "rain"}),
              HasSubstr("no column \"rain\""));
  EXPECT_THAT(ErrorOf(""), HasSubstr("no header line"));
  EXPECT_THAT(ErrorOf("date,prcp\n"), HasSubstr("no rows"));
}

TEST(RainRecord, RowsThatCannotBeReadAreRefusedWithTheirLine) {
  struct Case {
    const char* row;
    const char* reason;
  };
  const Case cases[] = {
      {"2001-02-30,1", "Line 3: \"2001-02-30\" is not a date."},
      {"2001-01-02,wet", "Line 3: \"wet\" is not a rainfall depth."},
      {"2001-01-02,1.2.3", "Line 3: \"1.2.3\" is not a rainfall depth."},
      {"2001-01-02,0.25A", "is not a rainfall depth"},
      {"2001-01-02,1,", "Line 3: there are more fields than columns."},
      {"2001-01-02,1,A", "Line 3: there are more fields than columns."},
      {"2001-01-02", "Line 3: there are fewer fields than columns."},
      {"\"2001-01-02,1", "Line 3: a quotation mark is not closed."},
  };
  for (const auto& [row, reason] : cases) {
    EXPECT_THAT(ErrorOf(std::string("date,prcp\n2001-01-01,0\n") + row + "\n"), HasSubstr(reason));
  }
}

// 12,7 mm of a gauge that writes decimal commas would be read as 12.
TEST(RainRecord, ADecimalCommaIsRefusedAndExplained) {
  const std::string hint = "; if 12,7 is one number, write it with a decimal point: 12.7.";
  const std::string more = "there are more fields than columns" + hint;
  EXPECT_THAT(ErrorOf("date,prcp\n2001-01-01,0\n2001-01-02,12,7\n"), HasSubstr("Line 3: " + more));
  EXPECT_THAT(ErrorOf("prcp,date\n12,7,2001-01-01\n"), HasSubstr("Line 2: " + more));
  EXPECT_THAT(ErrorOf("date,prcp,flag\n2001-01-02,12,7,A\n"), HasSubstr(more));
  EXPECT_THAT(ErrorOf("date,prcp\n2001-01-02,\"12,7\"\n"),
              HasSubstr("Line 2: \"12,7\" is not a rainfall depth" + hint));
}

// 72 inches are the wettest day ever measured; in tenths of a millimetre that is 18288.
TEST(RainRecord, ADepthBeyondEveryUnitIsRefusedWithItsLineAndValue) {
  const std::string row = "date,prcp\n2001-01-01,0\n2001-01-02,";
  for (const char* depth : {"18289", "1e308"}) {
    EXPECT_THAT(ErrorOf(row + depth + "\n"),
                HasSubstr("Line 3: \"" + std::string(depth) + "\" is more rain than any day can"))
        << depth;
  }
  EXPECT_EQ(ErrorOf(row + "18288\n"), "no error") << "the mean annual rainfall names the unit";
  EXPECT_EQ(ParseRainRecord(row + "99999\n", RainUnit::TenthsOfMillimetre).days.size(), 2U);
}

TEST(RainRecord, ALineThatIsNoRowIsRefusedBeforeItIsSplit) {
  const std::string more(65537, ',');
  EXPECT_EQ(ErrorOf(more), "Line 1: it has more than 65536 bytes.");
  EXPECT_EQ(ErrorOf("date,prcp\n2001-01-01,\"" + more + "\n"),
            "Line 2: it has more than 65536 bytes.");
}

TEST(RainRecord, AMessageQuotesOnlyTheBeginningOfALongField) {
  EXPECT_EQ(ErrorOf("date,prcp\n" + std::string(1000, 'x') + "\x1B,1\n"),
            "Line 2: \"" + std::string(80, 'x') + "...\" is not a date.");
  EXPECT_EQ(ErrorOf("date,prcp\na\x1B[2Jb,1\n"), "Line 2: \"a [2Jb\" is not a date.");
}

TEST(RainRecord, Utf16IsNamed) {
  const test::TempFolder folder;
  const std::string path = folder.Write("a.csv", std::string("\xFF\xFE"
                                                             "d\0a\0",
                                                             6));
  try {
    ReadRainRecord(path, RainUnit::Inches);
    FAIL();
  } catch (const FileError& error) {
    EXPECT_THAT(error.what(), HasSubstr(path + " is encoded as UTF-16. Save it as UTF-8"));
  }
}

TEST(RainRecord, EmptyColumnsAfterTheOthersAreColumns) {
  const RainRecord record = ParseRainRecord("date,prcp,\n2001-01-01,1,\n", RainUnit::Inches);
  EXPECT_EQ(record.days.at(0).depthIn, 1);
}

TEST(RainRecord, OnlyTheFirstBadRowsAreListed) {
  std::string text = "date,prcp\n";
  for (int i = 0; i < 8; ++i) text += "x,0\n";
  EXPECT_THAT(ErrorOf(text), HasSubstr("Line 6: \"x\" is not a date.\n... and 3 more."));
}

TEST(RainRecord, StationsAreNotMixed) {
  EXPECT_THAT(
      ErrorOf("STATION,DATE,PRCP\nA,2001-01-01,1\nB,2001-01-01,2\n"),
      HasSubstr(
          "Line 3: the station is B, but A in the rows above; keep the rows of one station."));
}

TEST(RainRecord, CountsWhatItDoesNotUse) {
  const RainRecord record = ParseRainRecord(
      "date,prcp\n"
      "2001-01-05,0.5\n"  // out of order: sorted
      "2001-01-01,0.1\n"
      "2001-01-02,\n"
      "2001-01-03,-9999\n"
      "2001-01-05,0.5\n"
      "2001-01-05,0.7\n"
      "2001-01-06,T\n"
      "2001-01-07,M\n"
      "\n"
      "2001-01-10,1\n",
      RainUnit::Inches);
  EXPECT_EQ(record.findings.rows, 9);
  EXPECT_EQ(record.findings.missing, 2);
  EXPECT_EQ(record.findings.negative, 1);
  EXPECT_EQ(record.findings.firstNegativeLine, 5);
  EXPECT_EQ(record.findings.duplicate, 2);
  EXPECT_EQ(record.findings.conflicting, 1);
  EXPECT_EQ(record.findings.firstConflictingLine, 7);
  EXPECT_EQ(record.findings.trace, 1);
  EXPECT_EQ(record.findings.gaps, 2);
  EXPECT_EQ(record.findings.gapDays, 3);  // January 4, 8 and 9
  ASSERT_EQ(record.days.size(), 4U);
  EXPECT_EQ(record.days[1].depthIn, 0.5);  // the first of the two values of January 5
  const std::string text = DescribeFindings(record);
  EXPECT_THAT(text, HasSubstr("from 2001-01-01 to 2001-01-10: 4 days with a value, 2 rows without, "
                              "2 gaps (3 days without a row)."));
  EXPECT_THAT(text, HasSubstr("1 row, the first in line 5."));
  EXPECT_THAT(text, HasSubstr("the first in line 7."));
}

TEST(RainRecord, AMissingFileIsNamed) {
  try {
    ReadRainRecord("nowhere/rain.csv", RainUnit::Inches);
    FAIL();
  } catch (const FileError& error) {
    EXPECT_THAT(error.what(), HasSubstr("nowhere/rain.csv cannot be read"));
  }
}

}  // namespace
}  // namespace orvik
