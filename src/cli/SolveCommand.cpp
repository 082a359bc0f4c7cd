// kav solve: two of R, V and E in, the third out.
#include <iomanip>
#include <memory>

#include "base/NumberText.h"
#include "base/PrintableText.h"
#include "base/RuntimeErrors.h"
#include "cli/Command.h"
#include "cli/JsonOutput.h"
#include "cli/StationQuestion.h"
#include "design/DesignPoint.h"
#include "design/Messages.h"

namespace orvik {
namespace {

nlohmann::ordered_json JsonNumber(const std::string& text) {
  if (text.empty()) return nullptr;
  return ParseNumber(text);
}

nlohmann::ordered_json JsonOf(const Question& answer, const Message& message) {
  const bool isSolved = message.id == MessageId::Success;
  return {{"station", answer.station},
          {"R", JsonNumber(answer.R)},
          {"V", JsonNumber(answer.V)},
          {"E", JsonNumber(answer.E)},
          {"message", isSolved ? "" : Sentence(message)},
          {"helpTopic", HelpTopic(message.id)}};
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
  out << std::left << std::setw(19) << "Curves" << PrintableText(title) << '\n';
}

ExitCode Answer(Console& console, bool json, const FramedCurves& curves, const Question& asked) {
  Question answer = asked;
  const Message message = Solve(curves, answer).message;
  const bool isSolved = message.id == MessageId::Success;
  if (json) {
    PrintJson(console, JsonOf(answer, message));
  } else if (isSolved) {
    PrintText(console.out, asked, answer, curves.Curves().title);
  }
  if (isSolved) return ExitCode::Done;
  PrintMessage(console, Sentence(message));
  return ExitCode::Refused;
}

ExitCode RunSolve(Console& console, const CommonOptions& options, const Question& question) {
  if (CountGiven(question) != 2) {
    PrintMessage(console, "Give two of --rate, --volume and --efficiency; the third is found.");
    return ExitCode::WrongUsage;
  }
  const StationAnswer station =
      LoadStation(console, DataFolder(console, options), question.station);
  if (!station.curves) return station.exitCode;
  Question asked = question;
  asked.station = station.name;
  try {
    return Answer(console, options.json, *station.curves, asked);
  } catch (const NumericError&) {
    return RefuseCurves(console, station.name);
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
