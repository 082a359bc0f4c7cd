// No text of the chart leaves the control or touches the frame or another text, at any size.
#include <gtest/gtest.h>

#include "chart/ChartText.h"
#include "chart/ctrlStormwaterReuse.h"
#include "engine/ClimateStations.h"
#include "platform/cairo/CairoText.h"
#include "platform/headless/HeadlessDesktop.h"

namespace orvik {
namespace {

// Measures as the picture files do, and keeps where each text stands.
class TextSpy final : public Surface {
 public:
  struct Written {
    std::string text;
    Area area;
  };
  std::vector<Written> texts;

  bool Supports(SurfaceFeature) const override { return true; }
  void Line(Point, Point, const Pen&) override {}
  void Polyline(std::span<const Point>, const Pen&) override {}
  void FillArea(const Area&, Colour) override {}
  void FillPolygon(std::span<const Point>, Colour) override {}
  void WriteText(Point at, std::string_view text, const Font& font, Colour) override {
    const Size size = MeasureText(text, font);
    const Area area = font.escapement == kReadsUpwards
                          ? Area{at.x, at.y - size.width, at.x + size.height, at.y}
                          : Area{at.x, at.y, at.x + size.width, at.y + size.height};
    texts.push_back({std::string(text), area});
  }
  Size MeasureText(std::string_view text, const Font& font) override {
    return text_.Measure(text, font);
  }
  void CopyPicture(const Picture&, const Area&) override {}
  void PushClip(const Area&) override {}
  void PopClip() override {}

 private:
  CairoText text_;
};

class ChartRoom : public testing::Test {
 protected:
  void Check(int width, int height) {
    chart_.Resize(width, height);
    TextSpy spy;
    chart_.Paint(spy);
    const std::string where = chart_.StationName() + " at " + std::to_string(width) + " x " +
                              std::to_string(height) + ": ";
    for (std::size_t i = 0; i < spy.texts.size(); ++i) {
      CheckInside(spy.texts[i], width, height, where);
      for (std::size_t j = 0; j < i; ++j) {
        EXPECT_FALSE(Overlap(spy.texts[i].area, spy.texts[j].area))
            << where << spy.texts[i].text << " and " << spy.texts[j].text;
      }
    }
    written_ = spy.texts.size();
  }

  static bool IsLabel(const TextSpy::Written& text) { return text.text.starts_with("E="); }

  void CheckInside(const TextSpy::Written& text, int width, int height, const std::string& where) {
    const Area& area = text.area;
    EXPECT_TRUE(area.left >= 3 && area.top >= 3 && area.right <= width - 3 &&
                area.bottom <= height - 3)
        << where << text.text << " leaves the control";
    const clsRectangle_Integer& frame = chart_.Layout().frame;
    const bool isOff = area.right <= frame.Left || area.left > frame.Right ||
                       area.bottom <= frame.Top || area.top > frame.Bottom;
    const bool isWithin = area.left > frame.Left && area.right <= frame.Right &&
                          area.top > frame.Top && area.bottom <= frame.Bottom;
    EXPECT_TRUE(IsLabel(text) ? isWithin : isOff) << where << text.text << " touches the frame";
  }

  HeadlessDesktop desktop_;
  ctrlStormwaterReuse chart_{ORVIK_DATA};
  std::size_t written_ = 0;
};

// 17 numbers, 2 titles, the station's name and 10 labels.
constexpr std::size_t kAll = 30;

TEST_F(ChartRoom, AllTextsHaveRoomInTheDefaultShape) {
  for (std::int16_t station = 1; station <= NumRainfallStations(); ++station) {
    chart_.SetCurveData(station);
    for (const auto& [width, height] : {std::pair(640, 427), {960, 640}, {1920, 1280}}) {
      Check(width, height);
      EXPECT_EQ(written_, kAll) << chart_.StationName() << width;
    }
  }
}

TEST_F(ChartRoom, NoTextTouchesAnythingAtAnySize) {
  chart_.SetCurveData(19);  // its name has a letter that reaches below the line
  for (int width = 120; width <= 3840; width = width * 23 / 20) {
    for (int height = 90; height <= 2160; height = height * 23 / 20) Check(width, height);
  }
}

TEST_F(ChartRoom, NoTextTouchesAnythingAtAnyStation) {
  for (std::int16_t station = 1; station <= NumRainfallStations(); ++station) {
    chart_.SetCurveData(station);
    for (const auto& [width, height] : {std::pair(120, 90),
                                        {400, 300},
                                        {640, 480},
                                        {600, 600},
                                        {900, 1400},
                                        {1024, 300},
                                        {3840, 2160},
                                        {15000, 9000}}) {
      Check(width, height);
    }
  }
}

}  // namespace
}  // namespace orvik
