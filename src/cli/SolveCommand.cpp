// kav solve: two of R, V and E in, the third out.
#include <iomanip>
#include <memory>
#include <nlohmann/json.hpp>

#include "base/NumberText.h"
#include "base/Paths.h"
#include "base/RuntimeErrors.h"
#include "chart/ctrlStormwaterReuse.h"
#include "cli/Command.h"
#include "engine/ClimateStations.h"
#include "engine/CurveFileDiagnosis.h"
#include "platform/headless/HeadlessDesktop.h"

namespace orvik {
namespace {

// What the user asked; an empty text is the quantity to find.
struct Question {
  std::string station;
  std::string R;
  std::string V;
  std::string E;
};

int CountGiven(const Question& q) {
  return static_cast<int>(!q.R.empty()) + static_cast<int>(!q.V.empty()) +
         static_cast<int>(!q.E.empty());
}

bool Solve(ctrlStormwaterReuse& chart, Question& q) {
  if (q.E.empty()) return chart.SetHotspotUsing_RV(q.R, q.V, q.E);
  if (q.V.empty()) return chart.SetHotspotUsing_ER(q.E, q.R, q.V);
  return chart.SetHotspotUsing_EV(q.E, q.V, q.R);
}

nlohmann::ordered_json JsonNumber(const std::string& text) {
  if (text.empty()) return nullptr;
  return ParseNumber(text);
}

void PrintJson(std::ostream& out, const Question& answer, bool solved,
               const ctrlStormwaterReuse& chart) {
  const nlohmann::ordered_json object{{"station", answer.station},
                                      {"R", JsonNumber(answer.R)},
                                      {"V", JsonNumber(answer.V)},
                                      {"E", JsonNumber(answer.E)},
                                      {"message", solved ? "" : chart.ErrMsg()},
                                      {"helpTopic", chart.HelpTopicIndex()}};
  out << object.dump(2) << '\n';
}

void PrintRow(std::ostream& out, std::string_view caption, const std::string& value,
              std::string_view unit, bool found) {
  out << std::left << std::setw(19) << caption << std::setw(12) << value << unit
      << (found ? "   <- found" : "") << '\n';
}

void PrintText(std::ostream& out, const Question& asked, const Question& answer,
               const std::string& title) {
  out << std::left << std::setw(19) << "Climate station" << answer.station << '\n';
  PrintRow(out, "Reuse rate R", answer.R, "in/day on the EIA", asked.R.empty());
  PrintRow(out, "Storage volume V", answer.V, "in on the EIA", asked.V.empty());
  PrintRow(out, "Efficiency E", answer.E, "% of the runoff", asked.E.empty());
  out << std::left << std::setw(19) << "Curves" << title << '\n';
}

// The station's file is there, but gave no curves.
std::string DescribeDamage(const Console& console, const CommonOptions& options,
                           std::int16_t station) {
  const std::string name(ClimateStationName(station));
  const std::string path =
      WithEndingSeparator(DataFolder(console, options) + "KAV Data") + name + ".crv";
  const std::string why = DiagnoseCurveFile(path);
  return "The curve file of " + name +
         (why.empty() ? " is damaged or cannot be read." : " cannot be read: " + why + ".");
}

// Loads the station's curves, or says why not.
bool LoadStation(Console& console, const CommonOptions& options, ctrlStormwaterReuse& chart,
                 const HeadlessDesktop& desktop, std::int16_t station) {
  chart.SetCurveData(station);
  if (chart.IsLoaded()) return true;
  for (const auto& message : desktop.Messages()) PrintMessage(console, message.text);
  if (desktop.Messages().empty()) {
    PrintMessage(console, DescribeDamage(console, options, station));
  }
  return false;
}

ExitCode Answer(Console& console, bool json, ctrlStormwaterReuse& chart, const Question& asked) {
  Question answer = asked;
  const bool solved = Solve(chart, answer);
  if (json) {
    PrintJson(console.out, answer, solved, chart);
  } else if (solved) {
    PrintText(console.out, asked, answer, chart.Curves().Title);
  }
  if (solved) return ExitCode::Done;
  PrintMessage(console, chart.ErrMsg());
  return ExitCode::CalculationSaysNo;
}

ExitCode RunSolve(Console& console, const CommonOptions& options, const Question& question) {
  const auto station = FindClimateStation(question.station);
  if (!station) {
    PrintMessage(console, "There is no climate station \"" + question.station +
                              "\". kav stations lists them.");
    return ExitCode::WrongUsage;
  }
  if (CountGiven(question) != 2) {
    PrintMessage(console, "Give two of --rate, --volume and --efficiency; the third is found.");
    return ExitCode::WrongUsage;
  }
  HeadlessDesktop desktop;
  ctrlStormwaterReuse chart(desktop, DataFolder(console, options));
  if (!LoadStation(console, options, chart, desktop, *station)) return ExitCode::FileTrouble;
  Question asked = question;
  asked.station = ClimateStationName(*station);
  try {
    return Answer(console, options.json, chart, asked);
  } catch (const NumericError&) {
    PrintMessage(console, "The design curves of " + asked.station +
                              " cannot be used: two of them meet or leave the chart.");
    return ExitCode::FileTrouble;
  }
}

}  // namespace

CommandRun AddSolveCommand(CLI::App& app) {
  auto question = std::make_shared<Question>();
  auto* command = app.add_subcommand("solve", "Find the third of R, V and E from the other two");
  command->add_option("--station", question->station, "Climate station, by name")
      ->required()
      ->type_name("NAME");
  const auto number = [&](const char* name, std::string& target, const char* what) {
    command->add_option(name, target, what)->type_name("NUMBER")->check(ValidateNumber);
  };
  number("--rate", question->R, "Reuse rate R, inches per day on the EIA");
  number("--volume", question->V, "Storage volume V, inches on the EIA");
  number("--efficiency", question->E, "Efficiency E, percent of the runoff");
  command->footer("Example:\n  kav solve --station Gainesville --rate 0.15 --volume 3");
  return [question](Console& console, const CommonOptions& options) {
    return RunSolve(console, options, *question);
  };
}

}  // namespace orvik
