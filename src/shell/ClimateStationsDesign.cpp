#include "shell/ClimateStationsDesign.h"

#include <array>

namespace orvik {
namespace {

constexpr std::string_view kViewer = "ctrlPictureViewer1";
constexpr std::array kWidgets = {WidgetDesign{kViewer, ""}};

}  // namespace

std::span<const WidgetDesign> ClimateStationsDesign::Widgets() const {
  return kWidgets;
}

std::string_view ClimateStationsDesign::FirstFocus() const {
  return kViewer;
}

Size ClimateStationsDesign::MinimumSize(const TextMeasures& measures) const {
  return {measures.Scale(320), measures.Scale(240)};
}

// In the shape of the map, and large enough to read its names.
Size ClimateStationsDesign::InitialSize(const TextMeasures& measures) const {
  return {measures.Scale(812), measures.Scale(700)};
}

std::vector<Placement> ClimateStationsDesign::LayOut(Size inner, const TextMeasures&) const {
  return {{kViewer, {0, 0, inner.width, inner.height}}};
}

const ClimateStationsDesign& ClimateStationsDesign::Get() {
  static const ClimateStationsDesign design;
  return design;
}

}  // namespace orvik
