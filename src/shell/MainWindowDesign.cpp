#include "shell/MainWindowDesign.h"

#include "design/Fields.h"
#include "shell/MainWindowLayout.h"
#include "shell/MainWindowTable.h"

namespace orvik {

std::span<const WidgetDesign> MainWindowDesign::Widgets() const {
  return MainWindowWidgets();
}

// The window opens on the data page.
std::string_view MainWindowDesign::FirstFocus() const {
  return DesignOf(ListField::ClimateStation).control;
}

Size MainWindowDesign::MinimumSize(const TextMeasures& measures) const {
  return MinimumMainWindow(measures);
}

Size MainWindowDesign::InitialSize(const TextMeasures& measures) const {
  return ComfortableMainWindow(measures);
}

std::vector<Placement> MainWindowDesign::LayOut(Size inner, const TextMeasures& measures) const {
  return LayOutMainWindow(inner, measures);
}

const MainWindowDesign& MainWindowDesign::Get() {
  static const MainWindowDesign design;
  return design;
}

}  // namespace orvik
