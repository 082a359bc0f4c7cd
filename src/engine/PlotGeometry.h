// Where the chart's frame lies in the control, and the way between chart coordinates and pixels.
#pragma once

#include <cstdint>

#include "engine/ChartShape.h"
#include "engine/CurvePolygon.h"
#include "engine/PlotRecords.h"

namespace orvik {

// The chart's size without a window, pixels: every text has its place there.
inline constexpr int kReferenceWidth = 960;
inline constexpr int kReferenceHeight = 640;

// Layout values of the control in units of the vertical axis (R, inches per day on the EIA).
struct LayoutHeights {
  float title = 0.01F;  // height of the title block's text
  float label = static_cast<float>(kLabelHeight);
  float tick = 0.005F;  // length of a tick
};

// The frame and the three bands that share its columns or rows. Texts start at the band's edge: the
// title on the top row, the horizontal numbers on the top row, the vertical numbers against the
// right column. Each edge lies a little off the frame, so that no text touches its lines.
struct FrameLayout {
  clsRectangle_Integer frame;
  clsRectangle_Integer title;           // above the frame, its columns
  clsRectangle_Integer horizontalAxis;  // below the frame, its columns
  clsRectangle_Integer verticalAxis;    // left of the frame, its rows
};

// The height of a text or a mark in pixels, from its height in units of the vertical axis. 0 where
// it has no 16-bit height.
int PixelHeight(float height, const clsPlotWindow& window, const clsRectangle_Integer& frame);

// The frame in a control of `width` x `height` pixels: 20 pixels of margin all round, a 4:3 frame
// as large as the remaining width or height allows, centred, with room above for the title block
// and below for the axis numbers and title. A control too small for its margins gets a frame of one
// pixel. Requires YMax above YMin. Throws OverflowError beyond 16 bits.
FrameLayout LayoutFrame(int width, int height, const clsPlotWindow& window,
                        const LayoutHeights& heights);

// The same scheme on a page, in the printer's units: a little more room above and below the frame.
// The title's text may begin a little above the target, with the blank part of its cell.
FrameLayout LayoutPrintedFrame(const clsRectangle_Integer& target, const clsPlotWindow& window,
                               const LayoutHeights& heights);

// The height of the target in which a printed chart is as large as a page of this width allows,
// with room beside the frame for the vertical numbers and title.
double PrintedHeight(double width, const clsPlotWindow& window, const LayoutHeights& heights);

// Both axes are linear. Plot to frame is rounded half to even to 16 bits, beyond which
// OverflowError is thrown; frame to plot is not rounded. Throws DivisionByZeroError where the
// window or the frame has no extent.
class PlotGeometry final : public PlotToFrame {
 public:
  PlotGeometry() = default;
  PlotGeometry(const clsPlotWindow& window, const clsRectangle_Integer& frame)
      : window_(window), frame_(frame) {}

  std::int16_t XPlotToXFrame(double x) const override;
  std::int16_t YPlotToYFrame(double y) const override;
  double XFrameToXPlot(std::int16_t X) const;
  double YFrameToYPlot(std::int16_t Y) const;

  // True when the pixel lies in the frame or on its lines.
  bool IsPointInFrame(std::int16_t X, std::int16_t Y) const;

  const clsPlotWindow& Window() const { return window_; }
  const clsRectangle_Integer& Frame() const { return frame_; }

 private:
  clsPlotWindow window_;
  clsRectangle_Integer frame_;
};

}  // namespace orvik
