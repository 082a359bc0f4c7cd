#include "engine/PlotGeometry.h"

#include <algorithm>

#include "base/Quotient.h"
#include "base/Rounding.h"

namespace orvik {
namespace {

constexpr double kMargin = 20;  // pixels on each side of the target

// The bands above and below the frame, in heights of the texts that stand there.
struct Bands {
  double aboveInTitles;
  double belowInTitles;
  double belowInLabels;
  double mostTitleLift;  // pixels
};

constexpr Bands kScreenBands{1.01, 1.2, 1, 16};  // a lift within the margin

// On paper the lift is a part of the text's cell that is blank, however large the text is.
constexpr Bands kPrintBands{1.02, 1.2, 1.1, 32767};

// Beside a printed frame, in label heights: the vertical numbers, their title and the gaps.
constexpr double kVerticalTexts = 4.4;

// Text that starts on the title band's top row ends above the frame; the title's own band is a
// little lower than the cell of its text, so that the band reaches into the margin.
constexpr double kTitleLift = 0.25;  // in title heights

constexpr double kNumberGap = 0.4;  // between the frame and its vertical numbers, in label heights

// Extents in pixels before rounding.
struct Extents {
  double above;
  double frameHeight;
  double frameWidth;
  double below;
};

Extents FitExtents(double usableWidth, double usableHeight, double aboveUnits, double plotUnits,
                   double belowUnits) {
  // The bands are as many units of R high as the texts in them, so all heights share one scale.
  const double sum = aboveUnits + plotUnits + belowUnits;
  double height = usableHeight * (plotUnits / sum);
  double width = height * kFrameShape;
  if (width > usableWidth) {  // the width is the limit; the heights follow from it
    width = usableWidth;
    height = width / kFrameShape;
  }
  const double pixelsPerUnit = height / plotUnits;
  return {aboveUnits * pixelsPerUnit, height, width, belowUnits * pixelsPerUnit};
}

double AboveUnits(const Bands& bands, const LayoutHeights& heights) {
  return bands.aboveInTitles * heights.title;
}

double BelowUnits(const Bands& bands, const LayoutHeights& heights) {
  return bands.belowInTitles * heights.title + bands.belowInLabels * heights.label;
}

FrameLayout LayOutIn(const clsRectangle_Integer& target, const clsPlotWindow& window,
                     const LayoutHeights& heights, const Bands& bands) {
  const double usableWidth = std::max(1.0, target.Right - target.Left - 2 * kMargin);
  const double usableHeight = std::max(1.0, target.Bottom - target.Top - 2 * kMargin);
  const Extents extents = FitExtents(usableWidth, usableHeight, AboveUnits(bands, heights),
                                     window.YMax - window.YMin, BelowUnits(bands, heights));

  const double freeWidth = usableWidth - extents.frameWidth;
  const double freeHeight = usableHeight - (extents.above + extents.frameHeight + extents.below);
  const double left = target.Left + kMargin + freeWidth / 2;
  const double titleTop = target.Top + kMargin + freeHeight / 2;
  const double top = titleTop + extents.above;
  const double bottom = top + extents.frameHeight;

  FrameLayout layout;
  layout.frame = {ToInt16(left), ToInt16(left + extents.frameWidth), ToInt16(top), ToInt16(bottom)};
  const clsRectangle_Integer& frame = layout.frame;
  const double pixelsPerUnit = extents.frameHeight / (window.YMax - window.YMin);
  const double lift = std::min(bands.mostTitleLift, kTitleLift * heights.title * pixelsPerUnit);
  const double gap = kNumberGap * heights.label * pixelsPerUnit;
  layout.title = {frame.Left, frame.Right, ToInt16(titleTop - lift), frame.Top};
  layout.horizontalAxis = {frame.Left, frame.Right, ToInt16(frame.Bottom + 1),
                           ToInt16(bottom + extents.below)};
  layout.verticalAxis = {ToInt16(std::min(target.Left + kMargin, frame.Left - gap)),
                         ToInt16(frame.Left - gap), frame.Top, frame.Bottom};
  return layout;
}

}  // namespace

FrameLayout LayoutFrame(int width, int height, const clsPlotWindow& window,
                        const LayoutHeights& heights) {
  const clsRectangle_Integer control{0, ToInt16(width), 0, ToInt16(height)};
  return LayOutIn(control, window, heights, kScreenBands);
}

FrameLayout LayoutPrintedFrame(const clsRectangle_Integer& target, const clsPlotWindow& window,
                               const LayoutHeights& heights) {
  return LayOutIn(target, window, heights, kPrintBands);
}

double PrintedHeight(double width, const clsPlotWindow& window, const LayoutHeights& heights) {
  const double plot = window.YMax - window.YMin;
  const double pixelsPerUnit = std::max(1.0, width - 2 * kMargin) /
                               (kFrameShape * plot + 2 * kVerticalTexts * heights.label);
  const double units = AboveUnits(kPrintBands, heights) + plot + BelowUnits(kPrintBands, heights);
  return units * pixelsPerUnit + 2 * kMargin;
}

int PixelHeight(float height, const clsPlotWindow& window, const clsRectangle_Integer& frame) {
  const double pixels = RoundHalfToEven(static_cast<double>(height) * (frame.Bottom - frame.Top) /
                                        (window.YMax - window.YMin));
  constexpr double kMost = 32767;
  return pixels >= 0 && pixels <= kMost ? static_cast<int>(pixels) : 0;
}

std::int16_t PlotGeometry::XPlotToXFrame(double x) const {
  const double t = Quotient(x - window_.XMin, window_.XMax - window_.XMin);
  return ToInt16(t * (frame_.Right - frame_.Left) + frame_.Left);
}

std::int16_t PlotGeometry::YPlotToYFrame(double y) const {
  const double t = Quotient(y - window_.YMin, window_.YMax - window_.YMin);
  return ToInt16(t * (frame_.Top - frame_.Bottom) + frame_.Bottom);
}

double PlotGeometry::XFrameToXPlot(std::int16_t X) const {
  return Quotient<double>(X - frame_.Left, frame_.Right - frame_.Left) *
             (window_.XMax - window_.XMin) +
         window_.XMin;
}

double PlotGeometry::YFrameToYPlot(std::int16_t Y) const {
  return Quotient<double>(Y - frame_.Bottom, frame_.Top - frame_.Bottom) *
             (window_.YMax - window_.YMin) +
         window_.YMin;
}

bool PlotGeometry::IsPointInFrame(std::int16_t X, std::int16_t Y) const {
  return frame_.Left <= X && X <= frame_.Right && frame_.Top <= Y && Y <= frame_.Bottom;
}

}  // namespace orvik
