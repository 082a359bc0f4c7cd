// The station map's window: nothing but its viewer, which fills it.
#pragma once

#include "platform/FormDesign.h"

namespace orvik {

class ClimateStationsDesign final : public FormDesign {
 public:
  WindowFrame Frame() const override { return WindowFrame::Sizable; }
  std::span<const WidgetDesign> Widgets() const override;
  std::string_view FirstFocus() const override;
  Size MinimumSize(const TextMeasures& measures) const override;
  Size InitialSize(const TextMeasures& measures) const override;
  std::vector<Placement> LayOut(Size inner, const TextMeasures& measures) const override;

  // The one design; it has no state and outlives every window.
  static const ClimateStationsDesign& Get();
};

}  // namespace orvik
