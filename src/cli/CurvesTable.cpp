#include "cli/CurvesTable.h"

#include <iomanip>

#include "base/FixedText.h"
#include "base/NumberText.h"
#include "engine/CurveSet.h"

namespace orvik {
namespace {

std::string ErrorText(const std::optional<CurveError>& error, double CurveError::*part) {
  return error ? FixedText(*error.*part, 2) : "-";
}

nlohmann::ordered_json ErrorJson(const std::optional<CurveError>& error, double CurveError::*part) {
  return error ? nlohmann::ordered_json(*error.*part) : nullptr;
}

}  // namespace

CurveErrors AllJudged(const std::vector<CurveError>& errors) {
  return {errors.begin(), errors.end()};
}

void PrintCurvesTable(std::ostream& out, const CurveSet& set, const CurveErrors& errors) {
  out << "E       VStart     VEnd   R at VStart   R at VEnd"
      << (errors.empty() ? "" : "   largest error   mean error") << '\n'
      << "%           in       in        in/day      in/day"
      << (errors.empty() ? "" : "     points of E  points of E") << '\n';
  for (std::size_t i = 0; i < set.curves.size(); ++i) {
    const EfficiencyCurve& curve = set.curves[i];
    out << std::left << std::setw(5) << ConvertToString(curve.E) << std::right << std::setw(9)
        << FixedText(curve.VStart, 2) << std::setw(9) << FixedText(curve.VEnd, 2) << std::setw(14)
        << FixedText(CurveR(curve.VStart, curve), 4) << std::setw(12)
        << FixedText(CurveR(curve.VEnd, curve), 4);
    if (!errors.empty()) {
      out << std::setw(16) << ErrorText(errors[i], &CurveError::max) << std::setw(13)
          << ErrorText(errors[i], &CurveError::mean);
    }
    out << '\n';
  }
}

nlohmann::ordered_json CurvesJson(const CurveSet& set, const CurveErrors& errors) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (std::size_t i = 0; i < set.curves.size(); ++i) {
    const EfficiencyCurve& curve = set.curves[i];
    nlohmann::ordered_json row{{"E", curve.E}, {"VStart", curve.VStart}, {"VEnd", curve.VEnd}};
    if (!errors.empty()) {
      row["maxError"] = ErrorJson(errors[i], &CurveError::max);
      row["meanError"] = ErrorJson(errors[i], &CurveError::mean);
    }
    list.push_back(row);
  }
  return list;
}

}  // namespace orvik
