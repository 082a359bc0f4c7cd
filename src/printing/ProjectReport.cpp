#include "printing/ProjectReport.h"

#include <algorithm>
#include <array>

#include "base/PrintableText.h"
#include "base/Rounding.h"
#include "base/RuntimeErrors.h"
#include "chart/ChartPrinting.h"
#include "design/Conversions.h"
#include "design/Project.h"
#include "engine/CurveSet.h"
#include "printing/ReportLines.h"
#include "printing/ResultWords.h"

namespace orvik {
namespace {

// A chart that would get less than this share of its full height goes to the next page.
constexpr float kLeastChart = 0.75F;

// Above the chart and the result's words, in body lines.
constexpr float kGap = 0.4F;

// The value and its unit, or nothing.
std::string WithUnit(const std::string& value, std::string_view unit) {
  return value.empty() ? value : value + " " + std::string(unit);
}

ReportRow Row(std::string_view caption, std::string value) {
  return {std::string(caption), std::move(value)};
}

ReportRow RowOf(const Project& project, const FieldDesign& field) {
  // What the window shows after the coefficient is its range, not a unit.
  const bool hasUnit = !field.shortUnit.empty();
  const std::string value = project.Trimmed(field.id);
  return {PlainCaption(field.caption), hasUnit ? WithUnit(value, field.unit) : value};
}

std::string GallonsPerDay(const Project& project) {
  try {
    return InchesPerWeek_To_GPD(project.SiteText(SiteQuantity::ReuseRate),
                                project.Text(Field::IrrigationArea));
  } catch (const NumericError&) {
    return {};  // more than single precision holds
  }
}

}  // namespace

std::string ReportTitle(const Project& project) {
  const std::string name = PrintableText(project.Trimmed(Field::ProjectName));
  return "Stormwater Harvesting Report" + (name.empty() ? "" : " - " + name);
}

void ProjectReport::PrintDoc(Printer& printer) {
  const std::string name = project_.Trimmed(Field::ProjectName);
  const std::string number = project_.Trimmed(Field::ProjectNumber);
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
  lines.AlignTo(
      PlainCaption(Field::EquivalentImperviousArea));  // the longest of the fields' captions
  PrintProjectData(lines);
  PrintBasinData(lines);
  PrintSolutionParameters(lines);
  if (project_.mode == SolveFor::Interactive) {
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
  std::vector<ReportRow> rows;
  for (const FieldDesign& field : Fields()) {
    if (field.IsDescription()) rows.push_back(RowOf(project_, field));
  }
  lines.Rows(rows);
}

void ProjectReport::PrintBasinData(ReportLines& lines) {
  lines.Heading("Basin Data:");
  std::vector<ReportRow> rows;
  for (const FieldDesign& field : Fields()) {
    const bool isOfBasin = field.kind == FieldKind::Number || field.kind == FieldKind::Result;
    if (isOfBasin) rows.push_back(RowOf(project_, field));
  }
  lines.Rows(rows);
}

void ProjectReport::PrintSolutionParameters(ReportLines& lines) {
  lines.Heading("Solution Parameters:");
  lines.Rows(std::array{
      ReportRow{PlainCaption(ListField::ClimateStation), project_.StationName()},
      ReportRow{"Source of the curves", curves_ ? curves_->title : ""},
      ReportRow{PlainCaption(ListField::SolveForMode), project_.ModeName()},
  });
}

std::vector<ReportRow> ProjectReport::SlotRows() const {
  std::vector<ReportRow> rows;
  for (int slot = 1; slot <= kSolveForSlots; ++slot) {
    const SiteQuantity quantity = QuantityInSlot(project_.mode, slot);
    rows.push_back({std::string(SiteQuantityCaption(quantity)), project_.Trimmed(SlotField(slot))});
  }
  return rows;
}

void ProjectReport::PrintResultWords(ReportLines& lines) {
  lines.Skip(kGap * lines.LineHeight(ReportFont::kBody));
  lines.Paragraph(ResultInWords(project_, shown_), ReportFont::kEmphasis);
  if (!HasResult(project_, shown_)) return;
  const std::string gallons = GallonsPerDay(project_);
  if (gallons.empty()) return;
  lines.Paragraph("This reuse rate is " + gallons + " gallons per day.", ReportFont::kBody);
}

float ProjectReport::ChartHeight() const {
  if (!curves_) return 0;
  return ToSingle(PrintedChartHeight(
      *curves_, static_cast<double>(pages_.BodyRight()) - static_cast<double>(pages_.BodyLeft())));
}

void ProjectReport::PrintChartSection(Printer& printer, ReportLines& lines) {
  const std::array legend{
      Row("R: Normalized Reuse Rate (in./day on EIA)", project_.Trimmed(Field::R)),
      Row("E: Efficiency", WithUnit(project_.Trimmed(Field::E), "percent")),
      Row("V: Normalized Storage Volume (in. on EIA)", project_.Trimmed(Field::V)),
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
  orvik::PrintDesignChart(printer, {*curves_, project_.StationName(), project_.point}, area);
}

}  // namespace orvik
