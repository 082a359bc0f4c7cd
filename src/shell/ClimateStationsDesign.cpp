#include "shell/ClimateStationsDesign.h"

#include <array>

namespace orvik {
namespace {

// For 96 dots per inch.
constexpr Size kLeastSize{320, 240};
constexpr Size kFirstSize{812, 700};  // in the shape of the map, and large enough to read its names

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
  return {measures.Scale(kLeastSize.width), measures.Scale(kLeastSize.height)};
}

Size ClimateStationsDesign::InitialSize(const TextMeasures& measures) const {
  return {measures.Scale(kFirstSize.width), measures.Scale(kFirstSize.height)};
}

std::vector<Placement> ClimateStationsDesign::LayOut(Size inner, const TextMeasures&) const {
  return {{kViewer, {0, 0, inner.width, inner.height}}};
}

const ClimateStationsDesign& ClimateStationsDesign::Get() {
  static const ClimateStationsDesign design;
  return design;
}

}  // namespace orvik
