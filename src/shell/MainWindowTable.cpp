#include "shell/MainWindowTable.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace orvik {
namespace {

FieldRow RowOf(Field id) {
  const FieldDesign& field = DesignOf(id);
  FieldRow row{{field.label, field.caption}, field.control, field.kind};
  if (!field.unit.empty()) row.unit = {field.unitLabel, field.unit};
  if (field.CanBeNeeded()) row.mark = field.markLabel;
  return row;
}

FieldRow RowOf(ListField id) {
  const ListDesign& list = DesignOf(id);
  return {.label = {list.label, list.caption},
          .field = list.control,
          .isList = true,
          .mark = list.markLabel};
}

std::vector<FieldRow> MakeProjectRows() {
  std::vector<FieldRow> rows;
  for (const FieldDesign& field : Fields()) {
    if (field.page == FieldPage::Project) rows.push_back(RowOf(field.id));
  }
  return rows;
}

// A list, where the part begins with one, and the fields of some kinds below it.
std::vector<FieldRow> MakeDataRows(std::optional<ListField> list,
                                   std::initializer_list<FieldKind> kinds) {
  std::vector<FieldRow> rows;
  if (list) rows.push_back(RowOf(*list));
  for (const FieldDesign& field : Fields()) {
    if (std::ranges::find(kinds, field.kind) != kinds.end()) rows.push_back(RowOf(field.id));
  }
  return rows;
}

struct Rows {
  std::vector<FieldRow> project = MakeProjectRows();
  std::vector<FieldRow> site =
      MakeDataRows(ListField::ClimateStation, {FieldKind::Number, FieldKind::Result});
  // The captions of the three slots name their units and change with the mode.
  std::vector<FieldRow> solve = MakeDataRows(ListField::SolveForMode, {FieldKind::Slot});
  std::vector<FieldRow> normalized = MakeDataRows(std::nullopt, {FieldKind::Normalized});
  std::array<FieldGroup, 3> groups{
      FieldGroup{{"lblSiteHeading", "Basin and site"}, site},
      FieldGroup{{"lblSolveForHeading", "Design"}, solve},
      FieldGroup{{"lblNormalizedHeading", "Normalized on the EIA"}, normalized},
  };
};

const Rows& AllRows() {
  static const Rows rows;
  return rows;
}

// It names the bar to a screen reader, which would otherwise read the last label before it.
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

// Below both pages: what is said beside the messages, and the state of the project.
constexpr std::array kFoot = {
    WidgetDesign{"picHint", ""},
    WidgetDesign{"lblHint", "picHint", WidgetStyle::Notice},
    WidgetDesign{"txtHint", "picHint", WidgetStyle::Notice},
    WidgetDesign{"picStatus", ""},
    WidgetDesign{"lblSaved", "picStatus"},
    WidgetDesign{"lblFile", "picStatus"},
    WidgetDesign{"lblOutOfDate", "picStatus"},
};

constexpr std::array kMenus = {
    WidgetDesign{"mnuFile", ""},
    WidgetDesign{"mnuFile_New", "mnuFile"},
    WidgetDesign{"mnuFile_Open", "mnuFile"},
    WidgetDesign{"mnuFile_Save", "mnuFile", WidgetStyle::Separated},
    WidgetDesign{"mnuFile_SaveAs", "mnuFile"},
    WidgetDesign{"mnuFile_Restore", "mnuFile", WidgetStyle::Separated},
    WidgetDesign{"mnuFile_DiscardKept", "mnuFile"},
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

// Last on the page: a label before a field would name it.
void AddMarks(std::vector<WidgetDesign>& widgets) {
  for (const FieldGroup& group : DataGroups()) {
    for (const FieldRow& row : group.rows) {
      if (!row.mark.empty()) widgets.push_back({row.mark, "picData", WidgetStyle::Heading});
    }
  }
}

std::vector<WidgetDesign> MakeWidgets() {
  std::vector<WidgetDesign> widgets(kToolbar.begin(), kToolbar.end());
  widgets.push_back({"picProject", ""});
  for (const FieldRow& row : ProjectRows()) AddRow(widgets, "picProject", row);
  widgets.push_back({"cmdToday", "picProject"});
  widgets.push_back({"picData", ""});
  for (const FieldGroup& group : DataGroups()) {
    widgets.push_back({group.heading.name, "picData", WidgetStyle::Heading});
    for (const FieldRow& row : group.rows) AddRow(widgets, "picData", row);
  }
  widgets.push_back({"ctrlStormwaterReuse1", "picData"});
  AddRow(widgets, "picData", kMessageRow);
  widgets.push_back({"cmdErrorHelp", "picData"});
  AddMarks(widgets);
  widgets.insert(widgets.end(), kFoot.begin(), kFoot.end());
  widgets.insert(widgets.end(), kMenus.begin(), kMenus.end());
  return widgets;
}

std::vector<LabelDesign> MakeLabels() {
  std::vector<LabelDesign> labels;
  const auto add = [&](const LabelDesign& label) {
    if (!label.caption.empty()) labels.push_back(label);
  };
  for (const FieldRow& row : ProjectRows()) add(row.label);
  for (const FieldGroup& group : DataGroups()) {
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
  return AllRows().project;
}

std::span<const FieldGroup> DataGroups() {
  return AllRows().groups;
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
