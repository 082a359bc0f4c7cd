#include "cli/StationQuestion.h"

#include "base/NumberText.h"
#include "design/DesignPoint.h"
#include "design/FileHints.h"
#include "design/OutcomeMessage.h"
#include "engine/ClimateStations.h"
#include "engine/CurveLoading.h"

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

DesignPoint Solve(const FramedCurves& curves, Question& question) {
  DesignPoint point;
  const double R = ParseNumber(question.R);
  const double V = ParseNumber(question.V);
  if (question.E.empty()) {
    question.E = PlaceUsingRV(point, &curves, R, V).value_or("");
  } else if (question.V.empty()) {
    question.V = PlaceUsingER(point, &curves, question.E, R).value_or("");
  } else {
    question.R = PlaceUsingEV(point, &curves, question.E, V).value_or("");
  }
  return point;
}

std::string SentenceOfDamage(const std::string& file, const LoadedCurves& loaded) {
  return file + (loaded.textFault == TextFault::HasOnlyLineFeeds
                     ? " cannot be read: its lines must end with CR LF."
                     : " is damaged or cannot be read.");
}

void PrintWhyNotLoaded(Console& console, const LoadedCurves& loaded, std::int16_t station) {
  const Message message = MessageOf(loaded.outcome, loaded.path, station);
  PrintMessage(console,
               message.id != MessageId::None
                   ? Sentence(message)
                   : SentenceOfDamage(
                         "The curve file of " + std::string(ClimateStationName(station)), loaded));
}

StationAnswer LoadStation(Console& console, const std::string& dataFolder,
                          const std::string& name) {
  StationAnswer answer;
  const auto station = FindClimateStation(name);
  if (!station) {
    PrintMessage(console, "There is no climate station \"" + name + "\". kav stations lists them.");
    answer.exitCode = ExitCode::WrongUsage;
    return answer;
  }
  answer.station = *station;
  answer.name = ClimateStationName(*station);
  const std::string folder = CurveFolderBelow(dataFolder);
  const LoadedCurves loaded = LoadStationCurves(folder, *station);
  if (loaded.curves) {
    answer.curves.emplace(loaded.curves, ReferenceGeometry(*loaded.curves));
    PrintHints(console, HintsOf(loaded));
    return answer;
  }
  PrintWhyNotLoaded(console, loaded, *station);
  PrintHints(console, HintsOf(loaded));
  answer.exitCode = ExitCode::FileError;
  return answer;
}

ExitCode RefuseCurves(Console& console, const std::string& station) {
  PrintMessage(console, "The design curves of " + station +
                            " cannot be used: two of them meet or leave the chart.");
  return ExitCode::FileError;
}

}  // namespace orvik
