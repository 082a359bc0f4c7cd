#include <gtest/gtest.h>

#include "base/RuntimeErrors.h"
#include "design/Conversions.h"

namespace orvik {
namespace {

TEST(Conversions, OneInchPerWeekOnOneAcreInGallonsPerDay) {
  // 1/12/7 ft/day x 43560 sq ft x 7.480519 gal/cu ft = 3879.18...
  EXPECT_EQ(InchesPerWeek_To_GPD("1", "1"), "3879.183");
}

TEST(Conversions, GallonsPerDayOfATextThatIsNotANumberAreThoseOfZero) {
  EXPECT_EQ(InchesPerWeek_To_GPD("", "1"), "0");
  EXPECT_EQ(InchesPerWeek_To_GPD("1", "acre"), "0");
  EXPECT_EQ(InchesPerWeek_To_GPD("1 in", "1 ac"), "3879.183") << "the numeric prefix counts";
}

TEST(Conversions, GallonsPerDayBeyondSinglePrecisionAreAFault) {
  EXPECT_THROW(InchesPerWeek_To_GPD("1E38", "1E38"), OverflowError);
}

TEST(Conversions, NormalizedStorageIsAFootDepthOnTheEia) {
  std::string site;
  Message message;
  EXPECT_TRUE(NormalizedStorageToSiteStorage("12", "5", site, message));
  EXPECT_EQ(site, "5");
  EXPECT_TRUE(NormalizedStorageToSiteStorage(" 3 ", " 5 ", site, message));
  EXPECT_EQ(site, "1.25");
}

TEST(Conversions, NormalizedReuseIsSpreadOverTheIrrigationAreaForAWeek) {
  std::string site;
  Message message{MessageId::MissingData};
  EXPECT_TRUE(NormalizedReuseToSiteReuse("0.125", "5", "5", site, message));
  EXPECT_EQ(site, "0.875");
  EXPECT_EQ(message, Message{});
  EXPECT_TRUE(NormalizedReuseToSiteReuse("0.125", "5", "10", site, message));
  EXPECT_EQ(site, "0.4375");
}

// Values whose last digit tells the order of operations and the precision; recalculated step by
// step outside of this code, each step rounded to single precision.
TEST(Conversions, TheOrderOfOperationsIsPartOfTheResult) {
  std::string site;
  Message message;
  // V x EIA / 12 and double precision give 7.9765 and 9.33875.
  EXPECT_TRUE(NormalizedStorageToSiteStorage("2.58", "37.1", site, message));
  EXPECT_EQ(site, "7.976499");
  EXPECT_TRUE(NormalizedStorageToSiteStorage("4.65", "24.1", site, message));
  EXPECT_EQ(site, "9.338751");
  // All other orders and double precision give 0.7163774 and 0.6776418.
  EXPECT_TRUE(NormalizedReuseToSiteReuse("0.226", "16.8", "37.1", site, message));
  EXPECT_EQ(site, "0.7163773");
  EXPECT_TRUE(NormalizedReuseToSiteReuse("0.141", "23", "33.5", site, message));
  EXPECT_EQ(site, "0.6776417");
  // Double precision gives 79693.95 and 99850.18, single from the beginning 79693.95 and 99850.17.
  EXPECT_EQ(InchesPerWeek_To_GPD("1.07", "19.2"), "79693.94");
  EXPECT_EQ(InchesPerWeek_To_GPD("0.9", "28.6"), "99850.19");
}

TEST(Conversions, NegativeNumbersAreConverted) {
  std::string site;
  Message message;
  EXPECT_TRUE(NormalizedReuseToSiteReuse("-0.125", "5", "5", site, message));
  EXPECT_EQ(site, "-.875");
}

TEST(Conversions, AnIrrigationAreaOfZeroIsADivisionByZero) {
  std::string site;
  Message message;
  EXPECT_THROW(NormalizedReuseToSiteReuse("1", "5", "0", site, message), DivisionByZeroError);
}

// The form asks for these conversions only where it has filled V, R and the EIA itself, so their
// sentences can be reached from here alone.
TEST(Conversions, EveryMissingOrBadTextHasItsSentence) {
  const struct {
    const char* V;
    const char* EIA;
    const char* message;
  } storage[] = {
      {"", "5", "The normalized storage volume has not been defined."},
      {"x", "5", "The normalized storage volume is not numeric."},
      {"1", " ", "The equivalent impervious area (EIA) has not been calculated."},
      {"1", "x", "The equivalent impervious area (EIA) does not evaluate to a number."},
      {"", "", "The normalized storage volume has not been defined."},
  };
  std::string site;
  Message message;
  for (const auto& bad : storage) {
    EXPECT_FALSE(NormalizedStorageToSiteStorage(bad.V, bad.EIA, site, message)) << bad.message;
    EXPECT_EQ(Sentence(message), bad.message);
  }
  const struct {
    const char* R;
    const char* EIA;
    const char* area;
    const char* message;
  } reuse[] = {
      {"", "5", "5", "The normalized reuse rate is undefined."},
      {"x", "5", "5", "The normalized reuse rate does not evaluate to a number."},
      {"1", "", "5", "The equivalend impervious area has not been calculated."},
      {"1", "x", "5", "The equivalend impervious area does not evaluate to a number."},
      {"1", "5", "", "The irrigation area has not been specified."},
      {"1", "5", "x", "The irrigation area does not evaluate to a number."},
      {"1", "", "", "The equivalend impervious area has not been calculated."},
  };
  for (const auto& bad : reuse) {
    EXPECT_FALSE(NormalizedReuseToSiteReuse(bad.R, bad.EIA, bad.area, site, message))
        << bad.message;
    EXPECT_EQ(Sentence(message), bad.message);
  }
}

}  // namespace
}  // namespace orvik
