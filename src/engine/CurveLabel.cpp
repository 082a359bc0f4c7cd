#include "engine/CurveLabel.h"

#include "base/NumberText.h"

namespace orvik {

bool SplitXandY(std::string_view text, double& X, double& Y) {
  const auto comma = text.find(',');
  if (comma == std::string_view::npos) return false;
  const std::string_view first = text.substr(0, comma);
  const std::string_view second = text.substr(comma + 1);
  if (!IsNumericText(first)) return false;
  X = ParseNumber(first);
  if (!IsNumericText(second)) return false;
  Y = ParseNumber(second);
  return true;
}

}  // namespace orvik
