// The chart on a printer's page.
#pragma once

#include <string_view>

namespace orvik {

class Printer;
struct CurveSet;
struct DesignPoint;
struct clsPlotMetrics;
struct clsRectangle_Integer;

// What is printed: the curves of a station and the design point on them. The three outlive it.
struct PrintedChart {
  const CurveSet& curves;
  std::string_view station;  // its name, the chart's title
  const DesignPoint& point;
};

// Prints the chart into the rectangle (the printer's units), laid out afresh: title, frame, grid
// and ticks, axis texts, labels, curves, their ends, and a shown point. Nothing where the rectangle
// has no place for them.
void PrintDesignChart(Printer& printer, const PrintedChart& chart,
                      const clsRectangle_Integer& target);

// The measures of the chart in such a rectangle. Throws NumericError for one at the end of the
// 16-bit range.
clsPlotMetrics PrintMetrics(const PrintedChart& chart, const clsRectangle_Integer& target);

// The height that uses a page's width best, in the units of `width`.
double PrintedChartHeight(const CurveSet& curves, double width);

}  // namespace orvik
