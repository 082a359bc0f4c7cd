// kav curves: design curves from daily rainfall.
#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "cli/CurvesOptions.h"

namespace orvik {

CommandRun AddCurvesCommand(CLI::App& app) {
  auto* curves = app.add_subcommand("curves", "Make and check design curves");
  curves->require_subcommand(1);
  curves->footer(R"(Examples:
  kav curves make --rain samples/synthetic-rain.csv --unit in --name Sampleville -o Sampleville.crv
  kav curves check Sampleville.crv

kav curves make --help explains the method.)");
  auto runs = std::make_shared<std::vector<std::pair<CLI::App*, CommandRun>>>();
  const auto add = [&](CommandRun (*addCommand)(CLI::App&)) {
    CommandRun run = addCommand(*curves);
    runs->emplace_back(curves->get_subcommands([](const CLI::App*) { return true; }).back(),
                       std::move(run));
  };
  add(AddCurvesMakeCommand);
  add(AddCurvesMakeAllCommand);
  add(AddCurvesCheckCommand);
  return [runs](Console& console, const CommonOptions& options) {
    const auto chosen =
        std::ranges::find_if(*runs, [](const auto& run) { return run.first->parsed(); });
    return chosen->second(console, options);
  };
}

}  // namespace orvik
