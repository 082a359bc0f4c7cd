// kav curves check: is a curve file fit for calculation?
#include <memory>
#include <optional>

#include "base/PrintableText.h"
#include "base/TextFault.h"
#include "cli/CurvesOptions.h"
#include "cli/CurvesTable.h"
#include "cli/JsonOutput.h"
#include "cli/StationQuestion.h"
#include "curves/CurveCheck.h"
#include "curves/CurveJudge.h"
#include "design/FileHints.h"
#include "engine/CurveLoading.h"
#include "engine/CurveSet.h"
#include "pond/PondDays.h"
#include "rain/RainYears.h"

namespace orvik {
namespace {

struct CurvesCheckRequest {
  std::string file;
  RainArguments rain;
  PondArguments pond;
};

ExitCode SayWhyUnusable(Console& console, const LoadedCurves& loaded) {
  const std::string file = "The curve file " + loaded.path;
  if (loaded.outcome == LoadOutcome::Unreadable) {
    PrintMessage(console, SentenceOfDamage(file, loaded));
    PrintHints(console, HintsOf(loaded));
  } else {
    PrintMessage(console, file + " cannot be read.");
    if (const auto hint = HintOf(FindTextFault(loaded.path), loaded.path)) {
      PrintHints(console, {*hint});
    }
  }
  return ExitCode::FileError;
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
  const LoadedCurves loaded = LoadCurveFile(request.file);
  if (!loaded.curves) return SayWhyUnusable(console, loaded);
  PrintHints(console, HintsOf(loaded));
  const CurveSet& set = *loaded.curves;
  const std::optional<PondDays> days = ReadDays(console, request);
  const auto meanRunoff = days ? std::optional(days->MeanRunoff()) : std::nullopt;
  const std::vector<std::string> faults = CheckCurves(set, meanRunoff);
  const CurveErrors errors = JudgeAll(set, days);
  if (json) {
    PrintJson(console, {{"file", request.file},
                        {"title", set.title},
                        {"faults", faults},
                        {"curves", CurvesJson(set, errors)}});
  } else {
    console.out << PrintableText(set.title) << "\n\n";
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
