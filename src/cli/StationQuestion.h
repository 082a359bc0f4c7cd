// A station and up to two known quantities, as commands take them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "cli/Command.h"
#include "engine/FramedCurves.h"

namespace orvik {

struct DesignPoint;

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

// Answers the question from the two quantities that are given, and fills in the third. The point of
// the answer: its message says why there is none.
DesignPoint Solve(const FramedCurves& curves, Question& question);

// The curves of a station that the user named.
struct StationAnswer {
  ExitCode exitCode = ExitCode::Done;  // anything but Done has been said on the console
  std::int16_t station = 0;
  std::string name;  // as the table of stations has it
  std::optional<FramedCurves> curves;
};

StationAnswer LoadStation(Console& console, const std::string& dataFolder, const std::string& name);

// The sentence for the station of this number, whose file is there but has no curves that can be
// used. `folder` is that of the curve files.
std::string DescribeDamage(const std::string& folder, std::int16_t station);

// Says that the curves of this station led to a numeric fault.
ExitCode RefuseCurves(Console& console, const std::string& station);

}  // namespace orvik
