// The table of a curve set that the commands below "kav curves" print.
#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <vector>

#include "curves/CurveJudge.h"

namespace orvik {

struct CurveSet;

// One element for each curve, with no value where it was not judged; empty where none was.
using CurveErrors = std::vector<std::optional<CurveError>>;

CurveErrors AllJudged(const std::vector<CurveError>& errors);

// One line for each curve; the columns of errors only where `errors` is not empty. "-" is the error
// of a curve that was not judged.
void PrintCurvesTable(std::ostream& out, const CurveSet& set, const CurveErrors& errors);

// One object for each curve; "maxError" and "meanError" only where `errors` is not empty, null for
// a curve that was not judged.
nlohmann::ordered_json CurvesJson(const CurveSet& set, const CurveErrors& errors);

}  // namespace orvik
