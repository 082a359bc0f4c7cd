// kav solve: two of R, V and E in, the third out.
#include <iomanip>
#include <memory>
#include <nlohmann/json.hpp>

#include "base/NumberText.h"
#include "base/Paths.h"
#include "base/RuntimeErrors.h"
#include "chart/ctrlStormwaterReuse.h"
#include "cli/Command.h"
#include "cli/StationQuestion.h"
#include "platform/headless/HeadlessDesktop.h"

namespace orvik {
namespace {

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
  if (CountGiven(question) != 2) {
    PrintMessage(console, "Give two of --rate, --volume and --efficiency; the third is found.");
    return ExitCode::WrongUsage;
  }
  HeadlessDesktop desktop;
  ctrlStormwaterReuse chart(desktop, DataFolder(console, options));
  const ExitCode loaded = LoadStation(console, chart, desktop, question.station);
  if (loaded != ExitCode::Done) return loaded;
  Question asked = question;
  asked.station = chart.StationName();
  try {
    return Answer(console, options.json, chart, asked);
  } catch (const NumericError&) {
    return RefuseCurves(console, chart);
  }
}

}  // namespace

CommandRun AddSolveCommand(CLI::App& app) {
  auto question = std::make_shared<Question>();
  auto* command = app.add_subcommand("solve", "Find the third of R, V and E from the other two");
  command->add_option("--station", question->station, "Climate station, by name")
      ->required()
      ->type_name("NAME");
  AddQuestionOptions(*command, *question);
  command->footer("Example:\n  kav solve --station Gainesville --rate 0.15 --volume 3");
  return [question](Console& console, const CommonOptions& options) {
    return RunSolve(console, options, *question);
  };
}

}  // namespace orvik
