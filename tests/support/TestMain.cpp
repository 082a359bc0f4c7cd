// The main program of every test program. Tests find what they read, and leave what they write,
// from the build's folder, wherever they are started.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  std::filesystem::current_path(ORVIK_BUILD_FOLDER);
  return RUN_ALL_TESTS();
}
