// The printed report of a project: its data, the design chart and the result.
#pragma once

#include <string>
#include <vector>

#include "printing/clsPageControl.h"

namespace orvik {

class Printer;
class ReportLines;
struct ClockTime;
struct CurveSet;
struct Project;
struct ReportRow;
struct clsRectangle_Integer;

// What viewers and print queues call the report of the project.
std::string ReportTitle(const Project& project);

// One document. The values are those that the fields show; nothing is recalculated.
class ProjectReport {
 public:
  // `shown` is the message of the error bar, empty for none; `curves` are those of the project's
  // station, null where none are loaded. All outlive this.
  ProjectReport(const Project& project, const std::string& shown, const CurveSet* curves,
                const ClockTime& time)
      : project_(project), shown_(shown), curves_(curves), pages_(time) {}

  // Prepares the pages and prints the report. Ending the document is the caller's. Throws
  // PrinterError.
  void PrintDoc(Printer& printer);

  // The sections, from the printer's current position on. In the interactive mode the chart comes
  // before the result, which has its own page; in the other modes the result comes first.
  void PrintReport(Printer& printer);

  // The chart into an area of the present page, in the printer's units.
  void PrintDesignChart(Printer& printer, const clsRectangle_Integer& area) const;

 private:
  void PrintProjectData(ReportLines& lines);
  void PrintBasinData(ReportLines& lines);
  void PrintSolutionParameters(ReportLines& lines);
  void PrintChartSection(Printer& printer, ReportLines& lines);
  void PrintResultWords(ReportLines& lines);
  std::vector<ReportRow> SlotRows() const;
  float ChartHeight() const;

  const Project& project_;
  const std::string& shown_;
  const CurveSet* curves_;
  clsPageControl pages_;
};

}  // namespace orvik
