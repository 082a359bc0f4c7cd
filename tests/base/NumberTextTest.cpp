#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

#include "base/NumberText.h"
#include "base/RuntimeErrors.h"

namespace orvik {
namespace {

struct SingleCase {
  float value;
  const char* text;
};

TEST(ConvertToString, WritesSinglesWithUpToSevenDigits) {
  const SingleCase cases[] = {
      {0.25F, "0.25"},
      {-0.25F, "-.25"},  // the minus sign is first, so no zero is put in front
      {0.0F, "0"},
      {-0.0F, "0"},
      {5.0F, "5"},
      {12.0F, "12"},
      {1.0F / 7.0F, "0.1428571"},
      {3879.183F, "3879.183"},
      {100000.0F, "100000"},
      {9999999.0F, "9999999"},
      {1e7F, "1E+07"},
      {1.25e9F, "1.25E+09"},
      {3e-8F, "3E-08"},
      {1e-7F, "0.0000001"},
      {-1e-7F, "-.0000001"},
      {1.5e-10F, "1.5E-10"},
      {std::numeric_limits<float>::max(), "3.402823E+38"},
      {std::numeric_limits<float>::denorm_min(), "1.401298E-45"},
      {16777216.0F, "1.677722E+07"},
      {0.1F, "0.1"},
      {123.4567F, "123.4567"},
  };
  for (const auto& [value, text] : cases) EXPECT_EQ(ConvertToString(value), text);
}

struct DoubleCase {
  double value;
  const char* text;
};

TEST(ConvertToString, WritesDoublesWithUpToFifteenDigits) {
  const DoubleCase cases[] = {
      {0.1, "0.1"},
      {0.1 + 0.2, "0.3"},
      {1.0 / 3.0, "0.333333333333333"},
      {2.0 / 3.0, "0.666666666666667"},
      {7.0, "7"},
      {0.4, "0.4"},
      {123456789012345.0, "123456789012345"},
      {999999999999999.0, "999999999999999"},
      {999999999999999.9, "1E+15"},  // the digits that are shown decide the form
      {1e15, "1E+15"},
      {1e100, "1E+100"},
      {1e-7, "0.0000001"},
      {9.99e-8, "9.99E-08"},
      {-1234.5, "-1234.5"},
  };
  for (const auto& [value, text] : cases) EXPECT_EQ(ConvertToString(value), text);
}

TEST(ConvertToString, NeverShowsInfinityOrNotANumber) {
  EXPECT_THROW(ConvertToString(std::numeric_limits<float>::infinity()), OverflowError);
  EXPECT_THROW(ConvertToString(-std::numeric_limits<double>::infinity()), OverflowError);
  EXPECT_THROW(ConvertToString(std::nan("")), OverflowError);
}

TEST(ConvertToString, IsWithinHalfAUnitOfTheSeventhDigit) {
  for (float value = 0.001F; value < 10.0F; value *= 1.0137F) {
    const double unit = std::pow(10.0, std::floor(std::log10(static_cast<double>(value))) - 6);
    EXPECT_NEAR(ParseNumber(ConvertToString(value)), value, unit * 0.5000001) << value;
  }
}

TEST(ToDecimalText, OmitsTheLeadingZero) {
  EXPECT_EQ(ToDecimalText(0.5F), ".5");
  EXPECT_EQ(ToDecimalText(-0.5), "-.5");
}

TEST(AddZeroPrefix, TouchesOnlyNumbersThatBeginWithAPeriod) {
  EXPECT_EQ(AddZeroPrefix(".5"), "0.5");
  EXPECT_EQ(AddZeroPrefix("-.5"), "-.5");
  EXPECT_EQ(AddZeroPrefix("0.5"), "0.5");
  EXPECT_EQ(AddZeroPrefix(".x"), ".x");
  EXPECT_EQ(AddZeroPrefix("."), ".");
  EXPECT_EQ(AddZeroPrefix(""), "");
}

TEST(WithLeadingZeros, FillsUpToTheWidthAndCutsNothing) {
  EXPECT_EQ(WithLeadingZeros(7, 2), "07");
  EXPECT_EQ(WithLeadingZeros(0, 3), "000");
  EXPECT_EQ(WithLeadingZeros(12, 2), "12");
  EXPECT_EQ(WithLeadingZeros(12345, 4), "12345");
  EXPECT_EQ(WithLeadingZeros(5, 0), "5");
}

TEST(MonthDayYear, HasTenCharacters) {
  EXPECT_EQ(MonthDayYear(4, 7, 2026), "04-07-2026");
  EXPECT_EQ(MonthDayYear(11, 21, 987), "11-21-0987");
}

struct ParseCase {
  const char* text;
  double value;
};

TEST(ParseNumber, TakesTheLongestNumericPrefix) {
  const ParseCase cases[] = {
      {"60abc", 60},   {"  2.5", 2.5}, {"-.5x", -0.5}, {"+7", 7},      {"1e3", 1000},
      {"1E-2,", 0.01}, {"5e", 5},      {"5e+", 5},     {"1.2.3", 1.2}, {"3,4", 3},
      {"", 0},         {"abc", 0},     {".", 0},       {"-", 0},       {"e5", 0},
      {"inf", 0},      {"nan", 0},     {"0x10", 0},    {"1_000", 1},   {"\t5", 0},
      {"12.", 12},     {"--5", 0},     {"1e-400", 0},  {"0e999", 0},   {"1e-99999999999", 0},
  };
  for (const auto& [text, value] : cases) EXPECT_EQ(ParseNumber(text), value) << text;
}

TEST(ParseNumber, IsInfiniteBeyondADouble) {
  EXPECT_EQ(ParseNumber("1e400"), std::numeric_limits<double>::infinity());
  EXPECT_EQ(ParseNumber("-1e400"), -std::numeric_limits<double>::infinity());
  EXPECT_EQ(ParseNumber("0.001e400"), std::numeric_limits<double>::infinity());
  EXPECT_EQ(ParseNumber(std::string(400, '9')), std::numeric_limits<double>::infinity());
  EXPECT_EQ(ParseNumber("0." + std::string(400, '0') + "1"), 0);
}

TEST(IsNumericText, RequiresTheWholeText) {
  for (const char* text : {"0", "-1", "+.5", "5.", " 12.5 ", "1e5", "1E-05", "00012"}) {
    EXPECT_TRUE(IsNumericText(text)) << text;
  }
  for (const char* text : {"", " ", ".", "-", "60abc", "1,000", "1 2", "1e", "$5", "1e400", "5 e3",
                           "- 5", "inf", "nan", "0x1F", "1\t"}) {
    EXPECT_FALSE(IsNumericText(text)) << text;
  }
}

TEST(IsWholeNumberText, RequiresSignAndDigits) {
  for (const char* text : {"0", "-1", "+25", " 7 ", "007"})
    EXPECT_TRUE(IsWholeNumberText(text)) << text;
  for (const char* text : {"", "-", "2.5", "1e3", "abc", "1 2", "--1"}) {
    EXPECT_FALSE(IsWholeNumberText(text)) << text;
  }
}

TEST(ParseWholeNumber, HoldsSixteenBits) {
  EXPECT_EQ(ParseWholeNumber("32767"), 32767);
  EXPECT_EQ(ParseWholeNumber("-32768"), -32768);
  EXPECT_EQ(ParseWholeNumber("32768"), std::nullopt);
  EXPECT_EQ(ParseWholeNumber(std::string(500, '9')), std::nullopt);
  EXPECT_EQ(ParseWholeNumber("x"), std::nullopt);
}

// The C library's printing rounds the exact binary value; its digits are ours.
TEST(NumberText, SingleNumbersHaveTheDigitsOfTheExactValue) {
  std::mt19937 random(7);
  std::uniform_int_distribution<std::uint32_t> bits;
  std::uniform_real_distribution<double> exponents(-8, 8);
  const auto check = [](float value) {
    std::array<char, 32> printed{};
    std::snprintf(printed.data(), printed.size(), "%.6e", static_cast<double>(value));
    // Both texts are the same seven digits, so they are the same double.
    EXPECT_EQ(std::strtod(printed.data(), nullptr), ParseNumber(ToDecimalText(value)))
        << printed.data();
  };
  for (int i = 0; i < 200000; ++i) {
    const float value = std::bit_cast<float>(bits(random));
    if (std::isfinite(value)) check(value);
    check(static_cast<float>(std::pow(10, exponents(random))));
    // Halves of the seventh digit: exact ties where single precision holds them.
    check(static_cast<float>(i) * 0.5F + 100000.0F);
    check(static_cast<float>(i % 9999) * 0.0009765625F);
  }
}

// The C library reads every decimal exactly rounded.
TEST(ParseNumber, ReadsShortDecimalsExactlyRounded) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 300000; ++i) {
    std::string text = std::to_string(random() % 10000000000000000ULL >> random() % 50);
    text.insert(random() % (text.size() + 1), ".");
    EXPECT_EQ(ParseNumber(text), std::strtod(text.c_str(), nullptr)) << text;
    EXPECT_EQ(ParseNumericText(text), std::strtod(text.c_str(), nullptr)) << text;
  }
  EXPECT_EQ(ParseNumericText("1 acre"), std::nullopt);
  EXPECT_EQ(ParseNumericText("1e999"), std::nullopt);
  EXPECT_EQ(ParseNumericText(" -2.50 "), -2.5);
}

TEST(NumberText, DoesNotFollowTheLocale) {
  const char* const commaLocales[] = {"de_DE.UTF-8", "de_DE.utf8", "German_Germany.1252", "de-DE"};
  bool found = false;
  for (const char* name : commaLocales) found = found || std::setlocale(LC_ALL, name) != nullptr;
  ASSERT_TRUE(found) << "no decimal-comma locale on this system";
  EXPECT_STREQ(std::localeconv()->decimal_point, ",");
  EXPECT_EQ(ConvertToString(2.5F), "2.5");
  EXPECT_EQ(ParseNumber("2.5"), 2.5);
  EXPECT_TRUE(IsNumericText("2.5"));
  EXPECT_FALSE(IsNumericText("2,5"));
  std::setlocale(LC_ALL, "C");
}

TEST(ShortestText, ReadsBackAsTheSameNumber) {
  EXPECT_EQ(ToShortestText(0.1F), "0.1");
  EXPECT_EQ(ToShortestText(3.0F), "3");
  EXPECT_EQ(ToShortestText(-0.15), "-0.15");
  for (float value = 1E-20F; value < 1E20F; value *= 1.37F) {
    EXPECT_EQ(static_cast<float>(ParseNumber(ToShortestText(value))), value);
  }
  EXPECT_THROW(ToShortestText(std::numeric_limits<float>::infinity()), OverflowError);
}

}  // namespace
}  // namespace orvik
