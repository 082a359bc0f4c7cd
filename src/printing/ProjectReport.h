// The printed report of a project: its data, the design chart and the result.
#pragma once

#include <string>
#include <vector>

#include "chart/ctrlStormwaterReuse.h"
#include "platform/Desktop.h"
#include "platform/Printer.h"
#include "printing/ReportLines.h"
#include "printing/clsPageControl.h"
#include "project/ProjectForm.h"

namespace orvik {

// One document. The values are those that the form shows; nothing is recalculated.
class ProjectReport {
 public:
  ProjectReport(ProjectForm& form, const ctrlStormwaterReuse& chart, Desktop& desktop)
      : form_(form), chart_(chart), pages_(desktop) {}

  // What viewers and print queues call the document.
  std::string Title() const;

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
  std::vector<ReportRow> SlotRows();
  float ChartHeight() const;

  ProjectForm& form_;
  const ctrlStormwaterReuse& chart_;
  clsPageControl pages_;
};

}  // namespace orvik
