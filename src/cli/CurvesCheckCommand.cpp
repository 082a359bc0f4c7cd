// kav curves check: is a curve file fit for calculation?
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>

#include "base/FileError.h"
#include "base/Paths.h"
#include "cli/CurvesOptions.h"
#include "cli/CurvesTable.h"
#include "curves/CurveCheck.h"
#include "curves/CurveJudge.h"
#include "engine/CurveFile.h"
#include "engine/CurveFileDiagnosis.h"
#include "engine/CurveSet.h"
#include "pond/PondDays.h"
#include "rain/RainYears.h"
#include "stream/clsIOStream.h"

namespace orvik {
namespace {

struct CurvesCheckRequest {
  std::string file;
  RainArguments rain;
  PondArguments pond;
};

CurveSet ReadCurves(const std::string& path) {
  if (!FileExists(path)) throw FileError("The curve file " + path + " cannot be read.");
  clsIOStream stream;
  CurveSet set;
  if (!stream.OpenFile(path, enumIOStreamMode::AsciiFileInput) || !ReadCurveFile(stream, set)) {
    const std::string why = DiagnoseCurveFile(path);
    if (!why.empty()) throw FileError("The curve file " + path + " cannot be read: " + why + ".");
    throw FileError("The curve file " + path +
                    " is damaged: it ends early, has no curves, or has a number that cannot be "
                    "used.");
  }
  return set;
}

std::optional<PondDays> ReadDays(Console& console, const CurvesCheckRequest& request) {
  if (request.rain.file.empty()) return std::nullopt;
  const RainRecord record = ReadRain(request.rain);
  PrintMessage(console, DescribeFindings(record));
  const RainYears years = SelectRainYears(record);
  WarnOfSuspectedCode(console, years);
  return BuildPondDays(years, ToPondOptions(request.pond));
}

// How far a simulation along each curve is from its E; empty without rainfall. A curve without a
// range of volumes is not judged.
CurveErrors JudgeAll(const CurveSet& set, const std::optional<PondDays>& days) {
  CurveErrors errors;
  if (!days) return errors;
  for (const EfficiencyCurve& curve : set.curves) {
    const bool hasRange = curve.VEnd > curve.VStart;
    errors.push_back(hasRange ? std::optional(JudgeCurve(*days, curve)) : std::nullopt);
  }
  return errors;
}

ExitCode Check(Console& console, bool json, const CurvesCheckRequest& request) {
  const CurveSet set = ReadCurves(request.file);
  const std::optional<PondDays> days = ReadDays(console, request);
  const auto meanRunoff = days ? std::optional(days->MeanRunoff()) : std::nullopt;
  const std::vector<std::string> faults = CheckCurves(set, meanRunoff);
  const CurveErrors errors = JudgeAll(set, days);
  if (json) {
    const nlohmann::ordered_json object{{"file", request.file},
                                        {"title", set.title},
                                        {"faults", faults},
                                        {"curves", CurvesJson(set, errors)}};
    console.out << object.dump(2) << '\n';
  } else {
    console.out << set.title << "\n\n";
    PrintCurvesTable(console.out, set, errors);
    if (faults.empty()) console.out << "\nAll checks passed.\n";
  }
  for (const std::string& fault : faults) PrintMessage(console, fault);
  return faults.empty() ? ExitCode::Done : ExitCode::Refused;
}

}  // namespace

CommandRun AddCurvesCheckCommand(CLI::App& curves) {
  auto request = std::make_shared<CurvesCheckRequest>();
  auto* command = curves.add_subcommand("check", "Check that a curve file can be calculated with");
  command->add_option("FILE", request->file, "The curve file")->required()->type_name("FILE.crv");
  AddRainOptions(*command, request->rain, false);
  AddPondOptions(*command, request->pond);
  command->footer(
      R"(Checked: axis intervals, finite numbers, rising E, curves that fall everywhere, lie within the axes
and keep a visible gap from each other; with --rain also that each R is above E x mean runoff, and
the simulated error of each curve is shown.

Example:
  kav curves check "KAV Data/Gainesville.crv" --rain Gainesville.csv --unit in)");
  return [request](Console& console, const CommonOptions& options) {
    return RunWithMessages(console, [&] { return Check(console, options.json, *request); });
  };
}

}  // namespace orvik
