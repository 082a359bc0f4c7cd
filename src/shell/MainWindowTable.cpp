#include "shell/MainWindowTable.h"

#include <vector>

namespace orvik {
namespace {

constexpr std::array kProjectRows = {
    FieldRow{{"lblProject", "Project &name"}, "txtProjectName", FieldKind::Text},
    FieldRow{{"lblDescription", "Descr&iption"}, "txtDescription", FieldKind::Wrapped},
    FieldRow{{"lblProjectNumber", "Project n&umber"}, "txtProjectNumber", FieldKind::Text},
    FieldRow{{"lblEngineer", "&Engineer"}, "txtEngineer", FieldKind::Text},
    FieldRow{{"lblSupervisingEngineer", "Super&vising engineer"},
             "txtSuervisingEngineer",
             FieldKind::Text},
    FieldRow{{"lblDate", "D&ate"}, "txtDate", FieldKind::Date},
};

constexpr std::array kSiteRows = {
    FieldRow{{"lblClimateStation", "Climate st&ation"}, "cmbClimateStation", FieldKind::List},
    FieldRow{{"lblBasinArea", "&Basin area"},
             "txtBasinArea",
             FieldKind::Number,
             {"lblBasinAreaUnit", "acres"}},
    FieldRow{{"lblRunoffCoefficient", "Runoff c&oefficient"},
             "txtRunoffCoefficient",
             FieldKind::Number,
             {"lblRunoffCoefficientUnit", "0 to 1"}},
    FieldRow{{"lblEquivalentImperviousArea", "E&quivalent impervious area"},
             "txtEquivalentImperviousArea",
             FieldKind::Number,
             {"lblEquivalentImperviousAreaUnit", "acres (EIA)"}},
    FieldRow{{"lblIrrigationArea", "Irri&gation area"},
             "txtIrrigationArea",
             FieldKind::Number,
             {"lblIrrigationAreaUnit", "acres"}},
};

// The captions of the three slots name their units and change with the mode.
constexpr std::array kSolveRows = {
    FieldRow{{"lblSolveForMode", "So&lve for"}, "cmbSolveFor", FieldKind::List},
    FieldRow{{"lblSolveFor(1)", {}}, "txtSolveFor(1)", FieldKind::Number},
    FieldRow{{"lblSolveFor(2)", {}}, "txtSolveFor(2)", FieldKind::Number},
    FieldRow{{"lblSolveFor(3)", {}}, "txtSolveFor(3)", FieldKind::Number},
};

constexpr std::array kNormalizedRows = {
    FieldRow{{"lblR", "Reuse ra&te R"}, "txtR", FieldKind::Number, {"lblRUnit", "in/day"}},
    FieldRow{{"lblE", "&Efficiency E"}, "txtE", FieldKind::Number, {"lblEUnit", "%"}},
    FieldRow{{"lblV", "Storage &volume V"}, "txtV", FieldKind::Number, {"lblVUnit", "in"}},
};

constexpr std::array kDataGroups = {
    FieldGroup{{"lblSiteHeading", "Basin and site"}, kSiteRows},
    FieldGroup{{"lblSolveForHeading", "Design"}, kSolveRows},
    FieldGroup{{"lblNormalizedHeading", "Normalized on the EIA"}, kNormalizedRows},
};

// It names the bar to a screen reader, which would take the last text before it otherwise.
constexpr FieldRow kMessageRow{{"lblErrMsg", "Message"}, "txtErrMsg", FieldKind::Text};

void AddRow(std::vector<WidgetDesign>& widgets, std::string_view page, const FieldRow& row) {
  widgets.push_back({row.label.name, page});
  const bool isWrapped = row.kind == FieldKind::Wrapped;
  widgets.push_back({row.field, page, isWrapped ? WidgetStyle::Wrapped : WidgetStyle::Plain});
  if (!row.unit.name.empty()) widgets.push_back({row.unit.name, page});
}

constexpr std::array kToolbar = {
    WidgetDesign{"picToolbar", ""},
    WidgetDesign{"optPage(1)", "picToolbar"},
    WidgetDesign{"optPage(2)", "picToolbar"},
    WidgetDesign{"cmdReCalc", "picToolbar"},
    WidgetDesign{"cmdMap", "picToolbar"},
    WidgetDesign{"cmdSaveExit", "picToolbar"},
    WidgetDesign{"cmdDiscardExit", "picToolbar"},
};

constexpr std::array kMenus = {
    WidgetDesign{"mnuFile", ""},
    WidgetDesign{"mnuFile_New", "mnuFile"},
    WidgetDesign{"mnuFile_Open", "mnuFile"},
    WidgetDesign{"mnuFile_Save", "mnuFile", WidgetStyle::Separated},
    WidgetDesign{"mnuFile_SaveAs", "mnuFile"},
    WidgetDesign{"mnuFile_Print", "mnuFile", WidgetStyle::Separated},
    WidgetDesign{"mnuReturn", ""},
    WidgetDesign{"mnuReturn_Save", "mnuReturn"},
    WidgetDesign{"mnuReturn_Discard", "mnuReturn"},
    WidgetDesign{"mnuView", ""},
    WidgetDesign{"mnuProject", "mnuView"},
    WidgetDesign{"mnuData", "mnuView"},
    WidgetDesign{"mnuReCalc", "mnuView", WidgetStyle::Separated},
    WidgetDesign{"mnuHelp", ""},
    WidgetDesign{"mnuHelp_Message", "mnuHelp"},
    WidgetDesign{"mnuHelp_Map", "mnuHelp"},
    WidgetDesign{"mnuHelp_About", "mnuHelp", WidgetStyle::Separated},
};

std::vector<WidgetDesign> MakeWidgets() {
  std::vector<WidgetDesign> widgets(kToolbar.begin(), kToolbar.end());
  widgets.push_back({"picProject", ""});
  for (const FieldRow& row : kProjectRows) AddRow(widgets, "picProject", row);
  widgets.push_back({"cmdToday", "picProject"});
  widgets.push_back({"picData", ""});
  for (const FieldGroup& group : kDataGroups) {
    widgets.push_back({group.heading.name, "picData", WidgetStyle::Heading});
    for (const FieldRow& row : group.rows) AddRow(widgets, "picData", row);
  }
  widgets.push_back({"ctrlStormwaterReuse1", "picData"});
  AddRow(widgets, "picData", kMessageRow);
  widgets.push_back({"cmdErrorHelp", "picData"});
  widgets.insert(widgets.end(), kMenus.begin(), kMenus.end());
  return widgets;
}

std::vector<LabelDesign> MakeLabels() {
  std::vector<LabelDesign> labels;
  const auto add = [&](const LabelDesign& label) {
    if (!label.caption.empty()) labels.push_back(label);
  };
  for (const FieldRow& row : kProjectRows) add(row.label);
  for (const FieldGroup& group : kDataGroups) {
    add(group.heading);
    for (const FieldRow& row : group.rows) {
      add(row.label);
      add(row.unit);
    }
  }
  add(kMessageRow.label);
  return labels;
}

}  // namespace

std::span<const FieldRow> ProjectRows() {
  return kProjectRows;
}

std::span<const FieldGroup> DataGroups() {
  return kDataGroups;
}

const FieldRow& MessageRow() {
  return kMessageRow;
}

std::span<const WidgetDesign> MainWindowWidgets() {
  static const std::vector<WidgetDesign> widgets = MakeWidgets();
  return widgets;
}

std::span<const LabelDesign> MainWindowLabels() {
  static const std::vector<LabelDesign> labels = MakeLabels();
  return labels;
}

}  // namespace orvik
