#include "support/GoldenPicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace orvik::test {
namespace {

constexpr int kMostDifference = 32;
constexpr std::size_t kOneOf = 500;
constexpr std::uint32_t kRedPixel = 0xFF0000;

bool Differ(std::uint32_t a, std::uint32_t b) {
  for (const int shift : {0, 8, 16}) {
    const int difference =
        static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF);
    if (std::abs(difference) > kMostDifference) return true;
  }
  return false;
}

// Red where the two differ, white elsewhere.
Picture Difference(const Picture& a, const Picture& b) {
  Picture difference{a.size, std::vector<std::uint32_t>(a.pixels.size(), 0xFFFFFF)};
  for (std::size_t i = 0; i < a.pixels.size(); ++i) {
    if (Differ(a.pixels[i], b.pixels[i])) difference.pixels[i] = kRedPixel;
  }
  return difference;
}

bool AreAlike(const Picture& a, const Picture& b) {
  if (a.size != b.size) return false;
  const auto count = std::ranges::count(Difference(a, b).pixels, kRedPixel);
  return static_cast<std::size_t>(count) * kOneOf <= a.pixels.size();
}

void Save(const std::string& path, const Picture& picture, const GoldenFolders& folders) {
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  folders.write(path, picture);
}

}  // namespace

void ExpectGolden(const std::string& name, const Picture& output, const GoldenFolders& folders) {
  const std::string path = folders.golden + name + ".png";
  if (std::getenv("ORVIK_UPDATE_GOLDEN")) Save(path, output, folders);
  const Picture reference = folders.read(path);
  if (AreAlike(output, reference)) return;
  const std::string folder = folders.pictures + name + "/";
  Save(folder + "output.png", output, folders);
  if (reference.size == output.size) {
    Save(folder + "reference.png", reference, folders);
    Save(folder + "difference.png", Difference(output, reference), folders);
  }
  ADD_FAILURE() << "The picture differs from " << path << "; see " << folder;
}

}  // namespace orvik::test
