// The table of a curve set as the commands below "kav curves" print it.
#pragma once

#include <nlohmann/json.hpp>
#include <ostream>
#include <vector>

#include "curves/CurveJudge.h"
#include "engine/CurveSet.h"

namespace orvik {

// One line for each curve; the columns of errors only where `errors` is not empty (then it has one
// element for each curve).
void PrintCurvesTable(std::ostream& out, const CurveSet& set,
                      const std::vector<CurveError>& errors);

nlohmann::ordered_json CurvesJson(const CurveSet& set, const std::vector<CurveError>& errors);

}  // namespace orvik
