// The main window's table and layout as the toolkit asks for them.
#pragma once

#include "platform/FormDesign.h"

namespace orvik {

class MainWindowDesign final : public FormDesign {
 public:
  std::span<const WidgetDesign> Widgets() const override;
  std::string_view FirstFocus() const override;
  Size MinimumSize(const TextMeasures& measures) const override;
  Size InitialSize(const TextMeasures& measures) const override;
  std::vector<Placement> LayOut(Size inner, const TextMeasures& measures) const override;

  // The one design; it has no state and outlives every window.
  static const MainWindowDesign& Get();
};

}  // namespace orvik
