// The design curves of one climate station, as its curve file holds them.
#pragma once

#include <string>
#include <vector>

#include "engine/CurveLabel.h"
#include "engine/EfficiencyCurve.h"

namespace orvik {

struct CurveSet {
  std::string title;  // the station and the source of the curves
  double VMin = 0;    // limits of the data, inches on the EIA
  double VMax = 0;
  double VInterval = 0;  // step of the chart's horizontal axis
  double RMin = 0;       // inches per day on the EIA
  double RMax = 0;
  double RInterval = 0;
  std::vector<EfficiencyCurve> curves;  // element 0 is curve 1, the lowest E; strictly increasing E
  std::vector<CurveLabel> labels;       // element 0 is label 1
};

}  // namespace orvik
