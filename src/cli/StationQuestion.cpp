#include "cli/StationQuestion.h"

#include "engine/ClimateStations.h"
#include "engine/CurveFileDiagnosis.h"

namespace orvik {

void AddQuestionOptions(CLI::App& command, Question& question) {
  const auto number = [&](const char* name, std::string& target, const char* what) {
    command.add_option(name, target, what)->type_name("NUMBER")->check(ValidateNumber);
  };
  number("--rate", question.R, "Reuse rate R, inches per day on the EIA");
  number("--volume", question.V, "Storage volume V, inches on the EIA");
  number("--efficiency", question.E, "Efficiency E, percent of the runoff");
}

int CountGiven(const Question& question) {
  return static_cast<int>(!question.R.empty()) + static_cast<int>(!question.V.empty()) +
         static_cast<int>(!question.E.empty());
}

bool Solve(ctrlStormwaterReuse& chart, Question& question) {
  if (question.E.empty()) return chart.SetHotspotUsing_RV(question.R, question.V, question.E);
  if (question.V.empty()) return chart.SetHotspotUsing_ER(question.E, question.R, question.V);
  return chart.SetHotspotUsing_EV(question.E, question.V, question.R);
}

std::string DescribeDamage(const ctrlStormwaterReuse& chart, const std::string& station) {
  const std::string why = DiagnoseCurveFile(chart.CurveFolder() + station + ".crv");
  return "The curve file of " + station +
         (why.empty() ? " is damaged or cannot be read." : " cannot be read: " + why + ".");
}

ExitCode LoadStation(Console& console, ctrlStormwaterReuse& chart, const HeadlessDesktop& desktop,
                     const std::string& name) {
  const auto station = FindClimateStation(name);
  if (!station) {
    PrintMessage(console, "There is no climate station \"" + name + "\". kav stations lists them.");
    return ExitCode::WrongUsage;
  }
  chart.SetCurveData(*station);
  if (chart.IsLoaded()) return ExitCode::Done;
  for (const auto& message : desktop.Messages()) PrintMessage(console, message.text);
  if (desktop.Messages().empty()) {
    PrintMessage(console, DescribeDamage(chart, std::string(ClimateStationName(*station))));
  }
  return ExitCode::FileTrouble;
}

ExitCode RefuseCurves(Console& console, const ctrlStormwaterReuse& chart) {
  PrintMessage(console, "The design curves of " + chart.StationName() +
                            " cannot be used: two of them meet or leave the chart.");
  return ExitCode::FileTrouble;
}

}  // namespace orvik
