// Picture files as the system reads them.
#include <gtest/gtest.h>

#include "Listener.h"
#include "PngFile.h"
#include "platform/win32/PictureReader.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

// Three pixels: red that is half transparent, nothing, and the colour 1, 2, 3.
constexpr unsigned char kTransparentPng[] = {
    0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48, 0x44, 0x52,
    0x00, 0x00, 0x00, 0x03, 0x00, 0x00, 0x00, 0x01, 0x08, 0x06, 0x00, 0x00, 0x00, 0x1B, 0xE0, 0x14,
    0xB4, 0x00, 0x00, 0x00, 0x13, 0x49, 0x44, 0x41, 0x54, 0x78, 0x9C, 0x63, 0xF8, 0xCF, 0xC0, 0xD0,
    0xC0, 0x00, 0x04, 0x8C, 0x4C, 0xCC, 0xFF, 0x01, 0x11, 0x90, 0x02, 0x85, 0xC3, 0x87, 0x4C, 0x55,
    0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4E, 0x44, 0xAE, 0x42, 0x60, 0x82};

class PictureReader : public testing::Test {
 protected:
  std::string Write(std::string_view bytes) const { return folder_.Write("map é.png", bytes); }

  test::ClientThread com_;
  test::TempFolder folder_;
};

const std::string kPng(reinterpret_cast<const char*>(kTransparentPng), sizeof kTransparentPng);

// Half of 255 over white leaves 127 of green and blue.
TEST_F(PictureReader, LaysWhatIsTransparentOverWhite) {
  const auto picture = ReadPictureFile(Write(kPng));
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->size, (Size{3, 1}));
  EXPECT_EQ(picture->pixels, (std::vector<std::uint32_t>{0xFF7F7F, 0xFFFFFF, 0x010203}));
}

TEST_F(PictureReader, ReadsEveryPixelInItsPlace) {
  Picture written{{5, 4}, {}};
  for (std::uint32_t i = 0; i < 20; ++i) written.pixels.push_back(i * 0x0A0703);
  const std::string path = Write("");
  test::WritePng(path, written);
  const auto picture = ReadPictureFile(path);
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->size, written.size);
  EXPECT_EQ(picture->pixels, written.pixels);
}

TEST_F(PictureReader, HasNothingWhereTheFileIsMissingOrDamaged) {
  EXPECT_FALSE(ReadPictureFile(folder_ / "none.png"));
  EXPECT_FALSE(ReadPictureFile(folder_.Path()));
  EXPECT_FALSE(ReadPictureFile(""));
  for (std::size_t length = 0; length < kPng.size() - 16; length += 3) {
    EXPECT_FALSE(ReadPictureFile(Write(kPng.substr(0, length)))) << length;
  }
}

// The header says 100000 x 100000 pixels.
TEST_F(PictureReader, APictureBeyondAllMeasureIsRefused) {
  std::string png = kPng;
  for (const std::size_t at : {16U, 20U}) png.replace(at, 4, std::string("\x00\x01\x86\xA0", 4));
  EXPECT_FALSE(ReadPictureFile(Write(png)));
}

}  // namespace
}  // namespace orvik
