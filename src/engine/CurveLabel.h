// A caption on the chart, and the text form of its position.
#pragma once

#include <string>
#include <string_view>

namespace orvik {

struct CurveLabel {
  std::string Text;  // NOLINT(readability-identifier-naming): the suite's name
  double V = 0;      // inches on the EIA
  double R = 0;      // inches per day on the EIA
};

// Splits "2.5,0.12" into X and Y; blanks around each number are allowed. False when there is no
// comma or a part is not a number. X keeps the first number also when the second fails.
bool SplitXandY(std::string_view text, double& X, double& Y);

}  // namespace orvik
