#include "shell/MainWindowDesign.h"

#include "shell/MainWindowLayout.h"
#include "shell/MainWindowTable.h"

namespace orvik {

std::span<const WidgetDesign> MainWindowDesign::Widgets() const {
  return MainWindowWidgets();
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
