// The about box: title, version and copyright above the details, and OK below them.
#pragma once

#include "platform/FormDesign.h"

namespace orvik {

class AboutDesign final : public FormDesign {
 public:
  WindowFrame Frame() const override { return WindowFrame::FixedSize; }
  std::span<const WidgetDesign> Widgets() const override;
  std::string_view FirstFocus() const override;
  Size MinimumSize(const TextMeasures& measures) const override;
  Size InitialSize(const TextMeasures& measures) const override;
  std::vector<Placement> LayOut(Size inner, const TextMeasures& measures) const override;

  // The one design; it has no state and outlives every window.
  static const AboutDesign& Get();
};

}  // namespace orvik
