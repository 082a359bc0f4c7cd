// The rows of the main window: the widgets in reading order, and the captions and units beside the
// fields.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "design/Fields.h"
#include "platform/FormDesign.h"

namespace orvik {

// A label that never changes.
struct LabelDesign {
  std::string_view name;
  std::string_view caption;  // "&" marks the mnemonic, which leads into the field after the label
};

// A field of a page with what stands beside it; an empty name is nothing there.
struct FieldRow {
  LabelDesign label;
  std::string_view field;
  FieldKind kind = FieldKind::Text;
  LabelDesign unit = {};
  bool isList = false;
  std::string_view mark = {};  // the label at its left while the field is still needed
};

// The project page, from top to bottom.
std::span<const FieldRow> ProjectRows();

// A part of the data page: a heading and its rows.
struct FieldGroup {
  LabelDesign heading;
  std::span<const FieldRow> rows;
};

// The data page, from top to bottom.
std::span<const FieldGroup> DataGroups();

// The bar at the foot of the data page, which has no unit.
const FieldRow& MessageRow();

// Every widget of the window in the order of reading, and the menus with their items.
std::span<const WidgetDesign> MainWindowWidgets();

// Every label that never changes.
std::span<const LabelDesign> MainWindowLabels();

// Captions of the toolbar's buttons, from left to right, and of those on the pages.
namespace ButtonCaption {
inline constexpr std::string_view kProjectPage = "&Project";
inline constexpr std::string_view kDataPage = "&Data";
inline constexpr std::string_view kReCalc = "Re&calculate";
inline constexpr std::string_view kMap = "Station &map";
inline constexpr std::string_view kSaveExit = "&Save and exit";
inline constexpr std::string_view kDiscardExit = "Discard and e&xit";
inline constexpr std::string_view kToday = "Toda&y";
inline constexpr std::string_view kErrorHelp = "Explai&n";
}  // namespace ButtonCaption

}  // namespace orvik
