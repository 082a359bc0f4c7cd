// The texts to the letter: whoever changes the version sees here what changes with it.
#include <gtest/gtest.h>

#include "base/BuildVersion.h"
#include "base/ModuleVersion.h"

namespace orvik {
namespace {

TEST(ModuleVersion, ProductAndModuleAreNamedWithMajorAndMinorNumber) {
  EXPECT_EQ(kProductName, "ORVIK 3.3");
  EXPECT_EQ(kModuleTitle, "ORVIK 3.3 Stormwater Harvesting Module");
}

TEST(ModuleVersion, HasThreeNumbers) {
  EXPECT_EQ(kModuleVersion, "3.3.1");
}

TEST(ModuleVersion, WindowsShowTheBuildNumberInFourDigits) {
  EXPECT_EQ(BuildVersionText(), "3.3.0001");
}

}  // namespace
}  // namespace orvik
