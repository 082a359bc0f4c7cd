// For the programs whose tests all need the library in the registry.
#pragma once

#include <gtest/gtest.h>

#include "windows/Server.h"

namespace orvik::test {

// Registers the library for the time of the whole program.
class RegisteredLibrary : public testing::Environment {
 public:
  void SetUp() override { ASSERT_EQ(RunRegsvr32(), 0U); }
  void TearDown() override { EXPECT_EQ(RunRegsvr32(L"/u"), 0U); }
};

}  // namespace orvik::test
