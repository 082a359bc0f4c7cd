// kav curves make: makes the curve file of one place from its daily rainfall.
#include <algorithm>
#include <filesystem>
#include <memory>

#include "base/FixedText.h"
#include "base/Paths.h"
#include "base/PrintableText.h"
#include "cli/CurvesOptions.h"
#include "cli/CurvesTable.h"
#include "cli/JsonOutput.h"
#include "cli/OutputFile.h"
#include "curves/ChartAxes.h"
#include "curves/CurveMaker.h"
#include "curves/StationSources.h"
#include "engine/CurveFileWriter.h"
#include "pond/PondDays.h"
#include "rain/RainDate.h"
#include "rain/RainYears.h"

namespace orvik {
namespace {

struct CurvesMakeRequest {
  RainArguments rain;
  PondArguments pond;
  AxesArguments axes;
  std::string name;
  std::string source;
  std::string file;
};

// The source that the title names: the user's words, else the file's name.
std::string SourceOf(const CurvesMakeRequest& request) {
  if (!request.source.empty()) return request.source;
  return "daily rainfall " + PathToUtf8(PathFromUtf8(request.rain.file).filename());
}

void PrintText(std::ostream& out, const RainRecord& record, const RainYears& years,
               const MadeCurves& made) {
  out << PrintableText(made.set.title) << '\n'
      << "Record " << IsoDate(record.first) << " to " << IsoDate(record.last) << ", "
      << years.kept.size() << " usable years (" << years.leftOutYears.size() << " left out, "
      << years.missingDays << " missing days taken as dry), mean "
      << FixedText(years.meanAnnualIn, 1) << " inches a year, wettest day "
      << FixedText(years.wettestDayIn, 2) << " inches on " << IsoDate(years.wettestDay) << "\n\n";
  PrintCurvesTable(out, made.set, AllJudged(made.errors));
}

nlohmann::ordered_json JsonOf(const CurvesMakeRequest& request, const RainRecord& record,
                              const RainYears& years, const MadeCurves& made) {
  const PondOptions pond = ToPondOptions(request.pond);
  return {{"name", request.name},
          {"title", made.set.title},
          {"file", request.file},
          {"first", IsoDate(record.first)},
          {"last", IsoDate(record.last)},
          {"usableYears", years.kept.size()},
          {"meanAnnualIn", years.meanAnnualIn},
          {"wettestDayIn", years.wettestDayIn},
          {"wettestDay", IsoDate(years.wettestDay)},
          {"holdOffDays", pond.holdOffDays},
          {"abstractionIn", pond.abstractionIn},
          {"curves", CurvesJson(made.set, AllJudged(made.errors))}};
}

// What can be refused before any work is done.
void CheckRequest(const CurvesMakeRequest& request) {
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' '; };
  if (std::ranges::any_of(request.name + request.source, isControl)) {
    throw UsageError("The name and the source must each be one line of text.");
  }
  std::error_code error;
  if (std::filesystem::equivalent(PathFromUtf8(request.rain.file), PathFromUtf8(request.file),
                                  error)) {
    throw UsageError("--rain and --output are the same file; the record would be lost.");
  }
  RequireReplaceable(request.file);
}

ExitCode Make(Console& console, bool json, const CurvesMakeRequest& request) {
  CheckRequest(request);
  const PondOptions pond = ToPondOptions(request.pond);
  const ChartAxes axes = ToChartAxes(request.axes);
  const RainRecord record = ReadRain(request.rain);
  PrintMessage(console, DescribeFindings(record));
  const RainYears years = SelectRainYears(record);
  WarnOfSuspectedCode(console, years);
  const MadeCurves made =
      MakeCurves(BuildPondDays(years, pond), axes,
                 CurveTitle(request.name, SourceOf(request), record, years, pond));
  WriteOutputFile(request.file, CurveFileText(made.set));
  if (json) {
    PrintJson(console, JsonOf(request, record, years, made));
  } else {
    PrintText(console.out, record, years, made);
  }
  return ExitCode::Done;
}

}  // namespace

CommandRun AddCurvesMakeCommand(CLI::App& curves) {
  auto request = std::make_shared<CurvesMakeRequest>();
  auto* command = curves.add_subcommand("make", "Make a curve file from a daily rainfall record");
  AddRainOptions(*command, request->rain, true);
  command->add_option("--name", request->name, "Name of the place, for the file's title")
      ->required()
      ->type_name("NAME")
      ->check(ValidateNotBlank);
  command
      ->add_option("--source", request->source,
                   "Where the rainfall comes from, for the file's title")
      ->type_name("TEXT");
  command->add_option("-o,--output", request->file, "The curve file to write")
      ->required()
      ->type_name("FILE.crv")
      ->check(ValidateNotBlank);
  AddPondOptions(*command, request->pond);
  AddAxesOptions(*command, request->axes);
  command->footer(std::string(kBalanceDefinition) + R"(

Example:
  kav curves make --rain samples/synthetic-rain.csv --unit in --name Sampleville -o Sampleville.crv)");
  return [request](Console& console, const CommonOptions& options) {
    return RunWithMessages(console, [&] { return Make(console, options.json, *request); });
  };
}

}  // namespace orvik
