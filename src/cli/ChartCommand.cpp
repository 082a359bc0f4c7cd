// kav chart: draws the design chart of a station or a project to a picture file.
#include <memory>

#include "base/FileError.h"
#include "base/NumberText.h"
#include "base/RuntimeErrors.h"
#include "chart/ctrlStormwaterReuse.h"
#include "cli/Command.h"
#include "cli/JsonOutput.h"
#include "cli/OutputFile.h"
#include "cli/ProjectOpening.h"
#include "cli/StationQuestion.h"
#include "platform/cairo/PictureFile.h"

namespace orvik {
namespace {

constexpr Size kDefaultSize{960, 640};  // at this size all texts fit beside the frame
constexpr int kLeastExtent = 60;        // pixels; a smaller chart shows nothing
constexpr int kMostExtent = 16000;

struct ChartRequest {
  std::string project;
  Question question;
  std::string output;
  std::string size;
};

// Reads "960x640"; nothing where it is not two whole numbers within bounds.
std::optional<Size> ParseSize(std::string_view text) {
  const std::size_t cross = text.find('x');
  if (cross == std::string_view::npos) return std::nullopt;
  const auto width = ParseWholeNumber(text.substr(0, cross));
  const auto height = ParseWholeNumber(text.substr(cross + 1));
  const auto isExtent = [](std::optional<std::int16_t> extent) {
    return extent && kLeastExtent <= *extent && *extent <= kMostExtent;
  };
  if (!isExtent(width) || !isExtent(height)) return std::nullopt;
  return Size{*width, *height};
}

std::string ValidateSize(const std::string& text) {
  if (ParseSize(text)) return {};
  return "\"" + text + "\" is not a size like 960x640 (" + std::to_string(kLeastExtent) + " to " +
         std::to_string(kMostExtent) + " pixels each way)";
}

std::string ValidatePicture(const std::string& path) {
  return PictureKindOf(path) ? std::string()
                             : "\"" + path + "\" does not end in .png, .svg or .pdf";
}

void DrawToFile(const ChartRequest& request, ctrlStormwaterReuse& chart) {
  const Size size = request.size.empty() ? kDefaultSize : *ParseSize(request.size);
  chart.Resize(size.width, size.height);
  const std::string title = "Design curves of " + chart.StationName();
  WriteOutputFile(request.output, MakePictureFile(*PictureKindOf(request.output), size, title,
                                                  [&](Surface& surface) { chart.Paint(surface); }));
}

ExitCode Refuse(Console& console, std::string_view message) {
  PrintMessage(console, message);
  return ExitCode::Refused;
}

// The chart of curves that are loaded, with a design point or none.
ExitCode DrawChart(const CommonOptions& options, Console& console, const ChartRequest& request,
                   std::int16_t station, const DesignPoint& point) {
  ctrlStormwaterReuse chart(DataFolder(console, options));
  chart.SetCurveData(station);
  chart.Point(point);
  DrawToFile(request, chart);
  if (options.json) PrintJson(console, {{"file", request.output}});
  return ExitCode::Done;
}

ExitCode ChartOfStation(Console& console, const CommonOptions& options,
                        const ChartRequest& request) {
  Question question = request.question;
  const StationAnswer station =
      LoadStation(console, DataFolder(console, options), question.station);
  if (!station.curves) return station.exitCode;
  try {
    DesignPoint point;
    if (CountGiven(question) == 2) {
      point = Solve(*station.curves, question);
      if (point.message.id != MessageId::Success) return Refuse(console, Sentence(point.message));
    }
    return DrawChart(options, console, request, station.station, point);
  } catch (const NumericError&) {
    return RefuseCurves(console, station.name);
  }
}

ExitCode ChartOfProject(Console& console, const CommonOptions& options,
                        const ChartRequest& request) {
  const auto opened = OpenProject(console, request.project, DataFolder(console, options));
  if (!opened) return ExitCode::FileError;
  if (opened->shown.id != MessageId::None) return Refuse(console, Sentence(opened->shown));
  if (!opened->curves) return Refuse(console, "The project has no climate station.");
  return DrawChart(options, console, request,
                   static_cast<std::int16_t>(opened->project.station + 1), opened->project.point);
}

ExitCode WrongUsage(Console& console, std::string_view message) {
  PrintMessage(console, message);
  return ExitCode::WrongUsage;
}

ExitCode RunChart(Console& console, const CommonOptions& options, const ChartRequest& request) {
  const bool hasStation = !request.question.station.empty();
  const int given = CountGiven(request.question);
  if (hasStation == !request.project.empty()) {
    return WrongUsage(console, "Give either a project file or --station.");
  }
  if (!hasStation && given > 0) {
    return WrongUsage(console,
                      "--rate, --volume and --efficiency go with --station; a project has its own "
                      "values.");
  }
  if (given == 1 || given == 3) {
    return WrongUsage(console,
                      "Give two of --rate, --volume and --efficiency to mark a design point, or "
                      "none of them.");
  }
  try {
    return hasStation ? ChartOfStation(console, options, request)
                      : ChartOfProject(console, options, request);
  } catch (const FileError& error) {
    PrintMessage(console, error.what());
    return ExitCode::FileError;
  }
}

}  // namespace

CommandRun AddChartCommand(CLI::App& app) {
  auto request = std::make_shared<ChartRequest>();
  auto* command = app.add_subcommand("chart", "Draw the design chart of a project or a station");
  command->add_option("project", request->project, "Project file")->type_name("PROJECT.kav");
  command->add_option("--station", request->question.station, "Climate station, by name")
      ->type_name("NAME");
  AddQuestionOptions(*command, request->question);
  command->add_option("-o,--output", request->output, "Picture file; its ending says the format")
      ->required()
      ->type_name("FILE.(png|svg|pdf)")
      ->check(ValidatePicture);
  command->add_option("--size", request->size, "Width and height in pixels, 960x640 if not given")
      ->type_name("WxH")
      ->check(ValidateSize);
  command->footer(
      R"(A project's chart marks its design point; a station's does with two of --rate, --volume and --efficiency.
On a PDF's page, 96 pixels are an inch.

Examples:
  kav chart samples/efficiency.kav -o chart.png
  kav chart --station Tampa --rate 0.15 --volume 3 -o tampa.pdf --size 1200x800)");
  return [request](Console& console, const CommonOptions& options) {
    return RunChart(console, options, *request);
  };
}

}  // namespace orvik
