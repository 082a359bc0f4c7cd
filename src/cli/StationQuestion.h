// A station and up to two known quantities, as commands take them.
#pragma once

#include <string>

#include "chart/ctrlStormwaterReuse.h"
#include "cli/Command.h"
#include "platform/headless/HeadlessDesktop.h"

namespace orvik {

// What the user asked; an empty text is a quantity that was not given.
struct Question {
  std::string station;
  std::string R;
  std::string V;
  std::string E;
};

// The options --rate, --volume and --efficiency.
void AddQuestionOptions(CLI::App& command, Question& question);

int CountGiven(const Question& question);

// Places the chart's hotspot from the two quantities that are given, and fills in the third. False:
// the chart's ErrMsg says why not.
bool Solve(ctrlStormwaterReuse& chart, Question& question);

// Loads the curves of the station of this name; anything but Done has been said on the console.
ExitCode LoadStation(Console& console, ctrlStormwaterReuse& chart, const HeadlessDesktop& desktop,
                     const std::string& name);

// The sentence for a station whose file is there, but gave the chart no curves.
std::string DescribeDamage(const ctrlStormwaterReuse& chart, const std::string& station);

// Says that the loaded curves led to a numeric fault.
ExitCode RefuseCurves(Console& console, const ctrlStormwaterReuse& chart);

}  // namespace orvik
