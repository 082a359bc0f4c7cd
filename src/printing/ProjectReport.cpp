#include "printing/ProjectReport.h"

#include <algorithm>
#include <array>

#include "base/Rounding.h"
#include "base/Text.h"
#include "printing/ResultWords.h"
#include "project/Conversions.h"
#include "project/FieldCaptions.h"
#include "project/NumberInput.h"

namespace orvik {
namespace {

// A chart that finds less than this share of its full height goes to the next page.
constexpr float kLeastChart = 0.75F;

// Above the chart and the result's words, in body lines.
constexpr float kGap = 0.4F;

std::string Text(const ctrlMyTextBox& field) {
  return std::string(Trim(field.Text()));
}

// The value with its unit behind it, or nothing.
std::string WithUnit(const std::string& value, std::string_view unit) {
  return value.empty() ? value : value + " " + std::string(unit);
}

std::string ChosenItem(const ComboBox& list) {
  return list.List(list.ListIndex());
}

ReportRow Row(std::string_view caption, std::string value) {
  return {std::string(caption), std::move(value)};
}

std::string GallonsPerDay(ProjectForm& form) {
  const std::int16_t mode = form.cmbSolveFor->ListIndex();
  const std::string rate = Text(form.txtSolveFor(SlotOfQuantity(mode, SiteQuantity::ReuseRate)));
  try {
    return InchesPerWeek_To_GPD(rate, form.txtIrrigationArea.Text());
  } catch (const NumericError&) {
    return {};  // more than single precision holds
  }
}

}  // namespace

std::string ProjectReport::Title() const {
  const std::string name = Text(form_.txtProjectName);
  return "Stormwater Harvesting Report" + (name.empty() ? "" : " - " + name);
}

void ProjectReport::PrintDoc(Printer& printer) {
  const std::string name = Text(form_.txtProjectName);
  const std::string number = Text(form_.txtProjectNumber);
  pages_.CreditLine(number + (number.empty() || name.empty() ? "" : "  ") + name);
  pages_.ReadyFonts(printer);
  pages_.GetPrintableMargins(printer);
  pages_.EstimateFreeMargins(printer);
  pages_.PageIsBlank(true);
  pages_.NewPage(printer);
  PrintReport(printer);
}

void ProjectReport::PrintReport(Printer& printer) {
  ReportLines lines(printer, pages_);
  lines.AlignTo(FieldCaption::kEquivalentImperviousArea);  // the longest of the fields' captions
  PrintProjectData(lines);
  PrintBasinData(lines);
  PrintSolutionParameters(lines);
  if (form_.cmbSolveFor->ListIndex() == SolveFor::kInteractive) {
    PrintChartSection(printer, lines);
    lines.NewPage();
    lines.Heading("Result:");
    lines.Rows(SlotRows());
    PrintResultWords(lines);
  } else {
    lines.Rows(SlotRows());
    lines.Heading("Result:");
    PrintResultWords(lines);
    lines.NewPage();
    PrintChartSection(printer, lines);
  }
}

void ProjectReport::PrintProjectData(ReportLines& lines) {
  lines.Heading("Project Data:");
  lines.Rows(std::array{
      Row(FieldCaption::kProject, Text(form_.txtProjectName)),
      Row(FieldCaption::kDescription, Text(form_.txtDescription)),
      Row(FieldCaption::kProjectNumber, Text(form_.txtProjectNumber)),
      Row(FieldCaption::kEngineer, Text(form_.txtEngineer)),
      Row(FieldCaption::kSupervisingEngineer, Text(form_.txtSuervisingEngineer)),
      Row(FieldCaption::kDate, Text(form_.txtDate)),
  });
}

void ProjectReport::PrintBasinData(ReportLines& lines) {
  lines.Heading("Basin Data:");
  lines.Rows(std::array{
      Row(FieldCaption::kBasinArea, WithUnit(Text(form_.txtBasinArea), "acres")),
      Row(FieldCaption::kRunoffCoefficient, Text(form_.txtRunoffCoefficient)),
      Row(FieldCaption::kEquivalentImperviousArea,
          WithUnit(Text(form_.txtEquivalentImperviousArea), "acres (EIA)")),
      Row(FieldCaption::kIrrigationArea, WithUnit(Text(form_.txtIrrigationArea), "acres")),
  });
}

void ProjectReport::PrintSolutionParameters(ReportLines& lines) {
  lines.Heading("Solution Parameters:");
  lines.Rows(std::array{
      Row(FieldCaption::kClimateStation, ChosenItem(*form_.cmbClimateStation)),
      Row("Source of the curves", chart_.IsLoaded() ? chart_.Curves().Title : ""),
      Row(FieldCaption::kSolveFor, ChosenItem(*form_.cmbSolveFor)),
  });
}

std::vector<ReportRow> ProjectReport::SlotRows() {
  std::vector<ReportRow> rows;
  for (int slot = 1; slot <= kSolveForSlots; ++slot) {
    rows.push_back({form_.lblSolveFor(slot).Caption(), Text(form_.txtSolveFor(slot))});
  }
  return rows;
}

void ProjectReport::PrintResultWords(ReportLines& lines) {
  lines.Skip(kGap * lines.LineHeight(ReportFont::kBody));
  lines.Paragraph(ResultInWords(form_, chart_), ReportFont::kEmphasis);
  if (!HasResult(form_, chart_)) return;
  const std::string gallons = GallonsPerDay(form_);
  if (gallons.empty()) return;
  lines.Paragraph("This reuse rate is " + gallons + " gallons per day.", ReportFont::kBody);
}

float ProjectReport::ChartHeight() const {
  if (!chart_.IsLoaded()) return 0;
  return ToSingle(chart_.PrintedHeight(static_cast<double>(pages_.BodyRight()) -
                                       static_cast<double>(pages_.BodyLeft())));
}

void ProjectReport::PrintChartSection(Printer& printer, ReportLines& lines) {
  const std::array legend{
      Row("R: Normalized Reuse Rate (in./day on EIA)", Text(form_.txtR)),
      Row("E: Efficiency", WithUnit(Text(form_.txtE), "percent")),
      Row("V: Normalized Storage Volume (in. on EIA)", Text(form_.txtV)),
  };
  const float height = ChartHeight();
  lines.Heading("Design Chart:", lines.HeightOfRows(legend.size()) + kLeastChart * height);
  lines.Rows(legend);
  if (height == 0) {
    lines.Paragraph("There is no chart: no design curves are loaded.", ReportFont::kBody);
    return;
  }
  lines.Skip(kGap * lines.LineHeight(ReportFont::kBody));
  const float used = std::min(height, lines.Room());
  PrintDesignChart(printer, {ToInt16(static_cast<double>(pages_.BodyLeft())),
                             ToInt16(static_cast<double>(pages_.BodyRight())),
                             ToInt16(static_cast<double>(lines.Y())),
                             ToInt16(static_cast<double>(lines.Y() + used))});
  lines.Skip(used);
}

void ProjectReport::PrintDesignChart(Printer& printer, const clsRectangle_Integer& area) const {
  chart_.PrintDesignChart(printer, area.Left, area.Top, area.Right, area.Bottom);
}

}  // namespace orvik
