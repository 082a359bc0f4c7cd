// The station map over the real main window, worked with mouse, wheel and keys.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "FormOnScreen.h"
#include "Listener.h"
#include "PngFile.h"
#include "base/Paths.h"
#include "shell/ClimateStationsDesign.h"

namespace orvik {
namespace {

using test::FormOnScreen;
using test::FormUser;

constexpr const char* kViewer = "ctrlPictureViewer1";
constexpr int kCell = 20;  // pixels of a field of one colour
constexpr Size kSize{400, 300};

// The colour of a point of the map that the tests are made with: fields of different colours.
std::uint32_t ColourOfMap(double x, double y) {
  const auto column = static_cast<std::uint32_t>(x / kCell);
  const auto row = static_cast<std::uint32_t>(y / kCell);
  return column * 12 << 16 | row * 16 << 8 | 0x80;
}

Picture ColouredMap() {
  Picture picture{kSize, {}};
  for (int y = 0; y < kSize.height; ++y) {
    for (int x = 0; x < kSize.width; ++x) picture.pixels.push_back(ColourOfMap(x, y));
  }
  return picture;
}

class StationMap : public testing::Test {
 protected:
  // The main window with a map in its data folder.
  StationMap() {
    form_.Folder().Write("Help/other.txt", "");
    test::WritePng(MapPath(), ColouredMap());
  }

  std::string MapPath() const { return form_.Folder() / "Help/ReuseClimateStations.PNG"; }
  FormUser Open() {
    form_.Click("cmdMap");
    return form_.WaitForWindow("Climate stations", ClimateStationsDesign::Get());
  }

  test::ClientThread com_;
  FormOnScreen form_{1};
};

std::string Told(double zoom) {
  return "Map of the climate stations: zoom " + std::to_string(std::lround(zoom * 100)) + " %";
}

SIZE InnerSize(const FormUser& map) {
  RECT inner{};
  ::GetClientRect(map.Find(kViewer), &inner);
  return {inner.right, inner.bottom};
}

double FittedZoom(const FormUser& map) {
  const SIZE inner = InnerSize(map);
  return std::min(double(inner.cx) / kSize.width, double(inner.cy) / kSize.height);
}

// Where a point of the map is seen while it is fitted.
POINT FittedPoint(const FormUser& map, double x, double y) {
  const SIZE inner = InnerSize(map);
  const double zoom = FittedZoom(map);
  return {std::lround((inner.cx - kSize.width * zoom) / 2 + x * zoom),
          std::lround((inner.cy - kSize.height * zoom) / 2 + y * zoom)};
}

bool UntilColour(const FormUser& map, POINT at, std::uint32_t colour) {
  return map.Until([&] { return test::ColourAt(map.Find(kViewer), at) == colour; });
}

// --- Opening and closing ---

TEST_F(StationMap, OpensOverTheMainWindowFromTheButtonAndTheMenuAndGivesTheKeyboardBack) {
  for (const bool byMenu : {false, true}) {
    form_.Type("txtBasinArea", "7");
    byMenu ? form_.ClickMenu("mnuHelp_Map") : form_.Click("cmdMap");
    const FormUser map = form_.WaitForWindow("Climate stations", ClimateStationsDesign::Get());
    EXPECT_FALSE(::IsWindowEnabled(form_.Window()));
    EXPECT_EQ(::GetWindow(map.Window(), GW_OWNER), form_.Window());
    EXPECT_TRUE(map.UntilText(kViewer, Told(FittedZoom(map)))) << map.Text(kViewer);
    EXPECT_EQ(::GetMenu(map.Window()), nullptr);
    EXPECT_TRUE(map.Until([&] { return map.Focus() == kViewer; }));
    map.Press({VK_ESCAPE, {}});
    EXPECT_TRUE(form_.UntilBack());
    const char* focus = byMenu ? "txtBasinArea" : "cmdMap";
    EXPECT_TRUE(form_.Until([&] { return form_.Focus() == focus; })) << form_.Focus();
  }
}

TEST_F(StationMap, TheCloseBoxClosesItAndLeavesTheMainWindow) {
  FormUser map = Open();
  form_.CloseByFrame();  // the map has to be closed first
  map.CloseByFrame();
  EXPECT_TRUE(form_.UntilBack());
  EXPECT_TRUE(form_.IsOpen());
}

// --- The picture ---

TEST_F(StationMap, ThePictureIsFittedToTheWindowAlsoInAnotherSize) {
  const FormUser map = Open();
  for (const SIZE size : {SIZE{0, 0}, SIZE{500, 620}, SIZE{1200, 500}}) {
    if (size.cx > 0) {
      ::SetWindowPos(map.Window(), nullptr, 20, 20, size.cx, size.cy, SWP_NOZORDER);
    }
    EXPECT_TRUE(map.Until([&] {
      RECT inner{};
      ::GetClientRect(map.Window(), &inner);
      const SIZE viewer = InnerSize(map);
      return viewer.cx == inner.right && viewer.cy == inner.bottom &&
             (size.cx == 0 || std::abs(inner.right - size.cx) < 40);
    }));
    EXPECT_TRUE(map.UntilText(kViewer, Told(FittedZoom(map)))) << map.Text(kViewer);
    EXPECT_TRUE(UntilColour(map, FittedPoint(map, 50, 50), ColourOfMap(50, 50)));
    EXPECT_TRUE(UntilColour(map, FittedPoint(map, 370, 270), ColourOfMap(370, 270)));
  }
}

TEST_F(StationMap, AMissingOrDamagedPictureLeavesItEmptyAndQuiet) {
  const std::string png = test::ReadBytes(MapPath());
  const std::string damaged[] = {"", "no picture", png.substr(0, png.size() / 3)};
  for (int row = 0; row < 4; ++row) {
    std::filesystem::remove(PathFromUtf8(MapPath()));
    if (row > 0) form_.Folder().Write("Help/ReuseClimateStations.PNG", damaged[row - 1]);
    const FormUser map = Open();
    EXPECT_EQ(map.Text(kViewer), "Map of the climate stations: no picture") << row;
    map.Press({VK_ESCAPE, {}});
    EXPECT_TRUE(form_.UntilBack()) << row;
  }
}

// --- Zoom ---

// Twice a quarter more: 1.5625 times as large about the pointer. A second point of the map then
// lies that much further from the first.
TEST_F(StationMap, TheWheelZoomsAboutThePointer) {
  FormUser map = Open();
  const double fitted = FittedZoom(map);
  const POINT at = FittedPoint(map, 150, 110);
  map.TurnWheel(kViewer, at, 2);
  ASSERT_TRUE(map.UntilText(kViewer, Told(fitted * 1.5625))) << map.Text(kViewer);
  const double zoom = fitted * 1.5625;
  const POINT other{at.x + std::lround(60 * zoom), at.y - std::lround(40 * zoom)};
  EXPECT_TRUE(UntilColour(map, other, ColourOfMap(210, 70)));
  EXPECT_TRUE(UntilColour(map, at, ColourOfMap(150, 110)));
  map.TurnWheel(kViewer, at, -5);
  EXPECT_TRUE(map.UntilText(kViewer, Told(fitted))) << "not smaller than fitted";
}

TEST_F(StationMap, KeysZoomMoveAndFit) {
  const FormUser map = Open();
  const double fitted = FittedZoom(map);
  map.Press({VK_OEM_PLUS, {}});
  ASSERT_TRUE(map.UntilText(kViewer, Told(fitted * 1.25))) << map.Text(kViewer);
  map.Press({VK_ADD, {}});
  ASSERT_TRUE(map.UntilText(kViewer, Told(fitted * 1.5625)));
  map.Press({VK_SUBTRACT, {}});
  ASSERT_TRUE(map.UntilText(kViewer, Told(fitted * 1.25)));
  // The middle of the window shows the middle of the map; an arrow key moves it by a tenth of the
  // window.
  const SIZE inner = InnerSize(map);
  map.Press({VK_RIGHT, {}});
  const double middle = kSize.width / 2.0 + inner.cx / 10.0 / (fitted * 1.25);
  const double inCell = kCell * (std::floor(middle / kCell) + 0.5);
  const POINT at{inner.cx / 2 + std::lround((inCell - middle) * fitted * 1.25), inner.cy / 2};
  EXPECT_TRUE(UntilColour(map, at, ColourOfMap(inCell, kSize.height / 2.0)));
  map.Press({'0', {}});
  EXPECT_TRUE(map.UntilText(kViewer, Told(fitted)));
}

TEST_F(StationMap, ADoubleClickFits) {
  FormUser map = Open();
  const double fitted = FittedZoom(map);
  map.Press({VK_OEM_PLUS, {}});
  ASSERT_TRUE(map.UntilText(kViewer, Told(fitted * 1.25)));
  map.DoubleClick(kViewer);
  EXPECT_TRUE(map.UntilText(kViewer, Told(fitted))) << map.Text(kViewer);
}

// --- Dragging ---

TEST_F(StationMap, ADragMovesThePicture) {
  FormUser map = Open();
  const double fitted = FittedZoom(map);
  const POINT at = FittedPoint(map, 150, 110);
  map.TurnWheel(kViewer, at, 4);
  const double zoom = fitted * std::pow(1.25, 4);
  ASSERT_TRUE(map.UntilText(kViewer, Told(zoom))) << map.Text(kViewer);
  ASSERT_TRUE(UntilColour(map, at, ColourOfMap(150, 110)));
  const POINT to{at.x + 60, at.y - 50};
  map.Drag(kViewer, at, to);
  EXPECT_TRUE(UntilColour(map, to, ColourOfMap(150, 110)));
  const POINT other{to.x + std::lround(40 * zoom), to.y + std::lround(20 * zoom)};
  EXPECT_TRUE(UntilColour(map, other, ColourOfMap(190, 130)));
}

// --- For listeners ---

TEST_F(StationMap, AScreenReaderHearsAPictureWithItsZoom) {
  const FormUser map = Open();
  const test::Listener viewer(map.Find(kViewer));
  ASSERT_TRUE(viewer);
  EXPECT_EQ(viewer.Role(), ROLE_SYSTEM_GRAPHIC);
  EXPECT_EQ(viewer.Name(), "Map of the climate stations");
  const std::string value = Told(FittedZoom(map));
  EXPECT_EQ(viewer.Name() + ": " + viewer.Value(), value);
}

}  // namespace
}  // namespace orvik
